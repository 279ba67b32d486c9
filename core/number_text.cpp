#include "core/number_text.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace zol {
namespace {

/// Length of the longest number at the head of a text, 0 when there is none.
std::size_t number_length(std::string_view text) {
  const auto after_digits = [text](std::size_t from) {
    return std::min(text.find_first_not_of("0123456789", from), text.size());
  };
  const auto after_one_of = [text](std::string_view characters, std::size_t from) {
    return text.substr(from, 1).find_first_of(characters) == 0 ? from + 1 : from;
  };
  const std::size_t whole = after_one_of("+-", 0);
  const std::size_t point = after_digits(whole);
  const std::size_t fraction = after_one_of(".", point);
  const std::size_t end = after_digits(fraction);
  if (point == whole && end == fraction) return 0;
  const std::size_t letter = after_one_of("eEdD", end);
  if (letter == end) return end;
  const std::size_t exponent = after_one_of("+-", letter);
  const std::size_t last = after_digits(exponent);
  return last == exponent ? end : last;
}

/// Power of ten of the leading digit of a number in text form; only its sign and rough size matter.
long long decimal_magnitude(std::string_view number) {
  const std::size_t e = number.find('e');
  long long exponent = 0;
  if (e != std::string_view::npos) {
    std::string_view digits = number.substr(e + 1);
    if (digits.front() == '+') digits.remove_prefix(1);
    constexpr long long beyond_all = 1'000'000'000'000;  // and far from the end of the type
    const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), exponent);
    if (result.ec == std::errc::result_out_of_range) exponent = digits.front() == '-' ? -beyond_all : beyond_all;
    exponent = std::clamp(exponent, -beyond_all, beyond_all);
  }
  const std::string_view mantissa = number.substr(0, e);
  const auto point = static_cast<long long>(std::min(mantissa.find('.'), mantissa.size()));
  const auto leading = static_cast<long long>(std::min(mantissa.find_first_of("123456789"), mantissa.size()));
  return exponent + point - leading;
}

/// Value of a text that number_length took; out of range gives 0 or infinity.
double parse(std::string text) {
  std::replace_if(
      text.begin(), text.end(), [](char c) { return c == 'd' || c == 'D' || c == 'E'; }, 'e');
  const char* first = text.data() + (text.front() == '+' ? 1 : 0);
  double value = 0;
  const auto result = std::from_chars(first, text.data() + text.size(), value);
  if (result.ec != std::errc::result_out_of_range) return value;
  const double size = decimal_magnitude(text) > 0 ? std::numeric_limits<double>::infinity() : 0.0;
  return *first == '-' ? -size : size;
}

/// Decimal digits of a number: 0.d1d2d3... * 10^exponent. No digits for zero.
struct Decimal {
  bool negative = false;
  std::string digits;
  int exponent = 0;
};

/// Reads a number in scientific notation, as the library writes it.
Decimal from_scientific(std::string_view text) {
  Decimal result;
  if (text.front() == '-') {
    result.negative = true;
    text.remove_prefix(1);
  }
  const std::size_t e = text.find('e');
  for (const char c : text.substr(0, e)) {
    if (c >= '0' && c <= '9') result.digits += c;
  }
  std::string_view exponent = text.substr(e + 1);
  if (exponent.front() == '+') exponent.remove_prefix(1);
  std::from_chars(exponent.data(), exponent.data() + exponent.size(), result.exponent);
  ++result.exponent;
  while (!result.digits.empty() && result.digits.back() == '0') result.digits.pop_back();
  if (result.digits.empty()) result = {};
  return result;
}

/// The exact binary value rounded to so many significant digits, ties to even.
Decimal to_decimal(double value, int significant_digits) {
  std::array<char, 64> text{};
  const auto end = std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::scientific,
                                 significant_digits - 1);
  return from_scientific({text.data(), static_cast<std::size_t>(end.ptr - text.data())});
}

/// Digits before and behind the point; no leading zeros before it.
struct Parts {
  std::string whole;
  std::string fraction;
};

Parts split(const Decimal& decimal) {
  Parts parts;
  const int length = static_cast<int>(decimal.digits.size());
  if (decimal.exponent <= 0) {
    if (length > 0) parts.fraction.assign(static_cast<std::size_t>(-decimal.exponent), '0');
    parts.fraction += decimal.digits;
  } else if (decimal.exponent >= length) {
    parts.whole = decimal.digits;
    parts.whole.append(static_cast<std::size_t>(decimal.exponent - length), '0');
  } else {
    parts.whole = decimal.digits.substr(0, static_cast<std::size_t>(decimal.exponent));
    parts.fraction = decimal.digits.substr(static_cast<std::size_t>(decimal.exponent));
  }
  return parts;
}

std::string plain(const Decimal& decimal) {
  if (decimal.digits.empty()) return "0";
  const Parts parts = split(decimal);
  std::string text = decimal.negative ? "-" : "";
  text += parts.whole;
  if (!parts.fraction.empty()) text += '.' + parts.fraction;
  return text;
}

/// Rounds the digits to so many places behind the point, halves away from zero.
void round_places(Parts& parts, std::size_t places) {
  if (parts.fraction.size() <= places) return;
  const bool up = parts.fraction[places] >= '5';
  parts.fraction.resize(places);
  if (!up) return;
  std::string digits = parts.whole + parts.fraction;
  std::size_t at = digits.size();
  while (at > 0 && digits[at - 1] == '9') digits[--at] = '0';
  if (at > 0) {
    ++digits[at - 1];
  } else {
    digits.insert(digits.begin(), '1');
  }
  parts.whole = digits.substr(0, digits.size() - places);
  parts.fraction = digits.substr(digits.size() - places);
}

bool is_placeholder(char c) { return c == '0' || c == '#'; }

std::size_t placeholders(std::string_view pattern) {
  return static_cast<std::size_t>(std::count_if(pattern.begin(), pattern.end(), is_placeholder));
}

/// Appends the digits before the point in their pattern: set from the right, and the first placeholder takes all that
/// are left over.
void append_whole(std::string& text, const std::string& digits, std::string_view pattern) {
  std::size_t open = placeholders(pattern);
  if (open == 0) text += digits;
  const std::size_t have = digits.size();
  bool zeros = false;
  bool first = true;
  for (const char c : pattern) {
    if (!is_placeholder(c)) {
      text += c;
      continue;
    }
    zeros = zeros || c == '0';
    if (first && have >= open) {
      text.append(digits, 0, have - open + 1);
    } else if (have >= open) {
      text += digits[have - open];
    } else if (zeros) {
      text += '0';
    }
    first = false;
    --open;
  }
}

/// Appends the digits behind the point in their pattern: a "#" shows as long as a significant digit or a "0" of the
/// pattern stands at it or behind it.
void append_fraction(std::string& text, const std::string& digits, std::string_view pattern) {
  const std::size_t significant = digits.find_last_not_of('0') + 1;  // npos + 1 is 0
  std::size_t place = 0;
  for (std::size_t i = 0; i < pattern.size(); ++i) {
    if (!is_placeholder(pattern[i])) {
      text += pattern[i];
      continue;
    }
    const bool wanted = place < significant || pattern.find('0', i) != std::string_view::npos;
    if (wanted) text += place < digits.size() ? digits[place] : '0';
    ++place;
  }
}

}  // namespace

std::optional<LeadingNumber> leading_number(std::string_view text) {
  const std::size_t length = number_length(text);
  if (length == 0) return std::nullopt;
  const std::string number(text.substr(0, length));
  return LeadingNumber{parse(number), length};
}

std::string short_text(double value, int places) {
  std::array<char, 400> room;  // the largest double has 309 digits
  const auto end = std::to_chars(room.data(), room.data() + room.size(), value, std::chars_format::fixed, places).ptr;
  std::string text(room.data(), end);
  if (text.find('.') != std::string::npos) {
    text.erase(text.find_last_not_of('0') + 1);
    if (text.back() == '.') text.pop_back();
  }
  return text == "-0" ? "0" : text;
}

double Val(std::string_view text) {
  std::string packed;
  std::copy_if(text.begin(), text.end(), std::back_inserter(packed), [](char c) { return c != ' ' && c != '\t'; });
  const std::size_t length = number_length(packed);
  return length == 0 ? 0.0 : parse(packed.substr(0, length));
}

std::optional<double> strict_number(std::string_view text) {
  if (text.empty() || number_length(text) != text.size()) return std::nullopt;
  return parse(std::string(text));
}

std::string plain_text(Single value) { return plain(to_decimal(value, 7)); }
std::string plain_text(Double value) { return plain(to_decimal(value, 15)); }
std::string plain_text(int value) { return std::to_string(value); }
std::string plain_text(Integer value) { return std::to_string(value.value()); }
std::string plain_text(Long value) { return std::to_string(value.value()); }

std::string shortest_text(Single value) {
  std::array<char, 64> text{};
  const auto end = std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::scientific);
  const std::string_view shortest(text.data(), static_cast<std::size_t>(end.ptr - text.data()));
  // Read as a Double first, a text near the middle of two Singles can fall on that middle and then to the wrong side.
  if (static_cast<Single>(parse(std::string(shortest))) == value) return plain(from_scientific(shortest));
  constexpr int always_enough = 9;
  return plain(to_decimal(value, always_enough));
}

std::string Format(double value, std::string_view pattern) {
  const std::size_t point = pattern.find('.');
  const std::string_view before = pattern.substr(0, point);
  const std::string_view behind = point == std::string_view::npos ? std::string_view() : pattern.substr(point + 1);

  Parts parts = split(to_decimal(value, 15));
  round_places(parts, placeholders(behind));
  parts.whole.erase(0, std::min(parts.whole.find_first_not_of('0'), parts.whole.size()));

  std::string text = value < 0.0 ? "-" : "";
  append_whole(text, parts.whole, before);
  if (point == std::string_view::npos) return text;
  text += '.';
  append_fraction(text, parts.fraction, behind);
  return text;
}

std::string Format(std::string_view text, std::string_view pattern) {
  const std::size_t first = pattern.find('&');
  if (first == std::string_view::npos) return std::string(pattern);
  const std::size_t last = pattern.find_last_of('&');
  return std::string(pattern.substr(0, first)) + std::string(text) + std::string(pattern.substr(last + 1));
}

std::string right_field(std::string_view text, std::size_t width) {
  if (text.size() >= width) return std::string(text.substr(text.size() - width));
  return std::string(width - text.size(), ' ') + std::string(text);
}

std::string left_field(std::string_view text, std::size_t width) {
  std::string field(text.substr(0, width));
  field.resize(width, ' ');
  return field;
}

}  // namespace zol
