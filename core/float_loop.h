// Loops on Singles by repeated addition. The value is rounded after each step, so that the steps are part of the
// results.
#pragma once

#include <string_view>

#include "core/numbers.h"

namespace zol {

enum class LoopSense { Rising, Falling };

namespace detail {
/// True when a step is certainly lost in the rounding at the limit, or goes the wrong way.
[[nodiscard]] bool loses_steps(double limit, double step);
[[noreturn]] void fail_loop(std::string_view what, double from, double limit, double step);
/// The value after several steps at once, at least one: up to a distance, as long as all are rounded alike.
[[nodiscard]] Single after_steps(Single value, double signed_step, double distance);
}  // namespace detail

/// A loop that need not look at every value: the visit returns a distance, and values that lie before it may be left
/// out. Those that are visited are the same to the bit.
template <class Visit>
void skipping_loop(std::string_view what, Single from, Single limit, double step, LoopSense sense, const Visit& visit) {
  const double sign = sense == LoopSense::Rising ? 1.0 : -1.0;
  const auto before_end = [sign, limit](Single value) { return sign * value <= sign * limit; };
  if (before_end(from) && detail::loses_steps(limit, step)) detail::fail_loop(what, from, limit, step);
  for (Single value = from; before_end(value);) {
    const Single next = detail::after_steps(value, sign * step, visit(value));
    if (next == value) detail::fail_loop(what, from, limit, step);
    value = next;
  }
}

/// Visits from, from + step, ... up to the limit, which is tested before each round. A falling loop goes down.
/// @param step  above 0 for both senses
/// @param what  names the loop in the message
/// @throws RunFailure  the steps lead nowhere: the loop would never come to its end
template <class Visit>
void float_loop(std::string_view what, Single from, Single limit, double step, LoopSense sense, const Visit& visit) {
  skipping_loop(what, from, limit, step, sense, [&visit](Single value) {
    visit(value);
    return 0.0;
  });
}

}  // namespace zol
