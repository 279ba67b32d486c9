// A picture as indexing takes it, and where its pixels lie in front of the specimen.
#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "indexing/orientation.h"

namespace zol {

/// Grey values row by row from the upper left; owned by whoever made them.
struct PictureView {
  std::span<const float> values;
  int width = 0, height = 0;
  [[nodiscard]] float at(int x, int y) const {
    return values[static_cast<std::size_t>(y) * static_cast<std::size_t>(width) + static_cast<std::size_t>(x)];
  }
};

/// The pattern centre, the foot of the perpendicular from the specimen onto the screen, in widths of the picture: x to
/// the right and y down from the upper left corner of the picture as it is, z the distance of the specimen.
struct PatternCentre {
  double x = 0.5, y = 0.5, z = 0.5;
};

/// Projection of a picture of some size: a gnomonic one.
struct Projection {
  PatternCentre centre;
  double width = 0;  ///< pixels; not whole where pixels were gathered and some left over

  [[nodiscard]] double x0() const { return centre.x * width; }  ///< pixels, 0 the left edge of the first pixel
  [[nodiscard]] double y0() const { return centre.y * width; }
  [[nodiscard]] double distance() const { return centre.z * width; }
  /// Direction of the place (x, y) in pixels, not of unit length: its z is 1.
  [[nodiscard]] Vector3 direction(double x, double y) const {
    return {(x - x0()) / distance(), (y - y0()) / distance(), 1};
  }
};

}  // namespace zol
