#include "indexing/kinematic_sphere.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace zol {
namespace {

constexpr double margin = 2.5;  // grid points beyond the equator
constexpr double faintest = 0.01;
constexpr std::size_t most_strips = 1200;

/// Brightness across a strip at a distance from its plane, in Bragg angles.
class StripProfile {
 public:
  explicit StripProfile(const StripShape& shape) {
    for (std::size_t i = 0; i < table_.size(); ++i) {
      const double u = static_cast<double>(i) / steps;
      const double inside = 1 / (1 + std::exp((u - 1) / shape.softness));
      const double from_edge = (u - 1 - shape.edge_width) / shape.edge_width;
      table_[i] = static_cast<float>(inside - shape.edge_depth * std::exp(-from_edge * from_edge));
    }
    table_.back() = 0;
  }
  static constexpr double reach = 2.5;
  [[nodiscard]] float at(double u) const {
    const double place = u * steps;
    const auto below = static_cast<std::size_t>(place);
    const auto part = static_cast<float>(place - static_cast<double>(below));
    return table_[below] + part * (table_[below + 1] - table_[below]);
  }

 private:
  static constexpr double steps = 64;
  std::array<float, static_cast<std::size_t>(reach* steps) + 2> table_{};
};

}  // namespace

KinematicSphere::KinematicSphere(const ReflectorSet& reflectors, int size, const StripShape& shape, Task& task)
    : size_(size),
      scale_(static_cast<float>((size - 1) / 2.0 - margin)),
      middle_(static_cast<float>((size - 1) / 2.0)),
      values_(static_cast<std::size_t>(size) * static_cast<std::size_t>(size)) {
  struct Strip {
    Vector3 normal;
    double sine, brightness;
  };
  std::vector<Strip> strips;
  double strongest = 0;
  for (const auto& family : reflectors.families) strongest = std::max(strongest, family.weight);
  for (const Reflector& member : reflectors.members) {
    const auto& family = reflectors.families[static_cast<std::size_t>(member.family)];
    const double brightness = std::pow(family.weight / strongest, shape.weight_power);
    if (brightness < faintest) continue;
    if (strips.size() < most_strips) strips.push_back({member.normal, std::sin(family.bragg_rad), brightness});
  }
  const StripProfile profile(shape);
  const auto direction = [this](double column, double row) -> Vector3 {
    const double x = (column - static_cast<double>(middle_)) / static_cast<double>(scale_);
    const double y = (row - static_cast<double>(middle_)) / static_cast<double>(scale_);
    const double square = x * x + y * y;
    return Vector3(2 * x, 2 * y, 1 - square) / (1 + square);
  };
  // Strips are looked for tile by tile: few of them cross a tile.
  constexpr int tile = 32;
  std::vector<Strip> crossing;
  for (int top = 0; top < size; top += tile) {
    for (int left = 0; left < size; left += tile) {
      task.check();
      const Vector3 centre = direction(left + tile / 2.0, top + tile / 2.0);
      // A step of the grid is at most 2 / scale radians, at the pole.
      const double radius = std::sqrt(2.0) * (tile / 2.0) * 2 / static_cast<double>(scale_);
      crossing.clear();
      for (const Strip& strip : strips) {
        if (std::abs(centre.dot(strip.normal)) < StripProfile::reach * strip.sine + radius) crossing.push_back(strip);
      }
      for (int row = top; row < std::min(top + tile, size); ++row) {
        for (int column = left; column < std::min(left + tile, size); ++column) {
          const Vector3 here = direction(column, row);
          double sum = 0;
          for (const Strip& strip : crossing) {
            const double distance = std::abs(here.dot(strip.normal));
            if (distance >= StripProfile::reach * strip.sine) continue;
            sum += strip.brightness * static_cast<double>(profile.at(distance / strip.sine));
          }
          values_[static_cast<std::size_t>(row) * static_cast<std::size_t>(size) + static_cast<std::size_t>(column)] =
              static_cast<float>(sum);
        }
      }
    }
  }
}

float KinematicSphere::at(const Vector3& direction) const {
  const double side = direction[2] < 0 ? -1 : 1;
  const double length = direction.norm() + std::abs(direction[2]);
  const double x = side * direction[0] / length * static_cast<double>(scale_) + static_cast<double>(middle_);
  const double y = side * direction[1] / length * static_cast<double>(scale_) + static_cast<double>(middle_);
  const auto column = static_cast<int>(x);
  const auto row = static_cast<int>(y);
  const double px = x - column;
  const double py = y - row;
  const auto value = [this, row, column](int down, int right) {
    return static_cast<double>(values_[static_cast<std::size_t>(row + down) * static_cast<std::size_t>(size_) +
                                       static_cast<std::size_t>(column + right)]);
  };
  const double upper = value(0, 0) + px * (value(0, 1) - value(0, 0));
  const double lower = value(1, 0) + px * (value(1, 1) - value(1, 0));
  return static_cast<float>(upper + py * (lower - upper));
}

}  // namespace zol
