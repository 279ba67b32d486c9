#include "indexing/orientation.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace zol {
namespace {

constexpr double degrees_per_radian = 180.0 / std::numbers::pi;

/// Angle in degrees from the chord between two rotations, exact also for small angles.
double angle_of_chord(double squared_chord) {
  return 2 * std::asin(std::min(1.0, std::sqrt(std::max(0.0, squared_chord) / 8))) * degrees_per_radian;
}

double positive_deg(double radians) {
  const double angle = radians * degrees_per_radian;
  return angle < 0 ? angle + 360 : angle;
}

}  // namespace

double misorientation_deg(const Rotation& a, const Rotation& b) { return angle_of_chord((a - b).squaredNorm()); }

double misorientation_deg(const Rotation& a, const Rotation& b, std::span<const Rotation> symmetry) {
  double smallest = (a - b).squaredNorm();
  for (const Rotation& rotation : symmetry) smallest = std::min(smallest, (rotation * a - b).squaredNorm());
  return angle_of_chord(smallest);
}

Rotation rotation_of(const Vector3& axis_angle) {
  const double angle = axis_angle.norm();
  if (angle == 0) return Rotation::Identity();
  return Eigen::AngleAxisd(angle, axis_angle / angle).toRotationMatrix();
}

std::array<double, 3> bunge_deg(const Rotation& g) {
  const double sine = std::hypot(g(2, 0), g(2, 1));
  const double tilt = std::atan2(sine, g(2, 2)) * degrees_per_radian;
  if (sine < 1e-9) return {positive_deg(std::atan2(g(0, 1), g(0, 0))), tilt, 0};
  return {positive_deg(std::atan2(g(2, 0), -g(2, 1))), tilt, positive_deg(std::atan2(g(0, 2), g(1, 2)))};
}

Rotation rotation_of_bunge(const std::array<double, 3>& angles_deg) {
  const auto turn = [](double angle_deg, const Vector3& axis) {
    return Eigen::AngleAxisd(-angle_deg / degrees_per_radian, axis).toRotationMatrix();
  };
  return turn(angles_deg[2], Vector3::UnitZ()) * turn(angles_deg[1], Vector3::UnitX()) *
         turn(angles_deg[0], Vector3::UnitZ());
}

std::array<double, 4> quaternion_of(const Rotation& rotation) {
  const Eigen::Quaterniond q(rotation);
  const double sign = q.w() < 0 ? -1 : 1;
  return {sign * q.w(), sign * q.x(), sign * q.y(), sign * q.z()};
}

}  // namespace zol
