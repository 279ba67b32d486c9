#include "dynamics/sphere_view.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace zol {
namespace {

using Place = std::array<double, 2>;

GridDirection parts(const Vector3& v) { return {v[0], v[1], v[2]}; }

std::optional<Place> stereographic_place(const Vector3& unit, bool south) {
  const double height = south ? -unit[2] : unit[2];
  if (height < 0) return std::nullopt;
  return Place{unit[0] / (1 + height), unit[1] / (1 + height)};
}

/// On the globe above a place of its picture, the edge from beyond it.
Vector3 above(const Place& place) {
  const double square = place[0] * place[0] + place[1] * place[1];
  if (square > 1) return Vector3(place[0], place[1], 0) / std::sqrt(square);
  return {place[0], place[1], std::sqrt(1 - square)};
}

/// Grey levels of the whole pattern.
struct Levels {
  explicit Levels(const MasterPattern& master) {
    const auto& [north, south] = master.patterns.front();
    std::vector<float> all = north;
    all.insert(all.end(), south.begin(), south.end());
    const std::size_t cut = all.size() / 100;
    const auto nth = [&all](std::size_t n) {
      std::nth_element(all.begin(), all.begin() + static_cast<std::ptrdiff_t>(n), all.end());
      return static_cast<double>(all[n]);
    };
    darkest = nth(cut);
    range = std::max(nth(all.size() - 1 - cut) - darkest, 1e-9);
  }
  [[nodiscard]] double of(double value) const { return std::clamp((value - darkest) / range, 0.0, 1.0); }
  double darkest, range;
};

}  // namespace

std::optional<Place> SphereView::place(const Vector3& direction) const {
  const Vector3 unit = direction.normalized();
  if (projection == SphereProjection::Stereographic) return stereographic_place(unit, south);
  if (projection == SphereProjection::Lambert) {
    if ((south ? -unit[2] : unit[2]) < 0) return std::nullopt;
    return lambert_square(parts(unit));
  }
  const Vector3 seen = globe * unit;
  if (seen[2] < 0) return std::nullopt;
  return Place{seen[0], seen[1]};
}

std::optional<Vector3> SphereView::direction(double x, double y) const {
  if (projection == SphereProjection::Lambert) {
    if (!(std::abs(x) <= 1 && std::abs(y) <= 1)) return std::nullopt;
    const auto [e1, e2, e3] = from_lambert_square(x, y, south);
    return Vector3(e1, e2, e3);
  }
  const double square = x * x + y * y;
  if (!(square <= 1)) return std::nullopt;
  if (projection == SphereProjection::Globe) return globe.transpose() * above({x, y});
  const double height = (1 - square) / (1 + square);
  return Vector3(2 * x / (1 + square), 2 * y / (1 + square), south ? -height : height);
}

Vector3 SphereView::middle() const {
  if (projection == SphereProjection::Globe) return globe.row(2);
  return {0, 0, south ? -1.0 : 1.0};
}

Rotation globe_about(const Vector3& middle, double turn_deg) {
  const Vector3 eye = middle.normalized();
  constexpr double at_pole = 1e-6;
  Vector3 up = Vector3::UnitZ() - eye[2] * eye;
  if (up.norm() < at_pole) up = Vector3::UnitY() - eye[1] * eye;
  up.normalize();
  Rotation globe;
  globe.row(0) = up.cross(eye);
  globe.row(1) = up;
  globe.row(2) = eye;
  return rotation_of(Vector3(0, 0, turn_deg * std::numbers::pi / 180)) * globe;
}

double globe_turn_deg(const Rotation& globe, const Vector3& middle) {
  const Rotation turned = globe * globe_about(middle, 0).transpose();
  return std::atan2(turned(1, 0) - turned(0, 1), turned(0, 0) + turned(1, 1)) * 180 / std::numbers::pi;
}

Rotation dragged_globe(const Rotation& globe, const Place& from, const Place& to) {
  const Vector3 start = above(from);
  const Vector3 end = above(to);
  return Eigen::Quaterniond::FromTwoVectors(start, end).toRotationMatrix() * globe;
}

Rotation spun_globe(const Rotation& globe, const Place& from, const Place& to) {
  const double turn = std::atan2(to[1], to[0]) - std::atan2(from[1], from[0]);
  return rotation_of(Vector3(0, 0, turn)) * globe;
}

std::vector<double> draw_sphere(const MasterPattern& master, const SphereView& view, int pixels, double reach,
                                Task& task) {
  const Levels levels(master);
  const double step = 2 * reach / pixels;
  std::vector<double> values;
  values.reserve(static_cast<std::size_t>(pixels) * static_cast<std::size_t>(pixels));
  for (int row = 0; row < pixels; ++row) {
    task.check();
    const double y = reach - (row + 0.5) * step;
    for (int column = 0; column < pixels; ++column) {
      const auto direction = view.direction((column + 0.5) * step - reach, y);
      values.push_back(direction ? levels.of(master.at(parts(*direction))) : -1);
    }
  }
  return values;
}

}  // namespace zol
