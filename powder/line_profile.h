// From the histogram over 1/d to a pattern of 1001 samples: the line shapes of both powder windows, and the maxima.
//
// Only bins that are not empty count; they are found once. Each sample adds them in ascending order and rounds each sum
// to a Single, so that the result equals that of the plain loop over all bins.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/bounded_array.h"
#include "core/numbers.h"
#include "core/task.h"
#include "powder/histogram.h"

namespace zol {

inline constexpr int last_sample = 1000;  ///< samples 0 to 1000
inline constexpr double ln_2 = 0.693147;  ///< truncated, as is four times it
inline constexpr double four_ln_2 = 2.772588;

/// A pattern: samples 0 to 1000.
using PowderProfile = BoundedArray<Single>;

/// A bin that is not empty.
struct FilledBin {
  Single d_star = 0;  ///< 1/angstrom
  Single content = 0;
  bool operator==(const FilledBin&) const = default;
};

/// The bins from first to count with a content above 0. @throws RunFailure  count is 0 and first is not above it
[[nodiscard]] std::vector<FilledBin> filled_bins(const Histogram& bins, int first, Integer count, Single dmin);

/// Part of the pattern that is sampled, in degrees.
struct TwoThetaRange {
  Single minimum = 0, maximum = 0;
  [[nodiscard]] Single at(int sample) const {
    return to_single((double{maximum} - double{minimum}) * sample / 1000.0 + double{minimum});
  }
  /// The sample nearest to a position, which may lie outside the pattern. @throws RunFailure  the range is empty
  [[nodiscard]] int nearest(Single two_theta_deg) const;
};

/// 2-theta in degrees of the smallest spacing; 180 where the wavelength does not reach it. @throws RunFailure  dmin is
/// 0
[[nodiscard]] Single two_theta_limit(Single wavelength, Single dmin);

/// d in angstroms of a sample at this 2-theta. @throws RunFailure  2-theta is 0
[[nodiscard]] Single spacing_at_two_theta(Single wavelength, Single two_theta_deg);

/// 1/d at a sample of a ring pattern that ends at d_star_max.
[[nodiscard]] inline Single d_star_at(Single d_star_max, int sample) {
  return to_single(double{d_star_max} * sample / 1000.0);
}

/// The sample nearest to 1/d, which may lie outside the pattern. @throws RunFailure  d_star_max is 0
[[nodiscard]] int nearest_ring_sample(Single d_star_max, Single d_star);

/// d in angstroms of a sample of a ring pattern.
[[nodiscard]] Single ring_spacing(Single d_star_max, int sample);

/// d in angstroms at a point of the ring picture. @throws RunFailure  the point is too close to the beam
[[nodiscard]] double spacing_at_point(Single x, Single y);

/// A pseudo-Voigt line of unit area in 2-theta.
struct PseudoVoigt {
  Single half_width = 0;      ///< full width at half maximum, degrees
  Single gaussian_ratio = 0;  ///< share of the Gaussian, per cent
};

/// Sums the lines of all bins at each sample of the range. Reports samples.
/// @throws RunFailure  the width is 0, or a sum passes the range of a Single
[[nodiscard]] PowderProfile sum_pseudo_voigt_lines(const std::vector<FilledBin>& bins, Single wavelength,
                                                   const TwoThetaRange& range, const PseudoVoigt& line, Task& task);

/// Sums Gaussians in 1/d; each has half the height of one of unit area. Reports samples.
/// @param half_width  full width at half maximum, 1/angstrom
/// @throws RunFailure  the width is 0, or a sum passes the range of a Single
[[nodiscard]] PowderProfile sum_gaussian_lines(const std::vector<FilledBin>& bins, Single d_star_max, Single half_width,
                                               Task& task);

/// Each sample divided by the number of points of the interference grid. @throws RunFailure  it is 0
[[nodiscard]] PowderProfile divided_samples(PowderProfile profile, Integer grid_points);

/// The square root of each sample. @throws RunFailure  one is negative
[[nodiscard]] PowderProfile square_roots(PowderProfile profile);

/// The largest sample, below 0 when all are.
[[nodiscard]] Single largest_sample(const PowderProfile& profile);

/// Samples 2 to 999 above both neighbours and at least 0.01 of the reference. A flat top of two samples is none.
/// @throws RunFailure  the reference is 0 and there is a maximum
[[nodiscard]] std::vector<int> maxima(const PowderProfile& profile, Single reference);

/// Name, for messages, of the intensity that both windows draw at full height.
inline constexpr std::string_view display_max = "the intensity at full height (DisplayMax)";

/// Height in units of the reference, which is drawn at full height.
/// @param name  of the reference, for the message
/// @throws RunFailure  the reference is 0
[[nodiscard]] double relative_height(Single height, Single reference, std::string_view name = display_max);

/// Grey level of a ring: 255 at full height and above, 0 there when inverse. A negative level is not clamped.
/// @throws RunFailure  the reference is 0, or the level before the clamp passes 32 bits
[[nodiscard]] Long grey_level(Single height, Single reference, bool inverse);

/// A line of the peak list: d, blanks, the height in per cent of the reference.
[[nodiscard]] std::string peak_line(double d_angstrom, Single height, Single reference);

}  // namespace zol
