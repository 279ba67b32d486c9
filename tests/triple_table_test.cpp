#include "analysis/triple_table.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "core/cell_geometry.h"
#include "tests/test_files.h"

namespace zol {
namespace {

struct Entry {
  int h, k, l;
  Single s, intensity;
};

CrystalState with_list(const std::vector<Entry>& entries) {
  CrystalState state;
  state.CellA = state.CellB = state.CellC = 4;
  state.CellAlpha = state.CellBeta = state.CellGamma = 90;
  calc_cell(state);
  const int count = static_cast<int>(entries.size());
  state.RefCount = count;
  for (auto* array : {&state.RefH, &state.RefK, &state.RefL}) array->allocate(count + 1);
  for (auto* array : {&state.RefS, &state.RefI, &state.RefA}) array->allocate(count + 1);
  for (int i = 1; i <= count; ++i) {
    const auto& entry = entries[static_cast<std::size_t>(i - 1)];
    state.RefH(i) = entry.h;
    state.RefK(i) = entry.k;
    state.RefL(i) = entry.l;
    state.RefS(i) = entry.s;
    state.RefI(i) = entry.intensity;
    state.RefA(i) = static_cast<Single>(i);
  }
  return state;
}

std::vector<int> order(const CrystalState& state) {
  std::vector<int> h;
  for (int i = 1; i <= state.RefCount.value(); ++i) h.push_back(state.RefH(i).value());
  return h;
}

TEST(SortByWeightedIntensity, ExchangesAllButTheStructureFactor) {
  auto state = with_list({{1, 0, 0, 1, 1}, {2, 0, 0, 1, 3}, {3, 0, 0, 2, 2}, {4, 0, 0, 1, 1}});
  sort_by_weighted_intensity(state);
  EXPECT_EQ(order(state), (std::vector{3, 2, 1, 4}));
  EXPECT_EQ(state.RefI(1), 2);
  EXPECT_EQ(state.RefS(1), 2);
  EXPECT_EQ(state.RefA(1), 1) << "RefA keeps the former order";
}

// Round 1 takes 4 (the first 9), round 2 takes 3, then nothing positive is left and place 3 stays remembered: rounds 3
// and 4 exchange with it.
TEST(SortByWeightedIntensity, KeepsItsRememberedPlace) {
  auto state = with_list({{1, 0, 0, 1, 0}, {2, 0, 0, 1, 0}, {3, 0, 0, 1, 5}, {4, 0, 0, 1, 9}, {5, 0, 0, 1, 0}});
  sort_by_weighted_intensity(state);
  EXPECT_EQ(order(state), (std::vector{4, 3, 1, 2, 5}));
}

TEST(SortByWeightedIntensity, LeavesAListWithoutIntensities) {
  auto state = with_list({{1, 0, 0, 1, 0}, {2, 0, 0, 1, 0}, {3, 0, 0, 1, -1}});
  sort_by_weighted_intensity(state);
  EXPECT_EQ(order(state), (std::vector{1, 2, 3}));
}

TEST(ExtendOverTies, CutsNoEquivalentsApart) {
  struct Row {
    std::vector<Single> intensities;
    Single wanted, used;
  };
  for (const auto& row : {Row{{9, 8, 7, 6}, 2, 2}, Row{{9, 8, 8, 6}, 2, 3}, Row{{9, 8, 7.9999F, 7.9998F}, 2, 4},
                          Row{{9, 8, 7.99F, 6}, 2, 2}, Row{{5, 5, 5, 5}, 1, 4}, Row{{9, 8, 7, 6}, 4, 4},
                          Row{{9, 8, 8, 6}, 1.5F, 2.5F}}) {  // 1.5 rounds to 2
    std::vector<Entry> entries;
    for (const Single intensity : row.intensities) entries.push_back({1, 0, 0, 1, intensity});
    EXPECT_EQ(extend_over_ties(with_list(entries), row.wanted), row.used) << row.wanted;
  }
}

/// The table row by row, each angle worked out where it is needed.
void fill_plainly(const CrystalState& state, int count, TripleTable& table) {
  const auto folded = [&state](int a, int b) {
    const Single ga = state.RefS(a) + state.RefS(a);
    const Single gb = state.RefS(b) + state.RefS(b);
    const Single cosine = to_single(double{Product(state, state.RefH(a), state.RefK(a), state.RefL(a), state.RefH(b),
                                                   state.RefK(b), state.RefL(b))} /
                                    double{ga} / double{gb});
    const Single angle = ArcCos(cosine);
    return angle > 90 ? to_single(180.0 - double{angle}) : angle;
  };
  table.TripleAngle.allocate(count * count * count, 2);
  int row = 0;
  for (int i = 1; i <= count; ++i) {
    for (int j = 1; j <= count; ++j) {
      for (int k = 1; k <= count; ++k) {
        ++row;
        table.TripleAngle(row, 0) = folded(i, j);
        table.TripleAngle(row, 1) = folded(j, k);
        table.TripleAngle(row, 2) = folded(k, i);
      }
    }
  }
}

struct RecordedProgress : Progress {
  void report(int done, int total) override {
    steps.push_back(done);
    last_total = total;
  }
  std::vector<int> steps;
  int last_total = 0;
};

TEST(TripleTable, HoldsEveryOrderedTriple) {
  std::vector<Entry> entries{{1, 0, 0, 0, 9}, {1, 1, 0, 0, 8}, {1, 1, 1, 0, 7}, {-2, 1, 0, 0, 6}, {0, 0, 3, 0, 5}};
  for (auto& entry : entries) {
    entry.s = static_cast<Single>(std::sqrt(entry.h * entry.h + entry.k * entry.k + entry.l * entry.l) / 8.0);
  }
  const auto state = with_list(entries);
  TripleTable table;
  RecordedProgress progress;
  fill_triple_table(state, 4, table, progress);
  ASSERT_EQ(table.TripleHKL.upper_row(), 64);
  EXPECT_EQ(progress.steps, (std::vector{1, 2, 3, 4}));
  EXPECT_EQ(progress.last_total, 4);

  const int row = ((1 - 1) * 4 + (2 - 1)) * 4 + 3;  // (100) (110) (111)
  EXPECT_EQ(table.TripleHKL(row, 0), 1);
  EXPECT_EQ(table.TripleHKL(row, 4), 1);
  EXPECT_EQ(table.TripleHKL(row, 5), 0);
  EXPECT_EQ(table.TripleHKL(row, 8), 1);
  EXPECT_EQ(table.TripleI(row, 2), 7);
  EXPECT_NEAR(table.TripleAngle(row, 0), 45, 1e-3);
  EXPECT_NEAR(table.TripleAngle(row, 1), 35.2644, 1e-3);
  EXPECT_NEAR(table.TripleAngle(row, 2), 54.7356, 1e-3);
  EXPECT_EQ(table.TripleAngle(0, 0), 0);
  const int obtuse = ((1 - 1) * 4 + (4 - 1)) * 4 + 1;  // (100) (-210): 153.4 degrees, folded
  EXPECT_NEAR(table.TripleAngle(obtuse, 0), 26.5651, 1e-3);

  TripleTable plain;
  fill_plainly(state, 4, plain);
  for (int r = 0; r <= 64; ++r) {
    for (int c = 0; c < 3; ++c) ASSERT_EQ(table.TripleAngle(r, c), plain.TripleAngle(r, c)) << r << ' ' << c;
  }
}

TEST(TripleTable, FailsOnAReflectionOfNoLength) {
  const auto state = with_list({{1, 0, 0, 0.125F, 9}, {1, 1, 0, 0, 8}, {1, 1, 1, 0.2F, 7}});
  TripleTable table;
  RecordedProgress progress;
  EXPECT_EQ(failure_of([&] { fill_triple_table(state, 3, table, progress); }),
            "division by zero: the length of a reflection is 0");
  EXPECT_THROW(fill_triple_table(state, 1300, table, progress), RunFailure) << "1300^3 rows overflow a Long";
}

}  // namespace
}  // namespace zol
