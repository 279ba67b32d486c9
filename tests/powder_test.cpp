// Powder patterns without windows: interference function, histogram, line shapes, peaks, files.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <random>

#include "powder/histogram.h"
#include "powder/line_profile.h"
#include "powder/pattern_files.h"
#include "tests/crystals.h"
#include "tests/plain_powder.h"
#include "tests/recorded_task.h"
#include "tests/test_files.h"

namespace zol {
namespace {

CrystalState listed(const CellNumbers& cell, const std::vector<GivenReflection>& reflections) {
  auto state = with_cell(cell);
  state.Dmin = 1;
  set_list(state, reflections);
  return state;
}

BoundedArray<Single> histogram(const CrystalState& state, const CrystalliteSize& size, int beyond = 1000) {
  const auto grid = interference_grid(state, size);
  const Integer count = bin_count(state.Dmin);
  RecordedTask task;
  auto bins = fill_histogram(state, InterferenceTable(grid, size, task), count, count.value() + beyond, task);
  EXPECT_EQ(task.steps.back().first, state.RefCount.value());
  return bins;
}

BoundedArray<Single> empty_profile() { return {"Profile", last_sample}; }

BoundedArray<Single> pseudo_voigt(const std::vector<FilledBin>& bins, Single wavelength, const TwoThetaRange& range,
                                  const PseudoVoigt& line) {
  RecordedTask task;
  auto profile = sum_pseudo_voigt_lines(bins, wavelength, range, line, task);
  EXPECT_EQ(task.steps.back().first, last_sample);
  EXPECT_GT(task.steps.size(), 10U) << "the bar moves";
  return profile;
}

/// Rings up to 1/d = 1.
BoundedArray<Single> rings(const std::vector<FilledBin>& bins, Single half_width) {
  QuietTask task;
  return sum_gaussian_lines(bins, 1, half_width, task);
}

bool same_numbers(const BoundedArray<Single>& left, const BoundedArray<Single>& right) {
  return std::equal(&left(0), &left(left.upper()) + 1, &right(0), &right(right.upper()) + 1);
}

// (2/P) a* / 0.0002 by hand, a* = 1/a: 0.25 and 0.5 bins for the large crystallite, 50 for 40 cells of 5, capped for 10
// of 4.
TEST(Grid, ReachesTheSecondZeroInStepsOfABin) {
  struct Row {
    Single a, cells;
    int steps;
    double width;
  };
  for (const auto& [a, cells, steps, width] :
       {Row{4, 10000, 1, 0.0008}, Row{2, 10000, 1, 4e-4}, Row{0.9F, 10000, 2, 1.8e-4}, Row{5.1F, 40, 50, 0.00102},
        Row{4, 10, 100, 0.002}}) {
    const auto grid = interference_grid(with_cell(cubic_cell(a)), {cells, cells, cells});
    for (std::size_t axis = 0; axis < 3; ++axis) {
      EXPECT_EQ(grid.steps[axis], steps) << a;
      EXPECT_NEAR(grid.width[axis], width, 1e-6 * width) << a;
    }
  }
  EXPECT_EQ(failure_of([] { (void)interference_grid({}, {10, 10, 10}); }), "division by zero: a* is 0");
}

TEST(Interference, IsOneAtThePointAndZeroAtThePthPartOfTheAxis) {
  const InterferenceGrid grid{{20, 20, 20}, {0.01F, 0.005F, 0.01F}};
  QuietTask task;
  const InterferenceTable table(grid, {10, 20, 10}, task);
  EXPECT_FLOAT_EQ(table.row(0, 0)[0], 1);
  EXPECT_NEAR(table.row(0, 20)[0], 0, 1e-9) << "2/Q";
  // Half-way to the first zero: (1 / (10 sin(pi/20)))^2 = (0.1 / 0.156434)^2 = 0.408634, on two axes the product.
  EXPECT_NEAR(table.row(5, 0)[5], 0.408634 * 0.408634, 1e-5);
}

TEST(BinCount, HasTheLimitsOfSixteenBits) {
  EXPECT_EQ(bin_count(1.1F), 4545);
  EXPECT_EQ(highest_bin(bin_count(0.1574F), 1000), 32766);
  EXPECT_EQ(highest_bin(bin_count(0.21961F), 10000), 32767);
  EXPECT_THROW((void)highest_bin(bin_count(0.219606F), 10000), RunFailure) << "22768";
}

const std::vector<GivenReflection> some_reflections{{1, 0, 0, 10},    {1, 1, -1, 731.25F}, {0, 0, 3, 0.125F},
                                                    {-2, 1, 0, 0},    {-3, 2, 1, 42},      {0, 0, 0, 7},
                                                    {2, -1, 3, 1e-3F}};

TEST(Histogram, AgreesWithThePlainLoopToTheBit) {
  struct Row {
    const char* name;
    CellNumbers cell;
    CrystalliteSize size;
  };
  for (const auto& row : {Row{"cubic, large", cubic_cell(5.6402F), {10000, 10000, 10000}},
                          Row{"triclinic, large", {6.1F, 7.3F, 8.9F, 95, 101, 112}, {10000, 9000, 8000}},
                          Row{"triclinic, small", {6.1F, 7.3F, 8.9F, 95, 101, 112}, {190, 400.5F, 77}},
                          Row{"hexagonal, thin", {4.9133F, 4.9133F, 5.4053F, 90, 90, 120}, {9000, 9000, 8}}}) {
    const auto state = listed(row.cell, some_reflections);
    const auto bins = histogram(state, row.size);
    EXPECT_TRUE(same_numbers(bins, plain_histogram(state, row.size))) << row.name;
    EXPECT_GT(std::count_if(&bins(0), &bins(bins.upper()), [](Single bin) { return bin > 0; }), 8) << row.name;
  }
}

TEST(Histogram, FailsBeyondItsBinsAndOnAnImpossibleMetric) {
  auto state = listed(cubic_cell(4), {{5, 0, 0, 1}});  // 1.25 / angstrom, bin 6250
  EXPECT_EQ(failure_of([&] { (void)histogram(state, {10000, 10000, 10000}); }).substr(0, 18), "index 6248 of Bins");
  EXPECT_GT(histogram(state, {10000, 10000, 10000}, 10000)(6250), 0) << "rings have room for it";
  auto far = listed(cubic_cell(0.01F), {{10000, 0, 0, 1}});  // a million / angstrom, 5000 bins each
  EXPECT_TRUE(fails_with("does not fit a Long", [&] { (void)histogram(far, {10000, 10000, 10000}); }));
  state.RefK(1) = 5;
  state.CosGammaStar = -3;
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
  EXPECT_THROW((void)filled_bins(bins, 0, 0, 1e9F), RunFailure) << "0 bins";
}

void expect_line(const BoundedArray<Single>& profile, int top, int half_width, double step, double area) {
  EXPECT_EQ(std::max_element(&profile(0), &profile(last_sample) + 1) - &profile(0), top);
  EXPECT_NEAR(profile(top - half_width) / profile(top), 0.5, 2e-4) << "a width is right to 3e-4 of itself";
  EXPECT_NEAR(profile(top + half_width) / profile(top), 0.5, 2e-4);
  EXPECT_NEAR(std::accumulate(&profile(0), &profile(last_sample) + 1, 0.0) * step, area, 2e-4);
}

// One bin of content 3 at 1/d = 0.4, lambda = 1.5: sin(theta) = 0.3, 2-theta = 34.915236 with pi = 3.14159. One degree
// to each side of it, at a width of 0.1, a Gaussian is complete; of a Lorentzian there is 2 atan(20.02) / pi = 0.96823,
// half a step more.
TEST(Lines, HaveTheirWidthAndArea) {
  struct Row {
    Single gaussian_ratio;
    double area;
  };
  for (const auto& [ratio, area] : {Row{100, 3}, Row{0, 3 * 0.96823}, Row{50, 3 * 0.98411}, Row{120, 3 * 1.00635}}) {
    SCOPED_TRACE(ratio);
    expect_line(pseudo_voigt({{0.4F, 3}}, 1.5F, {33.915236F, 35.915236F}, {0.1F, ratio}), 500, 25, 0.002, area);
  }
  // The Gaussian of the rings lacks a factor of 2: half the area.
  expect_line(rings({{0.4F, 3}}, 0.02F), 400, 10, 0.001, 1.5);
}

TEST(Lines, AgreeWithThePlainLoopToTheBit) {
  // Contents over nine orders of magnitude, clusters and gaps.
  BoundedArray<Single> bins("Bins", 6000);
  std::mt19937 random(3);
  std::uniform_real_distribution<double> uniform(0, 1);
  for (int n = 20; n <= 5000; n += 1 + static_cast<int>(60 * uniform(random) * uniform(random))) {
    bins(n) = static_cast<Single>(std::pow(10.0, 9 * uniform(random) - 4));
  }
  const auto filled = filled_bins(bins, 1, 5000, 1);
  EXPECT_GT(filled.size(), 200U);
  const auto two_theta = [](Single d_star) {
    const Single theta = ArcSin(static_cast<Single>(1.542F / 2.0 * d_star));
    return theta + theta;
  };
  for (const auto& line : {PseudoVoigt{0.2F, 50}, PseudoVoigt{0.2F, 100}, PseudoVoigt{0.05F, 0}, PseudoVoigt{3, 30},
                           PseudoVoigt{0.2F, 120}, PseudoVoigt{0.2F, -20}, PseudoVoigt{1e-4F, 99}}) {
    const double g = line.gaussian_ratio / 100.0;
    for (const auto& range : {TwoThetaRange{0, 100.8876F}, TwoThetaRange{20, 40}, TwoThetaRange{90, 10}}) {
      const auto plain = plain_profile(
          bins, two_theta, [&range](int m) { return range.at(m); }, g + g, (1 - g) + (1 - g), line.half_width);
      EXPECT_TRUE(same_numbers(pseudo_voigt(filled, 1.542F, range, line), plain))
          << line.half_width << " " << line.gaussian_ratio << " " << range.minimum;
    }
  }
  const auto itself = [](Single d_star) { return d_star; };
  const auto sample = [](int m) { return d_star_at(1, m); };
  for (const Single width : {0.003F, 0.0001F, 0.2F, -0.003F}) {
    EXPECT_TRUE(same_numbers(rings(filled, width), plain_profile(bins, itself, sample, 1, 0, width))) << width;
  }
}

TEST(Lines, BeyondTheEwaldSphereStandAt180Degrees) {
  const auto profile = pseudo_voigt({{1, 1}}, 2.5F, {80, 180}, {0.5F, 50});
  EXPECT_EQ(largest_sample(profile), profile(1000));
}

TEST(Lines, FailOnAWidthOf0AndOnOverflow) {
  EXPECT_EQ(failure_of([] { (void)rings({{0.5F, 1}}, 0); }), "division by zero: the line width is 0");
  EXPECT_EQ(failure_of([] { (void)rings({{0.5F, 3e38F}}, 0.1F); }).substr(0, 8), "overflow");
}

TEST(Maxima, StandAboveBothNeighboursFromOnePercentOn) {
  auto profile = empty_profile();
  for (const int m : {1, 2, 4, 500, 997, 999}) profile(m) = 0.5F;
  profile(2) = 0.6F;                // above 1 and 3
  profile(500) = 0.009999F;         // below one per cent
  profile(600) = profile(601) = 1;  // a flat top is none
  profile(700) = 0.01F;             // just one per cent
  profile(999) = 0.7F;
  profile(1000) = 0.8F;  // 999 lies below it
  EXPECT_EQ(maxima(profile, 1), (std::vector{2, 4, 700, 997}));
  EXPECT_EQ(maxima(profile, 0.5F), (std::vector{2, 4, 500, 700, 997})) << "the threshold goes with the reference";
  profile(1) = 0.7F;
  profile(1000) = 0;
  EXPECT_EQ(maxima(profile, 1), (std::vector{4, 700, 997, 999})) << "sample 1 is none either";
}

TEST(GreyLevel, SaturatesAboveAndNotBelow) {
  EXPECT_EQ(grey_level(1, 2, false), 128) << "127.5 to even";
  EXPECT_EQ(grey_level(1, 2, true), 127);
  EXPECT_EQ(grey_level(256, 255, true), 0);
  EXPECT_EQ(grey_level(-1, 255, false), -1);
  EXPECT_THROW((void)grey_level(3e9F, 1, false), RunFailure) << "beyond 32 bits before the clamp";
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
