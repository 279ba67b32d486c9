#include "indexing/prepared_picture.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace zol {
namespace {

constexpr float most_spread = 3;  // of a pixel: hot ones count no more

std::size_t index(int n) { return static_cast<std::size_t>(n); }

}  // namespace

void PreparedPicture::shape(const PictureView& picture, const PreparationSettings& settings) {
  const double pixels = static_cast<double>(picture.width) * picture.height;
  bin_ = std::max(1, static_cast<int>(std::lround(std::sqrt(pixels / settings.most_pixels))));
  picture_width_ = picture.width;
  picture_height_ = picture.height;
  circle_ = settings.circle;
  width_ = picture.width / bin_;
  height_ = picture.height / bin_;
  projection_width_ = static_cast<double>(picture.width) / bin_;
  const std::size_t size = index(width_) * index(height_);
  values_.resize(size);
  mean_.resize(size);
  spread_.resize(size);
  mask_.assign(size, 1);
  if (circle_) {
    const double radius = std::min(width_, height_) / 2.0;
    for (int y = 0; y < height_; ++y) {
      for (int x = 0; x < width_; ++x) {
        const double distance = std::hypot(x + 0.5 - width_ / 2.0, y + 0.5 - height_ / 2.0);
        mask_[index(y) * index(width_) + index(x)] = distance < radius ? 1.0F : 0.0F;
      }
    }
  }
  mask_mean_ = mask_;
  ++shape_version_;
}

void PreparedPicture::gather(const PictureView& picture, Task& task) {
  if (bin_ == 1) {
    std::copy(picture.values.begin(), picture.values.end(), values_.begin());
    return;
  }
  const float share = 1.0F / static_cast<float>(bin_ * bin_);
  for (int y = 0; y < height_; ++y) {
    task.check();
    float* row = &values_[index(y) * index(width_)];
    std::fill(row, row + width_, 0.0F);
    for (int line = 0; line < bin_; ++line) {
      const float* from = &picture.values[index(y * bin_ + line) * index(picture.width)];
      for (int x = 0; x < width_; ++x) {
        for (int i = 0; i < bin_; ++i) row[x] += from[x * bin_ + i];
      }
    }
    for (int x = 0; x < width_; ++x) row[x] *= share;
  }
}

/// The mean over a square of 2 radius + 1 pixels, twice, each direction by itself; beyond the edge there is nothing.
void PreparedPicture::blur(std::vector<float>& image, int radius) {
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

bool PreparedPicture::prepare(const PictureView& picture, const PreparationSettings& settings, Task& task) {
  const bool new_shape =
      picture.width != picture_width_ || picture.height != picture_height_ || settings.circle != circle_;
  if (new_shape) shape(picture, settings);
  const int radius = std::max(2, static_cast<int>(std::lround(settings.background * width_)));
  if (new_shape) blur(mask_mean_, radius);
  gather(picture, task);

  const std::size_t size = values_.size();
  double sum = 0;
  double count = 0;
  for (std::size_t i = 0; i < size; ++i) {
    sum += static_cast<double>(values_[i] * mask_[i]);
    count += static_cast<double>(mask_[i]);
  }
  const auto middle = static_cast<float>(sum / std::max(count, 1.0));
  for (std::size_t i = 0; i < size; ++i) values_[i] = (values_[i] - middle) * mask_[i];
  mean_ = values_;
  blur(mean_, radius);
  for (std::size_t i = 0; i < size; ++i) {
    values_[i] = (values_[i] - mean_[i] / mask_mean_[i]) * mask_[i];
    spread_[i] = values_[i] * values_[i];
  }
  double square = 0;
  for (const float value : spread_) square += static_cast<double>(value);
  square /= std::max(count, 1.0);
  contrast_ = std::sqrt(square);
  if (!(square > 0) || !std::isfinite(square)) return false;
  blur(spread_, radius);
  const auto least = static_cast<float>(square * 0.01);  // dead regions stay quiet
  for (std::size_t i = 0; i < size; ++i) {
    const float local = std::sqrt(spread_[i] / mask_mean_[i] + least);
    values_[i] = std::clamp(values_[i] / local, -most_spread, most_spread);
  }
  return true;
}

}  // namespace zol
