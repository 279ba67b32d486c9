#include "core/float_loop.h"

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

}  // namespace zol::detail
