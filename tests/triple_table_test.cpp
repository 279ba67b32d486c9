#include "analysis/triple_table.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

#include "core/cell_geometry.h"
#include "tests/crystals.h"
#include "tests/recorded_task.h"
#include "tests/test_files.h"

namespace zol {
namespace {

CrystalState with_list(const std::vector<ListedReflection>& entries) {
  CrystalState state = with_cell(cubic_cell(4));
  set_list(state, entries);
  return state;
}

TEST(SortByWeightedIntensity, ExchangesAllButTheStructureFactor) {
  struct Row {
    std::vector<std::pair<Single, Single>> s_and_intensity;
    std::vector<int> order;
  };
  for (const auto& [list, order] : {
           Row{{{1, 1}, {1, 3}, {2, 2}, {1, 1}}, {3, 2, 1, 4}},
           // Round 1 takes 4 (the first 9), round 2 takes 3, then nothing positive is left and place 3 stays
           // remembered: rounds 3 and 4 exchange with it.
           Row{{{1, 0}, {1, 0}, {1, 5}, {1, 9}, {1, 0}}, {4, 3, 1, 2, 5}},
           Row{{{1, 0}, {1, 0}, {1, -1}}, {1, 2, 3}},
       }) {
    std::vector<ListedReflection> entries;
    entries.reserve(list.size());
    for (const auto& [s, intensity] : list)
      entries.push_back({1 + static_cast<int>(entries.size()), 0, 0, intensity, s});
    auto state = with_list(entries);
    for (int i = 1; i <= state.RefCount.value(); ++i) state.RefA(i) = static_cast<Single>(i);
    QuietTask task;
    reorder(state, order_by_weighted_intensity(state, task));
    for (int i = 1; i <= state.RefCount.value(); ++i) {
      SCOPED_TRACE(testing::PrintToString(order) + ", place " + std::to_string(i));
      const int from = order[static_cast<std::size_t>(i - 1)];
      EXPECT_EQ(state.RefH(i), from);
      EXPECT_EQ(std::pair(state.RefS(i), state.RefI(i)), list[static_cast<std::size_t>(from - 1)]);
      EXPECT_EQ(state.RefA(i), i) << "RefA keeps the former order";
    }
  }
}

TEST(ExtendOverTies, CutsNoEquivalentsApart) {
  struct Row {
    std::vector<Single> intensities;
    Single wanted, used;
  };
  for (const auto& row : {Row{{9, 8, 7, 6}, 2, 2}, Row{{9, 8, 8, 6}, 2, 3}, Row{{9, 8, 7.9999F, 7.9998F}, 2, 4},
                          Row{{9, 8, 7.99F, 6}, 2, 2}, Row{{5, 5, 5, 5}, 1, 4}, Row{{9, 8, 7, 6}, 4, 4},
                          Row{{9, 8, 8, 6}, 1.5F, 2.5F}}) {  // 1.5 rounds to 2
    std::vector<ListedReflection> entries;
    for (const Single intensity : row.intensities) entries.push_back({1, 0, 0, intensity});
    EXPECT_EQ(extend_over_ties(with_list(entries), row.wanted), row.used) << row.wanted;
  }
}

/// Angle between the normals of two reflections, worked out where it is needed.
Single folded_angle(const CrystalState& state, int a, int b) {
  const Single ga = state.RefS(a) + state.RefS(a);
  const Single gb = state.RefS(b) + state.RefS(b);
  const double product =
      Product(state, state.RefH(a), state.RefK(a), state.RefL(a), state.RefH(b), state.RefK(b), state.RefL(b));
  const Single angle = ArcCos(to_single(product / double{ga} / double{gb}));
  return angle > 90 ? to_single(180.0 - double{angle}) : angle;
}

TEST(TripleTable, HoldsEveryOrderedTriple) {
  const auto state = with_list({{1, 0, 0, 9}, {1, 1, 0, 8}, {1, 1, 1, 7}, {-2, 1, 0, 6}, {0, 0, 3, 5}});
  RecordedTask task;
  const TripleTable table = make_triple_table(state, 4, task);
  ASSERT_EQ(table.upper_row(), 64) << "the fifth reflection is not used";
  EXPECT_EQ(task.steps, (std::vector<std::pair<int, int>>{{1, 4}, {2, 4}, {3, 4}, {4, 4}}));
  EXPECT_EQ(table.TripleAngle(0, 0), 0);
  for (int row = 1; row <= 64; ++row) {
    const std::array places{(row - 1) / 16 + 1, (row - 1) / 4 % 4 + 1, (row - 1) % 4 + 1};
    for (int c = 0; c < 3; ++c) {
      SCOPED_TRACE("row " + std::to_string(row) + ", column " + std::to_string(c));
      const int place = places[static_cast<std::size_t>(c)];
      EXPECT_EQ(table.TripleHKL(row, 3 * c), state.RefH(place));
      EXPECT_EQ(table.TripleHKL(row, 3 * c + 1), state.RefK(place));
      EXPECT_EQ(table.TripleHKL(row, 3 * c + 2), state.RefL(place));
      EXPECT_EQ(table.TripleS(row, c), state.RefS(place));
      EXPECT_EQ(table.TripleI(row, c), state.RefI(place));
      EXPECT_EQ(table.TripleAngle(row, c), folded_angle(state, place, places[static_cast<std::size_t>((c + 1) % 3)]));
    }
  }
  constexpr int row = 1 * 4 + 3;  // (100) (110) (111)
  EXPECT_NEAR(table.TripleAngle(row, 0), 45, 1e-3);
  EXPECT_NEAR(table.TripleAngle(row, 1), 35.2644, 1e-3);
  EXPECT_NEAR(table.TripleAngle(row, 2), 54.7356, 1e-3);
}

TEST(TripleTable, HoldsAHundredMillionRowsInAMegabyte) {
  const auto state = with_list(std::vector<ListedReflection>(500, {1, 1, 0, 2}));
  TripleTable table;
  RecordedTask task;
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
  const auto state = with_list({{1, 0, 0}, {1, 1, 0}, {1, 1, 1}, {0, 0, 2}});
  RecordedTask task;
  const TripleTable table = make_triple_table(state, 3.1F, task);
  EXPECT_EQ(table.upper_row(), 30);
  EXPECT_EQ(table.TripleS(27, 2), state.RefS(3));
  EXPECT_EQ(table.TripleS(28, 2), 0);
  QuietTask unseen;
  EXPECT_EQ(failure_of([&] { (void)make_triple_table(state, 3.6F, unseen); }),
            "index 48 of TripleHKL is outside 0 to 47");
}

TEST(TripleTable, FailsOnAReflectionOfNoLength) {
  auto state = with_list({{1, 0, 0}, {1, 1, 0}, {1, 1, 1}});
  state.RefS(2) = 0;
  RecordedTask task;
  EXPECT_EQ(failure_of([&] { (void)make_triple_table(state, 3, task); }),
            "division by zero: the length of a reflection is 0");
  EXPECT_THROW((void)make_triple_table(state, 1300, task), RunFailure) << "1300^3 rows overflow a Long";
}

}  // namespace
}  // namespace zol
