// Spot patterns without a window: the run through the indices, a failure, greys. tests/scripts has the places of spots.
#include "spots/spot_pattern.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>

#include "tests/crystals.h"
#include "tests/lists.h"
#include "tests/quiet.h"
#include "tests/test_files.h"

namespace zol {
namespace {

using Triple = std::array<int, 3>;
using ZoneAxis = std::array<Single, 3>;

constexpr Radiation electrons{false, true};
constexpr EnumerationSettings full_sphere{{true, true, true}, {}};

/// A cubic lattice without atoms.
CrystalState lattice(Single edge, const char* letter, Single half_width, const ZoneAxis& axis, int level = 0) {
  CrystalState state = with_cell(cubic_cell(edge));
  state.LatticeLetter = letter;
  state.Dmin = edge;
  enumerate_reflections(state, full_sphere);
  state.CamAcquisition = half_width;
  state.ZoneU = axis[0];
  state.ZoneV = axis[1];
  state.ZoneW = axis[2];
  state.Level = level;
  return state;
}

TEST(SpotPattern, LooksAtTheSameReflectionsAsAPlainRun) {
  struct Row {
    ZoneAxis axis;
    int level;
  };
  const std::vector<Row> rows{{{1, 1, 1}, 0},      {{1, 1, 0}, 2},        {{0, 0, 0}, 0},
                              {{0, 0, 0}, 1},      {{0.5, 0.25, 1.5}, 1}, {{1, -1, -2e-4F}, 0},
                              {{1, 1, 1e-30F}, 0}, {{0, 0, 1e-38F}, -1},  {{1e30F, -1e30F, 1}, 0},
                              {{7, 5, -3}, -4},    {{0, 0, 300}, 0},      {{0.99995F, 1, 0.00005F}, 1}};
  for (const auto& [axis, level] : rows) {
    for (const std::string letter : {"I", ""}) {
      const auto state = lattice(4, letter.c_str(), 1.1F, axis, level);
      constexpr int limit = 8;  // 2 * 1.1 / 0.25
      std::vector<Triple> plain;
      for (int h = -limit; h <= limit; ++h) {
        for (int k = -limit; k <= limit; ++k) {
          for (int l = -limit; l <= limit; ++l) {
            const double off = k * double{axis[1]} + h * double{axis[0]} + l * double{axis[2]} - double(level);
            const bool allowed = letter.empty() || (h + k + l) % 2 == 0;
            if ((h != 0 || k != 0 || l != 0) && allowed && std::abs(off) < 0.0001) plain.push_back({h, k, l});
          }
        }
      }
      std::vector<Triple> visited;
      visit_reflections_on_level(
          state,
          [&visited](const Indices<Integer>& hkl) {
            visited.push_back({hkl.h.value(), hkl.k.value(), hkl.l.value()});
          },
          quiet);
      EXPECT_EQ(visited, plain) << testing::PrintToString(axis) << letter;
    }
  }
}

TEST(SpotPattern, FailsOnASpotBesideTheAxisBelow) {
  // (1 1 -50) lies 1.6 degrees from -[001] on the reference line. The two quarter turns differ by 5e-6, so that its
  // cosine comes out as 1 + 5e-6 / tan(1.6 deg) = 1.00018, whose square is above 1.0001.
  auto state = lattice(1, "P", 26, {0, 0, 1}, -50);
  const std::string message = failure_of([&state] { (void)diffraction_spots(state, electrons, quiet); });
  EXPECT_NE(message.find("square root of a negative number"), std::string::npos) << message;
  state.Level = 50;
  EXPECT_FALSE(diffraction_spots(state, electrons, quiet).spots.empty()) << "above, the cosine comes out below 1";
}

TEST(SpotPattern, EndsShortOfTheEdges) {
  auto state = lattice(4, "P", 1, {0, 0, 1});
  for (const auto& spot : diffraction_spots(state, electrons, quiet).spots) {
    if (spot.h != spot.k && spot.h != -spot.k) continue;  // limits of the indices come first
    const Single reach = std::max(std::abs(spot.x), std::abs(spot.y));
    const auto has_spot = [&](Single half_width) {
      state.CamAcquisition = half_width;
      const auto found = diffraction_spots(state, electrons, quiet).spots;
      return std::find(found.begin(), found.end(), spot) != found.end();
    };
    EXPECT_TRUE(has_spot(std::nextafter(reach, 2.0F)) && !has_spot(reach)) << spot.x << ' ' << spot.y;
  }
}

TEST(SpotGrey, FollowsThePower) {
  struct Row {
    Single intensity, black;
    GreyScale scale;
    int grey;
  };
  for (const auto& row : {Row{50, 100, {true, {}}, 75},        // 255 - Int(180.3)
                          Row{50, 100, {true, 2.0}, 192},      // the exponent goes before the option
                          Row{300, 100, {true, {}}, 0},        // brighter than black
                          Row{3e38F, 1e-30F, {false, {}}, 0},  //
                          Row{0.3F, 100, {false, {}}, 255},    // 255 - Int(0.77): not drawn
                          Row{0, 100, {true, 0.0}, 0}}) {      // 0 ^ 0 is 1
    EXPECT_EQ(spot_grey(row.intensity, row.black, row.scale), row.grey) << row.intensity;
  }
  EXPECT_EQ(failure_of([] {
              (void)spot_grey(0, 1, {false, -1.0});
            }),
            "overflow: the relative intensity is 0, its power -1 is not a number");
}

TEST(ZoneGeometry, ReferenceLiesInTheZone) {
  struct Row {
    std::array<double, 3> axis;
    Indices<Integer> reference;
  };
  for (const auto& [axis, reference] : {Row{{1, 1, 1}, {1, 1, -2}}, Row{{1, 1, 0}, {0, 0, 1}},
                                        Row{{3, 2, -5}, {-5, -5, -5}}, Row{{0.5, 0, 0.5}, {1, 1, 0}},  // halves go up
                                        Row{{0.2, 0.3, -0.6}, {-1, -1, 0}},                            // floors
                                        Row{{1, -1, 0.2}, {0, 0, 0}}}) {
    EXPECT_EQ(reference_reflection(axis[0], axis[1], axis[2]), reference) << testing::PrintToString(axis);
  }
  EXPECT_EQ(plane_in_zone<Long>(1, 1, 0), (Indices<Long>{0, 0, -2})) << "no other reference for w = 0 here";
  EXPECT_EQ(plane_in_zone<Long>(0, 1, 40000).h, 40000);
  EXPECT_EQ(cross_vector<Integer>({2, -1, 3}, {1, 4, -2}), (Indices<Integer>{-10, 7, 9}));
  EXPECT_EQ(cross_vector<Long>({200, 0, 0}, {0, 200, 0}).l, 40000);
}

}  // namespace
}  // namespace zol
