#include "structures/field_numbers.h"

#include <charconv>
#include <cmath>

#include "core/trimmed.h"

namespace zol {
namespace {

constexpr std::string_view blanks_and_quotes = " \t\r\n'\"";

std::optional<double> plain(std::string_view text) {
  if (text.starts_with('+')) text.remove_prefix(1);
  double value = 0;
  const auto read = std::from_chars(text.data(), text.data() + text.size(), value);
  if (read.ec != std::errc() || read.ptr != text.data() + text.size() || !std::isfinite(value)) return std::nullopt;
  return value;
}

/// Half a unit of the last digit of a decimal.
double half_unit_of(std::string_view text) {
  const auto exponent_at = text.find_first_of("eE");
  double exponent = 0;
  if (exponent_at != std::string_view::npos) {
    exponent = plain(text.substr(exponent_at + 1)).value_or(0);
    text = text.substr(0, exponent_at);
  }
  const auto point = text.find('.');
  const double decimals = point == std::string_view::npos ? 0 : static_cast<double>(text.size() - point - 1);
  return 0.5 * std::pow(10.0, exponent - decimals);
}

}  // namespace

std::optional<MeasuredNumber> measured_number(std::string_view text) {
  text = trimmed(text, blanks_and_quotes);
  const auto slash = text.find('/');
  if (slash != std::string_view::npos) {
    const auto numerator = plain(text.substr(0, slash));
    const auto divisor = plain(text.substr(slash + 1));
    if (!numerator || !divisor || *divisor == 0) return std::nullopt;
    return MeasuredNumber{*numerator / *divisor, 0};
  }
  const auto bracket = text.find('(');
  if (bracket != std::string_view::npos) text = trimmed(text.substr(0, bracket), blanks_and_quotes);
  if (text.empty()) return std::nullopt;
  const auto value = plain(text);
  if (!value) return std::nullopt;
  return MeasuredNumber{*value, half_unit_of(text)};
}

double special_coordinate(const MeasuredNumber& number) {
  constexpr double parts = 24;
  constexpr double coarsest = 0.0051;  // two digits
  constexpr double below = 0.999;      // 0.38 is a rounding of 3/8, and of much else: half a unit is too far
  if (number.half_unit > coarsest) return number.value;
  const double near = std::round(number.value * parts) / parts;
  return std::abs(number.value - near) < number.half_unit * below ? near : number.value;
}

}  // namespace zol
