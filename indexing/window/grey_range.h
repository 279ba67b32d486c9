// Pictures of any range of values as grey.
#pragma once

#include <algorithm>
#include <cmath>
#include <span>

#include "core/task.h"
#include "shell/services/controls.h"

namespace zol {

/// Grey values brought from their own spread to black and white.
class GreyRange {
 public:
  GreyRange(std::span<const float> values, Task& task) {
    constexpr std::size_t between_checks = 1U << 20U;  // some 2 ms
    double sum = 0;
    double square = 0;
    std::size_t count_so_far = 0;
    for (const float value : values) {
      if (count_so_far++ % between_checks == 0) task.check();
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
