// Pixels of a picture gathered in squares, so that there are no more of them than indexing takes.
#pragma once

#include <algorithm>
#include <cmath>

namespace zol {

/// side x side pixels become one, their mean; what is left over at the right and below is dropped.
struct Gathering {
  int picture_width = 0, picture_height = 0;
  int side = 1, width = 0, height = 0;  ///< of a square, and of what comes out

  Gathering() = default;
  /// @param most_pixels  about as many come out at most
  Gathering(int of_width, int of_height, int most_pixels) : picture_width(of_width), picture_height(of_height) {
    const double pixels = static_cast<double>(of_width) * of_height;
    side = std::max(1, static_cast<int>(std::lround(std::sqrt(pixels / most_pixels))));
    width = of_width / side;
    height = of_height / side;
  }
  [[nodiscard]] std::size_t pixels() const {
    return static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
  }

  /// A row of what comes out. @param row_at  pixels of the picture's row of a number
  template <class RowAt>
  void gather(int y, const RowAt& row_at, float* to) const {
    if (side == 1) {
      std::copy_n(row_at(y), width, to);
      return;
    }
    std::fill_n(to, width, 0.0F);
    for (int line = 0; line < side; ++line) {
      const float* from = row_at(y * side + line);
      for (int x = 0; x < width; ++x) {
        for (int i = 0; i < side; ++i) to[x] += from[x * side + i];
      }
    }
    const float share = 1.0F / static_cast<float>(side * side);
    for (int x = 0; x < width; ++x) to[x] *= share;
  }
};

}  // namespace zol
