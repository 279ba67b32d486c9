// From the user coordinates of a curve to a rectangle on the screen and back: a part of x, and heights that are laid
// off plainly, as square roots or as logarithms.
#pragma once

#include <vector>

#include "shell/services/ruler.h"

namespace zol {

enum class CurveHeights { Linear, SquareRoot, Logarithm };

/// A part of an axis, from below from to above to.
struct CurveRange {
  double from = 0, to = 1;
  bool operator==(const CurveRange&) const = default;
  [[nodiscard]] double width() const { return to - from; }
  [[nodiscard]] bool holds(double value) const { return value >= from && value <= to; }
};

/// The range made narrower (factor above 1) or wider around a place that stays where it is, inside all there is and not
/// below a millionth of it.
[[nodiscard]] CurveRange zoomed(const CurveRange& range, double around, double factor, const CurveRange& all);
/// Moved by a distance, as far as there is something.
[[nodiscard]] CurveRange moved(const CurveRange& range, double by, const CurveRange& all);

/// Heights below this one have no place of their own on a scale of logarithms: a hundredth of a per cent.
inline constexpr double least_logarithm = 1e-4;

/// A height as it is laid off. A square root keeps the sign.
[[nodiscard]] double laid_off(double height, CurveHeights heights);
/// The height at a place, the other way round.
[[nodiscard]] double height_of(double laid, CurveHeights heights);

/// A rectangle in pixels, y growing downwards, and what it shows.
struct CurvePlot {
  double left = 0, top = 0, width = 1, height = 1;
  CurveRange x;
  CurveRange y;  ///< heights, in user units
  CurveHeights heights = CurveHeights::Linear;

  [[nodiscard]] double pixel_x(double user_x) const { return left + (user_x - x.from) / x.width() * width; }
  [[nodiscard]] double pixel_y(double user_y) const;
  [[nodiscard]] double user_x(double pixel) const { return x.from + (pixel - left) / width * x.width(); }
  [[nodiscard]] double user_y(double pixel) const;
};

/// Ticks for heights, per_unit shown numbers to a user unit: at round numbers, of a scale of logarithms at the powers
/// of ten. @param most  how many with a text have room
[[nodiscard]] std::vector<Tick> height_ticks(const CurvePlot& plot, double per_unit, int most);

}  // namespace zol
