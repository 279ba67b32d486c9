// A calculated curve laid over a measured one: scale, constant background and shift of the zero.
//
//   measured(x) = scale * calculated(x - zero) + offset
#pragma once

#include <optional>
#include <span>
#include <vector>

#include "powder/measured_curve.h"

namespace zol {

/// Equidistant samples, in between a cubic through the four next ones, outside nothing.
class SampledCurve {
 public:
  /// @param from, to  places of the first and the last sample; two samples at least
  SampledCurve(double from, double to, std::vector<double> samples);
  [[nodiscard]] std::optional<double> at(double x) const;
  [[nodiscard]] double from() const { return from_; }
  [[nodiscard]] double to() const { return to_; }
  [[nodiscard]] double step() const { return step_; }

 private:
  double from_, to_, step_;
  std::vector<double> samples_;
};

struct CurveMatch {
  double scale = 1;   ///< measured units per calculated unit
  double offset = 0;  ///< the background, measured units
  double zero = 0;    ///< what the instrument adds to x
  bool operator==(const CurveMatch&) const = default;
};

/// What the match makes of the calculated curve at the place of a measured point; none outside it.
[[nodiscard]] std::optional<double> matched(const CurveMatch& match, const SampledCurve& calculated, double x);

/// Scale and offset that bring lowest and highest measured point to 0 and to the highest sample.
/// @param highest  of the calculated curve; 0 leaves the scale at 1
[[nodiscard]] CurveMatch rough_match(std::span<const MeasuredPoint> measured, double highest);

/// The match of least squares, weighted by 1/sigma^2 where sigmas are known: scale and offset are linear, the zero is
/// looked for around 0 in steps of half a sample and then by the golden section.
/// @param most_zero  how far the zero may be off
/// @throws RunFailure  fewer than four points lie on the curve, the curve is flat there, or the pattern does not rise
///                     where the curve does
/// @throws Cancelled  the task stops
[[nodiscard]] CurveMatch fitted_match(std::span<const MeasuredPoint> measured, const SampledCurve& calculated,
                                      double most_zero, Task& task);

/// Root of the weighted sum of squared differences over that of the measured intensities, in per cent; 0 where nothing
/// overlaps. Source: Young (ed.), The Rietveld Method (1993), table 1.3 (R-wp).
[[nodiscard]] double weighted_residual(const CurveMatch& match, std::span<const MeasuredPoint> measured,
                                       const SampledCurve& calculated);

}  // namespace zol
