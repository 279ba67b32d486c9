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

// How pictures are fitted to it.

/// Of a pixel in the middle of a picture as it is fitted, degrees: a large picture is gathered into fewer pixels first.
/// @param distance  of the source from the screen, in widths of the picture
[[nodiscard]] double fitted_pixel_deg(int picture_width, double distance);
/// What the sphere is smoothed by then: less than a pixel, since what is too sharp costs a fit less than what is too
/// smooth.
[[nodiscard]] double fitted_blur_deg(double pixel_deg);
/// Coarse pixels see nothing of the finest lines, which take most of the time.
void suit_to_pixels(MasterSettings& settings, const DynamicCrystal& crystal, double pixel_deg);

}  // namespace zol
