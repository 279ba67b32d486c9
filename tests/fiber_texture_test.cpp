// Fiber textures without a window: the sort, the arcs, the darkness.
#include "spots/fiber_texture.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <random>

#include "core/cell_geometry.h"
#include "tests/test_files.h"

namespace zol {
namespace {

/// A list whose entry i has h = i, intensities as given; entry 0 included.
CrystalState list_of(const std::vector<Single>& intensities) {
  CrystalState state;
  const int upper = static_cast<int>(intensities.size()) - 1;
  state.RefCount = upper;
  for (auto* array : {&state.RefI, &state.RefA, &state.RefB, &state.RefS, &state.RefTwoTheta}) array->allocate(upper);
  for (auto* array : {&state.RefH, &state.RefK, &state.RefL}) array->allocate(upper);
  for (int i = 0; i <= upper; ++i) {
    state.RefH(i) = i;
    state.RefK(i) = -i;
    state.RefL(i) = 2 * i;
    state.RefI(i) = intensities[static_cast<std::size_t>(i)];
    for (auto* array : {&state.RefA, &state.RefB, &state.RefS, &state.RefTwoTheta}) (*array)(i) = to_single(i);
  }
  return state;
}

/// The sort as it is told, round by round.
std::vector<int> plain_order(std::vector<Single> value) {
  const int count = static_cast<int>(value.size()) - 1;
  std::vector<int> order(value.size());
  for (int i = 0; i <= count; ++i) order[static_cast<std::size_t>(i)] = i;
  std::size_t found = 0;
  for (std::size_t place = 2; place < static_cast<std::size_t>(count); ++place) {
    Single smallest = 1000000;
    for (std::size_t j = place; j <= static_cast<std::size_t>(count); ++j) {
      if (value[j] < smallest) {
        found = j;
        smallest = value[j];
      }
    }
    std::swap(value[place], value[found]);
    std::swap(order[place], order[found]);
  }
  return order;
}

void expect_plain_order(const std::vector<Single>& intensities) {
  auto state = list_of(intensities);
  const auto order = plain_order(intensities);
  sort_by_intensity(state);
  for (int i = 0; i <= state.RefCount.value(); ++i) {
    const int from = order[static_cast<std::size_t>(i)];
    ASSERT_EQ(state.RefH(i), from) << "place " << i << " of " << state.RefCount.value();
    ASSERT_EQ(state.RefK(i), -from);
    ASSERT_EQ(state.RefL(i), 2 * from);
    ASSERT_EQ(state.RefI(i), intensities[static_cast<std::size_t>(from)]);
    ASSERT_EQ(state.RefA(i), to_single(from));
    ASSERT_EQ(state.RefB(i), to_single(from));
    ASSERT_EQ(state.RefS(i), to_single(from));
    ASSERT_EQ(state.RefTwoTheta(i), to_single(i)) << "2-theta stays";
  }
}

TEST(IntensitySort, LeavesTheOrderOfTheSelectionSort) {
  std::mt19937 random(7);
  for (int run = 0; run < 400; ++run) {
    const int count = 2 + run % 60;
    const int values = 1 + run % 7;  // few values: many ties
    std::vector<Single> intensities;
    for (int i = 0; i <= count; ++i) {
      const int draw = static_cast<int>(random() % static_cast<unsigned>(values));
      // Every third list has entries that the sort never takes, also for whole rounds.
      intensities.push_back(to_single(run % 3 == 0 && draw == 0 ? 1e6 + static_cast<int>(random() % 3) : draw));
    }
    expect_plain_order(intensities);
  }
}

TEST(IntensitySort, HandlesTheEndsOfTheList) {
  expect_plain_order({9, 5, 3});           // two reflections: nothing is sorted
  expect_plain_order({9, 5, 3, 1});        // entry 1 stays out
  expect_plain_order({9, 5, 2e6F, 3e6F});  // nothing below a million: place 2 is exchanged with entry 0
  for (const auto& list : {std::vector<Single>{0}, std::vector<Single>{0, 1}}) {
    auto state = list_of(list);
    EXPECT_EQ(failure_of([&state] { sort_by_intensity(state); }),
              "a fiber texture needs two reflections or more, the list has " + std::to_string(list.size() - 1));
  }
}

/// Cubic, 4 angstroms, with one reflection at the end of a list of three; the fiber axis is [111].
CrystalState textured(int h, int k, int l) {
  auto state = list_of({0, 1, 10, 100});
  state.CellA = state.CellB = state.CellC = 4;
  state.CellAlpha = state.CellBeta = state.CellGamma = 90;
  calc_cell(state);
  state.RefH(3) = h;
  state.RefK(3) = k;
  state.RefL(3) = l;
  state.OriginH = state.OriginK = state.OriginL = 1;
  state.CamAcquisition = 0.8F;
  state.Dispersion = 4;
  return state;
}

constexpr FiberPicture fine{100000, 100000, {}};  // so fine that no two points share a pixel

/// Clockwise from up, degrees.
double direction_deg(const ArcPoint& point) {
  return std::atan2(double{point.x}, double{point.y}) * 180.0 / std::numbers::pi;
}

struct ArcCase {
  const char* name;
  std::array<int, 3> hkl;
  double angle_deg;  // between the normals of two planes of a cubic crystal
  double rotation_rad;
};
class FiberArc : public testing::TestWithParam<ArcCase> {};
TEST_P(FiberArc, LiesAtTheAngleToTheAxisAndMirrored) {
  const auto& [name, hkl, angle, rotation] = GetParam();
  auto state = textured(hkl[0], hkl[1], hkl[2]);
  state.PatternAngle = to_single(rotation);
  const auto arcs = fiber_arcs(state, 3, fine);
  ASSERT_TRUE(arcs);
  const double radius = std::sqrt(hkl[0] * hkl[0] + hkl[1] * hkl[1] + hkl[2] * hkl[2]) / 4.0;
  const double step = 0.8 / radius / 10.0;  // degrees
  const auto steps = static_cast<std::size_t>(8.0 / step) + 1;
  ASSERT_EQ(arcs->points.size(), 4 * steps);

  const double turn = rotation * 180.0 / std::numbers::pi;
  const std::array<double, 4> centre{angle, angle, -angle, -angle};
  const std::array<double, 4> sense{-1, 1, -1, 1};
  for (std::size_t arc = 0; arc < 4; ++arc) {
    for (std::size_t n = 0; n < steps; ++n) {
      const auto& point = arcs->points[arc * steps + n];
      const double off = static_cast<double>(n) * step;
      EXPECT_NEAR(std::hypot(double{point.x}, double{point.y}), radius, 1e-6);
      // A right angle is 1.5708, and the step is added in single precision.
      EXPECT_NEAR(std::remainder(direction_deg(point) - (centre[arc] + sense[arc] * off + turn), 360.0), 0, 2e-3);
      EXPECT_NEAR(point.darkness.value(), 255.0 * std::exp(-off * off / 16.0), 1.0);
    }
  }
}
INSTANTIATE_TEST_SUITE_P(Cubic, FiberArc,
                         testing::Values(ArcCase{"parallel", {1, 1, 1}, 0, 0},
                                         ArcCase{"opposite", {-1, -1, -1}, 180, 0},
                                         ArcCase{"200", {2, 0, 0}, 54.7356, 0}, ArcCase{"m111", {-1, 1, 1}, 70.5288, 0},
                                         ArcCase{"220", {2, 2, 0}, 35.2644, 0}, ArcCase{"2m20", {2, -2, 0}, 90, 0},
                                         ArcCase{"turned", {2, 0, 0}, 54.7356, 0.5}),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(FiberArcs, LabelStandsAtTheAngleTakenAsRadians) {
  auto state = textured(2, 0, 0);
  state.PatternAngle = 0.25;
  const auto arcs = fiber_arcs(state, 3, fine);
  // The angle comes out 0.0003 degrees large, since pi and a right angle are truncated; here that counts in radians.
  EXPECT_NEAR(arcs->label_x, 0.5 * std::sin(-54.7356 + 0.25), 2e-4);
  EXPECT_NEAR(arcs->label_y, 0.5 * std::cos(-54.7356 + 0.25), 2e-4);
}

TEST(FiberArcs, TakeEachPixelOnceInARow) {
  const auto state = textured(2, 0, 0);
  const auto coarse = fiber_arcs(state, 3, {384, 384, {}});
  const auto all = fiber_arcs(state, 3, fine);
  EXPECT_LT(coarse->points.size(), all->points.size());
  int same = 0;
  for (std::size_t i = 1; i < coarse->points.size(); ++i) {
    const auto pixel = [](Single length) { return std::nearbyint(length * 384.0 / 1.6); };
    const auto& [x, y, darkness] = coarse->points[i];
    const auto& before = coarse->points[i - 1];
    if (pixel(x) == pixel(before.x) && pixel(y) == pixel(before.y)) ++same;
  }
  EXPECT_EQ(same, 0) << "an arc starts anew at its centre, which the one before has left";
  EXPECT_EQ(coarse->points.front(), all->points.front());
  // In a picture of one pixel all falls on (0, 0), where every arc starts as if it had been there.
  EXPECT_TRUE(fiber_arcs(state, 3, {1, 1, {}})->points.empty());
}

TEST(FiberArcs, PassOverWhatIsNotSeen) {
  auto state = textured(2, 0, 0);
  state.RefI(3) = 0;
  EXPECT_FALSE(fiber_arcs(state, 3, fine));
  state = textured(4, 2, 0);  // 1.118 of 0.8 * 1.4142 = 1.1314
  EXPECT_TRUE(fiber_arcs(state, 3, fine));
  state.CamAcquisition = 0.79F;
  EXPECT_FALSE(fiber_arcs(state, 3, fine));
}

TEST(FiberArcs, RelateToTheStrongestOrItsPower) {
  const auto state = textured(2, 0, 0);  // intensities 10 and 100; entry 2 is (2 -2 4)
  EXPECT_EQ(fiber_arcs(state, 3, {384, 384, {}})->points.front().darkness, 255);
  EXPECT_EQ(fiber_arcs(state, 3, {384, 384, 0.5})->points.front().darkness, 2550);  // 100 / sqrt(100)
  EXPECT_EQ(fiber_arcs(state, 3, {384, 384, 2.0})->points.front().darkness, 2);     // 100 / 10000
  auto wide = state;
  wide.CamAcquisition = 2;
  EXPECT_EQ(fiber_arcs(wide, 2, {384, 384, {}})->points.front().darkness, 25);
}

TEST(FiberArcs, FailWithTheReason) {
  auto state = textured(2, 0, 0);
  EXPECT_EQ(failure_of([&state] {
              (void)fiber_arcs(state, 3, {384, 384, -1.0});
            }),
            "overflow: 2550000 does not fit an Integer (-32768 to 32767)");
  state.OriginH = state.OriginK = state.OriginL = 0;
  EXPECT_EQ(failure_of([&state] { (void)fiber_arcs(state, 3, fine); }),
            "division by zero: the length of the fiber direction is 0");
  state = textured(2, 0, 0);
  state.Dispersion = 1e20F;
  EXPECT_NE(failure_of([&state] { (void)fiber_arcs(state, 3, fine); }).find("too large for an arc"), std::string::npos);
}

TEST(DarkenedGrey, AddsToTheBluePart) {
  struct Row {
    int darkness, colour, grey;
  };
  constexpr auto rgb = [](int r, int g, int b) { return r + 256 * g + 65536 * b; };
  for (const auto& row :
       {Row{100, rgb(255, 255, 255), 155}, Row{100, rgb(155, 155, 155), 55}, Row{100, rgb(20, 20, 20), 0},
        Row{100, rgb(0, 0, 255), 155}, Row{100, rgb(255, 255, 0), 0}, Row{100, -1, 0},  // outside the picture: as black
        Row{100, 16777216, 155},                                                        // no colour
        Row{0, rgb(255, 255, 255), 255}, Row{32512, rgb(255, 255, 255), 0}}) {
    EXPECT_EQ(darkened_grey(row.darkness, row.colour), row.grey) << row.darkness << " on " << row.colour;
  }
  EXPECT_EQ(failure_of([&rgb] { (void)darkened_grey(32513, rgb(255, 255, 255)); }),
            "overflow: 32768 does not fit an Integer (-32768 to 32767)");
}

}  // namespace
}  // namespace zol
