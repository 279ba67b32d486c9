#include "calculators/direction_search.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "core/number_text.h"
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

struct DirectionCase {
  const char* name;
  double azimuth, polar, rotation_1, rotation_2;
};
class ProjectedDirection : public testing::TestWithParam<DirectionCase> {};
TEST_P(ProjectedDirection, IsFoundAgain) {
  const auto& row = GetParam();
  const auto wanted = photographs(row.azimuth, row.polar, row.rotation_1, row.rotation_2);
  const auto found = search_direction(wanted).answer();
  EXPECT_NEAR(found.azimuth, row.azimuth, 0.015) << "the finest step is 0.01";
  EXPECT_NEAR(found.polar, row.polar, 0.015);
  EXPECT_NEAR(found.phi_1, wanted.Phi1, 0.02);
  EXPECT_NEAR(found.phi_2, wanted.Phi2, 0.02);
}
INSTANTIATE_TEST_SUITE_P(Directions, ProjectedDirection,
                         testing::Values(DirectionCase{"first_quadrant", 30, 50, 0, 30},
                                         DirectionCase{"second_quadrant", 120, 45, 0, 45},
                                         DirectionCase{"third_quadrant", 200, 35, -20, 25},  // sign of the rotation
                                         DirectionCase{"fourth_quadrant", 310, 70, 10, 40},
                                         DirectionCase{"both_turned_back", 75, 20, -40, -10},
                                         DirectionCase{"near_the_plane", 145, 84, -30, 30}),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(DirectionPasses, FourthIsCentredOnTheSecond) {
  // Half way between the steps of the second pass: the third comes near, the fourth can move by 0.1 only.
  const auto search = search_direction(photographs(33.5, 47.4, 0, 35));
  const auto& [first, second, third, fourth] = search.passes;
  EXPECT_NEAR(third.azimuth, 33.5, 0.051);
  EXPECT_NEAR(third.polar, 47.4, 0.051);
  EXPECT_NEAR(fourth.azimuth, second.azimuth, 0.1001);
  EXPECT_NEAR(fourth.polar, second.polar, 0.1001);
  EXPECT_GT(std::abs(double{fourth.azimuth} - 33.5), 0.3);
  EXPECT_EQ(search.answer(), fourth);
}

TEST(DirectionPasses, FirstOfEqualTrialsWinsAndTheEdgesAreClamped) {
  // Without rotation and with both azimuths 0, any polar angle fits azimuth 0, and polar angle 0 fits any azimuth.
  const auto& [first, second, third, fourth] = search_direction({}).passes;
  EXPECT_EQ(first, (DirectionTrial{0, 10, 0, 0})) << "polar angle 0, clamped to 10";
  EXPECT_EQ(second, (DirectionTrial{-10, 1, 0, 0})) << "polar angle 0 of the first azimuth, clamped to 1";
  EXPECT_NEAR(third.polar, 0, 1e-6) << "1 - 1";
  EXPECT_NEAR(fourth.azimuth, -9.91, 1e-4) << "nearest to 0; the sums of steps pass the limit of -9.9 by a last bit";
}

TEST(DirectionPasses, UpperEdgeIsReachedAgain) {
  // In the plane of the first photograph: 90 is clamped to 80, and the second pass reaches 90, clamped to 89.
  const auto& [first, second, third, fourth] = search_direction(photographs(40, 90, 0, 30)).passes;
  EXPECT_EQ(first.polar, 80);
  EXPECT_EQ(second.azimuth, 40);
  EXPECT_EQ(second.polar, 89);
  EXPECT_NEAR(fourth.polar, 89.1, 0.011);
}

TEST(DirectionPasses, StartFromAnErrorOf100) {
  const DirectionTrial none;
  const auto search = search_direction({300, 0, 300, 0});
  EXPECT_EQ(search.answer(), none) << "no azimuth of -90 to 90 comes within 100 of both";
  EXPECT_EQ(search.passes[2], none);
}

TEST(FoldedAzimuth, LiesWithinAQuarterTurn) {
  struct Row {
    Single azimuth, folded;
  };
  for (const auto& row : {Row{0, 0}, Row{45, 45}, Row{135, -45}, Row{-100, 80}, Row{190, 10}, Row{-359, 1},
                          Row{89.5F, 89.5F}, Row{90.5F, -89.5F}}) {
    EXPECT_NEAR(folded_azimuth(row.azimuth), row.folded, 2e-5) << row.azimuth;
  }
  EXPECT_NEAR(std::abs(folded_azimuth(90)), 90, 1e-4) << "the tangent is large but finite";
}

TEST(UtilityArcCos, IsInRadiansButForItsLowerEdge) {
  struct Row {
    Single x, angle;
  };
  for (const auto& row : {Row{0, 1.5707963F}, Row{0.5F, 1.0471976F}, Row{-0.5F, 2.0943951F}}) {
    EXPECT_NEAR(ArcCos(row.x), row.angle, 2e-7) << row.x;
  }
  for (const auto& row : {Row{1, 0}, Row{1.5F, 0}, Row{-1, 180}, Row{-2, 180}}) {
    EXPECT_EQ(ArcCos(row.x), row.angle) << row.x;
  }
}

struct LengthCase {
  const char* name;
  double angle, rotation_1, rotation_2;
};
class ProjectedLengths : public testing::TestWithParam<LengthCase> {};
TEST_P(ProjectedLengths, GiveTheAngleBack) {
  const auto& row = GetParam();
  const auto length = [&row](double rotation) {
    return to_single(12.5 * std::cos((row.angle - rotation) * exact_degree));
  };
  const auto found = direction_from_lengths(
      {length(row.rotation_1), to_single(row.rotation_1), length(row.rotation_2), to_single(row.rotation_2)});
  EXPECT_EQ(found.phi, row.angle < 0 ? -90 : 90);
  EXPECT_NEAR(found.theta, std::abs(row.angle), 0.052) << "steps of 0.1, which drift by 0.0016";
}
INSTANTIATE_TEST_SUITE_P(Angles, ProjectedLengths,
                         testing::Values(LengthCase{"positive", 35, -20, 30}, LengthCase{"negative", -42, 0, 25},
                                         LengthCase{"steep", 77.3, 10, -15}, LengthCase{"flat", 0.4, 0, 40}),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(DirectionFromLengths, KeepsTheDriftOfItsSteps) {
  // -90 and 1250 times the Single nearest to 0.1, each sum rounded to a Single (added up apart from the program).
  const auto found =
      direction_from_lengths({1, -20, to_single(std::cos(5 * exact_degree) / std::cos(55 * exact_degree)), 30});
  EXPECT_EQ(plain_text(found.theta), "34.99924");
}

TEST(DirectionFromLengths, AtItsEdges) {
  const auto equal = direction_from_lengths({3, 15, 3, 15});
  EXPECT_EQ(equal.phi, -90) << "every angle fits; the first one wins";
  EXPECT_EQ(equal.theta, 90);
  const auto none = direction_from_lengths({1, 0, 1000, 0});
  EXPECT_EQ(none.phi, 90) << "nothing comes within 100: the angle stays 0";
  EXPECT_EQ(none.theta, 0);
  EXPECT_EQ(failure_of([] { (void)direction_from_lengths({0, 0, 1, 0}); }), "division by zero: length_1 is 0");
}

}  // namespace
}  // namespace zol::utility
