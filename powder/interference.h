// The interference function of a crystallite of P x Q x R unit cells, tabulated once for each pattern.
//
// Offsets from a reciprocal lattice point are in units of the reciprocal axes. The table holds one octant: offsets of
// both signs share an entry. Source: M. von Laue, see Warren, X-ray Diffraction (1969), section 3.4.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "core/crystal_state.h"
#include "core/task.h"

namespace zol {

inline constexpr double bin_width = 0.0002;  ///< step of the grid in inverse angstroms, about the width of a bin
inline constexpr int max_grid_steps = 100;   ///< to a side

/// Size of the crystallite in cells along a*, b*, c*.
struct CrystalliteSize {
  Single CellsP = 0, CellsQ = 0, CellsR = 0;
};

/// Points at which a reflection is sampled, axis by axis: offsets -steps * width to steps * width.
struct InterferenceGrid {
  std::array<Integer, 3> steps;
  std::array<Single, 3> width{};
};

/// A grid that reaches to the second zero of the interference function, 2 / P, in steps of one bin or, where that takes
/// more than 100, in 100 steps.
/// @throws RunFailure  a size or an edge of the reciprocal cell is 0, or a number of steps passes 16 bits
[[nodiscard]] InterferenceGrid interference_grid(const Main1State& cell, const CrystalliteSize& size);

/// The three numbers of steps, each with a blank in front.
[[nodiscard]] std::string grid_text(const InterferenceGrid& grid);

/// Product of the three numbers of steps, in 16 bits.
/// @throws RunFailure  it is above 32767
[[nodiscard]] Integer grid_points(const InterferenceGrid& grid);

/// Values of the interference function at the points of one octant of a grid, 1 at the lattice point.
class InterferenceTable {
 public:
  /// Checks the task, reports nothing.
  /// @throws RunFailure  a number of steps is negative, a size is 0, or a value does not fit a Single
  InterferenceTable(const InterferenceGrid& grid, const CrystalliteSize& size, Task& task);

  [[nodiscard]] const InterferenceGrid& grid() const { return grid_; }

  /// The values along c* at (i, j) steps along a* and b*: entries 0 to the number of steps along c*.
  [[nodiscard]] const Single* row(int i, int j) const {
    return values_.data() + (static_cast<std::size_t>(i) * points_[1] + static_cast<std::size_t>(j)) * points_[2];
  }

 private:
  InterferenceGrid grid_;
  std::array<std::size_t, 3> points_{};
  std::vector<Single> values_;
};

}  // namespace zol
