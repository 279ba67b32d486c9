#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "core/number_text.h"
#include "kikuchi/degrees_text.h"
#include "kikuchi/kikuchi_pattern.h"
#include "kikuchi/zone_map.h"
#include "tests/cartesian_cell.h"
#include "tests/plain_kikuchi.h"
#include "tests/quiet.h"
#include "tests/test_files.h"

namespace zol {
namespace {

/// Down [113] of a cell, with a list of four reflections.
CrystalState with_four_bands(const CellNumbers& cell) {
  auto state = oriented_crystal(cell, {1, 1, 3});
  state.WaveLength = 0.0859F;
  state.CamAcquisition = 50;
  state.CamXYRatio = 1;
  state.PatternAngle = 0.3F;
  set_list(state, {{2, 0, 1}, {-1, 2, 0}, {0, -1, 1}, {1, 1, -1}});
  return state;
}

// The trace n.r = 0 of the plane: in the picture nx x + ny y + nz = 0, its foot on the other side of the normal's
// projection. Its band ends at the Bragg angle from it.
TEST(Bands, StandOnTheSideOfTheirNormalAndTurnWithThePattern) {
  for (const auto& cell : cells_of_all_systems) {
    auto state = with_four_bands(cell);
    const CartesianCell cartesian(state);
    const PatternFrame frame(state);
    for (const bool trace_only : {false, true}) {
      ListedPlanes planes(state);
      const auto lines = kikuchi_lines(planes, gnomonic_view(state), trace_only, quiet);
      EXPECT_GE(lines.size(), 2U);
      for (const auto& line : lines) {
        const auto normal = cartesian.normal(line.hkl.h.value(), line.hkl.k.value(), line.hkl.l.value());
        const double azimuth = radians(frame.azimuth(normal) + 180) + 0.3;
        EXPECT_NEAR(line.unit_x, std::cos(azimuth), 2e-3);
        EXPECT_NEAR(line.unit_y, std::sin(azimuth), 2e-3);
        const double shown = degrees(std::atan2(line.unit_y, line.unit_x)) + 0.3;  // the turn is added in radians
        EXPECT_NEAR(std::remainder(line.azimuth_deg - shown, 360), 0, 0.05);
        EXPECT_NEAR(line.latitude_deg, 90 - angle_deg(normal, frame.z), 2e-3);
        const double theta = trace_only ? 0 : std::asin(std::sqrt(dot(normal, normal)) * 0.0859 / 2);
        const double distance = std::tan(std::asin(dot(unit(normal), frame.z)) - theta);
        EXPECT_NEAR(line.foot_x * double{line.unit_x} + line.foot_y * double{line.unit_y}, distance, 2e-4);
        state.MarkH = line.hkl.h;
        state.MarkK = line.hkl.k;
        state.MarkL = line.hkl.l;
        EXPECT_NEAR(marked_line(state, trace_only).foot_x, line.foot_x, 2e-4);
      }
    }
  }
}

TEST(Bands, AreNotMoreThanTheListHolds) {
  auto state = with_four_bands(cells_of_all_systems[0]);
  state.KikuchiRefLimit = 6;
  ListedPlanes planes(state);
  EXPECT_TRUE(fails_with("index -1 of RefH is outside 0 to 5",
                         [&] { (void)kikuchi_lines(planes, gnomonic_view(state), false, quiet); }));
  EXPECT_TRUE(fails_with("index 1 of the reflection list", [] { (void)order_for_kikuchi(CrystalState(), quiet); }));
}

TEST(GreyScale, LeavesOutWhatTheLatticeForbids) {
  auto state = oriented_crystal(cubic_cell(4), {0, 0, 1});
  state.WaveLength = 0.05F;
  state.CamAcquisition = 45;
  state.CamXYRatio = 1;
  state.LatticeLetter = "F";
  std::vector<GivenReflection> list{{1, 1, 1, 0.5F}, {1, 0, 0, 10}, {2, 0, 0, 0.7F}};
  for (int turned = 0; turned < 2; ++turned) {  // the strongest last, then first
    set_list(state, list);
    ListedPlanes planes(state);
    EXPECT_NEAR(strongest_in_view(planes, gnomonic_view(state), quiet), 2 * 0.25 * 0.7, 1e-5);
    std::swap(list.front(), list.back());
  }
}

// Place of a direction against Cartesian geometry: angle from the axis and azimuth in the pattern frame.
TEST(ZoneMap, PutsDirectionsWhereTheyAre) {
  for (const auto& cell : cells_of_all_systems) {
    auto state = oriented_crystal(cell, {1, 1, 2});
    state.PatternAngle = 0.2F;
    const CartesianCell cartesian(state);
    const PatternFrame frame(state);
    for (const auto& [u, v, w] :
         {SingleTriple{1, 0, 0}, {0, 1, 0}, {0, 0, 1}, {1, 1, 0}, {1, 0, 1}, {0, 1, 1}, {-1, 2, 1}}) {
      const auto place = place_of_direction(state, u, v, w);
      ASSERT_TRUE(place);
      const auto direction = cartesian.direction(u, v, w);
      EXPECT_NEAR(degrees(place->theta), angle_deg(direction, frame.z), 0.05);
      const double azimuth = radians(frame.azimuth(direction)) + 0.2;
      EXPECT_NEAR(std::cos(double{place->phi}), std::cos(azimuth), 5e-3) << u << v << w;
      EXPECT_NEAR(std::sin(double{place->phi}), std::sin(azimuth), 5e-3) << u << v << w;
    }
  }
}

TEST(ZoneMap, GivesUpOnTheAxisItself) {
  const auto down_c = oriented_crystal(cubic_cell(4), {0, 0, 1});
  const auto opposite = place_of_direction(down_c, 1.01F, -0.99F, 0);
  EXPECT_NEAR(std::abs(opposite.value().phi - program_pi / 2), program_pi, 1e-5)
      << "0.01 radians off count as opposite";
  auto state = oriented_crystal(cubic_cell(4), {1, 1, 2});
  EXPECT_FALSE(place_of_direction(state, 1, 1, 2));
  EXPECT_FALSE(place_of_direction(state, -2, -2, -4));
  EXPECT_EQ(places_in_sweep(state, {1, 1, 2}, quiet).size(), 42U - 2U) << "all even: 3; the axis and its opposite";
  EXPECT_TRUE(fails_with("the length of the zone axis", [&] { (void)place_of_direction(state, 0, 0, 0); }));
  state.OriginH = state.OriginK = state.OriginL = 0;
  EXPECT_FALSE(place_of_direction(state, 1, 0, 0)) << "no reference before the first drawing";
}

TEST(NumbersOfBands, AreAsFormatHasThem) {
  std::mt19937_64 random(1);
  std::vector<double> angles{0.0, -0.0, -0.04, 0.05, -0.05, 99.95, 359.95, 99999.96, 1e5, 1e30};
  for (int i = 0; i < 20000; ++i) {
    const double angle = std::uniform_real_distribution<>(-400, 400)(random);
    const double half = std::round(angle * 20) / 20;
    angles.insert(angles.end(), {angle, angle * 1e-3, half, to_single(angle), to_single(half)});
  }
  std::string field(6, '?');
  for (const double angle : angles) {
    put_one_place(field, angle);
    ASSERT_EQ(field, right_field(Format(angle, "##0.0"), field.size())) << angle;
  }
  for (const int number : {0, 7, -7, 1234, -123456, 1234567, std::numeric_limits<int>::min()}) {
    put_whole(field, number);
    EXPECT_EQ(field, right_field(plain_text(number), field.size()));
  }
}

TEST(TangentLimits, AreThoseOfTheTangent) {
  for (const double tangent : {0.0, 0.05, 0.7535, 2.0, 57.0, 60.0, 1e6}) {
    const TangentLimit limit(tangent);
    const auto at = static_cast<Single>(std::atan(tangent) / degree);
    std::vector<Single> angles{0, 1, 45, 88.9F, 89, 89.5F, 90, 90.0003F};
    for (Single up = at, down = at; angles.size() < 50; up = std::nextafter(up, 99.0F)) {
      angles.insert(angles.end(), {up, down});
      down = std::max(0.0F, std::nextafter(down, 0.0F));
    }
    for (const Single angle : angles) EXPECT_EQ(limit.above(angle), std::tan(angle * degree) < tangent) << angle;
  }
}

// Narrow and wide pictures; down a plane normal, where latitudes are 90 degrees, and down none; electrons and a
// wavelength beyond some spacings.
TEST(Bands, AgreeWithThePlainWayToTheBit) {
  std::vector<GivenReflection> list;
  for (int n = 0; n < 9 * 9 * 9; ++n) {
    const GivenReflection entry{n % 9 - 4, n / 9 % 9 - 4, n / 81 - 4, to_single(1 + n * 37 % 101)};
    if (entry.h != 0 || entry.k != 0 || entry.l != 0) list.push_back(entry);
  }
  for (const auto& cell : cells_of_all_systems) {
    for (const SingleTriple& axis : {SingleTriple{1, 1, 3}, {0, 0, 1}, {-0.3F, 0.2F, 7.1F}, {2, 1, 0}}) {
      auto state = oriented_crystal(cell, {1, 1, 3});
      set_list(state, list);
      const auto [u, v, w] = axis;
      const auto [h, k, l] = reference_reflection(u, v, w);
      std::tie(state.ZoneU, state.ZoneV, state.ZoneW) = std::tie(u, v, w);
      std::tie(state.OriginH, state.OriginK, state.OriginL) = std::tie(h, k, l);
      state.CamXYRatio = 1;
      state.PatternAngle = -0.7F;
      for (const auto& [opening, wavelength] : {std::pair{3.0F, 0.0251F}, {37.0F, 0.0859F}, {85.0F, 1.542F}}) {
        state.CamAcquisition = opening;
        state.WaveLength = wavelength;
        const auto view = gnomonic_view(state);
        ListedPlanes planes(state);
        EXPECT_EQ(strongest_in_view(planes, view, quiet), plain_strongest(state, view));
        for (const bool trace_only : {false, true}) {
          const auto lines = kikuchi_lines(planes, view, trace_only, quiet);
          EXPECT_TRUE(!lines.empty() && lines == plain_lines(state, view, trace_only));
        }
      }
    }
  }
}

}  // namespace
}  // namespace zol
