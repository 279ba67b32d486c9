// The local mean of a picture taken off and its local contrast made even, over the part where there is a pattern.
#pragma once

#include <vector>

namespace zol {

/// Holds its storage for pictures of one size.
class EvenContrast {
 public:
  /// @param mask    1 where there is a pattern, else 0
  /// @param radius  of the local mean, pixels
  void shape(int width, int height, const std::vector<float>& mask, int radius);
  /// Spread about 1 afterwards, hot pixels at most 3. @returns the spread about the local mean before, 0: it is blank
  double even(std::vector<float>& values);
  /// By what each grey value was multiplied the last time.
  [[nodiscard]] const std::vector<float>& gain() const { return spread_; }

 private:
  void blur(std::vector<float>& image);

  int width_ = 0, height_ = 0, radius_ = 0;
  std::vector<float> mask_, mask_mean_, mean_, spread_, row_, column_;
};

}  // namespace zol
