// What there is to be seen of a curve: what its window has drawn, and what it offers beside that.
#pragma once

#include <string>
#include <vector>

#include "shell/services/curve_offer.h"
#include "shell/services/curve_scale.h"

namespace zol {

/// A line of what the window has drawn.
struct DrawnCurve {
  std::vector<CurvePoint> points;
  Colour colour = colours::black;
};

/// All that can be seen, in user coordinates of the picture.
struct CurveScene {
  std::vector<DrawnCurve> curves;
  std::vector<CurveTick> reflections;
  std::vector<CurveLayer> layers;
  std::string radiation;
  UserScale scale;
  [[nodiscard]] CurveRange all() const;
  /// The highest point of curves and layers in a part of x; 0 where there is none.
  [[nodiscard]] double highest(const CurveRange& part) const;
  /// Of the curves, at a place.
  [[nodiscard]] double height_at(double x) const;
};
[[nodiscard]] CurveScene scene_of(const Canvas& canvas);

}  // namespace zol
