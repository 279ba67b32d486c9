// The space group files, and what their operators do to a cell.
#pragma once

#include <algorithm>
#include <cmath>
#include <string>

#include "core/number_text.h"
#include "core/space_group.h"
#include "tests/cartesian_cell.h"

namespace zol {

inline constexpr int all_groups = 250;

/// Path of a space group file.
inline std::string file_of(int number) {
  return ZOL_SOURCE_DIR "/data/ZOL/SpaceGr/No" + Format(number, "000") + ".dat";
}

/// The largest difference in Å^2 that an operator makes in the scalar product of two edges of the cell.
inline double metric_change(const SpaceGroup& group, const Main1State& state) {
  const CartesianCell cell(state);
  const std::array<Cartesian, 3> edges{cell.direction(1, 0, 0), cell.direction(0, 1, 0), cell.direction(0, 0, 1)};
  double largest = 0.0;
  for (const auto& [r, translation] : group.operators) {
    std::array<Cartesian, 3> turned{};
    for (std::size_t i = 0; i < 3; ++i) turned[i] = cell.direction(r[0][i], r[1][i], r[2][i]);
    for (std::size_t i = 0; i < 3; ++i) {
      for (std::size_t j = 0; j < 3; ++j) {
        largest = std::max(largest, std::abs(dot(turned[i], turned[j]) - dot(edges[i], edges[j])));
      }
    }
  }
  return largest;
}

}  // namespace zol
