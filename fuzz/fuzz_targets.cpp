#include "fuzz/fuzz_targets.h"

#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <set>
#include <stdexcept>

#include "core/camera_file.h"
#include "core/crystal_file.h"
#include "core/number_text.h"
#include "core/run_failure.h"
#include "core/space_group.h"
#include "core/unit_cell.h"
#include "entry/atom_lists.h"
#include "entry/structure_readers.h"
#include "fuzz/memory_file.h"
#include "fuzz/scan_targets.h"
#include "fuzz/script_target.h"
#include "powder/measured_curve.h"
#include "reflections/scattering.h"
#include "shell/desktop/qt_surface.h"
#include "structures/cif_writer.h"
#include "structures/contents.h"
#include "structures/structure_import.h"

namespace zol::fuzz {
namespace {

/// Ends the process, as a sanitizer does, when the program contradicts itself.
void require(bool holds, const char* what) {
  if (holds) return;
  std::cerr << "does not hold: " << what << '\n';
  std::abort();
}

void number_text(const std::string& input) {
  (void)Val(input);
  (void)strict_number(input);
  const auto number = leading_number(input);
  if (!number || !std::isfinite(number->value)) return;
  for (const auto* pattern : {"##0.####", "000", "#0.0", "######.##", "0", "#", ""}) {
    (void)Format(number->value, pattern);
  }
  (void)plain_text(number->value);
  const auto rounded = static_cast<Single>(number->value);
  if (!std::isfinite(rounded)) return;
  const auto again = leading_number(shortest_text(rounded));
  require(again && static_cast<Single>(again->value) == rounded,
          "the shortest text of a Single reads back as the same Single");
}

void text_records(const std::string& input) {
  RecordReader file("input", input);
  for (int field = 0; !file.at_end(); ++field) {
    try {
      if (field % 3 == 0) (void)file.next_integer("a whole number");
      if (field % 3 == 1) (void)file.next_string("a text");
      if (field % 3 == 2) (void)file.next_single("a number");
    } catch (const RunFailure&) {
      // The reader stands behind the field and goes on, unless a quote is open.
      if (file.at_end() || field > static_cast<int>(input.size())) throw;
    }
  }
}

void camera_file(const std::string& input) {
  Module1State state;
  read_camera_file(MemoryFile(input).path(), state);
}

/// Where files are written to: a folder of this process.
std::string scratch_file() {
  return (std::filesystem::temp_directory_path() / ("zol-fuzz-" + std::to_string(::getpid()) + ".cry")).string();
}

void read_crystal(const std::string& path, CrystalState& state) {
  CrystalFileReader file(path);
  file.read_cell(state);
  file.read_contents(state);
}

void crystal_file(const std::string& input) {
  CrystalState first;
  read_crystal(MemoryFile(input).path(), first);
  const std::string path = scratch_file();
  write_crystal_file(path, first);
  const std::string written = read_file(path);
  std::filesystem::remove(path);
  if (input.find('"') != std::string::npos || first.NAtom < -1) return;  // a quote inside a text, an older layout
  CrystalState second;
  read_crystal(MemoryFile(written).path(), second);
  write_crystal_file(path, second);
  require(read_file(path) == written, "a crystal file that was read and written reads as the same crystal");
  std::filesystem::remove(path);
}

void space_group(const std::string& input) {
  const auto group = read_space_group(MemoryFile(input).path());
  (void)cell_constraint(group.system);
  CrystalState state;
  state.NAtom = 2;
  state.AtomPos(2, 1) = 0.25F;
  state.AtomLabel(2) = "A";
  QuietTask task;
  for (const auto* setting : {"abc", "cab", "c-ba"}) {
    state.AxisSetting = setting;
    commit(state, expand_unit_cell(state, group, task));
    (void)unit_cell_summary(state);
    for (int m = 1; m <= state.NCell.value(); ++m) (void)unit_cell_line(state, m);
  }
}

void scatter_table(const std::string& input) {
  Main1State state;
  state.AsfXCount = read_scatter_table(MemoryFile(input).path(), state.AsfX);
  state.MassRatio = 1;
  for (int row = 1; row <= state.AsfXCount.value(); ++row) {
    (void)AtomicScatter(state, &state.AsfX(row), 0.3F, {false, true});
  }
}

template <class Reader>
void structure_file(const std::string& input) {
  Module1State state;
  Reader reader("input");
  Integer atoms;
  QuietTask task;
  for_each_line(input, task, [&](std::string_view line) {
    if (const auto found = reader.take(line); found.site) store_site(state, (atoms += 1).value(), *found.site);
  });
}

/// Any structure file; what is written of it reads back with as many atoms.
void structure(const std::string& input) {
  static const SpaceGroupLibrary groups(
      [](int number) { return ZOL_SOURCE_DIR "/data/ZOL/SpaceGr/No" + Format(number, "000") + ".dat"; });
  static const std::set<std::string> keys{"H", "C", "O", "O2-", "Na", "Si", "Al", "Cl", "Fe", "Fe3+"};
  const ImportAnswers answers{{"block", "1"}, {"origin", "2"}, {"symmetry", "1"}, {"elements", "Na Cl Si O"}};
  QuietTask task;
  const Import import = import_structure(input, "input", answers, groups, keys, task);
  const auto& structure = std::get<ImportedCrystal>(import).structure;
  if (cell_misfit(structure) > 0.01) return;  // which images are one atom has no answer then
  const Import again = import_structure(cif_text(structure), "input", answers, groups, keys, task);
  const auto atoms = [&task](const Structure& s) { return cell_atoms(s, settled_angstrom, task).size(); };
  require(atoms(std::get<ImportedCrystal>(again).structure) == atoms(structure),
          "a saved structure has the same atoms");
}

void atom_lists(const std::string& input) {
  const MemoryFile file(input);
  QuietTask task;
  (void)read_bare_atom_list(file.path(), task);
  (void)read_mincryst_list(file.path(), task);
}

void bitmap(const std::string& input) {
  const auto picture = pictures().make_surface(1, 1);
  picture->load(MemoryFile(input).path());
  const auto shown = pictures().make_surface(64, 64);
  shown->draw(*picture, true);
  (void)shown->pixel(0, 0);
  (void)picture->mirrored(true, true)->grey();
}

/// Columns of numbers as a pattern and as a list; what was read is in order.
void measured_curve(const std::string& input) {
  QuietTask task;
  try {
    (void)line_list_columns(input, "input", task);
  } catch (const RunFailure&) {  // a pattern all the same, perhaps
  }
  const auto points = measured_columns(input, "input.xye", task).points;
  for (std::size_t i = 1; i < points.size(); ++i) require(points[i - 1].x < points[i].x, "x rises");
}

}  // namespace

const std::vector<Target>& targets() {
  static const std::vector<Target> table{
      {"number_text", number_text},
      {"text_records", text_records},
      {"camera_file", camera_file},
      {"crystal_file", crystal_file},
      {"space_group", space_group},
      {"scatter_table", scatter_table},
      {"cif", structure_file<CifReader>},
      {"icsd", structure_file<IcsdReader>},
      {"atom_lists", atom_lists},
      {"structure", structure},
      {"bitmap", bitmap},
      {"measured_curve", measured_curve},
      {"scan_edax_up", scan_edax_up},
      {"scan_oxford_ebsp", scan_oxford_ebsp},
      {"scan_hdf5", scan_hdf5},
      {"scan_nordif", scan_nordif},
      {"lzf", lzf},
      {"script", run_script},
      {"kept_work", restore_changed_work},
  };
  return table;
}

const Target& target(std::string_view name) {
  const auto& table = targets();
  const auto found =
      std::find_if(table.begin(), table.end(), [name](const Target& entry) { return entry.name == name; });
  if (found == table.end()) throw std::out_of_range("there is no target " + std::string(name));
  return *found;
}

}  // namespace zol::fuzz
