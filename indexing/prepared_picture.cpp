#include "indexing/prepared_picture.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "indexing/units.h"

namespace zol {
namespace {}  // namespace

void PreparedPicture::shape(const Gathering& gathering, const PreparationSettings& settings) {
  const bool same = gathering.picture_width == gathering_.picture_width &&
                    gathering.picture_height == gathering_.picture_height && settings.circle == circle_;
  if (same) return;
  gathering_ = gathering;
  circle_ = settings.circle;
  const int w = width();
  const int h = height();
  projection_width_ = static_cast<double>(gathering.picture_width) / gathering.side;
  values_.resize(gathering.pixels());
  mask_.assign(gathering.pixels(), 1);
  if (circle_) {
    const double radius = std::min(w, h) / 2.0;
    for (int y = 0; y < h; ++y) {
      for (int x = 0; x < w; ++x) {
        const double distance = std::hypot(x + 0.5 - w / 2.0, y + 0.5 - h / 2.0);
        mask_[index(y) * index(w) + index(x)] = distance < radius ? 1.0F : 0.0F;
      }
    }
  }
  background_radius_ = std::max(2, static_cast<int>(std::lround(settings.background * w)));
  even_.shape(w, h, mask_, background_radius_);
  ++shape_version_;
}

bool PreparedPicture::even() {
  const double contrast = even_.even(values_);
  if (contrast > 0) contrast_ = contrast;
  return contrast > 0;
}

bool PreparedPicture::prepare(const PictureView& picture, const PreparationSettings& settings, Task& task) {
  shape({picture.width, picture.height, settings.most_pixels}, settings);
  const auto row_at = [&picture](int y) { return &picture.values[index(y) * index(picture.width)]; };
  for (int y = 0; y < height(); ++y) {
    task.check();
    gathering_.gather(y, row_at, &values_[index(y) * index(width())]);
  }
  return even();
}

bool PreparedPicture::prepare(std::span<const float> gathered, const Gathering& gathering,
                              const PreparationSettings& settings) {
  shape(gathering, settings);
  std::copy(gathered.begin(), gathered.end(), values_.begin());
  return even();
}

}  // namespace zol
