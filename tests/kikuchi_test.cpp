#include <gtest/gtest.h>

#include <set>
#include <vector>

#include "kikuchi/kikuchi_pattern.h"
#include "kikuchi/zone_map.h"
#include "tests/cartesian_cell.h"
#include "tests/test_files.h"

namespace zol {
namespace {

QuietTask quiet;
using Axis = std::array<int, 3>;

CrystalState silicon_001() {
  auto state = oriented_crystal({5.4307F, 5.4307F, 5.4307F, 90, 90, 90}, {0, 0, 1});
  state.WaveLength = 0.0859F;
  state.CamAcquisition = 37;
  state.CamXYRatio = 1;
  std::vector<ListedReflection> reflections;
  for (const int a : {-2, 2}) {
    for (const int b : {-2, 2}) {
      reflections.push_back({a, b, 0});
      reflections.push_back({a, 0, b});
      reflections.push_back({0, a, b});
    }
    for (const int b : {-1, 1}) {
      for (const int c : {-1, 1}) reflections.push_back({a / 2, b, c});
    }
  }
  set_list(state, reflections);
  return state;
}

TEST(View, IsShiftedAndStretched) {
  CrystalState state;
  state.CamAcquisition = 45;
  state.CamXShift = -10;
  state.CamYShift = 20;
  state.CamXYRatio = 1.1F;
  const auto view = gnomonic_view(state);
  EXPECT_NEAR(view.left, -1 + 0.17633, 1e-4);
  EXPECT_NEAR(view.right, 1 + 0.17633, 1e-4);
  EXPECT_NEAR(view.bottom, (-1 - 0.36397) * 1.1, 1e-4);
  EXPECT_NEAR(view.top, (1 - 0.36397) * 1.1, 1e-4);
  EXPECT_EQ(view.reach, -view.bottom);
}

// The lines of h and -h bound one band: their distance is tan(lat + theta) - tan(lat - theta), worked out exactly.
TEST(Bands, HaveTheWidthOfTwiceTheBraggAngle) {
  const auto state = silicon_001();
  const CartesianCell cell(state);
  const auto lines = kikuchi_lines(state, gnomonic_view(state), false, quiet);
  ASSERT_EQ(lines.size(), 20U);
  int pairs = 0;
  for (const auto& line : lines) {
    for (const auto& other : lines) {
      if (other.hkl != Indices<Integer>{-line.hkl.h, -line.hkl.k, -line.hkl.l}) continue;
      ++pairs;
      const auto normal = cell.normal(line.hkl.h.value(), line.hkl.k.value(), line.hkl.l.value());
      const double latitude = std::asin(unit(normal)[2]);
      const double theta = std::asin(std::sqrt(dot(normal, normal)) * 0.0859 / 2);
      const double here = line.foot_x * double{line.unit_x} + line.foot_y * double{line.unit_y};
      const double there = other.foot_x * double{line.unit_x} + other.foot_y * double{line.unit_y};
      EXPECT_NEAR(here, std::tan(latitude - theta), 1e-4);
      EXPECT_NEAR(there - here, std::tan(latitude + theta) - std::tan(latitude - theta), 1e-4);
    }
  }
  EXPECT_EQ(pairs, 20);
}

TEST(Bands, OfACubicCrystalDownAnEdgeHaveFourfoldSymmetry) {
  const auto state = silicon_001();
  const auto lines = kikuchi_lines(state, gnomonic_view(state), true, quiet);
  // Beside the reference the azimuth comes from a cosine near 1, rounded to 32 bits.
  constexpr double tolerance = 3e-3;
  for (const auto& line : lines) {
    const bool has_image = std::any_of(lines.begin(), lines.end(), [&line](const KikuchiLine& other) {
      return std::hypot(other.foot_x + line.foot_y, other.foot_y - line.foot_x) < tolerance &&
             std::hypot(other.unit_x + line.unit_y, other.unit_y - line.unit_x) < tolerance;
    });
    EXPECT_TRUE(has_image) << line.hkl.h.value() << line.hkl.k.value() << line.hkl.l.value();
  }
}

TEST(Bands, StandOnTheSideOfTheirNormalAndTurnWithThePattern) {
  for (const auto& cell : cells_of_all_systems) {
    auto state = oriented_crystal(cell, {1, 1, 3});
    state.WaveLength = 0.0859F;
    state.CamAcquisition = 50;
    state.CamXYRatio = 1;
    state.PatternAngle = 0.3F;
    set_list(state, {{2, 0, 1}, {-1, 2, 0}, {0, -1, 1}, {1, 1, -1}});
    const CartesianCell cartesian(state);
    const PatternFrame frame(state);
    for (const auto& line : kikuchi_lines(state, gnomonic_view(state), true, quiet)) {
      const auto normal = cartesian.normal(line.hkl.h.value(), line.hkl.k.value(), line.hkl.l.value());
      // The trace n.r = 0 of the plane: in the picture nx x + ny y + nz = 0, its foot on the other side of the normal's
      // projection.
      const double azimuth = (frame.azimuth(normal) + 180) * std::numbers::pi / 180 + 0.3;
      EXPECT_NEAR(line.unit_x, std::cos(azimuth), 2e-3);
      EXPECT_NEAR(line.unit_y, std::sin(azimuth), 2e-3);
      EXPECT_NEAR(line.latitude_deg, 90 - angle_deg(normal, frame.z), 2e-3);
      state.MarkH = line.hkl.h;
      state.MarkK = line.hkl.k;
      state.MarkL = line.hkl.l;
      EXPECT_NEAR(marked_line(state, true).foot_x, line.foot_x, 2e-4);
    }
  }
}

TEST(Bands, AreTheLastOfTheList) {
  auto state = silicon_001();
  state.KikuchiRefLimit = 1;
  const auto lines = kikuchi_lines(state, gnomonic_view(state), false, quiet);
  ASSERT_EQ(lines.size(), 1U);
  EXPECT_EQ(lines[0].hkl, (Indices<Integer>{state.RefH(20), state.RefK(20), state.RefL(20)}));
  state.KikuchiRefLimit = 22;
  EXPECT_EQ(failure_of([&] { (void)kikuchi_lines(state, gnomonic_view(state), false, quiet); }),
            "index -1 of RefH is outside 0 to 21");
}

TEST(GreyScale, LeavesOutWhatTheLatticeForbids) {
  auto state = oriented_crystal({4, 4, 4, 90, 90, 90}, {0, 0, 1});
  state.WaveLength = 0.05F;
  state.CamAcquisition = 45;
  state.CamXYRatio = 1;
  state.LatticeLetter = "F";
  set_list(state, {{1, 1, 1}, {1, 0, 0}, {2, 0, 0}});
  state.RefI(1) = 5;
  state.RefI(2) = 100;
  state.RefI(3) = 7;
  EXPECT_NEAR(strongest_in_view(state, gnomonic_view(state), quiet), 2 * 0.25 * 7, 1e-5);
}

/// Reflections in the order of a sort, told by h, from keys RefS * RefI with RefS = 1.
std::vector<int> sorted(const std::vector<Single>& keys) {
  CrystalState state;
  const int count = static_cast<int>(keys.size());
  for (auto* array : {&state.RefH, &state.RefK, &state.RefL}) array->allocate(count);
  for (auto* array : {&state.RefS, &state.RefI}) array->allocate(count);
  state.RefCount = count;
  for (int i = 1; i <= count; ++i) {
    state.RefH(i) = i;
    state.RefS(i) = 1;
    state.RefI(i) = keys[static_cast<std::size_t>(i - 1)];
  }
  reorder(state, order_for_kikuchi(state, quiet));
  std::vector<int> order;
  for (int i = 1; i <= count; ++i) order.push_back(state.RefH(i).value());
  return order;
}

// By hand: the bound is the rounded key, so 3.2 is not below the 3 of 3.4, while 3.4 is below the 4 of 3.6.
TEST(KikuchiSort, TellsKeysApartByTheirRoundedBound) {
  EXPECT_EQ(sorted({3.4F, 3.2F}), (std::vector{1, 2}));
  EXPECT_EQ(sorted({3.6F, 3.4F}), (std::vector{2, 1}));
  EXPECT_EQ(sorted({9, 5, 7, 5}), (std::vector{2, 4, 3, 1}));
  EXPECT_EQ(sorted({0.4F, 0.3F, 0.2F}), (std::vector{1, 2, 3})) << "all round to 0";
  EXPECT_EQ(sorted({20000, 1, 10000}), (std::vector{2, 1, 3})) << "keys of 10000 are never taken; 2 stays remembered";
  CrystalState empty;
  EXPECT_NE(failure_of([&] { (void)order_for_kikuchi(empty, quiet); }).find("index"), std::string::npos);
}

// Place of a direction against Cartesian geometry: angle from the axis and azimuth in the pattern frame.
TEST(ZoneMap, PutsDirectionsWhereTheyAre) {
  for (const auto& cell : cells_of_all_systems) {
    auto state = oriented_crystal(cell, {1, 1, 2});
    state.PatternAngle = 0.2F;
    const CartesianCell cartesian(state);
    const PatternFrame frame(state);
    for (const auto& [u, v, w] :
         {Axis{1, 0, 0}, Axis{0, 1, 0}, Axis{0, 0, 1}, Axis{1, 1, 0}, Axis{1, 0, 1}, Axis{0, 1, 1}, Axis{-1, 2, 1}}) {
      const auto place =
          place_of_direction(state, static_cast<Single>(u), static_cast<Single>(v), static_cast<Single>(w));
      ASSERT_TRUE(place);
      const auto direction = cartesian.direction(u, v, w);
      EXPECT_NEAR(place->theta * 180 / std::numbers::pi, angle_deg(direction, frame.z), 0.05);
      const double azimuth = frame.azimuth(direction) * std::numbers::pi / 180 + 0.2;
      EXPECT_NEAR(std::cos(double{place->phi}), std::cos(azimuth), 5e-3) << u << v << w;
      EXPECT_NEAR(std::sin(double{place->phi}), std::sin(azimuth), 5e-3) << u << v << w;
    }
  }
}

TEST(ZoneMap, GivesUpOnTheAxisItself) {
  auto state = oriented_crystal({4, 4, 4, 90, 90, 90}, {1, 1, 2});
  EXPECT_FALSE(place_of_direction(state, 1, 1, 2));
  EXPECT_FALSE(place_of_direction(state, -2, -2, -4));
  EXPECT_EQ(places_in_sweep(state, {1, 1, 2}, quiet).size(), 42U - 2U) << "all even: 3; the axis and its opposite";
  EXPECT_THROW((void)place_of_direction(state, 0, 0, 0), RunFailure);
  state.OriginH = state.OriginK = state.OriginL = 0;
  EXPECT_FALSE(place_of_direction(state, 1, 0, 0)) << "no reference before the first drawing";
}

TEST(ZoneMap, TurnsToTheSubstrateNormal) {
  CrystalState state;
  state.CamNormal = 20;
  const auto degrees = [](double deg) { return to_single(deg * degree); };
  // The substrate normal itself stands 20 degrees up the y axis.
  EXPECT_NEAR(from_substrate_normal(state, {degrees(20), degrees(90)}).theta, 0, 2e-3);
  // A direction on the x axis keeps it and its distance of 90 degrees.
  const auto side = from_substrate_normal(state, {degrees(90), degrees(0)});
  EXPECT_NEAR(side.theta, degrees(90), 1e-4);
  EXPECT_NEAR(std::cos(double{side.phi}), 1, 1e-5);
  // The screen normal lies 20 degrees down the y axis, seen from the substrate normal.
  const auto centre = from_substrate_normal(state, {0, 0});
  EXPECT_NEAR(centre.theta, degrees(20), 1e-4);
  EXPECT_NEAR(centre.phi, degrees(270), 2e-3);
}

TEST(ZoneMap, HasTwoKindsOfRings) {
  EXPECT_NEAR(map_radius(0.5F, false), 0.479426, 1e-6);
  EXPECT_NEAR(map_radius(0.7854F, true), 0.5, 1e-6);
  EXPECT_NEAR(map_radius(2.0F, true), (3.14159 - 2) / 1.5708, 1e-6);
}

}  // namespace
}  // namespace zol
