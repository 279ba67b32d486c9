// The number types of the program and the checked steps between them.
//
// Singles are stored, doubles are computed: an expression on Singles runs in double and is rounded by to_single where a
// Single takes it. Whole numbers have 16 or 32 bits and fail the run when a result does not fit.
#pragma once

#include <cmath>
#include <compare>
#include <concepts>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

namespace zol {

using Single = float;
using Double = double;
using String = std::string;

/// Pi and its multiples are truncated on purpose: the results depend on these digits.
inline constexpr double program_pi = 3.14159;
inline constexpr double program_two_pi = 6.28318;
inline constexpr double degree = 0.017453277777777776;  ///< radians in a degree, program_pi / 180

namespace detail {
[[noreturn]] void fail_overflow(double value, std::string_view type, double lowest, double highest);
[[noreturn]] void fail_single(double value);
[[noreturn]] void fail_division(std::string_view quantity);
[[noreturn]] void fail_square_root(double value, std::string_view quantity);
}  // namespace detail

/// Rounds to 32 bits, to nearest, ties to even.
/// @throws RunFailure  the value is too large for a Single, or not a number
[[nodiscard]] inline Single to_single(double value) {
  const auto rounded = static_cast<Single>(value);
  if (!std::isfinite(rounded)) detail::fail_single(value);
  return rounded;
}

/// The nearest whole number, ties to even, still as a float.
[[nodiscard]] inline double round_half_even(double value) { return std::nearbyint(value); }

/// A whole number that fails the run instead of wrapping around.
/// Arithmetic of two of one width stays in that width, so that a product of two 16-bit numbers can overflow.
template <std::signed_integral Rep>
class CheckedInt {
 public:
  static constexpr int bits = std::numeric_limits<Rep>::digits + 1;

  constexpr CheckedInt() = default;
  // NOLINTNEXTLINE(google-explicit-constructor,hicpp-explicit-conversions): whole numbers pass freely, checked
  constexpr CheckedInt(int value) : CheckedInt(static_cast<std::int64_t>(value)) {}
  constexpr explicit CheckedInt(std::int64_t value) : value_(static_cast<Rep>(value)) {
    if (value < lowest || value > highest) fail(static_cast<double>(value));
  }

  /// Conversion of a float: nearest whole number, ties to even. NaN fails as well.
  [[nodiscard]] static CheckedInt rounded(double value) {
    const double whole = round_half_even(value);
    if (!(whole >= static_cast<double>(lowest) && whole <= static_cast<double>(highest))) fail(value);
    return CheckedInt(static_cast<std::int64_t>(whole));
  }
  /// The largest whole number not above the value.
  [[nodiscard]] static CheckedInt floor(double value) { return rounded(std::floor(value)); }

  [[nodiscard]] constexpr int value() const { return value_; }

  friend constexpr CheckedInt operator+(CheckedInt a, CheckedInt b) { return CheckedInt(a.wide() + b.wide()); }
  friend constexpr CheckedInt operator-(CheckedInt a, CheckedInt b) { return CheckedInt(a.wide() - b.wide()); }
  friend constexpr CheckedInt operator*(CheckedInt a, CheckedInt b) { return CheckedInt(a.wide() * b.wide()); }
  friend constexpr CheckedInt operator-(CheckedInt a) { return CheckedInt(-a.wide()); }
  constexpr CheckedInt& operator+=(CheckedInt b) { return *this = *this + b; }

  friend constexpr bool operator==(CheckedInt a, CheckedInt b) = default;
  friend constexpr auto operator<=>(CheckedInt a, CheckedInt b) = default;  // NOLINT(modernize-use-nullptr)
  friend constexpr bool operator==(CheckedInt a, int b) { return a.wide() == b; }
  friend constexpr auto operator<=>(CheckedInt a, int b) { return a.wide() <=> static_cast<std::int64_t>(b); }

 private:
  static constexpr std::int64_t lowest = std::numeric_limits<Rep>::min();
  static constexpr std::int64_t highest = std::numeric_limits<Rep>::max();

  [[nodiscard]] constexpr std::int64_t wide() const { return value_; }
  [[noreturn]] static void fail(double value) {
    detail::fail_overflow(value, bits == 16 ? "Integer" : "Long", static_cast<double>(lowest),
                          static_cast<double>(highest));
  }

  Rep value_ = 0;
};

using Integer = CheckedInt<std::int16_t>;
using Long = CheckedInt<std::int32_t>;

/// Quotient of two numbers; the quantity names the divisor in the message.
/// @throws RunFailure  the divisor is 0 (or not a number)
[[nodiscard]] inline double divide(double dividend, double divisor, std::string_view quantity) {
  if (!(divisor < 0.0 || divisor > 0.0)) detail::fail_division(quantity);
  return dividend / divisor;
}

/// Square root; the quantity names the radicand in the message.
/// @throws RunFailure  the radicand is negative (or not a number)
[[nodiscard]] inline double square_root(double radicand, std::string_view quantity) {
  if (!(radicand >= 0.0)) detail::fail_square_root(radicand, quantity);
  return std::sqrt(radicand);
}

}  // namespace zol
