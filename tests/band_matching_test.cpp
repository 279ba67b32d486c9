// Matching on a cubic lattice, on a table made without windows.
#include "analysis/band_matching.h"

#include <gtest/gtest.h>

#include <cmath>

#include "analysis/zone_azimuth.h"
#include "core/cell_geometry.h"
#include "tests/projected_pattern.h"
#include "tests/test_files.h"

namespace zol {
namespace {

struct RecordedProgress : Progress {
  void report(int done, int total) override { steps.emplace_back(done, total); }
  std::vector<std::pair<int, int>> steps;
};

/// Primitive cubic, a = 4, with the planes given and the bands that they make.
class Matching : public testing::Test {
 protected:
  using Hkl = std::array<int, 3>;

  void use_planes(const std::vector<Hkl>& planes) {
    set_cell(state, cubic_cell(4));
    const int count = static_cast<int>(planes.size());
    state.RefCount = count;
    for (auto* array : {&state.RefH, &state.RefK, &state.RefL}) array->allocate(count + 1);
    for (auto* array : {&state.RefS, &state.RefI}) array->allocate(count + 1);
    for (int i = 1; i <= count; ++i) {
      const auto& [h, k, l] = planes[static_cast<std::size_t>(i - 1)];
      state.RefH(i) = h;
      state.RefK(i) = k;
      state.RefL(i) = l;
      state.RefS(i) = static_cast<Single>(std::sqrt(h * h + k * k + l * l) / 8);
      state.RefI(i) = static_cast<Single>(100 - h * h - k * k - l * l);
    }
    used = static_cast<Single>(count);
    RecordedProgress unseen;
    fill_triple_table(state, used, table, unseen);
  }

  /// Bands of three planes around a direction, the first axis turned by 30 degrees.
  void look_along(const Vector& uvw, const std::array<Vector, 3>& planes) {
    const CartesianCell cell(state);
    const ProjectedPattern pattern(cell, uvw, 30, {40, 0, 0, 1});
    for (std::size_t i = 0; i < 3; ++i) {
      const auto band = static_cast<int>(i);
      const double azimuth = pattern.azimuth_deg(planes[i]);
      bands.BandPhi(band) = static_cast<Single>((azimuth < 0 ? azimuth + 360 : azimuth) * degree);
      bands.BandTheta(band) = static_cast<Single>((90 - pattern.latitude_deg(planes[i])) * degree);
      const double cosine = dot(unit(cell.normal(planes[i])), unit(cell.normal(planes[(i + 1) % 3])));
      bands.BandAngle(band) = static_cast<Single>(std::acos(std::abs(cosine)) / degree);
      bands.BandS(band) = static_cast<Single>(std::sqrt(dot(planes[i], planes[i])) / 8);
    }
  }

  std::vector<Solution> match() { return match_bands(state, table, used, bands, settings, solutions, progress); }

  CrystalState state;
  TripleTable table;
  Single used = 0;
  MeasuredBands bands;
  MatchSettings settings{2.0F, false, false, {}, 1, false};
  SolutionTable solutions;
  RecordedProgress progress;
};

TEST_F(Matching, FindsTheRowAndTheDirection) {
  use_planes({{1, 0, 0}, {1, 1, 0}, {-1, 1, 1}});
  look_along({3, 1, 5}, {Vector{1, 0, 0}, Vector{1, 1, 0}, Vector{-1, 1, 1}});
  const auto found = match();
  ASSERT_EQ(found.size(), 1U);
  EXPECT_EQ(found[0].row, ((1 - 1) * 3 + (2 - 1)) * 3 + 3);
  EXPECT_NEAR(found[0].direction[0], 600, 1.1);
  EXPECT_NEAR(found[0].direction[1], 200, 1.1);
  EXPECT_NEAR(found[0].direction[2], 1000, 1.1);
  EXPECT_EQ(solutions.MatchStatus, 0);
  EXPECT_EQ(solutions.SolutionTriple(1), found[0].row);
  EXPECT_EQ(solutions.SolutionDir(1, 3), found[0].direction[2]);
  EXPECT_EQ(progress.steps.back(), (std::pair{27, 27}));
  EXPECT_EQ(solution_line(table, found[0]).substr(0, 38), "1    1   0   0   1   1   0  -1   1   1");
  EXPECT_EQ(solution_line(table, found[0]).size(), 2U + 36 + 21 + 15);
}

// The mirror image of the pattern has the same triangle with the other sense of rotation.
TEST_F(Matching, SenseOfRotationCountsUnlessOnlyTheTriangleIsWanted) {
  use_planes({{1, 0, 0}, {1, 1, 0}, {-1, 1, 1}});
  look_along({3, 1, 5}, {Vector{1, 0, 0}, Vector{1, 1, 0}, Vector{-1, 1, 1}});
  for (int i = 0; i < 3; ++i) bands.BandPhi(i) = static_cast<Single>(program_two_pi) - bands.BandPhi(i);
  EXPECT_TRUE(match().empty());
  settings.only_triangle = true;
  EXPECT_EQ(match().size(), 1U);
}

TEST_F(Matching, OmitsEquivalentsBySpacingAndIntensity) {
  // The second set of planes is the first one turned by 90 degrees about c.
  use_planes({{1, 0, 0}, {1, 1, 0}, {-1, 1, 1}, {0, 1, 0}, {-1, 1, 0}, {-1, -1, 1}});
  look_along({3, 1, 5}, {Vector{1, 0, 0}, Vector{1, 1, 0}, Vector{-1, 1, 1}});
  const auto all = match();
  EXPECT_EQ(all.size(), 2U);
  settings.omit_equivalents = true;
  const auto distinct = match();
  ASSERT_EQ(distinct.size(), 1U);
  EXPECT_EQ(distinct[0].row, all[0].row);
  EXPECT_EQ(solutions.SolutionTriple(2), all[1].row) << "rows of the former run stay behind";
}

TEST_F(Matching, ComparesWidthsWhenAsked) {
  use_planes({{1, 0, 0}, {1, 1, 0}, {-1, 1, 1}, {2, 0, 0}});
  look_along({3, 1, 5}, {Vector{1, 0, 0}, Vector{1, 1, 0}, Vector{-1, 1, 1}});
  EXPECT_EQ(match().size(), 2U) << "(1 0 0) and (2 0 0) have the same normal";
  settings.width_tolerance_percent = 25;
  bands.BandS(0) = to_single(bands.BandS(0) * 1.1);
  const auto found = match();
  ASSERT_EQ(found.size(), 1U);
  const auto line = solution_line(table, found[0]);
  EXPECT_EQ(line.substr(line.size() - 18), "  10.0   0.0   0.0") << line;
  settings.width_tolerance_percent = 5;
  EXPECT_TRUE(match().empty());
}

TEST_F(Matching, ThreeBandsOfOneZoneHaveTwoRoots) {
  use_planes({{0, 1, 0}, {0, 1, 1}, {0, 1, -1}});
  look_along({3, 1, 2}, {Vector{0, 1, 0}, Vector{0, 1, 1}, Vector{0, 1, -1}});
  settings.only_triangle = true;
  const auto found = match();
  ASSERT_EQ(found.size(), 4U) << "the row and the one with the last two planes exchanged";
  EXPECT_EQ(found[0].solved_by, SolvedBy::FirstRoot);
  EXPECT_EQ(found[1].solved_by, SolvedBy::SecondRoot);
  EXPECT_EQ(solutions.MatchStatus, 21);
  EXPECT_NEAR(found[0].direction[0], 1000, 1.1);
  EXPECT_NEAR(found[0].direction[1], 333, 1.1);
  EXPECT_NEAR(found[0].direction[2], 666, 1.1);
  EXPECT_NEAR(found[1].direction[0], -1000, 1.1);
  EXPECT_EQ(solution_line(table, found[0]).substr(74), "  A1");
  EXPECT_EQ(solution_line(table, found[1]).substr(74), "  A2");
}

TEST_F(Matching, AdjustmentStopsAtTheFirstSolutionFromItsRow) {
  use_planes({{1, 0, 0}, {1, 1, 0}, {-1, 1, 1}, {0, 1, 0}, {-1, 1, 0}, {-1, -1, 1}});
  look_along({3, 1, 5}, {Vector{1, 0, 0}, Vector{1, 1, 0}, Vector{-1, 1, 1}});
  const auto all = match();
  settings.first_row = all[1].row;
  settings.stop_at_first_solution = true;
  const auto adjusted = match();
  ASSERT_EQ(adjusted.size(), 1U);
  EXPECT_EQ(adjusted[0].row, all[1].row);
  EXPECT_EQ(solutions.SolutionTriple(1), all[1].row);
  EXPECT_EQ(progress.steps.back().first, all[1].row);
}

TEST_F(Matching, WordsBehindALine) {
  use_planes({{1, 0, 0}, {1, 1, 0}, {-1, 1, 1}});
  Solution solution;
  solution.number = 1;
  solution.row = 1;
  for (const auto& [status, words] :
       {std::pair{0, ""}, {1, " Det Error Div. By Zero"}, {2, " No Real Ans."}, {3, ""}, {4, ""}}) {
    solution.status = status;
    EXPECT_EQ(solution_line(table, solution).substr(74), words) << status;
  }
}

TEST_F(Matching, Failures) {
  use_planes({{1, 0, 0}, {1, 1, 0}, {-1, 1, 1}});
  table.TripleAngle.allocate(30, 2);
  table.TripleHKL.allocate(30, 8);
  table.TripleS.allocate(30, 2);
  EXPECT_EQ(failure_of([this] { (void)match(); }), "division by zero: RefS of a reflection of the triple table is 0")
      << "empty rows have angles of 0, like bands that were never measured";
  EXPECT_EQ(failure_of([this] {
              (void)zone_azimuth(state, {1, 0, 0}, {1000, -1000, 0});
            }),
            "division by zero: the length of the reference vector of a direction is 0");
  EXPECT_NE(failure_of([this] {
              (void)zone_azimuth(state, {1, 40, 0}, {1000, 500, 1});
            }).find("60000"),
            std::string::npos)
      << "40 times 1500 leaves 16 bits";
}

// Three planes of one pattern ask for the same rotation, also around the full turn.
TEST_F(Matching, RotationsOfThreeBandsAgree) {
  use_planes({{1, 0, 0}, {1, 1, 0}, {-1, 1, 1}});
  look_along({3, 1, 5}, {Vector{1, 0, 0}, Vector{1, 1, 0}, Vector{-1, 1, 1}});
  const auto found = match();
  ASSERT_EQ(found.size(), 1U);
  const auto at_30 = in_plane_rotations(state, table, bands, found[0].row, found[0].direction);
  EXPECT_NEAR(at_30.mean() / degree, 30, 0.2);
  const std::array near_zero{-30.1 * degree, -29.9 * degree, -29.9 * degree};
  for (std::size_t i = 0; i < 3; ++i) {
    auto& phi = bands.BandPhi(static_cast<int>(i));
    phi = to_single(double{phi} + near_zero[i]);
    if (phi < 0) phi = to_single(double{phi} + program_two_pi);
  }
  const auto at_0 = in_plane_rotations(state, table, bands, found[0].row, found[0].direction);
  EXPECT_NEAR(at_0.mean() / degree, 0.03, 0.2);
}

}  // namespace
}  // namespace zol
