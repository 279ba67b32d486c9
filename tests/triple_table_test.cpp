#include "analysis/triple_table.h"

#include <gtest/gtest.h>

#include <tuple>
#include <vector>

#include "tests/cartesian_cell.h"
#include "tests/recorded_task.h"
#include "tests/test_files.h"

namespace zol {
namespace {

CrystalState with_list(const std::vector<ListedReflection>& entries) {
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
  const auto state = with_list(std::vector<ListedReflection>(500, {1, 1, 0, 2}));
  TripleTable table;
  QuietTask task;
  EXPECT_EQ(failure_of([&] { (void)table.TripleS(0, 0); }), "index 0 of TripleS, which has not been allocated yet");
  table = make_triple_table(state, 500, task);
  EXPECT_EQ(table.TripleHKL(125'000'000, 7), 1);
  EXPECT_EQ(failure_of([&] { (void)table.TripleHKL(125'000'001, 0); }),
            "index 125000001 of TripleHKL is outside 0 to 125000000");
  EXPECT_EQ(failure_of([&] { (void)table.TripleHKL(1, 9); }), "index 9 of TripleHKL is outside 0 to 8");
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

}  // namespace
}  // namespace zol
