#include "batch/crystal_source.h"

#include <set>
#include <utility>
#include <variant>

#include "core/cell_geometry.h"
#include "core/crystal_file.h"
#include "core/number_text.h"
#include "core/read_file.h"
#include "core/run_failure.h"
#include "core/unit_cell.h"
#include "indexing/band_contrast.h"
#include "indexing/crystal_reflectors.h"
#include "reflections/scattering.h"
#include "scans/pole_colour.h"
#include "structures/contents.h"
#include "structures/structure_import.h"

namespace zol {
namespace {

std::string name_of(const std::string& path) { return path.substr(path.rfind('/') + 1); }

std::string group_path(const DataRoot& data, int number) {
  return data.path("SpaceGr/No" + Format(number, "000") + ".dat");
}

void read_tables(CrystalState& state, const DataRoot& data) {
  state.AsfXCount = read_scatter_table(data.path("Asf/ASF-X.csv"), state.AsfX);
  state.AsfECount = read_scatter_table(data.path("Asf/ASF-E.csv"), state.AsfE);
}

/// Cell and unit cell from what has been set.
void complete(LoadedCrystal& crystal, const DataRoot& data, Task& task) {
  CrystalState& state = crystal.state;
  if (!calc_cell(state)) throw RunFailure("the cell constants make no cell");
  crystal.group = read_space_group(group_path(data, state.SGNumber.value()));
  state.SGName = crystal.group.symbol;
  state.LatticeLetter = crystal.group.symbol.substr(0, 1);
  if (state.NAtom > 0) commit(state, expand_unit_cell(state, crystal.group, task));
}

void set_cell(CrystalState& state, const CellConstants& cell) {
  state.CellA = to_single(cell.a);
  state.CellB = to_single(cell.b);
  state.CellC = to_single(cell.c);
  state.CellAlpha = to_single(cell.alpha);
  state.CellBeta = to_single(cell.beta);
  state.CellGamma = to_single(cell.gamma);
}

void read_structure_file(LoadedCrystal& crystal, const std::string& path, const DataRoot& data, Task& task) {
  const SpaceGroupLibrary groups([&data](int number) { return group_path(data, number); });
  std::set<std::string> keys;
  for (int i = 1; i <= crystal.state.AsfXCount.value(); ++i) keys.insert(crystal.state.AsfX(i).Element);
  auto result = import_structure(read_file(path, task), name_of(path), {}, groups, keys, task);
  if (const auto* question = std::get_if<Question>(&result)) {
    throw RunFailure("it leaves open: " + question->text + " Open it in the program, and save it as a crystal");
  }
  auto& imported = std::get<ImportedCrystal>(result);
  set_cell(crystal.state, imported.structure.cell);
  crystal.state.SGNumber = imported.file_number;
  crystal.state.AxisSetting = imported.axis_setting;
  fill_sites(crystal.state, imported.structure);
  crystal.report = std::move(imported.report);
  crystal.formula = formula_text(cell_contents(imported.structure, task));
}

}  // namespace

LoadedCrystal load_crystal(const std::string& path, const DataRoot& data, Task& task) {
  LoadedCrystal crystal;
  const std::string name = name_of(path);
  crystal.title = name.substr(0, name.rfind('.'));
  try {
    read_tables(crystal.state, data);
    if (path.ends_with(".cry")) {
      CrystalFileReader file(path);
      file.read_cell(crystal.state);
      file.read_contents(crystal.state);
    } else {
      read_structure_file(crystal, path, data, task);
    }
    complete(crystal, data, task);
  } catch (RunFailure& failure) {
    if (failure.message().find(name) != std::string::npos) throw;
    throw RunFailure(path + ": " + failure.message());
  }
  return crystal;
}

CrystalModel indexing_model(const LoadedCrystal& crystal, double kilovolt, int families, Task& task,
                            std::shared_ptr<const KinematicSphere> sphere) {
  try {
    ReflectorSet reflectors = crystal_reflectors(crystal.state, &crystal.group, kilovolt, task);
    if (sphere && sphere->continuous()) rank_by_contrast(reflectors, *sphere, task);
    auto used = voting_families(reflectors, families);
    return make_crystal_model(crystal.title, std::move(reflectors), std::move(used), std::move(sphere), task);
  } catch (const RunFailure& failure) {
    throw RunFailure(crystal.title + ": " + failure.message());
  }
}

MapPhase map_phase(const LoadedCrystal& crystal, const CrystalModel& model) {
  MapPhase phase;
  phase.name = crystal.title;
  phase.formula = crystal.formula;
  phase.cell = model.reflectors.cell;
  phase.space_group = crystal.state.SGNumber.value();
  phase.rotations = model.reflectors.symmetry;
  phase.laue_class = laue_class_of(phase.rotations);
  constexpr double full = 100;
  double strongest = 0;
  for (const auto& family : model.reflectors.families) strongest = std::max(strongest, family.weight);
  for (std::size_t i = 0; i < model.families_used.size(); ++i) {
    const auto& family = model.reflectors.families[i];
    if (model.families_used[i]) phase.families.push_back({family.hkl, full * family.weight / strongest});
  }
  return phase;
}

}  // namespace zol
