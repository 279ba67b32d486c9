#include "powder/line_profile.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>

#include "core/cell_geometry.h"
#include "core/number_text.h"

namespace zol {
namespace {

// Samples are worked on in blocks, so that what depends on the bin alone is computed once for many of them.
constexpr int block_size = 64;
constexpr std::size_t lines_between_checks = 64;  // some 0.1 ms

// Below zero_exponent exp() is 0. Below far_exponent a Gaussian is at most far_value, and is left out where that is
// less than 2^-27 of what the sample holds: a Single does not change by less than 2^-26 of itself.
constexpr double zero_exponent = -746.0;
constexpr double far_exponent = -40.0;
constexpr double far_value = 4.3e-18;  // exp(-40) is 4.2484e-18
constexpr double no_change = 1.0 / (1 << 27);

/// A block of samples: where they lie and what they hold so far.
struct Block {
  std::size_t size;
  std::array<double, block_size> position{};
  std::array<Single, block_size> sum{};
};

/// Adds height * exp(-4 ln 2 (x / width)^2) to each sample.
void add_gaussian(Block& block, double centre, double height, double width) {
  for (std::size_t m = 0; m < block.size; ++m) {
    const double e = static_cast<Single>(centre - block.position[m]);
    const double exponent = -four_ln_2 * e * e / width / width;
    if (exponent < zero_exponent) continue;
    const double sum = block.sum[m];
    if (exponent < far_exponent && std::abs(height) * far_value < sum * no_change) continue;
    block.sum[m] = static_cast<Single>(height * std::exp(exponent) + sum);
  }
}

/// Adds height / (1 + 4 (x / width)^2) to each sample.
void add_lorentzian(Block& block, double centre, double height, double width) {
  for (std::size_t m = 0; m < block.size; ++m) {
    const double e = static_cast<Single>(centre - block.position[m]);
    block.sum[m] = static_cast<Single>(height / (1.0 + e * 4.0 * e / width / width) + double{block.sum[m]});
  }
}

/// Runs over the samples block by block, in each over the lines. A sum that left the range of a Single stays infinite
/// and fails at the end of its block.
template <class Line, class Position, class AddLines>
PowderProfile sum_lines(std::span<const Line> lines, Task& task, Position position, AddLines add_lines) {
  PowderProfile profile("Profile", last_sample);
  for (int first = 0; first <= last_sample; first += block_size) {
    Block block{static_cast<std::size_t>(std::min(block_size, last_sample - first + 1))};
    for (std::size_t m = 0; m < block.size; ++m) block.position[m] = position(first + static_cast<int>(m));
    for (std::size_t n = 0; n < lines.size(); n += lines_between_checks) {
      task.check();
      add_lines(block, lines.subspan(n, std::min(lines_between_checks, lines.size() - n)));
    }
    for (std::size_t m = 0; m < block.size; ++m) profile(first + static_cast<int>(m)) = to_single(block.sum[m]);
    task.report(first + static_cast<int>(block.size) - 1, last_sample);
  }
  return profile;
}

}  // namespace

int TwoThetaRange::nearest(Single two_theta_deg) const {
  const double from_start = double{two_theta_deg} - double{minimum};
  const double width = double{maximum} - double{minimum};
  return Long::floor(divide(from_start, width, "the width of the pattern in 2-theta") * 1000.0 + 0.5).value();
}

Single two_theta_limit(Single wavelength, Single dmin) {
  return to_single(2.0 * double{ArcSin(to_single(divide(double{wavelength} / 2.0, dmin, "Dmin")))});
}

Single spacing_at_two_theta(Single wavelength, Single two_theta_deg) {
  const double sine = std::sin(double{two_theta_deg} / 2.0 / 180.0 * program_pi);
  return to_single(divide(double{wavelength} / 2.0, sine, "sin(theta) of a peak"));
}

int nearest_ring_sample(Single d_star_max, Single d_star) {
  return Long::floor(divide(d_star, d_star_max, "the width of the pattern in 1/d") * 1000.0 + 0.5).value();
}

Single ring_spacing(Single d_star_max, int sample) {
  return to_single(divide(1.0, double{d_star_max} * sample / 1000.0, "1/d of a peak"));
}

double spacing_at_point(Single x, Single y) {
  return divide(1.0, std::sqrt(double{y} * double{y} + double{x} * double{x}), "the distance from the beam");
}

std::vector<FilledBin> filled_bins(const Histogram& bins, int first, Integer count, Single dmin) {
  std::vector<FilledBin> filled;
  for (int n = first; n <= count.value(); ++n) {
    const Single d_star = to_single(divide(divide(n, dmin, "Dmin"), count.value(), "the number of bins, 5000 / Dmin"));
    if (bins(n) > 0) filled.push_back({d_star, bins(n)});
  }
  return filled;
}

PowderProfile sum_pseudo_voigt_lines(const std::vector<FilledBin>& bins, Single wavelength, const TwoThetaRange& range,
                                     const PseudoVoigt& line, Task& task) {
  struct Line {
    double two_theta, gaussian, lorentzian;
  };
  const double w = line.half_width;
  const double g = double{line.gaussian_ratio} / 100.0;
  std::vector<Line> lines;
  lines.reserve(bins.size());
  for (const auto& bin : bins) {
    const Single theta = ArcSin(to_single(double{wavelength} / 2.0 * double{bin.d_star}));
    const double content = bin.content;
    lines.push_back({to_single(double{theta} + double{theta}),
                     divide((g + g) * std::sqrt(ln_2) * content, w, "the line width") / std::sqrt(program_pi),
                     divide(((1.0 - g) + (1.0 - g)) * content / program_pi, w, "the line width")});
  }
  return sum_lines(
      std::span<const Line>(lines), task, [&range](int m) { return double{range.at(m)}; },
      [w](Block& block, std::span<const Line> some) {
        for (const auto& [two_theta, gaussian, lorentzian] : some) {
          add_gaussian(block, two_theta, gaussian, w);
          add_lorentzian(block, two_theta, lorentzian, w);
        }
      });
}

PowderProfile sum_gaussian_lines(const std::vector<FilledBin>& bins, Single d_star_max, Single half_width, Task& task) {
  const double w = half_width;
  struct Line {
    double d_star, height;
  };
  std::vector<Line> lines;
  lines.reserve(bins.size());
  for (const auto& bin : bins) {
    lines.push_back(
        {bin.d_star, divide(double{bin.content} * std::sqrt(ln_2), w, "the line width") / std::sqrt(program_pi)});
  }
  return sum_lines(
      std::span<const Line>(lines), task, [d_star_max](int m) { return double{d_star_at(d_star_max, m)}; },
      [w](Block& block, std::span<const Line> some) {
        for (const auto& [d_star, height] : some) add_gaussian(block, d_star, height, w);
      });
}

PowderProfile divided_samples(PowderProfile profile, Integer grid_points) {
  for (int m = 0; m <= last_sample; ++m) {
    profile(m) = to_single(divide(profile(m), grid_points.value(), "the number of points of the interference grid"));
  }
  return profile;
}

PowderProfile square_roots(PowderProfile profile) {
  for (int m = 0; m <= last_sample; ++m) profile(m) = to_single(square_root(profile(m), "an intensity"));
  return profile;
}

Single largest_sample(const PowderProfile& profile) {
  return *std::max_element(profile.elements().begin(), profile.elements().end());
}

std::vector<int> maxima(const PowderProfile& profile, Single reference) {
  constexpr Single threshold = 0.01F;
  std::vector<int> found;
  for (int m = 2; m < last_sample; ++m) {
    if (!(profile(m - 1) < profile(m) && profile(m) > profile(m + 1))) continue;
    if (to_single(relative_height(profile(m), reference)) >= threshold) found.push_back(m);
  }
  return found;
}

double relative_height(Single height, Single reference, std::string_view name) {
  return divide(height, reference, name);
}

Long grey_level(Single height, Single reference, bool inverse) {
  Long level = Long::rounded(relative_height(height, reference) * 255.0);
  if (level > 255) level = 255;
  return inverse ? 255 - level : level;
}

std::string peak_line(double d_angstrom, Single height, Single reference) {
  const double per_cent = std::floor(relative_height(height, reference) * 100.0 + 0.5);
  return Format(d_angstrom, "#0.00") + "    " + Format(per_cent, "##0");
}

}  // namespace zol
