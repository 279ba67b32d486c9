// Directions and plane normals of a crystal in Cartesian coordinates, exact pi and doubles, for comparison.
#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

#include "core/lattice.h"
#include "tests/crystals.h"

namespace zol {

using Cartesian = std::array<double, 3>;

inline double dot(const Cartesian& a, const Cartesian& b) { return a[0] * b[0] + a[1] * b[1] + a[2] * b[2]; }
inline Cartesian cross(const Cartesian& a, const Cartesian& b) {
  return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}
inline Cartesian unit(const Cartesian& v) {
  const double length = std::sqrt(dot(v, v));
  return {v[0] / length, v[1] / length, v[2] / length};
}
inline double radians(double deg) { return deg * std::numbers::pi / 180; }
inline double degrees(double rad) { return rad / std::numbers::pi * 180; }
inline double angle_deg(const Cartesian& a, const Cartesian& b) {
  return degrees(std::acos(std::clamp(dot(unit(a), unit(b)), -1.0, 1.0)));
}

/// a along x, b in the xy plane.
class CartesianCell {
 public:
  explicit CartesianCell(const Main1State& cell)
      : lattice_({cell.CellA, cell.CellB, cell.CellC, cell.CellAlpha, cell.CellBeta, cell.CellGamma}) {}
  [[nodiscard]] Cartesian direction(const Cartesian& uvw) const { return direction(uvw[0], uvw[1], uvw[2]); }
  [[nodiscard]] Cartesian normal(const Cartesian& hkl) const { return normal(hkl[0], hkl[1], hkl[2]); }
  [[nodiscard]] Cartesian direction(double u, double v, double w) const {
    const auto [x, y, z] = lattice_.cartesian(DirectVector{u, v, w});
    return {x, y, z};
  }
  [[nodiscard]] Cartesian normal(double h, double k, double l) const {
    const auto [x, y, z] = lattice_.cartesian(ReciprocalVector{h, k, l});
    return {x, y, z};
  }

 private:
  Lattice lattice_;
};

/// A crystal with a cell, an axis at the pattern centre and the reference reflection (w, w, -u-v) of it.
inline CrystalState oriented_crystal(const CellNumbers& cell, const std::array<int, 3>& axis) {
  CrystalState state = with_cell(cell);
  state.ZoneU = static_cast<Single>(axis[0]);
  state.ZoneV = static_cast<Single>(axis[1]);
  state.ZoneW = static_cast<Single>(axis[2]);
  state.OriginH = state.OriginK = axis[2];
  state.OriginL = -axis[0] - axis[1];
  return state;
}

/// The frame of the pattern: X along the part of the reference normal to the axis, Y to its left, Z along the axis.
struct PatternFrame {
  explicit PatternFrame(const CrystalState& state)
      : PatternFrame(CartesianCell(state), {state.ZoneU, state.ZoneV, state.ZoneW},
                     {1.0 * state.OriginH.value(), 1.0 * state.OriginK.value(), 1.0 * state.OriginL.value()}) {}
  PatternFrame(const CartesianCell& cell, const Cartesian& axis, const Cartesian& reference)
      : y(unit(cross(cell.direction(axis), cell.normal(reference)))), z(unit(cell.direction(axis))) {}
  /// Azimuth in degrees, -180 to 180.
  [[nodiscard]] double azimuth(const Cartesian& v) const { return degrees(std::atan2(dot(v, y), dot(v, x))); }
  Cartesian y, z, x = cross(y, z);
};

inline constexpr std::array<CellNumbers, 7> cells_of_all_systems{{{5.43F, 5.43F, 5.43F, 90, 90, 90},
                                                                  {4.6F, 4.6F, 2.96F, 90, 90, 90},
                                                                  {4.76F, 10.2F, 5.98F, 90, 90, 90},
                                                                  {4.9F, 4.9F, 5.4F, 90, 90, 120},
                                                                  {5.9F, 5.9F, 5.9F, 56, 56, 56},
                                                                  {5.19F, 9.0F, 20.0F, 90, 95.7F, 90},
                                                                  {7.1F, 7.85F, 5.57F, 90, 101.1F, 106}}};

}  // namespace zol
