#include "shell/services/ruler.h"

#include <algorithm>
#include <cmath>

#include "core/number_text.h"

namespace zol {
namespace {

struct Step {
  double size;
  int parts;  ///< small ticks to one step
};

/// The smallest round step that needs no more large ticks than there is room for.
Step round_step(double range, int most) {
  const double least = range / std::max(most, 1);
  const double power = std::pow(10.0, std::floor(std::log10(least)));
  for (const Step step : {Step{1, 5}, Step{2, 4}, Step{5, 5}}) {
    if (step.size * power >= least) return {step.size * power, step.parts};
  }
  return {10 * power, 5};
}

std::string tick_text(double value, double step) {
  const int decimals = std::max(0, static_cast<int>(std::ceil(-std::log10(step) - 1e-9)));
  return Format(value, decimals == 0 ? "0" : "0." + std::string(static_cast<std::size_t>(decimals), '0'));
}

}  // namespace

std::vector<Tick> ruler_ticks(double from, double to, int most) {
  if (from > to) std::swap(from, to);
  if (!std::isfinite(to - from) || to - from <= 0) return {};
  const Step step = round_step(to - from, most);
  const double part = step.size / step.parts;
  const double first = std::ceil(from / part - 1e-9);
  const double last = std::floor(to / part + 1e-9);
  constexpr double most_ticks = 1000;
  constexpr double countable = 1e15;  // beyond it a range far from 0 is no longer counted up by 1
  if (!(last - first < most_ticks) || std::max(std::abs(first), std::abs(last)) > countable) return {};
  std::vector<Tick> ticks;
  for (double n = first; n <= last; ++n) {
    const bool large = std::fmod(n, step.parts) == 0;
    ticks.push_back({n * part, large ? tick_text(n * part, step.size) : ""});
  }
  return ticks;
}

}  // namespace zol
