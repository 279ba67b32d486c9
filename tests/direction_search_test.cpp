#include "calculators/direction_search.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "core/number_text.h"
#include "tests/recorded_task.h"

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

TEST(DirectionSearch, FindsAProjectedDirectionAgain) {
  struct Row {
    double azimuth, polar, rotation_1, rotation_2;
  };
  for (const auto& row : {Row{30, 50, 0, 30}, Row{120, 45, 0, 45}, Row{200, 35, -20, 25}, Row{310, 70, 10, 40},
                          Row{75, 20, -40, -10}, Row{145, 84, -30, 30}}) {
    SCOPED_TRACE(row.azimuth);
    const auto wanted = photographs(row.azimuth, row.polar, row.rotation_1, row.rotation_2);
    const auto found = search(wanted).answer();
    EXPECT_NEAR(found.azimuth, row.azimuth, 0.015) << "the finest step is 0.01";
    EXPECT_NEAR(found.polar, row.polar, 0.015);
    EXPECT_NEAR(found.phi_1, wanted.Phi1, 0.02);
    EXPECT_NEAR(found.phi_2, wanted.Phi2, 0.02);
  }
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
  EXPECT_NEAR(ArcCos(0), 1.5707963, 2e-7);
  EXPECT_NEAR(ArcCos(-0.5F), 2.0943951, 2e-7);
  for (const Single beyond : {1.0F, 1.5F}) {
    EXPECT_EQ(ArcCos(beyond), 0);
    EXPECT_EQ(ArcCos(-beyond), 180);
  }
}

TEST(DirectionFromLengths, GivesTheAngleBack) {
  struct Row {
    double angle, rotation_1, rotation_2;
  };
  for (const auto& row : {Row{35, -20, 30}, Row{-42, 0, 25}, Row{77.3, 10, -15}, Row{0.4, 0, 40}}) {
    const auto length = [&row](double rotation) {
      return to_single(12.5 * std::cos((row.angle - rotation) * exact_degree));
    };
    const auto found = direction_from_lengths(
        {length(row.rotation_1), to_single(row.rotation_1), length(row.rotation_2), to_single(row.rotation_2)});
    EXPECT_EQ(found.phi, row.angle < 0 ? -90 : 90);
    EXPECT_NEAR(found.theta, std::abs(row.angle), 0.052) << "steps of 0.1, which drift by 0.0016";
  }
  // -90 and 1250 times the Single nearest to 0.1, each sum rounded to a Single (added up apart from the program).
  const auto drifted =
      direction_from_lengths({1, -20, to_single(std::cos(5 * exact_degree) / std::cos(55 * exact_degree)), 30});
  EXPECT_EQ(plain_text(drifted.theta), "34.99924");
}

TEST(DirectionFromLengths, AtItsEdges) {
  const auto equal = direction_from_lengths({3, 15, 3, 15});
  EXPECT_EQ(equal.phi, -90) << "every angle fits; the first one wins";
  EXPECT_EQ(equal.theta, 90);
  const auto none = direction_from_lengths({1, 0, 1000, 0});
  EXPECT_EQ(none.phi, 90) << "nothing comes within 100: the angle stays 0";
  EXPECT_EQ(none.theta, 0);
}

}  // namespace
}  // namespace zol::utility
