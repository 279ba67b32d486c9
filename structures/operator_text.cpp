#include "structures/operator_text.h"

#include <charconv>
#include <cmath>
#include <numeric>
#include <optional>
#include <utility>

#include "core/run_failure.h"

namespace zol {
namespace {

/// Reads the terms of one coordinate.
class Terms {
 public:
  explicit Terms(std::string_view text) : text_(text) {}

  /// @returns what the first three axes and the number amount to, in units
  std::array<double, 4> sum() {
    std::array<double, 4> sums{};
    bool any = false;
    for (skip_blanks(); at_ < text_.size(); skip_blanks()) {
      double factor = 1;
      if (text_[at_] == '+' || text_[at_] == '-') {
        factor = text_[at_++] == '-' ? -1 : 1;
      } else if (any) {
        fail();
      }
      add_term(factor, sums);
      any = true;
    }
    if (!any) fail();
    return sums;
  }

 private:
  [[noreturn]] static void fail() { throw RunFailure("it is not a sum of x, y, z and numbers"); }
  void skip_blanks() {
    while (at_ < text_.size() && (text_[at_] == ' ' || text_[at_] == '\t')) ++at_;
  }
  void add_term(double factor, std::array<double, 4>& sums) {
    skip_blanks();
    const auto value = number();
    if (value) {
      factor *= *value;
      skip_blanks();
      if (at_ < text_.size() && text_[at_] == '*') {
        ++at_;
        skip_blanks();
      }
    }
    const int axis = this->axis();
    if (axis < 0 && !value) fail();
    if (axis < 4) sums[axis < 0 ? 3 : static_cast<std::size_t>(axis)] += factor;
  }
  /// A number, also one divided by another.
  std::optional<double> number() {
    const auto plain = [this]() -> std::optional<double> {
      double value = 0;
      const auto* end = text_.data() + text_.size();
      const auto read = std::from_chars(text_.data() + at_, end, value, std::chars_format::fixed);
      if (read.ec != std::errc()) return std::nullopt;
      at_ = static_cast<std::size_t>(read.ptr - text_.data());
      return value;
    };
    if (at_ >= text_.size() || text_[at_] == '-') return std::nullopt;
    auto value = plain();
    if (value && at_ < text_.size() && text_[at_] == '/') {
      ++at_;
      const auto divisor = plain();
      if (!divisor || *divisor == 0) fail();
      *value /= *divisor;
    }
    return value;
  }
  /// 0 to 2 for x, y, z or x1, x2, x3; 4 for a further axis; -1 for none.
  int axis() {
    if (at_ >= text_.size()) return -1;
    const char letter = text_[at_];
    constexpr std::string_view letters = "xyzXYZ";
    const std::size_t place = letters.find(letter);
    if (place == std::string_view::npos) return -1;
    ++at_;
    const bool numbered = place % 3 == 0 && at_ < text_.size() && text_[at_] >= '1' && text_[at_] <= '9';
    if (!numbered) return static_cast<int>(place % 3);
    const int axis = text_[at_++] - '1';
    return axis < 3 ? axis : 4;
  }

  std::string_view text_;
  std::size_t at_ = 0;
};

/// Thirds and sixths of decimals with few digits are told from others by 24ths lying far apart.
int in_24ths(double value) {
  constexpr double most_off = 0.1;
  const double scaled = value * operator_unit;
  if (!(std::abs(scaled) < 1000) || std::abs(scaled - std::round(scaled)) > most_off) {
    throw RunFailure("it is not a whole number of 24ths");
  }
  return static_cast<int>(std::lround(scaled));
}

std::string fraction(int twenty_fourths) {
  const int divisor = std::gcd(twenty_fourths, operator_unit);
  const std::string numerator = std::to_string(twenty_fourths / divisor);
  return divisor == operator_unit ? numerator : numerator + '/' + std::to_string(operator_unit / divisor);
}

}  // namespace

ExactOperator parse_operator(std::string_view text) {
  ExactOperator op;
  const std::string whole(text);
  try {
    for (std::size_t row = 0; row < 3; ++row) {
      const std::size_t comma = text.find_first_of(",;");
      if (comma == std::string_view::npos && row < 2) throw RunFailure("three parts with commas between are expected");
      const auto sums = Terms(text.substr(0, comma)).sum();
      for (std::size_t column = 0; column < 3; ++column) op.rotation[row][column] = in_24ths(sums[column]);
      const int shift = in_24ths(sums[3]);
      op.translation[row] = ((shift % operator_unit) + operator_unit) % operator_unit;
      text.remove_prefix(comma == std::string_view::npos ? text.size() : comma + 1);
    }
  } catch (const RunFailure& failure) {
    throw RunFailure("the symmetry operator \"" + whole + "\": " + failure.message());
  }
  return op;
}

std::string operator_text(const ExactOperator& op) {
  std::string text;
  for (std::size_t row = 0; row < 3; ++row) {
    if (row > 0) text += ',';
    const std::size_t start = text.size();
    for (std::size_t column = 0; column < 3; ++column) {
      const int element = op.rotation[row][column];
      if (element == 0) continue;
      if (element < 0) text += '-';
      if (element > 0 && text.size() > start) text += '+';
      if (std::abs(element) != operator_unit) text += fraction(std::abs(element)) + '*';
      text += "xyz"[column];
    }
    const int shift = op.translation[row];
    if (shift != 0 || text.size() == start) text += (text.size() > start ? "+" : "") + fraction(shift);
  }
  return text;
}

}  // namespace zol
