// Four indices for crystals on hexagonal axes: planes (h k i l), directions [U V T W].
//
// Source: International Tables for Crystallography A (2016) 3.1.
#pragma once

#include <array>
#include <cmath>
#include <cstdlib>
#include <numeric>

namespace zol {

/// Whether a cell has hexagonal axes, as it is to be written in four indices. Angstroms and degrees.
[[nodiscard]] inline bool has_hexagonal_axes(double a, double b, double alpha, double beta, double gamma) {
  constexpr double same = 1e-3;
  return a > 0 && std::abs(a - b) < same * a && std::abs(alpha - 90) < same && std::abs(beta - 90) < same &&
         std::abs(gamma - 120) < same;
}

/// i of (h k i l).
[[nodiscard]] constexpr int third_index(int h, int k) { return -(h + k); }

/// U, V, T, W of the direction u a1 + v a2 + w c: U = (2u - v)/3, V = (2v - u)/3, T = -(U + V), W = w. Of whole
/// numbers the smallest whole ones of the same direction.
[[nodiscard]] inline std::array<double, 4> four_indices(double u, double v, double w) {
  const std::array<double, 4> threefold{2 * u - v, 2 * v - u, -(u + v), 3 * w};
  double divisor = 3;
  constexpr double most = 1e6;
  bool whole = true;
  for (const double index : {u, v, w}) whole = whole && index == std::round(index) && std::abs(index) < most;
  if (whole) {
    int common = 0;
    for (const double index : threefold) common = std::gcd(common, static_cast<int>(index));
    if (common != 0) divisor = common;
  }
  std::array<double, 4> indices{};
  for (std::size_t i = 0; i < indices.size(); ++i) indices[i] = threefold[i] / divisor + 0.0;  // no -0
  return indices;
}

}  // namespace zol
