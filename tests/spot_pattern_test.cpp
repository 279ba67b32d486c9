// Spot patterns without a window: which spots, where, how strong, and the failures on the way.
#include "spots/spot_pattern.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <map>

#include "bench/bench_crystals.h"
#include "reflections/reflection_list.h"
#include "tests/test_files.h"

namespace zol {
namespace {

constexpr Radiation electrons{false, true};
constexpr EnumerationSettings full_sphere{{true, true, true}, {}};

std::unique_ptr<CrystalState> rock_salt() {
  auto state = shipped_crystal("NaCl.cry");
  state->Dmin = 1;
  enumerate_reflections(*state, full_sphere);
  state->CamAcquisition = 0.5;
  return state;
}

/// A cubic lattice without atoms.
CrystalState lattice(Single edge, const char* letter, Single half_width) {
  CrystalState state;
  state.CellA = state.CellB = state.CellC = edge;
  state.CellAlpha = state.CellBeta = state.CellGamma = 90;
  calc_cell(state);
  state.LatticeLetter = letter;
  state.Dmin = edge;
  enumerate_reflections(state, full_sphere);
  state.CamAcquisition = half_width;
  return state;
}

void set_axis(CrystalState& state, Single u, Single v, Single w, int level = 0) {
  state.ZoneU = u;
  state.ZoneV = v;
  state.ZoneW = w;
  state.Level = level;
}

using Vector = std::array<double, 3>;
double dot(const Vector& a, const Vector& b) { return a[0] * b[0] + a[1] * b[1] + a[2] * b[2]; }
Vector cross(const Vector& a, const Vector& b) {
  return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}
Vector unit(const Vector& a) {
  const double length = std::sqrt(dot(a, a));
  return {a[0] / length, a[1] / length, a[2] / length};
}

struct PatternCase {
  const char* name;
  std::array<int, 3> axis;
  int level;
  std::array<int, 3> reference;  // along +x
  double rotation_rad;
  std::size_t spots;  // h, k, l all even or all odd, none beyond 5, inside the square: [001] by hand, the others by a
                      // short program on plain vectors
};
class RockSalt : public testing::TestWithParam<PatternCase> {};

// A cubic crystal has its reciprocal axes along the direct ones, so that plain vectors give the projection: x along the
// reference, z along the axis, y = z x x, all turned clockwise by the rotation.
TEST_P(RockSalt, HasItsSpotsInPlace) {
  const auto& row = GetParam();
  auto state = rock_salt();
  set_axis(*state, to_single(row.axis[0]), to_single(row.axis[1]), to_single(row.axis[2]), row.level);
  state->PatternAngle = to_single(row.rotation_rad);
  const Vector z = unit({1.0 * row.axis[0], 1.0 * row.axis[1], 1.0 * row.axis[2]});
  const Vector x = unit({1.0 * row.reference[0], 1.0 * row.reference[1], 1.0 * row.reference[2]});
  const Vector y = cross(z, x);

  const auto spots = diffraction_spots(*state, electrons);
  EXPECT_EQ(spots.size(), row.spots);
  for (const auto& spot : spots) {
    const int h = spot.h.value();
    const int k = spot.k.value();
    const int l = spot.l.value();
    EXPECT_EQ(h * row.axis[0] + k * row.axis[1] + l * row.axis[2], row.level);
    EXPECT_TRUE((h - k) % 2 == 0 && (k - l) % 2 == 0) << h << k << l;
    const double half_star = 0.5 / 5.6402;
    const Vector g{h * half_star, k * half_star, l * half_star};
    const double right = dot(g, x) * std::cos(row.rotation_rad) + dot(g, y) * std::sin(row.rotation_rad);
    const double up = -dot(g, x) * std::sin(row.rotation_rad) + dot(g, y) * std::cos(row.rotation_rad);
    // 1.0001 in the place of 1 under the root shifts spots on the reference line sideways by 1 % of their distance.
    const double tolerance = 0.0101 * std::sqrt(dot(g, g)) + 1e-5;
    EXPECT_NEAR(spot.x, right, row.rotation_rad == 0 ? 1e-5 : tolerance) << h << k << l;
    EXPECT_NEAR(spot.y, up, tolerance) << h << k << l;
  }
}
INSTANTIATE_TEST_SUITE_P(Axes, RockSalt,
                         testing::Values(PatternCase{"001", {0, 0, 1}, 0, {1, 1, 0}, 0, 20},
                                         PatternCase{"001_turned", {0, 0, 1}, 0, {1, 1, 0}, 0.3, 24},
                                         PatternCase{"110", {1, 1, 0}, 0, {0, 0, 1}, 0, 38},
                                         PatternCase{"111", {1, 1, 1}, 0, {1, 1, -2}, 0, 16},
                                         PatternCase{"1m11", {1, -1, 1}, 0, {1, 1, 0}, 0, 16},
                                         PatternCase{"001_first_level", {0, 0, 1}, 1, {1, 1, 0}, 0, 24},
                                         PatternCase{"001_second_level", {0, 0, 1}, 2, {1, 1, 0}, 0, 21},
                                         PatternCase{"110_first_level", {1, 1, 0}, 1, {0, 0, 1}, 0, 0},
                                         PatternCase{"110_second_level", {1, 1, 0}, 2, {0, 0, 1}, 0, 38}),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(SpotIntensity, IsTheSquareOfTheStructureFactor) {
  auto state = rock_salt();
  sort_by_s(*state);
  (void)compute_list(*state, electrons);
  std::map<std::array<int, 3>, double> squares;
  for (int i = 1; i <= state->RefCount.value(); ++i) {
    squares[{state->RefH(i).value(), state->RefK(i).value(), state->RefL(i).value()}] =
        std::pow(double{state->RefA(i)}, 2) + std::pow(double{state->RefB(i)}, 2);
  }
  set_axis(*state, 1, 1, 0);
  const auto spots = diffraction_spots(*state, electrons);
  int compared = 0;
  for (const auto& spot : spots) {
    const auto found = squares.find({spot.h.value(), spot.k.value(), spot.l.value()});
    if (found == squares.end()) continue;  // the corners of the picture reach beyond Dmin
    EXPECT_NEAR(spot.intensity / found->second, 1, 1e-6);
    ++compared;
  }
  EXPECT_GT(compared, 20);
  // Of this zone (002) and (00-2) are the strongest: sodium and chlorine in phase at the longest spacing.
  EXPECT_FLOAT_EQ(strongest_intensity(spots), to_single(squares[std::array{0, 0, 2}]));
  EXPECT_EQ(state->RefH(0), 3) << "the scratch row keeps the last spot";
  EXPECT_EQ(strongest_intensity({}), 0);
}

TEST(SpotPattern, LeavesOutWhatTheLatticeForbids) {
  struct Row {
    const char* letter;
    std::array<Single, 3> axis;
    std::array<int, 3> present, absent;
  };
  for (const auto& row : {Row{"A", {1, 0, 0}, {0, 1, 1}, {0, 1, 0}}, Row{"B", {0, 1, 0}, {1, 0, 1}, {1, 0, 0}},
                          Row{"C", {0, 0, 1}, {1, 1, 0}, {1, 0, 0}}, Row{"I", {0, 0, 1}, {1, 1, 0}, {0, 1, 0}},
                          Row{"F", {0, 0, 1}, {2, 0, 0}, {1, 1, 0}}, Row{"R", {0, 0, 1}, {1, 1, 0}, {1, -1, 0}},
                          Row{"P", {0, 0, 1}, {1, 0, 0}, {0, 0, 1}}, Row{"", {0, 0, 1}, {1, 0, 0}, {0, 0, 0}}}) {
    auto state = lattice(4, row.letter, 0.4F);
    set_axis(state, row.axis[0], row.axis[1], row.axis[2]);
    const auto spots = diffraction_spots(state, electrons);
    const auto has = [&spots](const std::array<int, 3>& hkl) {
      return std::any_of(spots.begin(), spots.end(), [&hkl](const DiffractionSpot& spot) {
        return std::array{spot.h.value(), spot.k.value(), spot.l.value()} == hkl;
      });
    };
    EXPECT_TRUE(has(row.present)) << row.letter;
    EXPECT_FALSE(has(row.absent)) << row.letter;
  }
}

TEST(SpotPattern, LooksAtTheSameReflectionsAsAPlainRun) {
  using Triples = std::vector<std::array<int, 3>>;
  struct Row {
    std::array<Single, 3> axis;
    int level;
  };
  const std::vector<Row> rows{{{1, 1, 1}, 0},        {{0, 0, 1}, 3},       {{1, 1, 0}, 2},
                              {{0, 0, 0}, 0},        {{0, 0, 0}, 1},       {{0.5, 0.25, 1.5}, 1},
                              {{3, -2, 0.3333F}, 0}, {{1, 1, 1e-5F}, 0},   {{1, -1, -2e-4F}, 0},
                              {{1, 1, 1e-30F}, 0},   {{0, 0, 1e-38F}, -1}, {{1e30F, -1e30F, 1}, 0},
                              {{7, 5, -3}, -4},      {{0, 0, 300}, 0},     {{0.99995F, 1, 0.00005F}, 1}};
  for (const auto& row : rows) {
    auto state = lattice(4, "I", 1.1F);
    constexpr int limit = 8;  // 2 * 1.1 / 0.25
    set_axis(state, row.axis[0], row.axis[1], row.axis[2], row.level);
    Triples plain;
    for (int h = -limit; h <= limit; ++h) {
      for (int k = -limit; k <= limit; ++k) {
        for (int l = -limit; l <= limit; ++l) {
          const double off =
              k * double{row.axis[1]} + h * double{row.axis[0]} + l * double{row.axis[2]} - double(row.level);
          if ((h != 0 || k != 0 || l != 0) && (h + k + l) % 2 == 0 && std::abs(off) < 0.0001)
            plain.push_back({h, k, l});
        }
      }
    }
    Triples visited;
    try {
      visit_reflections_on_level(state, [&visited](const Indices<Integer>& hkl) {
        visited.push_back({hkl.h.value(), hkl.k.value(), hkl.l.value()});
      });
    } catch (const RunFailure&) {
      EXPECT_GT(std::abs(row.axis[0]), 32767) << "only a reference beyond 16 bits may fail";
      continue;
    }
    EXPECT_EQ(visited, plain) << row.axis[0] << " " << row.axis[1] << " " << row.axis[2];
  }
}

TEST(SpotPattern, FailsWithTheReason) {
  struct Row {
    const char* what;
    std::array<Single, 3> axis;
    int level;
    Single edge, half_width;
    const char* message;
  };
  for (const auto& row : {
           Row{"zero axis", {0, 0, 0}, 0, 4, 0.5, "division by zero: the length of the zone axis is 0"},
           Row{"zero reference",
               {1, -1, 0.2F},
               0,
               4,
               0.5,
               "division by zero: the length of the reference reflection is 0"},
           Row{"product of indices",
               {0, 0, 10000},
               0,
               4,
               0.5,
               "overflow: -40000 does not fit an Integer (-32768 to 32767)"},
           Row{"reference", {0, 0, 40000}, 0, 4, 0.5, "overflow: 40000 does not fit an Integer (-32768 to 32767)"},
           Row{"index limit", {0, 0, 1}, 0, 4, 10000, "overflow: 80000 does not fit an Integer (-32768 to 32767)"},
       }) {
    auto state = lattice(row.edge, "P", row.half_width);
    set_axis(state, row.axis[0], row.axis[1], row.axis[2], row.level);
    const std::string message = failure_of([&state] { (void)diffraction_spots(state, electrons); });
    EXPECT_EQ(message.substr(0, std::string(row.message).size()), row.message) << row.what;
  }
}

TEST(SpotPattern, FailsOnASpotBesideTheAxisBelow) {
  // (1 1 -50) lies 1.6 degrees from -[001] on the reference line. The two quarter turns differ by 5e-6, so that its
  // cosine comes out as 1 + 5e-6 / tan(1.6 deg) = 1.00018, whose square is above 1.0001.
  auto state = lattice(1, "P", 26);
  set_axis(state, 0, 0, 1, -50);
  const std::string message = failure_of([&state] { (void)diffraction_spots(state, electrons); });
  EXPECT_NE(message.find("square root of a negative number"), std::string::npos) << message;
  set_axis(state, 0, 0, 1, 50);
  EXPECT_FALSE(diffraction_spots(state, electrons).empty()) << "above, the cosine comes out below 1";
}

TEST(SpotGrey, FollowsThePower) {
  struct Row {
    Single intensity, black;
    GreyScale scale;
    int grey;
  };
  for (const auto& row : {Row{50, 100, {false, {}}, 128},      // 255 - Int(127.5)
                          Row{50, 100, {true, {}}, 75},        // 255 - Int(180.3)
                          Row{50, 100, {false, 2.0}, 192},     // 255 - Int(63.75)
                          Row{50, 100, {true, 1.0}, 128},      // the exponent goes before the option
                          Row{100, 100, {true, {}}, 0},        //
                          Row{300, 100, {true, {}}, 0},        // brighter than black
                          Row{3e38F, 1e-30F, {false, {}}, 0},  //
                          Row{0, 100, {true, {}}, 255},        //
                          Row{0.3F, 100, {false, {}}, 255},    // 255 - Int(0.77): not drawn
                          Row{0, 100, {true, 0.0}, 0}}) {      // 0 ^ 0 is 1
    EXPECT_EQ(spot_grey(row.intensity, row.black, row.scale), row.grey) << row.intensity;
  }
  EXPECT_EQ(failure_of([] { (void)spot_grey(0, 0, {}); }),
            "division by zero: the intensity that maps to black (DisplayScale) is 0");
  EXPECT_EQ(failure_of([] {
              (void)spot_grey(0, 1, {false, -1.0});
            }),
            "overflow: the relative intensity is 0, its power -1 is no number");
}

TEST(ZoneGeometry, ReferenceLiesInTheZone) {
  struct Row {
    std::array<double, 3> axis;
    std::array<int, 3> reference;
  };
  for (const auto& row :
       {Row{{0, 0, 1}, {1, 1, 0}}, Row{{1, 1, 1}, {1, 1, -2}}, Row{{1, -1, 1}, {1, 1, 0}}, Row{{1, 1, 0}, {0, 0, 1}},
        Row{{3, 2, -5}, {-5, -5, -5}}, Row{{0.5, 0, 0.5}, {1, 1, 0}},  // halves go up
        Row{{0.2, 0.3, -0.6}, {-1, -1, 0}},                            // floors
        Row{{1, -1, 0.2}, {0, 0, 0}}}) {
    const auto [h, k, l] = reference_reflection(row.axis[0], row.axis[1], row.axis[2]);
    EXPECT_EQ((std::array{h.value(), k.value(), l.value()}), row.reference);
  }
  EXPECT_EQ(plane_in_zone<Long>(1, 1, 0), (Indices<Long>{0, 0, -2})) << "no other reference for w = 0 here";
  EXPECT_EQ(plane_in_zone<Long>(0, 1, 40000).h, 40000);
}

TEST(ZoneGeometry, CrossVectorGivesTheZone) {
  EXPECT_EQ(cross_vector<Integer>({1, 0, 0}, {0, 1, 0}), (Indices<Integer>{0, 0, 1}));
  EXPECT_EQ(cross_vector<Integer>({0, 1, 0}, {0, 0, 1}), (Indices<Integer>{1, 0, 0}));
  EXPECT_EQ(cross_vector<Integer>({2, -1, 3}, {1, 4, -2}), (Indices<Integer>{-10, 7, 9}));
  const Indices<Integer> large{200, 0, 0};
  EXPECT_EQ(failure_of([&large] {
              (void)cross_vector<Integer>(large, {0, 200, 0});
            }),
            "overflow: 40000 does not fit an Integer (-32768 to 32767)");
  EXPECT_EQ(cross_vector<Long>({200, 0, 0}, {0, 200, 0}).l, 40000);
}

}  // namespace
}  // namespace zol
