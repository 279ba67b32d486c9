#include "kikuchi/degrees_text.h"

#include <cmath>

#include "core/number_text.h"

namespace zol {

std::string one_place(double degrees) {
  constexpr double near_half = 1e-6;
  constexpr double largest = 1e6;
  const double tenths = std::abs(degrees) * 10;
  const double whole = std::floor(tenths);
  if (!(tenths < largest) || std::abs(tenths - whole - 0.5) < near_half) return Format(degrees, "##0.0");
  const int rounded = static_cast<int>(tenths - whole < 0.5 ? whole : whole + 1);
  return (degrees < 0 ? "-" : "") + plain_text(rounded / 10) + '.' + static_cast<char>('0' + rounded % 10);
}

}  // namespace zol
