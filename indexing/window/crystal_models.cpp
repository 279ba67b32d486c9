#include "indexing/window/crystal_models.h"

#include <algorithm>
#include <numbers>

#include "analysis/window/pattern3_form.h"
#include "core/cell_geometry.h"
#include "core/crystal_file.h"
#include "core/number_text.h"
#include "core/space_group.h"
#include "core/unit_cell.h"
#include "dynamics/master_view.h"
#include "indexing/crystal_reflectors.h"
#include "reflections/window/main1_form.h"

namespace zol {
namespace {

constexpr std::size_t most_ready = 12;
constexpr std::size_t families_listed = 24;

std::string without_folder(const std::string& path) { return path.substr(path.rfind('/') + 1); }

std::string group_path(const Workbench& bench, const CrystalState& state) {
  return bench.data.path("SpaceGr/No" + Format(state.SGNumber.value(), "000") + ".dat");
}

/// Everything that the reflectors depend on.
std::string key_of(const CrystalState& state, double kilovolt) {
  std::string key = plain_text(kilovolt) + ' ' + plain_text(state.SGNumber) + ' ' + state.AxisSetting;
  for (const Single value : {state.CellA, state.CellB, state.CellC, state.CellAlpha, state.CellBeta, state.CellGamma}) {
    key += ' ' + plain_text(value);
  }
  for (int i = 1; i <= state.NCell.value(); ++i) {
    key += ' ' + state.UCElement(i) + ' ' + plain_text(state.UCOcc(i)) + ' ' + plain_text(state.UCB(i));
    for (int axis = 1; axis <= 3; ++axis) key += ' ' + plain_text(state.UCPos(i, axis));
  }
  if (state.NCell > 0) return key;
  for (int i = 1; i <= state.JcpdsCount.value(); ++i) {
    for (const auto* column : {&state.JcpdsH, &state.JcpdsK, &state.JcpdsL, &state.JcpdsI}) {
      key += ' ' + plain_text((*column)(i));
    }
  }
  return key;
}

/// A crystal file as the program would load it, beside the present crystal.
CrystalState loaded_crystal(const Workbench& bench, const CrystalState& tables, const std::string& path, Task& task) {
  CrystalState state;
  CrystalFileReader file(path);
  file.read_cell(state);
  file.read_contents(state);
  if (!calc_cell(state)) throw RunFailure("the cell constants make no cell");
  const SpaceGroup group = read_space_group(group_path(bench, state));
  state.SGName = group.symbol;
  state.LatticeLetter = group.symbol.substr(0, 1);
  state.AsfX = tables.AsfX;
  state.AsfXCount = tables.AsfXCount;
  state.AsfE = tables.AsfE;
  state.AsfECount = tables.AsfECount;
  if (state.NAtom > 0) commit(state, expand_unit_cell(state, group, task));
  return state;
}

ReflectorSet reflectors_of(const Workbench& bench, const CrystalState& state, double kilovolt, Task& task) {
  const SpaceGroup group = read_space_group(group_path(bench, state));
  CrystalState own = state;
  own.LatticeLetter = group.symbol.substr(0, 1);
  return crystal_reflectors(own, &group, kilovolt, task);
}

/// The model of a crystal with these families, from what is ready or made anew. The present crystal has marks.
std::shared_ptr<const CrystalModel> ready_model(Workbench& bench, AutoIndexForm& form, const CrystalState& state,
                                                const std::string& title, bool marked, Task& task) {
  const double kilovolt = Val(bench.windows.use<Pattern3Form>().Text5.text());
  const std::string key = key_of(state, kilovolt);
  const auto known = std::find_if(form.ready.begin(), form.ready.end(),
                                  [&key](const ReadyCrystal& crystal) { return crystal.key == key; });
  std::shared_ptr<const CrystalModel> model;
  if (known != form.ready.end()) {
    model = known->model;
    form.ready.erase(known);
  }
  ReflectorSet reflectors = model ? model->reflectors : reflectors_of(bench, state, kilovolt, task);
  const int count = integer_in(form.FamilyCount).value();
  std::vector<bool> used = voting_families(reflectors, count);
  if (marked) {
    const std::string families_key = key + " / " + std::to_string(count);
    if (form.families_key != families_key) {
      form.families_key = families_key;
      form.families_taken = used;
    }
    used = form.families_taken;
  }
  if (!model || model->families_used != used || model->title != title) {
    const auto sphere = model ? model->sphere : nullptr;
    model = std::make_shared<const CrystalModel>(
        make_crystal_model(title, std::move(reflectors), std::move(used), sphere, task));
  }
  form.ready.insert(form.ready.begin(), {key, model});
  if (form.ready.size() > most_ready) form.ready.pop_back();
  return model;
}

/// The crystal's dynamical pattern, from what is ready, from the cache, or made anew.
std::shared_ptr<const KinematicSphere> ready_sphere(Workbench& bench, AutoIndexForm& form, const CrystalState& state,
                                                    double pixel_deg, Task& task) {
  const double kilovolt = Val(bench.windows.use<Pattern3Form>().Text5.text());
  const std::string key = key_of(state, kilovolt) + " / " + Format(pixel_deg, "0.0000");
  const auto known = std::find_if(form.spheres.begin(), form.spheres.end(),
                                  [&key](const ReadySphere& sphere) { return sphere.key == key; });
  if (known != form.spheres.end()) return known->sphere;
  const SpaceGroup group = read_space_group(group_path(bench, state));
  auto sphere = seen_sphere(state, &group, usual_master_settings(kilovolt), pixel_deg, task);
  form.spheres.insert(form.spheres.begin(), {key, sphere});
  if (form.spheres.size() > most_ready) form.spheres.pop_back();
  return sphere;
}

}  // namespace

std::shared_ptr<const CrystalModel> present_crystal_model(Workbench& bench, AutoIndexForm& form) {
  const auto& main1 = bench.windows.use<Main1Form>();
  if (!(main1.state.NCell > 0) && !(main1.state.JcpdsCount > 0)) return nullptr;
  WindowTask task(bench.services);
  const std::string title = without_folder(main1.Text17.text());
  return ready_model(bench, form, main1.state, title.empty() ? "present crystal" : title, true, task);
}

std::vector<std::shared_ptr<const CrystalModel>> crystal_models(Workbench& bench, AutoIndexForm& form) {
  WindowTask task(bench.services);
  const auto& main1 = bench.windows.use<Main1Form>();
  std::vector<std::shared_ptr<const CrystalModel>> models;
  if (auto present = present_crystal_model(bench, form)) models.push_back(std::move(present));
  if (models.empty() && form.crystal_files.empty()) {
    throw RunFailure("there is no crystal: load one in the main window, or add a crystal file");
  }
  int made = 0;
  for (const std::string& path : form.crystal_files) {
    task.report(made++, static_cast<int>(form.crystal_files.size()));
    try {
      const CrystalState state = loaded_crystal(bench, main1.state, path, task);
      models.push_back(ready_model(bench, form, state, without_folder(path), false, task));
    } catch (const RunFailure& failure) {
      throw RunFailure(without_folder(path) + ": " + failure.message());
    }
  }
  return models;
}

DynamicalModels dynamical_models(Workbench& bench, AutoIndexForm& form,
                                 const std::vector<std::shared_ptr<const CrystalModel>>& models, double pixel_deg) {
  const CrystalState& present = bench.windows.use<Main1Form>().state;
  WindowTask task(bench.services);
  const std::size_t of_files = models.size() - form.crystal_files.size();
  DynamicalModels dynamical;
  for (std::size_t i = 0; i < models.size(); ++i) {
    CrystalModel model = *models[i];
    try {
      model.sphere = i < of_files ? ready_sphere(bench, form, present, pixel_deg, task)
                                  : ready_sphere(bench, form,
                                                 loaded_crystal(bench, present, form.crystal_files[i - of_files], task),
                                                 pixel_deg, task);
    } catch (const RunFailure& failure) {
      dynamical.drawn_instead.push_back(model.title + " has no dynamical pattern: " + failure.message());
    }
    dynamical.models.push_back(std::make_shared<const CrystalModel>(std::move(model)));
  }
  return dynamical;
}

std::shared_ptr<const KinematicSphere> present_dynamical_sphere(Workbench& bench, AutoIndexForm& form,
                                                                double pixel_deg) {
  WindowTask task(bench.services);
  return ready_sphere(bench, form, main1_state(bench), pixel_deg, task);
}

void show_families(AutoIndexForm& form) {
  const int picked = form.Families.list_index();
  form.Families.clear();
  if (form.ready.empty()) return;
  const auto ready = std::find_if(form.ready.begin(), form.ready.end(), [&form](const ReadyCrystal& crystal) {
    return form.families_key.starts_with(crystal.key + " / ");
  });
  if (ready == form.ready.end()) return;
  const auto& families = ready->model->reflectors.families;
  double strongest = 0;
  for (const ReflectorFamily& family : families) strongest = std::max(strongest, family.weight);
  const std::size_t count = std::max(form.families_taken.size(), families_listed);
  for (std::size_t i = 0; i < std::min(families.size(), count); ++i) {
    const ReflectorFamily& family = families[i];
    const bool taken = i < form.families_taken.size() && form.families_taken[i];
    std::string line = taken ? "x " : "- ";
    for (const int index : family.hkl) line += right_field(std::to_string(index), 3);
    line += right_field(std::to_string(family.count), 4) + right_field(Format(family.spacing, "0.000"), 8) +
            right_field(Format(family.bragg_rad * 360 / std::numbers::pi, "0.00"), 8) +
            right_field(Format(100 * family.weight / strongest, "0.0"), 8);
    form.Families.add_item(line);
  }
  if (picked < form.Families.list_count()) form.Families.set_list_index(picked);
}

}  // namespace zol
