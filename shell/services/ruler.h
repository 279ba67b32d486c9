// Ticks of a ruler beside a curve.
#pragma once

#include <string>
#include <vector>

namespace zol {

struct Tick {
  double value = 0;
  std::string text;  ///< empty for a small tick
};

/// Ticks at round numbers (1, 2 or 5 times a power of ten) between two ends, five small ones or so to a large one, in
/// ascending order. None where the ends are equal or not finite.
/// @param most  how many large ticks have room, at least 1
[[nodiscard]] std::vector<Tick> ruler_ticks(double from, double to, int most);

}  // namespace zol
