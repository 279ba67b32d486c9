#include "core/numbers.h"

#include "core/number_text.h"
#include "core/run_failure.h"

namespace zol::detail {
namespace {
std::string shown(double value) { return std::isfinite(value) ? plain_text(value) : std::string("not a number"); }
}  // namespace

void fail_overflow(double value, std::string_view type, double lowest, double highest) {
  throw RunFailure("overflow: " + shown(value) + " does not fit " + (type == "Long" ? "a " : "an ") +
                   std::string(type) + " (" + shown(lowest) + " to " + shown(highest) + ")");
}

void fail_single(double value) {
  if (std::isnan(value)) throw RunFailure("a calculation gave no number (0/0 or the like)");
  throw RunFailure("overflow: a value is too large for a Single, it must stay below 3.4E+38");
}

void fail_division(std::string_view quantity) {
  throw RunFailure("division by zero: " + std::string(quantity) + " is 0");
}

void fail_square_root(double value, std::string_view quantity) {
  throw RunFailure("square root of a negative number: " + std::string(quantity) + " is " + shown(value));
}

}  // namespace zol::detail
