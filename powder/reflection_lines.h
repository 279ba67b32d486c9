// The lines of a powder pattern: reflections of one spacing are one line.
#pragma once

#include <string>

#include "core/crystal_state.h"
#include "core/shared_vector.h"

namespace zol {

struct ReflectionLine {
  double d_star = 0;     ///< 1/angstrom
  double intensity = 0;  ///< of all reflections together
  int h = 0, k = 0, l = 0;
  bool operator==(const ReflectionLine&) const = default;
};

/// Of the reflection list, in the order of rising 1/d, without those below a millionth of the strongest one, which are
/// extinct. Each bears the indices of its strongest reflection; of equally strong ones those with the fewest signs,
/// then the largest.
[[nodiscard]] SharedVector<ReflectionLine> reflection_lines(const CrystalState& state);

/// "1 -1 2".
[[nodiscard]] std::string indices_text(const ReflectionLine& line);

}  // namespace zol
