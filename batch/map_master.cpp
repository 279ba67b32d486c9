#include "batch/map_master.h"

#include <filesystem>

#include "core/run_failure.h"
#include "dynamics/master_file.h"
#include "dynamics/master_sphere.h"
#include "dynamics/master_view.h"

namespace zol {
namespace {

double pixel_deg(const MasterView& view) { return fitted_pixel_deg(view.width, view.centre.z); }

MasterPattern made_master(const MapMasterWords& words, const LoadedCrystal& crystal, const MasterView& view,
                          Task& task) {
  MasterSettings settings;
  settings.kilovolts = {view.kilovolt};
  settings.depth_nm = words.depth_nm;
  settings.threads = view.threads;
  try {
    const DynamicCrystal dynamic = dynamic_crystal(crystal.state, &crystal.group);
    suit_to_pixels(settings, dynamic, pixel_deg(view));
    return kept_master(dynamic, settings, task);
  } catch (const RunFailure& failure) {
    throw RunFailure(crystal.title + ": " + failure.message());
  }
}

}  // namespace

void add_master_options(CLI::App& map, MapMasterWords& words) {
  const auto* group = "Indexing";
  map.add_option("--master", words.masters, "master pattern: auto, or a file for each crystal in their order")
      ->group(group)
      ->allow_extra_args(false);
  map.add_option("--master-depth", words.depth_nm, "mean depth that the electrons come from, nm, of --master auto")
      ->group(group)
      ->check(CLI::Range(0.1, 100.0));
}

std::string fingerprint_text(const MapMasterWords& words) {
  std::string text = std::to_string(words.depth_nm) + '\n';
  for (const auto& master : words.masters) {
    std::error_code error;
    const auto time = std::filesystem::last_write_time(master, error).time_since_epoch().count();
    text += master + '\n' + std::to_string(time) + '\n';
  }
  return words.masters.empty() ? "" : text;
}

std::shared_ptr<const KinematicSphere> master_sphere_of(const MapMasterWords& words, std::size_t number,
                                                        const LoadedCrystal& crystal, const MasterView& view,
                                                        Task& task) {
  if (words.masters.empty()) return nullptr;
  const bool all_made = words.masters.size() == 1 && words.masters.front() == "auto";
  if (!all_made && number >= words.masters.size()) {
    throw RunFailure("--master: the crystal " + crystal.title + " has none; tell auto, or a file for each crystal");
  }
  const std::string& master = all_made ? words.masters.front() : words.masters[number];
  return master_sphere(master == "auto" ? made_master(words, crystal, view, task) : read_master(master),
                       fitted_blur_deg(pixel_deg(view)), task);
}

}  // namespace zol
