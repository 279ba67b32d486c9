// Reflections of a list that are equivalent by symmetry, taken together.
#pragma once

#include <array>
#include <vector>

#include "core/crystal_state.h"

namespace zol {

struct MergedReflection {
  std::array<int, 3> hkl{};  ///< the one of the list that stands for all, as ReflectionSymmetry::leader
  int entry = 0;             ///< its place in the list, from 1
  int multiplicity = 0;      ///< how many of the list are equivalent to it, itself counted
  double intensity = 0;      ///< the sum of RefI
};

/// In the order in which they begin in the list of the state. Equivalent are those of the Laue class, by the operators
/// of the crystal's space group file.
[[nodiscard]] std::vector<MergedReflection> merged_reflections(const CrystalState& state);

}  // namespace zol
