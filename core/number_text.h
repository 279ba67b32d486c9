// Numbers to text and text to numbers, the same on every machine, whatever the locale.
//
// Plain text is decimal digits without an exponent, without trailing zeros, and without a zero before the point.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/numbers.h"

namespace zol {

/// Lenient parse: blanks and tabs are dropped everywhere, then the longest leading number is taken (sign,
/// digits, point, exponent with e, E, d or D). A text without one gives 0. Never fails; an exponent beyond a Double
/// gives infinity.
[[nodiscard]] double Val(std::string_view text);

/// For what is told beside results: rounded to some decimal places, no zeros behind, one before the point.
[[nodiscard]] std::string short_text(double value, int places);

/// Strict parse: the same numbers with nothing before or after them and no blanks inside.
[[nodiscard]] std::optional<double> strict_number(std::string_view text);

/// A number at the head of a text.
struct LeadingNumber {
  double value = 0.0;      ///< infinite beyond the range of a Double
  std::size_t length = 0;  ///< characters taken
};
/// The longest number that the text starts with; none when it starts with no number.
[[nodiscard]] std::optional<LeadingNumber> leading_number(std::string_view text);

/// Plain text: up to 7 significant digits of a Single, 15 of a Double, halves to even, all digits of a whole number.
[[nodiscard]] std::string plain_text(Single value);
[[nodiscard]] std::string plain_text(Double value);
[[nodiscard]] std::string plain_text(int value);
[[nodiscard]] std::string plain_text(Integer value);
[[nodiscard]] std::string plain_text(Long value);

/// Plain text with a blank in the place of the sign of a number that is not negative.
template <class Number>
[[nodiscard]] std::string Str(Number value) {
  std::string text = plain_text(value);
  return text.front() == '-' ? text : ' ' + text;
}

/// The shortest plain text that reads back, through a Double, as the same Single; at most 9 significant digits. All
/// files use it.
[[nodiscard]] std::string shortest_text(Single value);

/// Digit pattern: "0" is a digit that always shows, "#" one that shows only if it is significant, "." the point, which
/// always shows; everything else is copied. The value's text to 15 significant digits is rounded, halves away from
/// zero. A minus sign comes before everything else, also when the digits round to zero.
[[nodiscard]] std::string Format(double value, std::string_view pattern);

/// Text pattern: the text replaces the row of "&" of the pattern; the rest of the pattern is copied.
[[nodiscard]] std::string Format(std::string_view text, std::string_view pattern);

/// A text right-aligned in a field of fixed width; the left end of a text that is too long is cut off.
[[nodiscard]] std::string right_field(std::string_view text, std::size_t width);

/// A text left-aligned in a field of fixed width; the right end of a text that is too long is cut off.
[[nodiscard]] std::string left_field(std::string_view text, std::size_t width);

}  // namespace zol
