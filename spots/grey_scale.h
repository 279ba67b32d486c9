// From the intensity of a reflection to the darkness of its mark.
#pragma once

#include <optional>

#include "core/numbers.h"

namespace zol {

/// How a relative intensity is shown: its power if an exponent is given, otherwise itself or its square root.
struct GreyScale {
  bool square_root = false;
  std::optional<double> exponent;
};

/// base ^ exponent; the quantity names the base in the message. 0 ^ 0 is 1.
/// @throws RunFailure  no finite real result
[[nodiscard]] double power(double base, double exponent, std::string_view quantity);

/// Darkness of an intensity between 0 (nothing) and 1 (the intensity that maps to black), above 1 beyond it.
/// @throws RunFailure  the black intensity is 0
[[nodiscard]] double darkness(double intensity, double black_intensity, const GreyScale& scale);

}  // namespace zol
