#include "indexing/even_contrast.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "indexing/units.h"

namespace zol {
namespace {

constexpr float most_spread = 3;  // of a pixel: hot ones count no more

}  // namespace

void EvenContrast::shape(int width, int height, const std::vector<float>& mask, int radius) {
  width_ = width;
  height_ = height;
  radius_ = radius;
  mask_ = mask;
  mean_.resize(mask.size());
  spread_.resize(mask.size());
  mask_mean_ = mask;
  blur(mask_mean_);
}

/// The mean over a square of 2 radius + 1 pixels, twice, each direction by itself; beyond the edge there is nothing.
void EvenContrast::blur(std::vector<float>& image) {
  const int radius = radius_;
  const int w = width_;
  const int h = height_;
  row_.resize(index(std::max(w, h)) + index(w));
  float* line = row_.data();
  for (int pass = 0; pass < 2; ++pass) {
    for (int y = 0; y < h; ++y) {
      float* row = &image[index(y) * index(w)];
      float sum = 0;
      for (int x = 0; x < std::min(radius, w); ++x) sum += row[x];
      for (int x = 0; x < w; ++x) {
        if (x + radius < w) sum += row[x + radius];
        if (x > radius) sum -= row[x - radius - 1];
        line[x] = sum;
      }
      std::copy(line, line + w, row);
    }
    // Down the columns with a running sum of whole rows: what leaves it must still be there, so the result is written
    // behind by way of a copy.
    float* sums = line;
    std::fill(sums, sums + w, 0.0F);
    std::vector<float>& source = column_;
    source = image;
    const auto add = [&](int y, float sign) {
      const float* row = &source[index(y) * index(w)];
      for (int x = 0; x < w; ++x) sums[x] += sign * row[x];
    };
    for (int y = 0; y < std::min(radius, h); ++y) add(y, 1);
    for (int y = 0; y < h; ++y) {
      if (y + radius < h) add(y + radius, 1);
      if (y > radius) add(y - radius - 1, -1);
      std::copy(sums, sums + w, &image[index(y) * index(w)]);
    }
  }
}

double EvenContrast::even(std::vector<float>& values) {
  const std::size_t size = values.size();
  double sum = 0;
  double count = 0;
  for (std::size_t i = 0; i < size; ++i) {
    sum += static_cast<double>(values[i] * mask_[i]);
    count += static_cast<double>(mask_[i]);
  }
  const auto middle = static_cast<float>(sum / std::max(count, 1.0));
  for (std::size_t i = 0; i < size; ++i) values[i] = (values[i] - middle) * mask_[i];
  mean_ = values;
  blur(mean_);
  for (std::size_t i = 0; i < size; ++i) {
    values[i] = (values[i] - mean_[i] / mask_mean_[i]) * mask_[i];
    spread_[i] = values[i] * values[i];
  }
  double square = 0;
  for (const float value : spread_) square += static_cast<double>(value);
  square /= std::max(count, 1.0);
  const double contrast = std::sqrt(square);
  if (!(square > 0) || !std::isfinite(square)) return 0;
  blur(spread_);
  const auto least = static_cast<float>(square * 0.01);  // dead regions stay quiet
  for (std::size_t i = 0; i < size; ++i) {
    spread_[i] = 1 / std::sqrt(spread_[i] / mask_mean_[i] + least);
    values[i] = std::clamp(values[i] * spread_[i], -most_spread, most_spread);
  }
  return contrast;
}

}  // namespace zol
