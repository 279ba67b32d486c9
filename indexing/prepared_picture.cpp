#include "indexing/prepared_picture.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace zol {
namespace {

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
  background_radius_ = std::max(2, static_cast<int>(std::lround(settings.background * width_)));
  even_.shape(width_, height_, mask_, background_radius_);
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

bool PreparedPicture::prepare(const PictureView& picture, const PreparationSettings& settings, Task& task) {
  const bool new_shape =
      picture.width != picture_width_ || picture.height != picture_height_ || settings.circle != circle_;
  if (new_shape) shape(picture, settings);
  gather(picture, task);
  const double contrast = even_.even(values_);
  if (contrast > 0) contrast_ = contrast;
  return contrast > 0;
}

}  // namespace zol
