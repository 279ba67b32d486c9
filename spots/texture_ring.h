// The circle that the arcs of one reflection of a fiber texture lie on, as pixels of the picture, and the directions in
// which it is not black yet. Angles in radians, clockwise from up.
#pragma once

#include <functional>
#include <optional>
#include <utility>
#include <vector>

#include "core/numbers.h"

namespace zol {

/// A pixel, counted from the upper left one.
struct PicturePixel {
  int column = 0, row = 0;
};

struct TextureRing {
  double radius = 0;      ///< 1/angstrom, as is the half width of the picture
  double rotation = 0;    ///< of the whole picture
  double half_width = 0;  ///< its middle is the middle of the ring
  int width_px = 0, height_px = 0;

  [[nodiscard]] std::pair<Single, Single> position(double angle) const;
  // The place of a position on the canvas, in pixels; none beside the picture.
  [[nodiscard]] double column(double x) const;
  [[nodiscard]] double row(double y) const;
  [[nodiscard]] std::optional<PicturePixel> pixel(double column, double row) const;
  /// False only if certainly no position falls on the pixel.
  [[nodiscard]] bool meets(const PicturePixel& pixel) const;
};

using IsBlack = std::function<bool(const PicturePixel&)>;

/// Small sectors of a ring. One is done when it meets no pixel of the picture that is not black.
class RingSectors {
 public:
  explicit RingSectors(const TextureRing& ring);

  /// Finds out which sectors are done. @param sense  1 or -1, the way in which the ring is walked
  void look(int sense, const IsBlack& is_black);
  /// Angle in radians, from a given one on, that is certainly done; infinite if the whole ring is.
  [[nodiscard]] double done_from(double angle) const;

 private:
  [[nodiscard]] bool is_done(int sector, const IsBlack& is_black) const;

  const TextureRing& ring_;
  std::vector<int> done_ahead_;  ///< how many are done from this one on; all when the whole ring is
  double width_;
};

}  // namespace zol
