// The master pattern that pictures of a detector are fitted to: as fine as their pixels ask for.
#pragma once

#include "dynamics/master_pattern.h"
#include "indexing/detector.h"

namespace zol {

/// What pictures see of a crystal's master pattern, smoothed by their pixels.
struct MasterView {
  double kilovolt = 20;
  PatternCentre centre;
  int width = 0, height = 0;
  int threads = 1;
};

/// Standard deviation in degrees by which the sphere of such pictures is smoothed.
[[nodiscard]] double seen_blur_deg(const MasterView& view);

/// Made, or taken from the user's cache.
/// @throws RunFailure  as master_pattern
[[nodiscard]] MasterPattern seen_master(const DynamicCrystal& crystal, const MasterView& view, double depth_nm,
                                        Task& task);

}  // namespace zol
