// Zone axes and bands of a crystal by name, those that a pattern shows best first.
#pragma once

#include <array>
#include <vector>

#include "indexing/reflectors.h"

namespace zol {

struct NamedBand {
  std::array<int, 3> hkl{};
  Vector3 normal = Vector3::UnitZ();  ///< unit, in the crystal's frame
};
/// Whole families, the strongest planes first, as long as there are no more than this many planes; the first one
/// always.
[[nodiscard]] std::vector<NamedBand> named_bands(const ReflectorSet& reflectors, int most);

/// A direction in which planes meet; of [u v w] and [-u -v -w] both are there.
struct NamedAxis {
  std::array<int, 3> uvw{};
  Vector3 direction = Vector3::UnitZ();  ///< unit, in the crystal's frame
  double weight = 0;                     ///< of the planes that meet there, by the length of the row's period
};
/// Of indices up to 5, strong planes and short periods first; those of a family of directions together, and no
/// family in part.
[[nodiscard]] std::vector<NamedAxis> named_axes(const ReflectorSet& reflectors, int most);

/// The named axis nearest to a direction. @param axes  at least one
[[nodiscard]] const NamedAxis& nearest_axis(const std::vector<NamedAxis>& axes, const Vector3& direction);

/// Angle between directions of any length but 0, degrees.
[[nodiscard]] double angle_between_deg(const Vector3& a, const Vector3& b);

/// Components along a, b, c of a direction, the largest one 1.
[[nodiscard]] std::array<double, 3> components_of(const Lattice& lattice, const Vector3& direction);
/// @throws RunFailure  all components are 0
[[nodiscard]] Vector3 direction_of(const Lattice& lattice, const std::array<double, 3>& uvw);

}  // namespace zol
