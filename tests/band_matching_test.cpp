// Matching on a cubic lattice, on a table made without windows. Whole solutions: scripts/indexing.zs.
#include "analysis/band_matching.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>
#include <vector>

#include "analysis/zone_azimuth.h"
#include "tests/projected_pattern.h"
#include "tests/recorded_task.h"
#include "tests/test_files.h"

namespace zol {
namespace {

/// Primitive cubic, a = 4, seen along [3 1 5].
class Matching : public testing::Test {
 protected:
  using Planes = std::vector<Vector>;
  static inline const Planes three{{1, 0, 0}, {1, 1, 0}, {-1, 1, 1}};

  /// Puts the planes into the table; the bands are those of the first three, the first axis turned by 30 degrees.
  void look_at(const Planes& planes, const Vector& uvw = {3, 1, 5}) {
    set_cell(state, cubic_cell(4));
    std::vector<ListedReflection> entries;
    for (const auto& hkl : planes) {
      const auto index = [&hkl](std::size_t i) { return static_cast<int>(hkl[i]); };
      entries.push_back({index(0), index(1), index(2), static_cast<Single>(100 - dot(hkl, hkl))});
    }
    set_list(state, entries);
    used = static_cast<Single>(planes.size());
    QuietTask unseen;
    table = make_triple_table(state, used, unseen);

    const ProjectedPattern pattern(CartesianCell(state), uvw, 30, {40, 0, 0, 1});
    for (int band = 0; band < 3; ++band) {
      const Vector& normal = planes[static_cast<std::size_t>(band)];
      const double azimuth = pattern.azimuth_deg(normal);
      bands.BandPhi(band) = static_cast<Single>((azimuth < 0 ? azimuth + 360 : azimuth) * degree);
      bands.BandTheta(band) = static_cast<Single>((90 - pattern.latitude_deg(normal)) * degree);
      const double angle = angle_deg(normal, planes[static_cast<std::size_t>((band + 1) % 3)]);
      bands.BandAngle(band) = static_cast<Single>(std::min(angle, 180 - angle));
      bands.BandS(band) = state.RefS(band + 1);
    }
  }

  std::vector<Solution> match() {
    task.steps.clear();
    auto found = match_bands(state, table, used, bands, settings, task);
    take_solutions(found, solutions);
    return std::move(found.solutions);
  }

  CrystalState state;
  TripleTable table;
  Single used = 0;
  MeasuredBands bands;
  MatchSettings settings{2.0F, false, false, {}, 1, false};
  SolutionTable solutions;
  RecordedTask task;
};

TEST_F(Matching, FindsTheRowAndTheDirection) {
  look_at(three);
  const auto found = match();
  ASSERT_EQ(found.size(), 1U);
  EXPECT_EQ(found[0].row, ((1 - 1) * 3 + (2 - 1)) * 3 + 3);
  EXPECT_NEAR(found[0].direction[0], 600, 1.1) << "they are truncated";
  EXPECT_EQ(solutions.MatchStatus, 0);
  EXPECT_EQ(solutions.SolutionTriple(1), found[0].row);
  EXPECT_EQ(solutions.SolutionDir(1, 3), found[0].direction[2]);
  EXPECT_EQ(task.steps.back(), (std::pair{27, 27}));
  for (const int count : {1, 50, 500}) {
    Solution last = found[0];
    last.number = count;
    EXPECT_EQ(solution_heading(count, false).size(), solution_line(table, last).size()) << count;
    last.width_error_percent.emplace();
    EXPECT_EQ(solution_heading(count, true).size(), solution_line(table, last).size()) << count;
  }
  for (const auto& [status, words] :
       {std::pair{0, ""}, {1, " Det Error Div. By Zero"}, {2, " No Real Ans."}, {3, ""}, {4, ""}}) {
    Solution with_status = found[0];
    with_status.status = status;
    EXPECT_EQ(solution_line(table, with_status).substr(74), words) << status;
  }
  // The mirror image of the pattern has the same triangle with the other sense of rotation.
  for (int i = 0; i < 3; ++i) bands.BandPhi(i) = static_cast<Single>(program_two_pi) - bands.BandPhi(i);
  EXPECT_TRUE(match().empty());
  settings.only_triangle = true;
  EXPECT_EQ(match().size(), 1U);
}

TEST_F(Matching, OmitsEquivalentsAndStopsForAdjustment) {
  // The second three planes are the first ones turned by 90 degrees about c.
  look_at({{1, 0, 0}, {1, 1, 0}, {-1, 1, 1}, {0, 1, 0}, {-1, 1, 0}, {-1, -1, 1}});
  const auto all = match();
  ASSERT_EQ(all.size(), 2U);
  for (const auto& [omit, first_row] : {std::pair{true, 1}, {false, all[1].row}}) {
    settings = {2.0F, false, omit, {}, first_row, !omit};
    const auto found = match();
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].row, all[omit ? 0 : 1].row);
    EXPECT_EQ(solutions.SolutionTriple(1), found[0].row);
    EXPECT_EQ(solutions.SolutionTriple(2), all[1].row) << "rows of the former run stay behind";
  }
  EXPECT_EQ(task.steps.back().first, all[1].row);
}

TEST_F(Matching, ComparesWidthsWhenAsked) {
  look_at({{1, 0, 0}, {1, 1, 0}, {-1, 1, 1}, {2, 0, 0}});
  EXPECT_EQ(match().size(), 2U) << "(1 0 0) and (2 0 0) have the same normal";
  bands.BandS(0) = to_single(bands.BandS(0) * 1.1);
  for (const auto& [percent, rows] : {std::pair{25.0F, 1U}, {5.0F, 0U}}) {
    settings.width_tolerance_percent = percent;
    EXPECT_EQ(match().size(), rows);
  }
}

TEST_F(Matching, Failures) {
  look_at(three);
  used = 3.1F;  // of 30 rows, three reflections fill 27
  QuietTask unseen;
  table = make_triple_table(state, used, unseen);
  settings.first_row = 28;
  for (int i = 0; i < 3; ++i) bands.BandAngle(i) = 0;
  EXPECT_EQ(failure_of([this] { (void)match(); }), "division by zero: RefS of a reflection of the triple table is 0")
      << "empty rows have angles of 0, like bands that were never measured";
  const auto azimuth_failure = [this](const Indices<Integer>& plane, const SingleTriple& direction) {
    return failure_of([&] { (void)zone_azimuth(state, plane, direction); });
  };
  EXPECT_EQ(azimuth_failure({1, 0, 0}, {1000, -1000, 0}),
            "division by zero: the length of the reference vector of a direction is 0");
  EXPECT_NE(azimuth_failure({1, 40, 0}, {1000, 500, 1}).find("60000"), std::string::npos) << "40 * 1500 over 16 bits";
}

}  // namespace
}  // namespace zol
