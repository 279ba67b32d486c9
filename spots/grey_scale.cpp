#include "spots/grey_scale.h"

#include <cmath>

#include "core/number_text.h"
#include "core/run_failure.h"

namespace zol {

double power(double base, double exponent, std::string_view quantity) {
  const double value = std::pow(base, exponent);
  if (!std::isfinite(value)) {
    throw RunFailure("overflow: " + std::string(quantity) + " is " + plain_text(base) + ", its power " +
                     plain_text(exponent) + " is not a number");
  }
  return value;
}

double darkness(double intensity, double black_intensity, const GreyScale& scale) {
  const double relative = divide(intensity, black_intensity, "the intensity that maps to black (DisplayScale)");
  if (scale.exponent) return power(relative, *scale.exponent, "the relative intensity");
  return scale.square_root ? square_root(relative, "the relative intensity") : relative;
}

}  // namespace zol
