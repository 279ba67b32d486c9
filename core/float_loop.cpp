#include "core/float_loop.h"

#include <algorithm>
#include <cmath>

#include "core/number_text.h"
#include "core/run_failure.h"

namespace zol::detail {

bool loses_steps(double limit, double step) {
  const auto size = static_cast<Single>(std::abs(limit));
  const double spacing = double{std::nextafter(size, HUGE_VALF)} - double{size};
  return !(2.0 * step >= spacing);
}

void fail_loop(std::string_view what, double from, double limit, double step) {
  throw RunFailure(std::string(what) + " goes from " + plain_text(from) + " to " + plain_text(limit) + " by steps of " +
                   plain_text(step) + ", which lead nowhere");
}

// Between two powers of two the spacing of Singles is constant, and a step adds the same number of spacings again and
// again: at the tie of a rounding to even as well, once it has done so twice.
Single after_steps(Single value, double signed_step, double distance) {
  const Single next = to_single(double{value} + signed_step);
  const double advance = double{next} - double{value};
  if (!(distance >= 2.0 * std::abs(advance)) || advance == 0.0 || next * advance < 0.0) return next;
  const Single second = to_single(double{next} + signed_step);
  const int exponent = std::ilogb(next);
  if (std::ilogb(value) != exponent || std::ilogb(second) != exponent || double{second} - double{next} != advance) {
    return next;
  }
  const double room = std::ldexp(1.0, exponent + 1) - std::abs(double{value});
  const double steps = std::floor(std::min(distance, room) / std::abs(advance)) - 1.0;
  return static_cast<Single>(double{value} + std::max(steps, 1.0) * advance);
}

}  // namespace zol::detail
