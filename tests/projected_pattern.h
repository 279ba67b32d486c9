// A crystal in front of a detector, worked out with Cartesian vectors apart from the program: where the trace of a
// plane and the edges of its band lie in the picture.
//
// Frame: x to the right and y downward in the picture, z along the direction [uvw], right-handed.
#pragma once

#include <array>
#include <cmath>
#include <optional>
#include <vector>

#include "tests/cartesian_cell.h"

namespace zol {

using Vector = Cartesian;

struct Camera {
  double acquisition, x_shift, y_shift, ratio;
};

struct PictureLine {
  double x1, y1, x2, y2;
};

class ProjectedPattern {
 public:
  /// @param rotation_deg  of the reciprocal vector (w, w, -u - v) from x towards y
  ProjectedPattern(const CartesianCell& cell, const Vector& uvw, double rotation_deg, const Camera& camera)
      : cell_(cell),
        camera_(camera),
        frame_(cell, uvw, {uvw[2], uvw[2], -uvw[0] - uvw[1]}),
        rotation_deg_(rotation_deg) {}

  /// Angle of the normal above the plane of the picture.
  [[nodiscard]] double latitude_deg(const Vector& hkl) const { return 90 - angle_deg(cell_.normal(hkl), frame_.z); }
  /// From x towards y, -180 to 180.
  [[nodiscard]] double azimuth_deg(const Vector& hkl) const {
    return std::remainder(frame_.azimuth(cell_.normal(hkl)) + rotation_deg_, 360);
  }

  /// The trace of the plane, or of one turned towards the beam by an angle, cut by the picture; none outside it.
  [[nodiscard]] std::optional<PictureLine> line(const Vector& hkl, double turned_deg = 0) const {
    const double latitude = radians(latitude_deg(hkl) + turned_deg);
    const double azimuth = radians(azimuth_deg(hkl));
    const Vector n{std::cos(latitude) * std::cos(azimuth), std::cos(latitude) * std::sin(azimuth), std::sin(latitude)};
    std::vector<std::array<double, 2>> ends;
    for (const double border : {0.0, 511.0}) {
      const double y = -(n[2] + n[0] * plane_x(border)) / n[1];
      if (inside(picture_y(y))) ends.push_back({border, picture_y(y)});
      const double x = -(n[2] + n[1] * plane_y(border)) / n[0];
      if (inside(picture_x(x))) ends.push_back({picture_x(x), border});
    }
    if (ends.size() != 2) return std::nullopt;
    return PictureLine{ends[0][0], ends[0][1], ends[1][0], ends[1][1]};
  }

  [[nodiscard]] double angle_to_deg(const Vector& uvw) const { return angle_deg(cell_.direction(uvw), frame_.z); }

 private:
  static double tangent(double deg) { return std::tan(radians(deg)); }
  [[nodiscard]] double half() const { return tangent(camera_.acquisition); }
  [[nodiscard]] double plane_x(double picture) const {
    return half() * (2 * picture / 511 - 1) - tangent(camera_.x_shift);
  }
  [[nodiscard]] double plane_y(double picture) const {
    return (half() * (2 * picture / 511 - 1) - tangent(camera_.y_shift)) * camera_.ratio;
  }
  [[nodiscard]] double picture_x(double plane) const {
    return ((plane + tangent(camera_.x_shift)) / half() + 1) * 511 / 2;
  }
  [[nodiscard]] double picture_y(double plane) const {
    return ((plane / camera_.ratio + tangent(camera_.y_shift)) / half() + 1) * 511 / 2;
  }
  static bool inside(double picture) { return picture >= 0 && picture <= 511; }

  CartesianCell cell_;
  Camera camera_;
  PatternFrame frame_;
  double rotation_deg_;
};

}  // namespace zol
