#include "shell/services/curve_scale.h"

#include <algorithm>
#include <cmath>

#include "core/number_text.h"

namespace zol {
namespace {

/// Inside all there is; the width stays where there is room for it.
CurveRange held(const CurveRange& range, const CurveRange& all) {
  const double width = std::min(range.width(), all.width());
  const double from = std::clamp(range.from, all.from, all.to - width);
  return {from, std::min(from + width, all.to)};
}

}  // namespace

CurveRange zoomed(const CurveRange& range, double around, double factor, const CurveRange& all) {
  constexpr double least_part = 1e-6;
  const double width = std::clamp(range.width() / factor, least_part * all.width(), all.width());
  const double share = range.width() > 0 ? (around - range.from) / range.width() : 0.5;
  const double from = around - share * width;
  return held({from, from + width}, all);
}

CurveRange moved(const CurveRange& range, double by, const CurveRange& all) {
  return held({range.from + by, range.to + by}, all);
}

double laid_off(double height, CurveHeights heights) {
  if (heights == CurveHeights::SquareRoot) return std::copysign(std::sqrt(std::abs(height)), height);
  if (heights == CurveHeights::Logarithm) return std::log10(std::max(height, least_logarithm));
  return height;
}

double height_of(double laid, CurveHeights heights) {
  if (heights == CurveHeights::SquareRoot) return std::copysign(laid * laid, laid);
  if (heights == CurveHeights::Logarithm) return std::pow(10.0, laid);
  return laid;
}

double CurvePlot::pixel_y(double user_y) const {
  const double bottom = laid_off(y.from, heights);
  return top + height - (laid_off(user_y, heights) - bottom) / (laid_off(y.to, heights) - bottom) * height;
}

double CurvePlot::user_y(double pixel) const {
  const double bottom = laid_off(y.from, heights);
  return height_of(bottom + (top + height - pixel) / height * (laid_off(y.to, heights) - bottom), heights);
}

std::vector<Tick> height_ticks(const CurvePlot& plot, double per_unit, int most) {
  if (plot.heights != CurveHeights::Logarithm) return ruler_ticks(plot.y.from * per_unit, plot.y.to * per_unit, most);
  const double from = std::max(plot.y.from, least_logarithm) * per_unit;
  const double to = plot.y.to * per_unit;
  if (!(from > 0) || !(to > from) || !std::isfinite(to)) return {};
  std::vector<Tick> ticks;
  constexpr int parts = 10;
  for (int power = static_cast<int>(std::floor(std::log10(from))); power <= std::log10(to); ++power) {
    for (int n = 1; n < parts; ++n) {
      const double value = n * std::pow(10.0, power);
      if (value >= from * (1 - 1e-9) && value <= to) ticks.push_back({value, n == 1 ? short_text(value, 9) : ""});
    }
  }
  return ticks;
}

}  // namespace zol
