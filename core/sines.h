// Sines and cosines of many angles at once, for sums that are rounded to a Single. They are approximate, with an error
// bound so small that nearly every rounding comes out the same for all values within it.
#pragma once

#include <span>

namespace zol {

inline constexpr double sine_limit = 0x1p20;  ///< radians; beyond it the sines and cosines are not a number

/// Upper bound of the error, also against std::sin and std::cos of a library that is right to the last digit.
inline constexpr double sine_error = 0x1p-46;

/// Fills in the sine and the cosine of each angle, in radians.
void approximate_sines(std::span<const double> angles, std::span<double> sines, std::span<double> cosines);

}  // namespace zol
