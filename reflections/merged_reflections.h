// Reflections of a list that are equivalent by symmetry, taken together.
#pragma once

#include <array>
#include <vector>

#include "core/crystal_state.h"

namespace zol {

struct MergedReflection {
  std::array<int, 3> hkl{};  ///< of those of the list the one with the largest h, then k, then l
  int entry = 0;             ///< its place in the list, from 1
  int multiplicity = 0;      ///< how many of the list are equivalent to it, itself counted
  std::vector<int> members;  ///< their places, in the order of the list
  double intensity = 0;      ///< the sum of RefI
};

/// In the order in which they begin in the list of the state. Equivalent are, in the Laue class of the space group,
/// those whose spacing is the same too: in another setting of the axes the table of the class would join others.
/// Outside the groups 1 to 230 a reflection has itself and its opposite.
[[nodiscard]] std::vector<MergedReflection> merged_reflections(const CrystalState& state);

}  // namespace zol
