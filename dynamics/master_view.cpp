#include "dynamics/master_view.h"

#include <algorithm>
#include <thread>

#include "core/run_failure.h"
#include "core/user_folders.h"
#include "dynamics/master_cache.h"
#include "dynamics/master_sphere.h"

namespace zol {
namespace {

DynamicCrystal crystal_of(const CrystalState& state, const SpaceGroup* group) {
  // The cell's atoms may be those of the crystal before.
  if (!(state.NAtom > 0) && state.JcpdsCount > 0) throw RunFailure("it has observed lines and no atoms");
  return dynamic_crystal(state, group);
}

}  // namespace

MasterSettings usual_master_settings(double kilovolt) {
  MasterSettings settings;
  settings.kilovolts = {kilovolt};
  settings.threads = static_cast<int>(std::max(1U, std::thread::hardware_concurrency()));
  return settings;
}

MasterPattern kept_master(const DynamicCrystal& crystal, const MasterSettings& settings, Task& task) {
  const std::string folder = cache_folder();
  return MasterCache(folder.empty() ? "" : folder + "/masters").get(crystal, settings, task);
}

MasterPattern kept_master(const CrystalState& state, const SpaceGroup* group, const MasterSettings& settings,
                          Task& task) {
  return kept_master(crystal_of(state, group), settings, task);
}

std::shared_ptr<const KinematicSphere> seen_sphere(const CrystalState& state, const SpaceGroup* group,
                                                   MasterSettings settings, double pixel_deg, Task& task) {
  const DynamicCrystal crystal = crystal_of(state, group);
  suit_to_pixels(settings, crystal, pixel_deg);
  return master_sphere(kept_master(crystal, settings, task), fitted_blur_deg(pixel_deg), task);
}

}  // namespace zol
