// Powder patterns without windows: interference function, histogram, line shapes, peaks, files.
#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <random>

#include "core/cell_geometry.h"
#include "core/run_failure.h"
#include "powder/histogram.h"
#include "powder/interference.h"
#include "powder/line_profile.h"
#include "powder/pattern_files.h"
#include "tests/test_files.h"

namespace zol {
namespace {

struct Steps : Progress {
  void report(int done, int total_steps) override {
    EXPECT_GE(done, last);
    last = done;
    total = total_steps;
    ++reports;
  }
  int last = 0, total = 0, reports = 0;
};

CrystalState with_cell(double a, double b, double c, double alpha, double beta, double gamma) {
  CrystalState state;
  state.CellA = to_single(a);
  state.CellB = to_single(b);
  state.CellC = to_single(c);
  state.CellAlpha = to_single(alpha);
  state.CellBeta = to_single(beta);
  state.CellGamma = to_single(gamma);
  EXPECT_TRUE(calc_cell(state));
  state.Dmin = 1;
  state.WaveLength = 1.542F;
  return state;
}

struct Entry {
  int h, k, l;
  Single intensity;
};

void set_list(CrystalState& state, const std::vector<Entry>& entries) {
  const int count = static_cast<int>(entries.size());
  state.RefCount = count;
  for (auto* array : {&state.RefH, &state.RefK, &state.RefL}) array->allocate(count);
  state.RefI.allocate(count);
  for (int r = 1; r <= count; ++r) {
    const auto& entry = entries[static_cast<std::size_t>(r - 1)];
    state.RefH(r) = entry.h;
    state.RefK(r) = entry.k;
    state.RefL(r) = entry.l;
    state.RefI(r) = entry.intensity;
  }
}

BoundedArray<Single> histogram(const CrystalState& state, const CrystalliteSize& size, int beyond = 1000) {
  const auto grid = interference_grid(state, size);
  const Integer count = bin_count(state.Dmin);
  BoundedArray<Single> bins("Bins", count.value() + beyond);
  Steps steps;
  fill_histogram(state, grid, InterferenceTable(grid, size), count, bins, steps);
  EXPECT_EQ(steps.last, state.RefCount.value());
  return bins;
}

BoundedArray<Single> empty_profile() { return {"Profile", last_sample}; }

// Plain loops, point by point and bin by bin: what the faster ways must agree with to the bit.

double plain_interference(double cells, double t) {
  if (t == 0) return cells * cells;
  return std::sin(cells * 3.14159 * t) * std::sin(cells * 3.14159 * t) / std::sin(t * 3.14159) / std::sin(t * 3.14159);
}

BoundedArray<Single> plain_histogram(const CrystalState& state, const CrystalliteSize& size) {
  const auto grid = interference_grid(state, size);
  const int count = bin_count(state.Dmin).value();
  BoundedArray<Single> bins("Bins", count + 1000);
  const double widths[] = {grid.width[0], grid.width[1], grid.width[2]};
  const auto limit = [&](std::size_t axis) { return static_cast<Single>(grid.steps[axis].value() * widths[axis]); };
  const auto next = [&](Single x, std::size_t axis) { return static_cast<Single>(double{x} + widths[axis]); };
  const auto place = [&](Single x, std::size_t axis) { return std::floor(std::abs(x / widths[axis]) + 0.5); };
  const double p = size.CellsP;
  const double q = size.CellsQ;
  const double s = size.CellsR;
  for (int r = 1; r <= state.RefCount.value(); ++r) {
    for (Single x = -limit(0); x <= limit(0); x = next(x, 0)) {
      for (Single y = -limit(1); y <= limit(1); y = next(y, 1)) {
        for (Single z = -limit(2); z <= limit(2); z = next(z, 2)) {
          auto entry = static_cast<Single>(plain_interference(p, place(x, 0) * widths[0]));
          entry = static_cast<Single>(plain_interference(q, place(y, 1) * widths[1]) * entry);
          entry = static_cast<Single>(plain_interference(s, place(z, 2) * widths[2]) * entry);
          entry = static_cast<Single>(entry / p / p / q / q / s / s);
          const double length = reciprocal_length(state, static_cast<Single>(state.RefH(r).value() + double{x}),
                                                  static_cast<Single>(state.RefK(r).value() + double{y}),
                                                  static_cast<Single>(state.RefL(r).value() + double{z}));
          const int bin = static_cast<int>(std::floor(double{state.Dmin} * length * count));
          bins(bin) = static_cast<Single>(double{bins(bin)} + double{state.RefI(r)} * double{entry});
        }
      }
    }
  }
  return bins;
}

BoundedArray<Single> plain_pseudo_voigt(const BoundedArray<Single>& bins, int count, Single dmin, Single wavelength,
                                        const TwoThetaRange& range, const PseudoVoigt& line) {
  auto profile = empty_profile();
  const double w = line.half_width;
  const double g = line.gaussian_ratio / 100.0;
  for (int m = 0; m <= 1000; ++m) {
    const auto t = static_cast<Single>((double{range.maximum} - double{range.minimum}) * m / 1000 + range.minimum);
    for (int n = 0; n <= count; ++n) {
      const auto d_star = static_cast<Single>(n / double{dmin} / count);
      if (!(bins(n) > 0)) continue;
      const Single theta = ArcSin(static_cast<Single>(wavelength / 2.0 * d_star));
      const Single two_theta = theta + theta;
      const double e = static_cast<Single>(double{two_theta} - double{t});
      profile(m) = static_cast<Single>((g + g) * std::sqrt(0.693147) * bins(n) / w / std::sqrt(3.14159) *
                                           std::exp(-2.772588 * e * e / w / w) +
                                       double{profile(m)});
      profile(m) = static_cast<Single>(((1 - g) + (1 - g)) * bins(n) / 3.14159 / w / (1 + e * 4 * e / w / w) +
                                       double{profile(m)});
    }
  }
  return profile;
}

BoundedArray<Single> plain_gaussian(const BoundedArray<Single>& bins, int count, Single dmin, Single d_star_max,
                                    Single half_width) {
  auto profile = empty_profile();
  const double w = half_width;
  for (int m = 0; m <= 1000; ++m) {
    const auto d = static_cast<Single>(double{d_star_max} * m / 1000);
    for (int n = 1; n <= count; ++n) {
      const auto d_star = static_cast<Single>(n / double{dmin} / count);
      if (!(bins(n) > 0)) continue;
      const double e = static_cast<Single>(double{d_star} - double{d});
      profile(m) = static_cast<Single>(bins(n) * std::sqrt(0.693147) / w / std::sqrt(3.14159) *
                                           std::exp(-2.772588 * e * e / w / w) +
                                       double{profile(m)});
    }
  }
  return profile;
}

/// Number of places where two arrays differ.
int differences(const BoundedArray<Single>& left, const BoundedArray<Single>& right) {
  int count = left.upper() == right.upper() ? 0 : 1;
  for (int i = 0; i <= std::min(left.upper(), right.upper()); ++i) count += left(i) == right(i) ? 0 : 1;
  return count;
}

const std::vector<Entry> some_reflections{{1, 0, 0, 10},  {1, 1, -1, 731.25F}, {0, 0, 3, 0.125F}, {-2, 1, 0, 0},
                                          {-3, 2, 1, 42}, {0, 0, 0, 7},        {2, -1, 3, 1e-3F}};

struct GridCase {
  const char* name;
  double a;  // cubic cell, so that a* = 1/a
  Single cells;
  int steps;
  double width;
};
class Grid : public testing::TestWithParam<GridCase> {};
TEST_P(Grid, ReachesTheSecondZeroInStepsOfABin) {
  const auto state = with_cell(GetParam().a, GetParam().a, GetParam().a, 90, 90, 90);
  const auto grid = interference_grid(state, {GetParam().cells, GetParam().cells, GetParam().cells});
  for (std::size_t axis = 0; axis < 3; ++axis) {
    EXPECT_EQ(grid.steps[axis], GetParam().steps);
    EXPECT_NEAR(grid.width[axis], GetParam().width, 1e-6 * GetParam().width);
  }
}
// (2/P) a* / 0.0002 by hand: 0.25 and 0.5 bins for the large crystallite, 50 for 40 cells of 5, capped for 10 of 4.
INSTANTIATE_TEST_SUITE_P(Cells, Grid,
                         testing::Values(GridCase{"large", 4, 10000, 1, 0.0008},
                                         GridCase{"edge_of_2", 2, 10000, 1, 4e-4},
                                         GridCase{"smaller_than_1", 0.9, 10000, 2, 1.8e-4},
                                         GridCase{"forty_cells", 5.1, 40, 50, 0.00102},
                                         GridCase{"capped", 4, 10, 100, 0.002}),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(Grid, FailsWhereItsNumbersDo) {
  auto state = with_cell(4, 4, 4, 90, 90, 90);
  EXPECT_EQ(failure_of([&] {
              (void)interference_grid(state, {10, 0, 10});
            }),
            "division by zero: the crystallite size Q is 0");
  const auto grid = interference_grid(state, {10, 10, 10});
  EXPECT_EQ(grid_text(grid), " 100 100 100");
  EXPECT_EQ(failure_of([&] { (void)grid_points(grid); }),
            "the interference grid has 100 x 100 x 100 points, at most 32767 are possible: P, Q or R is too small")
      << "100 x 100 is small enough, the third factor is not";
  EXPECT_EQ(grid_points({{3, 5, 7}, {}}), 105);
  EXPECT_EQ(failure_of([&] { (void)interference_grid(state, {0.0001F, 1, 1}); }).substr(0, 8), "overflow");
  state.CStar = 0;
  EXPECT_EQ(failure_of([&] { (void)interference_grid(state, {10, 10, 10}); }), "division by zero: c* is 0");
}

TEST(Interference, IsOneAtThePointAndZeroAtThePthPartOfTheAxis) {
  const InterferenceGrid grid{{20, 20, 20}, {0.01F, 0.005F, 0.01F}};
  const InterferenceTable table(grid, {10, 20, 10});
  EXPECT_FLOAT_EQ(table(0, 0, 0), 1);
  EXPECT_NEAR(table(10, 0, 0), 0, 1e-9) << "1/P";
  EXPECT_NEAR(table(0, 20, 0), 0, 1e-9) << "2/Q";
  EXPECT_GT(table(15, 0, 0), 0.03) << "the first side maximum";
  // Half-way to the first zero: (1 / (10 sin(pi/20)))^2 = (0.1 / 0.156434)^2 = 0.408634, on two axes the product.
  EXPECT_NEAR(table(5, 0, 0), 0.408634, 1e-5);
  EXPECT_NEAR(table(5, 0, 5), 0.408634 * 0.408634, 1e-5);
}

TEST(BinCount, HasTheLimitsOfSixteenBits) {
  EXPECT_EQ(bin_count(1), 5000);
  EXPECT_EQ(bin_count(1.1F), 4545);
  EXPECT_EQ(highest_bin(bin_count(0.1574F), 1000), 32766);
  EXPECT_EQ(failure_of([] { (void)highest_bin(bin_count(0.157391F), 1000); }),
            "the histogram would end at bin 32768, the last one possible is 32767: Dmin is too small")
      << "5000 / 0.157391 = 31768";
  EXPECT_EQ(highest_bin(bin_count(0.21961F), 10000), 32767);
  EXPECT_THROW((void)highest_bin(bin_count(0.219606F), 10000), RunFailure) << "22768";
  EXPECT_EQ(failure_of([] { (void)bin_count(0.125F); }).substr(0, 38), "the histogram would end at bin 40000, ");
  EXPECT_EQ(failure_of([] { (void)bin_count(0); }), "division by zero: Dmin is 0");
}

struct BinCase {
  const char* name;
  double cell[6];
  int h, k, l;
  double d;  // by hand
};
class LargeCrystallite : public testing::TestWithParam<BinCase> {};
TEST_P(LargeCrystallite, FallsIntoTheBinsAroundItsLength) {
  const auto& [name, cell, h, k, l, d] = GetParam();
  auto state = with_cell(cell[0], cell[1], cell[2], cell[3], cell[4], cell[5]);
  set_list(state, {{h, k, l, 100}});
  const auto bins = histogram(state, {10000, 10000, 10000});
  const double at = state.Dmin / d * bin_count(state.Dmin).value();
  // One step of one bin to each side on three axes. Off an axis of the crystal the three may add up: 3 bins.
  double sum = 0;
  for (int n = 0; n <= bins.upper(); ++n) {
    if (bins(n) == 0) continue;
    EXPECT_NEAR(n + 0.5, at, 3.6) << n;
    sum += bins(n);
  }
  EXPECT_GE(bins(static_cast<int>(at)) + bins(static_cast<int>(at) + 1) + bins(static_cast<int>(at) - 1), 100)
      << "the point itself counts in full";
  EXPECT_GE(sum, 100);
}
INSTANTIATE_TEST_SUITE_P(Reflections, LargeCrystallite,
                         testing::Values(BinCase{"cubic_200", {5.6402, 5.6402, 5.6402, 90, 90, 90}, 2, 0, 0, 2.8201},
                                         BinCase{"cubic_minus", {5.6402, 5.6402, 5.6402, 90, 90, 90}, 0, -2, 0, 2.8201},
                                         BinCase{"hexagonal_110", {3, 3, 5, 90, 90, 120}, 1, 1, 0, 1.5},
                                         BinCase{"monoclinic", {5, 6, 7, 90, 100, 90}, 1, 0, 1, 3.71346},
                                         BinCase{"monoclinic_minus", {5, 6, 7, 90, 100, 90}, 1, 0, -1, 4.38297}),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(Histogram, AgreesWithThePlainLoopToTheBit) {
  struct Row {
    const char* name;
    double cell[6];
    CrystalliteSize size;
  };
  for (const auto& row : {Row{"cubic, large", {5.6402, 5.6402, 5.6402, 90, 90, 90}, {10000, 10000, 10000}},
                          Row{"triclinic, large", {6.1, 7.3, 8.9, 95, 101, 112}, {10000, 9000, 8000}},
                          Row{"triclinic, small", {6.1, 7.3, 8.9, 95, 101, 112}, {190, 400.5F, 77}},
                          Row{"hexagonal, thin", {4.9133, 4.9133, 5.4053, 90, 90, 120}, {9000, 9000, 8}}}) {
    auto state = with_cell(row.cell[0], row.cell[1], row.cell[2], row.cell[3], row.cell[4], row.cell[5]);
    set_list(state, some_reflections);
    const auto bins = histogram(state, row.size);
    EXPECT_EQ(differences(bins, plain_histogram(state, row.size)), 0) << row.name;
    EXPECT_GT(std::count_if(&bins(0), &bins(bins.upper()), [](Single bin) { return bin > 0; }), 8) << row.name;
  }
}

TEST(Histogram, EmptiesTheBinsThatTheLinesReadAndNoOther) {
  auto state = with_cell(4, 4, 4, 90, 90, 90);
  set_list(state, {{1, 0, 0, 1}});
  const CrystalliteSize size{10000, 10000, 10000};
  const auto grid = interference_grid(state, size);
  BoundedArray<Single> bins("Bins", 6000);
  bins(0) = bins(5000) = bins(5001) = 9;
  Steps steps;
  fill_histogram(state, grid, InterferenceTable(grid, size), 5000, bins, steps);
  EXPECT_EQ(bins(0) + bins(5000), 0);
  EXPECT_EQ(bins(5001), 9);
}

TEST(Histogram, FailsBeyondItsBinsAndOnAnImpossibleMetric) {
  auto state = with_cell(4, 4, 4, 90, 90, 90);
  set_list(state, {{5, 0, 0, 1}});  // 1.25 / angstrom, bin 6250
  EXPECT_EQ(failure_of([&] { (void)histogram(state, {10000, 10000, 10000}); }).substr(0, 18), "index 6248 of Bins");
  EXPECT_EQ(histogram(state, {10000, 10000, 10000}, 10000).upper(), 15000) << "rings have room for it";
  state.CosGammaStar = -3;
  set_list(state, {{1, 1, 0, 1}});
  EXPECT_EQ(failure_of([&] { (void)histogram(state, {10000, 10000, 10000}); }).substr(0, 11), "square root");
}

TEST(FilledBins, AreThoseAboveZeroFromTheFirst) {
  BoundedArray<Single> bins("Bins", 6000);
  bins(0) = 4;
  bins(1250) = 2;
  bins(2000) = -1;
  bins(5000) = 1;
  bins(5001) = 8;
  const std::vector<FilledBin> rings{{0.25F, 2}, {1, 1}};
  EXPECT_EQ(filled_bins(bins, 1, 5000, 1), rings);
  EXPECT_EQ(filled_bins(bins, 0, 5000, 1).front(), (FilledBin{0, 4}));
  EXPECT_EQ(filled_bins(bins, 0, 5000, 1).size(), 3U);
  EXPECT_THROW((void)filled_bins(bins, 0, 0, 1e9F), RunFailure) << "0 bins";
}

/// Full width at half maximum and area of the pattern's one line, by interpolation and by the trapezoidal rule.
struct LineMeasure {
  double width, area, position;
};
LineMeasure measure(const BoundedArray<Single>& profile, double first, double step) {
  int top = 0;
  double area = 0;
  for (int m = 0; m <= last_sample; ++m) {
    if (profile(m) > profile(top)) top = m;
    area += profile(m) * step * (m == 0 || m == last_sample ? 0.5 : 1.0);
  }
  const double half = profile(top) / 2.0;
  const auto crossing = [&](int direction) {
    int m = top;
    while (profile(m) >= half) m += direction;
    return m - direction * (half - profile(m)) / (double{profile(m - direction)} - double{profile(m)});
  };
  return {(crossing(1) - crossing(-1)) * step, area, first + top * step};
}

struct LineCase {
  const char* name;
  Single gaussian_ratio;
  double area;
};
class Line : public testing::TestWithParam<LineCase> {};
// One bin of content 3 at 1/d = 0.4, lambda = 1.5: sin(theta) = 0.3, 2-theta = 34.9152. Over 34 to 36 with a width of
// 0.1 a Gaussian is complete; of a Lorentzian the tails beyond the range are missing: (atan(18.304) + atan(21.696))/pi
// = 0.96800.
TEST_P(Line, HasTheWidthAndArea) {
  auto profile = empty_profile();
  Steps steps;
  sum_pseudo_voigt_lines({{0.4F, 3}}, 1.5F, {34, 36}, {0.1F, GetParam().gaussian_ratio}, profile, steps);
  const auto line = measure(profile, 34, 0.002);
  EXPECT_NEAR(line.position, 34.9152, 0.0015) << "half a step";
  EXPECT_NEAR(line.width, 0.1, 5e-5) << "the highest sample may lie beside the top by half a step";
  EXPECT_NEAR(line.area, GetParam().area, 2e-4);
  EXPECT_EQ(steps.last, 1000);
  EXPECT_EQ(steps.total, 1000);
  EXPECT_GT(steps.reports, 10) << "the bar moves";
}
INSTANTIATE_TEST_SUITE_P(Shares, Line,
                         testing::Values(LineCase{"gaussian", 100, 3}, LineCase{"lorentzian", 0, 3 * 0.96800},
                                         LineCase{"half", 50, 3 * 0.98400}, LineCase{"more_than_all", 120, 3 * 1.0064}),
                         [](const auto& row) { return std::string(row.param.name); });

// The Gaussian of the rings lacks a factor of 2: half the area.
TEST(RingLine, HasTheWidthAndHalfTheArea) {
  auto profile = empty_profile();
  Steps steps;
  sum_gaussian_lines({{0.4F, 3}}, 1, 0.02F, profile, steps);
  const auto line = measure(profile, 0, 0.001);
  EXPECT_NEAR(line.position, 0.4, 1e-6);
  EXPECT_NEAR(line.width, 0.02, 5e-5);
  EXPECT_NEAR(line.area, 1.5, 1e-4);
  EXPECT_NEAR(profile(400), 3 * 0.832554 / 0.02 / 1.772454, 0.01) << "sqrt(ln 2) / (w sqrt(pi))";
  EXPECT_EQ(steps.last, 1000);
}

/// Bins with contents over nine orders of magnitude, clusters and gaps.
BoundedArray<Single> random_bins(unsigned seed) {
  BoundedArray<Single> bins("Bins", 6000);
  std::mt19937 random(seed);
  std::uniform_real_distribution<double> uniform(0, 1);
  for (int n = 20; n <= 5000; n += 1 + static_cast<int>(60 * uniform(random) * uniform(random))) {
    bins(n) = static_cast<Single>(std::pow(10.0, 9 * uniform(random) - 4));
  }
  return bins;
}

TEST(Lines, AgreeWithThePlainLoopToTheBit) {
  const auto bins = random_bins(3);
  const auto filled = filled_bins(bins, 0, 5000, 1);
  EXPECT_GT(filled.size(), 200U);
  Steps steps;
  for (const auto& line : {PseudoVoigt{0.2F, 50}, PseudoVoigt{0.2F, 100}, PseudoVoigt{0.05F, 0}, PseudoVoigt{3, 30},
                           PseudoVoigt{0.2F, 120}, PseudoVoigt{0.2F, -20}, PseudoVoigt{1e-4F, 99}}) {
    for (const auto& range : {TwoThetaRange{0, 100.8876F}, TwoThetaRange{20, 40}, TwoThetaRange{90, 10}}) {
      auto profile = empty_profile();
      sum_pseudo_voigt_lines(filled, 1.542F, range, line, profile, steps);
      steps.last = 0;
      EXPECT_EQ(differences(profile, plain_pseudo_voigt(bins, 5000, 1, 1.542F, range, line)), 0)
          << line.half_width << " " << line.gaussian_ratio << " " << range.minimum;
    }
  }
  const auto rings = filled_bins(bins, 1, 5000, 1);
  for (const Single width : {0.003F, 0.0001F, 0.2F, -0.003F}) {
    auto profile = empty_profile();
    sum_gaussian_lines(rings, 1, width, profile, steps);
    steps.last = 0;
    EXPECT_EQ(differences(profile, plain_gaussian(bins, 5000, 1, 1, width)), 0) << width;
  }
}

TEST(Lines, BeyondTheEwaldSphereStandAt180Degrees) {
  auto profile = empty_profile();
  Steps steps;
  sum_pseudo_voigt_lines({{1, 1}}, 2.5F, {80, 180}, {0.5F, 50}, profile, steps);
  EXPECT_EQ(largest_sample(profile), profile(1000));
}

TEST(Lines, FailOnAWidthOf0AndOnOverflow) {
  auto profile = empty_profile();
  Steps steps;
  EXPECT_EQ(failure_of([&] {
              sum_gaussian_lines({{0.5F, 1}}, 1, 0, profile, steps);
            }),
            "division by zero: the line width is 0");
  EXPECT_EQ(failure_of([&] {
              sum_pseudo_voigt_lines({{0.5F, 3e38F}, {0.5F, 3e38F}}, 1, {0, 60}, {1, 50}, profile, steps);
            }).substr(0, 8),
            "overflow");
}

TEST(Samples, AreScaledAndRooted) {
  auto profile = empty_profile();
  profile(3) = 9;
  divide_samples(profile, 4);
  EXPECT_EQ(profile(3), 2.25F);
  take_square_roots(profile);
  EXPECT_EQ(profile(3), 1.5F);
  EXPECT_EQ(largest_sample(profile), 1.5F);
  profile(7) = -1;
  EXPECT_THROW(take_square_roots(profile), RunFailure);
  EXPECT_THROW(divide_samples(profile, 0), RunFailure);
}

TEST(Maxima, StandAboveBothNeighboursFromOnePercentOn) {
  auto profile = empty_profile();
  for (const int m : {1, 2, 4, 500, 997, 999}) profile(m) = 0.5F;
  profile(2) = 0.6F;                // above 1 and 3
  profile(500) = 0.009999F;         // below one per cent
  profile(600) = profile(601) = 1;  // a flat top is none
  profile(700) = 0.01F;             // just one per cent
  profile(999) = 0.7F;
  profile(1000) = 0.8F;  // the last sample is none, and 999 lies below it
  EXPECT_EQ(maxima(profile, 1), (std::vector{2, 4, 700, 997}));
  EXPECT_EQ(maxima(profile, 0.5F), (std::vector{2, 4, 500, 700, 997})) << "the threshold goes with the reference";
  EXPECT_EQ(failure_of([&] { (void)maxima(profile, 0); }), "division by zero: the intensity at full height is 0");
}

TEST(PeakLine, ShowsTheNearestPerCent) {
  EXPECT_EQ(peak_line(2.82, 1, 3), "2.82    33");
  EXPECT_EQ(peak_line(12.346, 7, 2), "12.35    350");
  EXPECT_EQ(peak_line(0.5, 0.0051F, 1), "0.50    1");
}

// Copper K-alpha positions of silicon, NIST SRM 640 (a = 5.43102): 111 28.44, 220 47.30, 311 56.12 for 1.5406.
TEST(ReadOut, TurnsPositionsIntoSpacingsAndSamples) {
  EXPECT_NEAR(spacing_at_two_theta(1.5406F, 28.443F), 5.43102 / std::sqrt(3.0), 1e-3);
  EXPECT_NEAR(spacing_at_two_theta(1.5406F, 47.304F), 5.43102 / std::sqrt(8.0), 1e-3);
  EXPECT_NEAR(spacing_at_two_theta(1.5406F, 56.123F), 5.43102 / std::sqrt(11.0), 1e-3);
  EXPECT_THROW((void)spacing_at_two_theta(1.5406F, 0), RunFailure);
  EXPECT_NEAR(two_theta_limit(1.542F, 1), 2 * std::asin(0.771) * 180 / std::numbers::pi, 1e-3);
  EXPECT_NEAR(two_theta_limit(1.542F, 0.5F), 180, 1e-3);
  EXPECT_THROW((void)two_theta_limit(1.542F, 0), RunFailure);

  const TwoThetaRange range{10, 60};
  EXPECT_EQ(range.nearest(range.at(333)), 333);
  EXPECT_EQ(range.nearest(35.024F), 500);
  EXPECT_EQ(range.nearest(35.026F), 501);
  EXPECT_EQ(range.nearest(9.9F), -2) << "outside, not folded back";
  EXPECT_THROW((void)(TwoThetaRange{5, 5}.nearest(5)), RunFailure);
  EXPECT_EQ(nearest_ring_sample(2, 0.5F), 250);
  EXPECT_THROW((void)nearest_ring_sample(0, 0.5F), RunFailure);
  EXPECT_FLOAT_EQ(ring_spacing(2, 250), 2);
  EXPECT_FLOAT_EQ(static_cast<Single>(spacing_at_point(-0.3F, 0.4F)), 2);
}

TEST(GreyLevel, SaturatesAboveAndNotBelow) {
  EXPECT_EQ(grey_level(1, 2, false), 128) << "127.5 to even";
  EXPECT_EQ(grey_level(1, 2, true), 127);
  EXPECT_EQ(grey_level(5, 2, false), 255);
  EXPECT_EQ(grey_level(5, 2, true), 0);
  EXPECT_EQ(grey_level(-1, 255, false), -1);
  EXPECT_THROW((void)grey_level(1, 0, false), RunFailure);
  EXPECT_THROW((void)grey_level(3e9F, 1, false), RunFailure) << "beyond 32 bits before the clamp";
}

TEST(WithEnding, LooksAtTheNameAlone) {
  EXPECT_EQ(with_ending("/a.b/pattern", ".XDP"), "/a.b/pattern.XDP");
  EXPECT_EQ(with_ending("/a.b/pattern.txt", ".XDP"), "/a.b/pattern.txt");
  EXPECT_EQ(with_ending("pattern.", ".BMP"), "pattern.");
}

TEST(PatternFiles, HoldSettingsAndSamplesToTheBit) {
  const ScratchFolder folder;
  auto profile = empty_profile();
  profile(1) = 1.0F / 3.0F;
  profile(1000) = 123456792.0F;
  write_xdp(folder.path("a.XDP"), {5, 60.1F}, {0.1F, 50}, {10000, 20, 7.5F}, profile);
  const std::string xdp = folder.read("a.XDP");
  EXPECT_EQ(xdp.substr(0, xdp.find("\r\n5.1102")),
            "\"2-theta min\",5\r\n\"2-theta max\",60.1\r\n\"FWHM(deg.)\",.1\r\n\"Gratio\",50\r\n"
            "\"P\",10000\r\n\"Q\",20\r\n\"R\",7.5\r\n5,0\r\n5.0551,.33333334");
  EXPECT_TRUE(xdp.ends_with("\r\n60.1,123456790\r\n")) << xdp.substr(xdp.size() - 30);
  EXPECT_EQ(std::count(xdp.begin(), xdp.end(), '\n'), 1008);

  write_edp(folder.path("a.EDP"), 1.25F, profile);
  const std::string edp = folder.read("a.EDP");
  EXPECT_TRUE(edp.starts_with("0,0\r\n.00125,.33333334\r\n.0025,0\r\n")) << edp.substr(0, 60);
  EXPECT_EQ(std::count(edp.begin(), edp.end(), '\n'), 1001);
  EXPECT_EQ(folder.entries(), 2U) << "nothing temporary is left";
}

}  // namespace
}  // namespace zol
