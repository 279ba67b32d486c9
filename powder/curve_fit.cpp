#include "powder/curve_fit.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "core/run_failure.h"

namespace zol {
namespace {

double weight_of(const MeasuredPoint& point) { return point.sigma > 0 ? 1.0 / (point.sigma * point.sigma) : 1.0; }

struct LinearFit {
  CurveMatch match;
  double squares = std::numeric_limits<double>::infinity();  ///< weighted mean of what is left
  int points = 0;
};

/// Weighted means over the points that lie on the curve, moved by the zero.
struct Means {
  double weight = 0, calculated = 0, measured = 0;
  double calculated_squared = 0, mixed = 0, measured_squared = 0;  ///< of the deviations from the means
  int points = 0;

  /// Source: Welford, Technometrics 4 (1962) 419, with weights.
  void add(double c, double m, double w) {
    ++points;
    weight += w;
    const double of_c = c - calculated;
    const double of_m = m - measured;
    calculated += of_c * w / weight;
    measured += of_m * w / weight;
    calculated_squared += w * of_c * (c - calculated);
    mixed += w * of_c * (m - measured);
    measured_squared += w * of_m * (m - measured);
  }
};

LinearFit linear_fit(std::span<const MeasuredPoint> measured, const SampledCurve& calculated, double zero, Task& task) {
  task.check();
  Means means;
  for (const auto& point : measured) {
    if (const auto c = calculated.at(point.x - zero)) means.add(*c, point.intensity, weight_of(point));
  }
  LinearFit fit;
  fit.points = means.points;
  constexpr int least_points = 4;
  if (means.points < least_points || !(means.calculated_squared > 0)) return fit;
  fit.match.zero = zero;
  fit.match.scale = means.mixed / means.calculated_squared;
  fit.match.offset = means.measured - fit.match.scale * means.calculated;
  fit.squares = (means.measured_squared - fit.match.scale * means.mixed) / means.weight;
  return fit;
}

/// The best zero between two others. Source: Kiefer, Proc. Am. Math. Soc. 4 (1953) 502.
LinearFit best_between(std::span<const MeasuredPoint> measured, const SampledCurve& calculated, double from, double to,
                       Task& task) {
  const double golden = (std::sqrt(5.0) - 1) / 2;
  constexpr int steps = 40;  // the part shrinks to 4e-9 of what it was
  double lower = to - golden * (to - from);
  double upper = from + golden * (to - from);
  LinearFit at_lower = linear_fit(measured, calculated, lower, task);
  LinearFit at_upper = linear_fit(measured, calculated, upper, task);
  for (int i = 0; i < steps; ++i) {
    if (at_lower.squares <= at_upper.squares) {
      to = upper;
      upper = lower;
      at_upper = at_lower;
      lower = to - golden * (to - from);
      at_lower = linear_fit(measured, calculated, lower, task);
    } else {
      from = lower;
      lower = upper;
      at_lower = at_upper;
      upper = from + golden * (to - from);
      at_upper = linear_fit(measured, calculated, upper, task);
    }
  }
  return at_lower.squares <= at_upper.squares ? at_lower : at_upper;
}

}  // namespace

SampledCurve::SampledCurve(double from, double to, std::vector<double> samples)
    : from_(from),
      to_(to),
      step_((to - from) / static_cast<double>(samples.size() - 1)),
      samples_(std::move(samples)) {}

/// Source: Catmull & Rom in Computer Aided Geometric Design (1974) 317; at the ends the line goes straight on.
std::optional<double> SampledCurve::at(double x) const {
  const double place = (x - from_) / step_;
  const auto last = static_cast<double>(samples_.size() - 1);
  if (!(place >= 0) || place > last) return std::nullopt;
  const auto i = static_cast<std::size_t>(std::min(std::floor(place), last - 1));
  const double t = place - static_cast<double>(i);
  const double b = samples_[i];
  const double c = samples_[i + 1];
  const double a = i == 0 ? 2 * b - c : samples_[i - 1];
  const double d = i + 2 == samples_.size() ? 2 * c - b : samples_[i + 2];
  return b + t / 2 * (c - a + t * (2 * a - 5 * b + 4 * c - d + t * (3 * (b - c) + d - a)));
}

std::optional<double> matched(const CurveMatch& match, const SampledCurve& calculated, double x) {
  const auto c = calculated.at(x - match.zero);
  if (!c) return std::nullopt;
  return match.scale * *c + match.offset;
}

CurveMatch rough_match(std::span<const MeasuredPoint> measured, double highest) {
  if (measured.empty()) return {};
  const auto [low, high] =
      std::minmax_element(measured.begin(), measured.end(),
                          [](const MeasuredPoint& a, const MeasuredPoint& b) { return a.intensity < b.intensity; });
  const double rise = high->intensity - low->intensity;
  return {rise > 0 && highest > 0 ? rise / highest : 1.0, low->intensity, 0};
}

CurveMatch fitted_match(std::span<const MeasuredPoint> measured, const SampledCurve& calculated, double most_zero,
                        Task& task) {
  const double step = calculated.step() / 2;
  const int steps = std::max(1, static_cast<int>(most_zero / step));
  LinearFit best;
  int most_points = 0;
  for (int i = -steps; i <= steps; ++i) {
    const auto fit = linear_fit(measured, calculated, i * step, task);
    most_points = std::max(most_points, fit.points);
    if (fit.squares < best.squares) best = fit;
  }
  constexpr int least_points = 4;
  if (most_points < least_points) {
    throw RunFailure("the measured pattern has " + std::to_string(most_points) +
                     " points where the curve is calculated, expected are four or more");
  }
  if (!std::isfinite(best.squares) || !(best.match.scale > 0)) {
    throw RunFailure(
        "no scale above 0 brings the calculated curve onto the measured pattern: one is flat, or falls where "
        "the other rises");
  }
  const double zero = best.match.zero;
  const auto finer = best_between(measured, calculated, zero - step, zero + step, task);
  return (finer.squares <= best.squares ? finer : best).match;
}

double weighted_residual(const CurveMatch& match, std::span<const MeasuredPoint> measured,
                         const SampledCurve& calculated) {
  double left = 0;
  double all = 0;
  for (const auto& point : measured) {
    const auto model = matched(match, calculated, point.x);
    if (!model) continue;
    const double off = point.intensity - *model;
    left += weight_of(point) * off * off;
    all += weight_of(point) * point.intensity * point.intensity;
  }
  return all > 0 ? 100 * std::sqrt(left / all) : 0.0;
}

}  // namespace zol
