#include "indexing/kinematic_sphere.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

#include "indexing/vector_clones.h"

namespace zol {
namespace {

constexpr double margin = 2.5;  // grid points beyond the equator
constexpr double faintest = 0.01;
constexpr std::size_t most_strips = 1200;

/// Brightness across a strip at a distance from its plane, in steps of a part of a Bragg angle.
class StripProfile {
 public:
  static constexpr float steps = 64;
  static constexpr double reach = 2.5;

  explicit StripProfile(const StripShape& shape) {
    for (std::size_t i = 0; i < table_.size(); ++i) {
      const double u = static_cast<double>(i) / static_cast<double>(steps);
      const double inside = 1 / (1 + std::exp((u - 1) / shape.softness));
      const double from_edge = (u - 1 - shape.edge_width) / shape.edge_width;
      table_[i] = static_cast<float>(inside - shape.edge_depth * std::exp(-from_edge * from_edge));
    }
    std::fill(table_.end() - 2, table_.end(), 0.0F);
  }
  [[nodiscard]] const float* table() const { return table_.data(); }
  static constexpr int last = static_cast<int>(reach * static_cast<double>(steps));

 private:
  std::array<float, last + 2> table_{};
};

struct Strip {
  float x, y, z;  ///< normal over the sine of the Bragg angle, times the steps of the profile
  float brightness;
  double sine;
  Vector3 normal;
};

/// Adds a strip to a row of directions.
ZOL_VECTOR_CLONES void add_strip(const Strip& strip, const float* profile, const float* x, const float* y,
                                 const float* z, int count, float* values) {
  constexpr auto end = static_cast<float>(StripProfile::last);
  for (int i = 0; i < count; ++i) {
    const float place = std::min(end, std::abs(x[i] * strip.x + y[i] * strip.y + z[i] * strip.z));
    const int below = static_cast<int>(place);
    const float part = place - static_cast<float>(below);
    values[i] += strip.brightness * (profile[below] + part * (profile[below + 1] - profile[below]));
  }
}

}  // namespace

KinematicSphere::KinematicSphere(const ReflectorSet& reflectors, int size, const StripShape& shape, Task& task)
    : size_(size),
      scale_(static_cast<float>((size - 1) / 2.0 - margin)),
      middle_(static_cast<float>((size - 1) / 2.0)),
      values_(static_cast<std::size_t>(size) * static_cast<std::size_t>(size)) {
  std::vector<Strip> strips;
  double strongest = 0;
  for (const auto& family : reflectors.families) strongest = std::max(strongest, family.weight);
  for (const Reflector& member : reflectors.members) {
    const auto& family = reflectors.families[static_cast<std::size_t>(member.family)];
    const double brightness = std::pow(family.weight / strongest, shape.weight_power);
    if (brightness < faintest) continue;
    if (strips.size() >= most_strips) break;
    const double sine = std::sin(family.bragg_rad);
    const Eigen::Vector3f scaled = (member.normal * (static_cast<double>(StripProfile::steps) / sine)).cast<float>();
    strips.push_back({scaled[0], scaled[1], scaled[2], static_cast<float>(brightness), sine, member.normal});
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
      const int count = std::min(tile, size - left);
      for (int row = top; row < std::min(top + tile, size); ++row) {
        std::array<float, tile> x{};
        std::array<float, tile> y{};
        std::array<float, tile> z{};
        for (int i = 0; i < count; ++i) {
          const Vector3 here = direction(left + i, row);
          x[static_cast<std::size_t>(i)] = static_cast<float>(here[0]);
          y[static_cast<std::size_t>(i)] = static_cast<float>(here[1]);
          z[static_cast<std::size_t>(i)] = static_cast<float>(here[2]);
        }
        float* values =
            &values_[static_cast<std::size_t>(row) * static_cast<std::size_t>(size) + static_cast<std::size_t>(left)];
        for (const Strip& strip : crossing) {
          add_strip(strip, profile.table(), x.data(), y.data(), z.data(), count, values);
        }
      }
    }
  }
}

KinematicSphere::KinematicSphere(const std::function<double(const Vector3&)>& brightness, int size, bool inversion,
                                 Task& task)
    : size_(size),
      scale_(static_cast<float>((size - 1) / 2.0 - margin)),
      middle_(static_cast<float>((size - 1) / 2.0)),
      opposite_(inversion ? 0 : size * size),
      continuous_(true) {
  const auto of_half = static_cast<std::size_t>(size) * static_cast<std::size_t>(size);
  values_.reserve(inversion ? of_half : 2 * of_half);
  for (const int side : {1, -1}) {
    if (side < 0 && inversion) break;
    for (int row = 0; row < size; ++row) {
      task.check();
      for (int column = 0; column < size; ++column) {
        const double x = (column - static_cast<double>(middle_)) / static_cast<double>(scale_);
        const double y = (row - static_cast<double>(middle_)) / static_cast<double>(scale_);
        const double square = x * x + y * y;
        values_.push_back(static_cast<float>(brightness(Vector3(2 * x, 2 * y, 1 - square) * (side / (1 + square)))));
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
  const std::size_t half = direction[2] < 0 ? static_cast<std::size_t>(opposite_) : 0;
  const double px = x - column;
  const double py = y - row;
  const auto value = [this, half, row, column](int down, int right) {
    return static_cast<double>(values_[half + static_cast<std::size_t>(row + down) * static_cast<std::size_t>(size_) +
                                       static_cast<std::size_t>(column + right)]);
  };
  const double upper = value(0, 0) + px * (value(0, 1) - value(0, 0));
  const double lower = value(1, 0) + px * (value(1, 1) - value(1, 0));
  return static_cast<float>(upper + py * (lower - upper));
}

}  // namespace zol
