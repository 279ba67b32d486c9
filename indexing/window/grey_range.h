// Pictures of any range of values as grey.
#pragma once

#include <algorithm>
#include <cmath>
#include <span>

#include "shell/services/controls.h"

namespace zol {

/// Grey values brought from their own spread to black and white.
class GreyRange {
 public:
  explicit GreyRange(std::span<const float> values) {
    double sum = 0;
    double square = 0;
    for (const float value : values) {
      sum += static_cast<double>(value);
      square += static_cast<double>(value) * static_cast<double>(value);
    }
    const double count = std::max<double>(1, static_cast<double>(values.size()));
    middle_ = sum / count;
    spread_ = std::sqrt(std::max(1e-12, square / count - middle_ * middle_));
  }
  [[nodiscard]] double level(float value) const {
    return std::clamp(127.5 + 127.5 * (static_cast<double>(value) - middle_) / (2.5 * spread_), 0.0, 255.0);
  }

  [[nodiscard]] Colour colour(float value) const { return grey(level(value)); }
  [[nodiscard]] static Colour grey(double level) {
    const int value = static_cast<int>(std::lround(level));
    return RGB(value, value, value);
  }

 private:
  double middle_ = 0, spread_ = 1;
};

}  // namespace zol
