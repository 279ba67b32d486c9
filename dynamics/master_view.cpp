#include "dynamics/master_view.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "core/user_folders.h"
#include "dynamics/master_cache.h"

namespace zol {
namespace {

/// Of a pixel in the middle of the picture as it is fitted: a large one is gathered first.
double pixel_deg(const MasterView& view) {
  constexpr int gathered = 128;
  return std::atan(1 / (view.centre.z * std::min(view.width, gathered))) * 180 / std::numbers::pi;
}

}  // namespace

double seen_blur_deg(const MasterView& view) {
  // Less than that of a pixel itself, since what is too sharp costs a fit less than what is too smooth.
  constexpr double blur_of_pixel = 0.14;
  return blur_of_pixel * pixel_deg(view);
}

MasterPattern seen_master(const DynamicCrystal& crystal, const MasterView& view, double depth_nm, Task& task) {
  MasterSettings settings;
  settings.kilovolts = {view.kilovolt};
  settings.depth_nm = depth_nm;
  settings.threads = view.threads;
  // Coarse pixels see nothing of the finest lines.
  constexpr double coarse_deg = 0.75;
  constexpr double coarse_spacing = 0.5;
  if (pixel_deg(view) > coarse_deg) {
    settings.smallest_spacing = std::max(coarse_spacing, master_choice(crystal, settings).smallest_spacing);
  }
  const std::string folder = cache_folder();
  return MasterCache(folder.empty() ? "" : folder + "/masters").get(crystal, settings, task);
}

}  // namespace zol
