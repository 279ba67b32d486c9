#include "entry/window/open_structure.h"

#include <new>

#include "core/atomic_file.h"
#include "core/number_text.h"
#include "core/read_file.h"
#include "reflections/window/main1_operations.h"
#include "structures/cif_writer.h"
#include "structures/space_group_symbols.h"
#include "structures/structure_import.h"

namespace zol {
namespace {

constexpr auto import_title = "Open structure file";
constexpr auto export_title = "Save as CIF";

SpaceGroupLibrary library_of(const Workbench& bench) {
  return SpaceGroupLibrary(
      [&data = bench.data](int number) { return data.path("SpaceGr/No" + Format(number, "000") + ".dat"); });
}

std::set<std::string> factor_keys(const CrystalState& state) {
  std::set<std::string> keys;
  for (int i = 1; i <= state.AsfXCount.value(); ++i) keys.insert(state.AsfX(i).Element);
  return keys;
}

std::string without_folder(const std::string& path) { return path.substr(path.rfind('/') + 1); }

/// Reads until no question is left. @returns none where the user has cancelled one
std::optional<ImportedCrystal> read(Workbench& bench, const CrystalState& state, const std::string& path) {
  WindowTask task(bench.services);
  const std::string bytes = read_file(path, task);
  const SpaceGroupLibrary groups = library_of(bench);
  ImportAnswers answers;
  while (true) {
    auto result = import_structure(bytes, without_folder(path), answers, groups, factor_keys(state), task);
    if (auto* crystal = std::get_if<ImportedCrystal>(&result)) return std::move(*crystal);
    const auto& question = std::get<Question>(result);
    std::string answer = bench.services.prompt(question.text, import_title);
    if (answer.empty()) return std::nullopt;
    answers[question.key] = std::move(answer);
  }
}

void show(Workbench& bench, Main1Form& form, const ImportedCrystal& crystal, const std::string& path) {
  const CellConstants& cell = crystal.structure.cell;
  CrystalState& state = form.state;
  state.AxisSetting = crystal.axis_setting;
  show_cell(form,
            {to_single(cell.a), to_single(cell.b), to_single(cell.c), to_single(cell.alpha), to_single(cell.beta),
             to_single(cell.gamma)},
            crystal.file_number, state.AxisSetting);
  fill_sites(state, crystal.structure);
  form.Label19.set_caption(Str(state.NAtom));
  form.Label31.set_caption("");
  form.Text17.set_text(path);
  show_title(bench, without_folder(path));
  AtomCcalc(bench);
  calculate(bench);
}

/// The number that a Single is shown as: .2 is meant as .2, not as .200000003.
double as_shown(Single value) { return Val(plain_text(value)); }

/// A crystal as it is in the program. @throws RunFailure  there are no atoms, or no space group
Structure present_structure(Workbench& bench, const CrystalState& state) {
  if (state.NAtom < 1) throw RunFailure("there are no atoms to save");
  const SpaceGroupLibrary groups = library_of(bench);
  const auto* group = groups.find(state.SGNumber.value());
  if (group == nullptr || !group->by_axes.contains(state.AxisSetting)) {
    throw RunFailure("there are no operators of space group " + plain_text(state.SGNumber) + " with the axes \"" +
                     state.AxisSetting + "\"");
  }
  Structure structure;
  structure.cell = {as_shown(state.CellA),     as_shown(state.CellB),    as_shown(state.CellC),
                    as_shown(state.CellAlpha), as_shown(state.CellBeta), as_shown(state.CellGamma)};
  structure.operators = group->by_axes.at(state.AxisSetting);
  structure.space_group_number = 0;
  for (int i = 1; i <= state.NAtom.value(); ++i) {
    const auto species = species_of(state.AtomElement(i), false, {});
    if (species.empty())
      throw RunFailure("\"" + state.AtomElement(i) + "\" of atom " + std::to_string(i) + " is no element");
    structure.sites.push_back(
        {state.AtomLabel(i),
         species.front().element,
         species.front().charge,
         as_shown(state.AtomOcc(i)),
         {as_shown(state.AtomPos(i, 1)), as_shown(state.AtomPos(i, 2)), as_shown(state.AtomPos(i, 3))},
         as_shown(state.AtomB(i))});
  }
  if (setting_of(structure.operators) == nullptr) {
    WindowTask task(bench.services);
    structure = with_known_origin(structure, groups, task);
  }
  if (const auto* setting = setting_of(structure.operators)) {
    structure.space_group_number = setting->number;
    structure.space_group_symbol = setting->symbol;
    if (!setting->qualifier.empty()) structure.space_group_symbol += ":" + std::string(setting->qualifier);
  }
  return structure;
}

}  // namespace

void ImportStructure_Click(Workbench& bench, Main1Form& form) {
  form.CommonDialog1.set_filter(file_filters::structures);
  const std::string path = form.CommonDialog1.open(FileKind::Structure);
  if (path.empty()) return;
  const CrystalState state_before = form.state;
  const auto windows_before = bench.windows.copies();
  std::string reason;
  try {
    const auto crystal = read(bench, form.state, path);
    if (!crystal) return;
    show(bench, form, *crystal, path);
    bench.services.report(crystal->report, import_title);
    return;
  } catch (const RunFailure& failure) {
    reason = failure.message();
  } catch (const std::bad_alloc&) {
    reason = "not enough memory";
  }
  form.state = state_before;
  bench.windows.put_back(windows_before);
  bench.services.message(without_folder(path) + ": " + reason, import_title);
}

void ExportStructure_Click(Workbench& bench, Main1Form& form) {
  try {
    Structure structure = present_structure(bench, form.state);
    const NameEnding ending{".cif", true};
    form.CommonDialog1.set_filter(file_filters::cif);
    const std::string path = form.CommonDialog1.save(FileKind::Cif, ending);
    if (path.empty()) return;
    std::string title = without_folder(form.Text17.text());
    structure.title = title.substr(0, title.rfind('.'));
    AtomicFile file(ending.added_to(path));
    file.write(cif_text(structure));
    file.commit();
  } catch (const RunFailure& failure) {
    bench.services.message(failure.message(), export_title);
  }
}

}  // namespace zol
