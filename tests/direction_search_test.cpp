// The passes of the search, and the edges of both. Directions found again: scripts/calculators.zs.
#include "calculators/direction_search.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "tests/recorded_task.h"
#include "tests/test_files.h"

namespace zol::utility {
namespace {

constexpr double exact_degree = std::numbers::pi / 180;

/// Azimuth, without its head, that a direction shows after the specimen is turned about x.
Single projected(double azimuth_deg, double polar_deg, double rotation_deg) {
  const double a = azimuth_deg * exact_degree;
  const double p = polar_deg * exact_degree;
  const double r = rotation_deg * exact_degree;
  const double y = std::sin(p) * std::sin(a) * std::cos(r) - std::cos(p) * std::sin(r);
  return to_single(std::atan(y / (std::sin(p) * std::cos(a))) / exact_degree);
}

PhotographPair photographs(double azimuth, double polar, double rotation_1, double rotation_2) {
  return {projected(azimuth, polar, rotation_1), to_single(rotation_1), projected(azimuth, polar, rotation_2),
          to_single(rotation_2)};
}

DirectionSearch search(const PhotographPair& wanted) {
  RecordedTask task;
  const auto found = search_direction(wanted, task);
  EXPECT_EQ(task.steps.back(), std::pair(4, 4));
  EXPECT_GT(task.checks, 36 + 20 + 20 + 19) << "one for each row of trials";
  return found;
}

TEST(DirectionPasses, FourthIsCentredOnTheSecond) {
  // Half way between the steps of the second pass: the third comes near, the fourth can move by 0.1 only.
  const auto found = search(photographs(33.5, 47.4, 0, 35));
  const auto& [first, second, third, fourth] = found.passes;
  EXPECT_NEAR(third.azimuth, 33.5, 0.051);
  EXPECT_NEAR(third.polar, 47.4, 0.051);
  EXPECT_NEAR(fourth.azimuth, second.azimuth, 0.1001);
  EXPECT_NEAR(fourth.polar, second.polar, 0.1001);
  EXPECT_GT(std::abs(double{fourth.azimuth} - 33.5), 0.3);
  EXPECT_EQ(found.answer(), fourth);
}

TEST(DirectionPasses, FirstOfEqualTrialsWinsAndTheEdgesAreClamped) {
  // Without rotation and with both azimuths 0, any polar angle fits azimuth 0, and polar angle 0 fits any azimuth.
  const auto& [first, second, third, fourth] = search({}).passes;
  EXPECT_EQ(first, (DirectionTrial{0, 10, 0, 0})) << "polar angle 0, clamped to 10";
  EXPECT_EQ(second, (DirectionTrial{-10, 1, 0, 0})) << "polar angle 0 of the first azimuth, clamped to 1";
  EXPECT_NEAR(third.polar, 0, 1e-6) << "1 - 1";
  EXPECT_NEAR(fourth.azimuth, -9.91, 1e-4) << "nearest to 0; the sums of steps pass the limit of -9.9 by a last bit";

  // In the plane of the first photograph: 90 is clamped to 80, and the second pass reaches 90, clamped to 89.
  const auto upper = search(photographs(40, 90, 0, 30)).passes;
  EXPECT_EQ(upper[0].polar, 80);
  EXPECT_EQ(upper[1].azimuth, 40);
  EXPECT_EQ(upper[1].polar, 89);
  EXPECT_NEAR(upper[3].polar, 89.1, 0.011);

  EXPECT_EQ(search({300, 0, 300, 0}).answer(), DirectionTrial()) << "nothing comes within 100 of both";
}

TEST(UtilityArcCos, IsInRadiansButForItsLowerEdge) {
  for (const auto& [x, arc] : {std::pair{0.0F, 1.5707963F}, {-0.5F, 2.0943951F}, {1.5F, 0.0F}, {-1.0F, 180.0F}}) {
    EXPECT_NEAR(ArcCos(x), arc, 2e-7);
  }
}

TEST(DirectionFromLengths, AtItsEdges) {
  const auto equal = direction_from_lengths({3, 15, 3, 15});
  EXPECT_EQ(std::pair(equal.phi.value(), equal.theta), std::pair(-90, 90.0F)) << "every angle fits; the first one wins";
  const auto none = direction_from_lengths({1, 0, 1000, 0});
  EXPECT_EQ(std::pair(none.phi.value(), none.theta), std::pair(90, 0.0F)) << "nothing comes within 100: it stays 0";
  EXPECT_EQ(failure_of([] { (void)direction_from_lengths({}); }), "division by zero: length_1 is 0");
}

}  // namespace
}  // namespace zol::utility
