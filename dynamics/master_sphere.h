// A master pattern as the sphere of directions that pictures are fitted to.
#pragma once

#include <memory>

#include "dynamics/master_pattern.h"
#include "indexing/kinematic_sphere.h"

namespace zol {

/// Smoothed by a Gaussian, as the pixels of a picture see it; mean 0 over the sphere.
/// @param blur_deg  its standard deviation in degrees, 0 and above
[[nodiscard]] std::shared_ptr<const KinematicSphere> master_sphere(const MasterPattern& master, double blur_deg,
                                                                   Task& task);

}  // namespace zol
