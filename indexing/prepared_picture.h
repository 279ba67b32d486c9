// A picture made ready for indexing: small enough, without background, of even contrast.
#pragma once

#include <span>
#include <vector>

#include "core/task.h"
#include "indexing/even_contrast.h"
#include "indexing/gathering.h"
#include "indexing/picture.h"

namespace zol {

struct PreparationSettings {
  int most_pixels = 128 * 128;  ///< pixels are gathered in squares until there are about as many
  double background = 0.12;     ///< radius of the local mean that is taken off, in widths of the picture
  bool circle = false;          ///< only the largest circle about the middle holds the pattern
};

/// Its storage is used again for the next picture of the same size.
class PreparedPicture {
 public:
  /// @returns false where the picture has no contrast at all: it is blank
  [[nodiscard]] bool prepare(const PictureView& picture, const PreparationSettings& settings, Task& task);
  [[nodiscard]] bool prepare(const PictureView& picture, const PreparationSettings& settings) {
    QuietTask task;
    return prepare(picture, settings, task);
  }

  /// Of pixels that have been gathered before. @param gathering  of as many pixels as the settings say
  [[nodiscard]] bool prepare(std::span<const float> gathered, const Gathering& gathering,
                             const PreparationSettings& settings);

  [[nodiscard]] int width() const { return gathering_.width; }
  [[nodiscard]] int height() const { return gathering_.height; }
  /// Projection of this picture where that of the whole one has this centre.
  [[nodiscard]] Projection projection(const PatternCentre& centre) const { return {centre, projection_width_}; }
  /// Mean about 0, spread about 1; 0 where there is no pattern.
  [[nodiscard]] const std::vector<float>& values() const { return values_; }
  /// 1 where there is a pattern, otherwise 0.
  [[nodiscard]] const std::vector<float>& mask() const { return mask_; }
  /// Spread of the grey values about their local mean, in those of the picture, of the last one.
  [[nodiscard]] double contrast() const { return contrast_; }
  /// Pixels over which the local mean was taken.
  [[nodiscard]] int background_radius() const { return background_radius_; }
  /// Changes with size and mask of the picture, for what depends only on them.
  [[nodiscard]] int shape_version() const { return shape_version_; }

 private:
  void shape(const Gathering& gathering, const PreparationSettings& settings);
  [[nodiscard]] bool even();

  Gathering gathering_;
  bool circle_ = false;
  int shape_version_ = 0, background_radius_ = 0;
  double projection_width_ = 0, contrast_ = 0;
  EvenContrast even_;
  std::vector<float> values_, mask_;
};

}  // namespace zol
