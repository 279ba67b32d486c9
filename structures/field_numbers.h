// Numbers as structure files have them: with an uncertainty, as a fraction, and with the digits that were known.
#pragma once

#include <optional>
#include <string_view>

namespace zol {

struct MeasuredNumber {
  double value = 0;
  double half_unit = 0;  ///< half a unit of the last digit given; 0 for a fraction
};

/// "5.431(2)", "-.5", "1/3", "4.2e-3", "+2.", with blanks around. @returns none for anything else
[[nodiscard]] std::optional<MeasuredNumber> measured_number(std::string_view text);

/// A fractional coordinate, brought to the whole number of 24ths (1/3, 1/6, 1/8 and so on) that its digits, two or
/// more, are a rounding of.
[[nodiscard]] double special_coordinate(const MeasuredNumber& number);

}  // namespace zol
