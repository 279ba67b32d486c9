// The table of triples, which of its rows match, and how they are shown. Whole solutions, widths and senses of
// rotation: scripts/indexing.zs.
#include "analysis/band_matching.h"

#include <gtest/gtest.h>

#include <array>
#include <random>
#include <tuple>
#include <utility>
#include <vector>

#include "analysis/former_solutions.h"
#include "analysis/triple_table.h"
#include "analysis/zone_azimuth.h"
#include "core/run_failure.h"
#include "tests/cartesian_cell.h"
#include "tests/crystals.h"
#include "tests/recorded_task.h"
#include "tests/test_files.h"

namespace zol {
namespace {

CrystalState with_list(const std::vector<GivenReflection>& entries) {
  CrystalState state = with_cell(cubic_cell(4));
  set_list(state, entries);
  return state;
}

TEST(ExtendOverTies, CutsNoEquivalentsApart) {
  struct Row {
    Single second, third, fourth, wanted, used;  // the first is 9
  };
  for (const auto& row :
       {Row{8, 7, 6, 2, 2}, Row{8, 8, 6, 2, 3}, Row{8, 7.9999F, 7.9998F, 2, 4}, Row{8, 7.99F, 6, 2, 2},
        Row{9, 9, 9, 1, 4}, Row{8, 7, 6, 4, 4}, Row{8, 8, 6, 1.5F, 2.5F}}) {  // 1.5 rounds to 2
    const auto list = with_list({{1, 0, 0, 9}, {1, 0, 0, row.second}, {1, 0, 0, row.third}, {1, 0, 0, row.fourth}});
    EXPECT_EQ(extend_over_ties(list, row.wanted), row.used) << row.third;
  }
}

TEST(TripleTable, HoldsEveryOrderedTriple) {
  const auto state = with_list({{1, 0, 0, 9}, {1, 1, 0, 8}, {1, 1, 1, 7}, {-2, 1, 0, 6}, {0, 0, 3, 5}});
  const CartesianCell cell(state);
  RecordedTask task;
  const TripleTable table = make_triple_table(state, 4, task);
  ASSERT_EQ(table.upper_row(), 64) << "the fifth reflection is not used";
  EXPECT_EQ(task.steps, (std::vector<std::pair<int, int>>{{1, 4}, {2, 4}, {3, 4}, {4, 4}}));
  EXPECT_EQ(task.checks, 4);
  EXPECT_EQ(table.TripleAngle(0, 0), 0);
  for (int row = 1; row <= 64; ++row) {
    const std::array places{(row - 1) / 16 + 1, (row - 1) / 4 % 4 + 1, (row - 1) % 4 + 1};
    const auto normal = [&](int c) {
      const int i = places[static_cast<std::size_t>(c % 3)];
      return cell.normal(state.RefH(i).value(), state.RefK(i).value(), state.RefL(i).value());
    };
    for (int c = 0; c < 3; ++c) {
      const int place = places[static_cast<std::size_t>(c)];
      EXPECT_EQ(
          std::tuple(table.TripleHKL(row, 3 * c), table.TripleHKL(row, 3 * c + 1), table.TripleHKL(row, 3 * c + 2),
                     table.TripleS(row, c), table.TripleI(row, c)),
          std::tuple(state.RefH(place), state.RefK(place), state.RefL(place), state.RefS(place), state.RefI(place)))
          << row << ", " << c;
      const double angle = angle_deg(normal(c), normal(c + 1));
      EXPECT_NEAR(table.TripleAngle(row, c), std::min(angle, 180 - angle), 0.03) << row << ", " << c;  // arc cosines
    }
  }
}

TEST(TripleTable, HoldsAHundredMillionRowsInAMegabyte) {
  const auto state = with_list(std::vector<GivenReflection>(500, {1, 1, 0, 2}));
  TripleTable table;
  QuietTask task;
  EXPECT_TRUE(fails_with("TripleS, which has not been allocated yet", [&] { (void)table.TripleS(0, 0); }));
  table = make_triple_table(state, 500, task);
  EXPECT_EQ(table.TripleHKL(125'000'000, 7), 1);
  EXPECT_TRUE(fails_with("index 125000001 of TripleHKL is", [&] { (void)table.TripleHKL(125'000'001, 0); }));
  EXPECT_TRUE(fails_with("index 9 of TripleHKL is outside 0 to 8", [&] { (void)table.TripleHKL(1, 9); }));
  table.empty_indices_and_angles(1);
  EXPECT_EQ(table.TripleHKL(1, 0), 0);
  EXPECT_EQ(table.TripleS(125'000'000, 2), state.RefS(500)) << "lengths and intensities stay";
}

TEST(TripleTable, RoundsRowsAndReflectionsEachForItself) {
  auto state = with_list({{1, 0, 0}, {1, 1, 0}, {1, 1, 1}, {0, 0, 2}});
  QuietTask task;
  const TripleTable table = make_triple_table(state, 3.1F, task);
  EXPECT_EQ(table.upper_row(), 30);
  EXPECT_EQ(table.TripleS(27, 2), state.RefS(3));
  EXPECT_EQ(table.TripleS(28, 2), 0);
  const auto failure = [&](Single used) { return failure_of([&] { (void)make_triple_table(state, used, task); }); };
  EXPECT_EQ(failure(3.6F), "index 48 of TripleHKL is outside 0 to 47");
  EXPECT_NE(failure(1300), "") << "1300^3 rows overflow a Long";
  state.RefS(2) = 0;
  EXPECT_EQ(failure(3), "division by zero: the length of a reflection is 0");
}

/// Bands of (1 0 0), (1 1 0) and (-1 1 1) of a cubic crystal, their angles alone.
class Matching : public testing::Test {
 protected:
  void make_table(const std::vector<GivenReflection>& entries, Single wanted) {
    state = with_list(entries);
    used = wanted;
    QuietTask unseen;
    table = make_triple_table(state, used, unseen);
    const std::array angles{45.0F, 90.0F, 54.7356F};
    for (int i = 0; i < 3; ++i) bands.BandAngle(i) = angles[static_cast<std::size_t>(i)];
  }
  /// The rows that are found; the last one is in `shown`.
  std::vector<int> match() {
    task.steps.clear();
    const auto found = match_bands(state, table, used, bands, settings, task);
    take_solutions(found, solutions);
    std::vector<int> rows;
    for (const Solution& solution : found.solutions) rows.push_back(solution.row);
    if (!rows.empty()) shown = found.solutions.back();
    return rows;
  }

  CrystalState state;
  TripleTable table;
  Single used = 0;
  MeasuredBands bands;
  MatchSettings settings{2.0F, true, false, {}, 1, false};
  SolutionTable solutions;
  Solution shown;
  RecordedTask task;
};

TEST_F(Matching, OmitsEquivalentsAndStopsForAdjustment) {
  // The fourth is equivalent to the first, the fifth differs in its spacing alone, the sixth in its intensity.
  make_table({{1, 0, 0, 9}, {1, 1, 0, 8}, {-1, 1, 1, 7}, {0, 1, 0, 9.008F}, {2, 0, 0, 9}, {0, 1, 0, 9.01F}}, 6);
  const auto row = [](int first) { return ((first - 1) * 6 + (2 - 1)) * 6 + 3; };
  EXPECT_EQ(match(), (std::vector{row(1), row(4), row(5), row(6)}));
  EXPECT_EQ(task.checks, 1 + 4) << "at the first of 4096 rows, and at each that fits";
  EXPECT_EQ(task.steps.front(), (std::pair{1, 216}));
  EXPECT_EQ(task.steps.back(), (std::pair{216, 216}));
  EXPECT_EQ(solutions.MatchStatus, 0);
  EXPECT_EQ(solutions.SolutionDir(4, 3), shown.direction[2]);
  settings.omit_equivalents = true;
  EXPECT_EQ(match(), (std::vector{row(1), row(5), row(6)}));
  EXPECT_EQ(solutions.SolutionTriple(2), row(5));
  settings = {2.0F, true, false, {}, row(4) - 6, true};  // from within a pair that does not fit
  EXPECT_EQ(match(), (std::vector{row(4)}));
  EXPECT_EQ(task.steps.back().first, row(4));
  EXPECT_EQ(solutions.SolutionTriple(2), row(5)) << "rows of the former run stay behind";
}

// Values of a few kinds within, on and beyond 0.1 per cent of each other, in some tables also 0.
TEST(FormerSolutions, AreFoundAsByLookingAtEach) {
  std::mt19937 random(7);
  int equivalents = 0;
  for (int trial = 0; trial < 60; ++trial) {
    constexpr int count = 6;
    const auto value = [&](bool zeros) {
      constexpr std::array values{1.0F, 1.0009F, 1.001F, 1.0011F, -1.0F, 2.0F, 0.0F};
      return values[random() % (values.size() - (zeros ? 0 : 1))];
    };
    std::vector<TripleTable::Plane> planes(count);
    for (auto& plane : planes) plane = {{}, value(trial % 6 == 0), value(trial % 3 == 0)};
    TripleTable table(count * count * count + 2, planes, std::vector<Single>(std::size_t{count} * count));
    if (trial % 2 == 0) table.empty_indices_and_angles(1);
    FormerSolutions former(table);
    for (int step = 0; step < 40; ++step) {
      const int row = static_cast<int>(random() % (count * count * count + (trial % 5 == 0 ? 3 : 1)));
      const auto result = [row](auto has_equivalent) {
        try {
          return has_equivalent(row) ? std::string("yes") : "no";
        } catch (const RunFailure& failure) {
          return failure.message();
        }
      };
      const std::string plain = result([&former](int at) { return former.has_equivalent_plainly(at); });
      ASSERT_EQ(result([&former](int at) { return former.has_equivalent(at); }), plain) << trial << ' ' << step;
      equivalents += plain == "yes" ? 1 : 0;
      former.add(row);
    }
  }
  EXPECT_GT(equivalents, 100);
}

TEST_F(Matching, LinesAreAsLongAsTheirHeading) {
  make_table({{1, 0, 0}, {1, 1, 0}, {-1, 1, 1}}, 3);
  ASSERT_EQ(match().size(), 1U);
  for (const auto& [status, words] :
       {std::pair{0, ""}, {1, " Det Error Div. By Zero"}, {2, " No Real Ans."}, {3, ""}, {4, ""}}) {
    shown.status = status;
    EXPECT_EQ(solution_line(table, shown).substr(74), words) << status;
  }
  for (const bool with_widths : {false, true}) {
    if (with_widths) shown.width_error_percent.emplace();
    for (shown.number = 1; shown.number <= 500; shown.number += 45) {
      EXPECT_EQ(solution_heading(shown.number, with_widths).size(), solution_line(table, shown).size());
    }
  }
}

TEST_F(Matching, FailsAtEmptyRowsAndBeyond16Bits) {
  make_table({{1, 0, 0}, {1, 1, 0}, {-1, 1, 1}}, 3.1F);  // of 30 rows, three reflections fill 27
  settings.first_row = 28;
  for (const int other : {0, 1, 2}) {  // an angle that is not 0, as those of empty rows and unmeasured bands are
    for (int i = 0; i < 3; ++i) bands.BandAngle(i) = i == other ? 45.0F : 0.0F;
    EXPECT_TRUE(match().empty());
  }
  for (int i = 0; i < 3; ++i) bands.BandAngle(i) = 0;
  EXPECT_TRUE(fails_with("RefS of a reflection of the triple table is 0", [this] { (void)match(); }));
  EXPECT_TRUE(fails_with("the length of the reference vector of a direction is 0", [this] {
    (void)zone_azimuth(state, {1, 0, 0}, {1000, -1000, 0});
  }));
  EXPECT_TRUE(fails_with("60000", [this] { (void)zone_azimuth(state, {1, 40, 0}, {1000, 500, 1}); })) << "40 * 1500";
}

}  // namespace
}  // namespace zol
