#include "shell/services/place_text.h"

#include <cmath>
#include <numbers>

#include "core/number_text.h"

namespace zol {

std::string value_text(const std::string& name, double value, const char* pattern, const std::string& unit) {
  return name + " " + Format(value, pattern) + unit;
}

std::string spacing_text(double d_star) {
  std::string text = value_text("d*", d_star, "0.0000", " Å⁻¹");
  if (d_star != 0) text += value_text("   d", 1 / d_star, "0.000", " Å");
  return text;
}

std::string direction_text(double from_centre_deg, double x, double y) {
  double azimuth_deg = std::atan2(y, x) * 180 / std::numbers::pi;
  if (azimuth_deg < 0) azimuth_deg += 360;
  return Format(from_centre_deg, "0.00") + "° from the centre" + value_text("   azimuth", azimuth_deg, "0.0", "°");
}

}  // namespace zol
