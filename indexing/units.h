// Small conversions of the calculations on pictures.
#pragma once

#include <cstddef>
#include <numbers>

namespace zol {

/// In a degree.
inline constexpr double radians = std::numbers::pi / 180;
/// In a radian.
inline constexpr double degrees = 180 / std::numbers::pi;

/// Of a place that is known not to be negative.
[[nodiscard]] constexpr std::size_t index(int n) { return static_cast<std::size_t>(n); }

}  // namespace zol
