#include "analysis/direction_solvers.h"

#include <gtest/gtest.h>

#include "core/cell_geometry.h"
#include "tests/test_files.h"

namespace zol {
namespace {

BoundedTable<Single> matrix(const std::array<std::array<Single, 3>, 3>& rows) {
  BoundedTable<Single> table("M", 3, 3);
  for (int i = 0; i < 3; ++i) {
    for (int j = 0; j < 3; ++j) {
      table(i + 1, j + 1) = rows[static_cast<std::size_t>(i)][static_cast<std::size_t>(j)];
    }
  }
  return table;
}

void expect_rows(const BoundedTable<Single>& table, const std::array<std::array<Single, 3>, 3>& rows) {
  for (int i = 0; i < 3; ++i) {
    for (int j = 0; j < 3; ++j) {
      EXPECT_FLOAT_EQ(table(i + 1, j + 1), rows[static_cast<std::size_t>(i)][static_cast<std::size_t>(j)])
          << i << ' ' << j;
    }
  }
}

TEST(InvertMatrix, InvertsByHandChecked) {
  auto unit = matrix({{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}});
  EXPECT_EQ(InvertMatrix(3, unit), 0);
  expect_rows(unit, {{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}});

  auto with_exchanges = matrix({{{0, 2, 0}, {0, 0, 4}, {1, 0, 0}}});
  EXPECT_EQ(InvertMatrix(3, with_exchanges), 0);
  expect_rows(with_exchanges, {{{0, 0, 1}, {0.5, 0, 0}, {0, 0.25, 0}}});

  auto full = matrix({{{1, 1, 0}, {0, 1, 1}, {1, 0, 1}}});
  EXPECT_EQ(InvertMatrix(3, full), 0);
  expect_rows(full, {{{0.5, -0.5, 0.5}, {0.5, 0.5, -0.5}, {-0.5, 0.5, 0.5}}});
}

TEST(InvertMatrix, LeavesASingularOneHalfReduced) {
  auto singular = matrix({{{1, 0, 0}, {2, 0, 0}, {0, 1, 0}}});
  EXPECT_EQ(InvertMatrix(3, singular), 1);
  expect_rows(singular, {{{0.5, 0, 0}, {0, 1, 0}, {-0.5, 0, 0}}});
  BoundedTable<Single> large("M", 11, 11);
  for (int i = 1; i <= 11; ++i) large(i, i) = 1;
  EXPECT_NE(failure_of([&] { (void)InvertMatrix(11, large); }), "");
}

/// Orthogonal and free of the rounding of cos(90 degrees).
Main1State exact_cell(Single c = 1) {
  Main1State cell;
  cell.CellA = cell.CellB = 1;
  cell.CellC = c;
  cell.AStar = cell.BStar = 1;
  cell.CStar = 1 / c;
  return cell;
}

struct SolverCase {
  const char* name;
  std::array<PlaneIndices, 3> planes;
  Single c1, c2;
  int status;
  Direction A1, A2;
};
class TwoPlanes : public testing::TestWithParam<SolverCase> {};
TEST_P(TwoPlanes, GiveDirectionsOfUnitLength) {
  const auto& row = GetParam();
  TwoDirections directions{{9, 9, 9}, {9, 9, 9}};
  EXPECT_EQ(SolveTwoPlanes(exact_cell(), row.planes, {row.c1, row.c2, 0.123F}, directions), row.status);
  for (std::size_t i = 0; i < 3; ++i) {
    EXPECT_NEAR(directions.A1[i], row.A1[i], 1e-6) << i;
    EXPECT_NEAR(directions.A2[i], row.A2[i], 1e-6) << i;
  }
}
// Case 2 gives v, w, u and case 3 w, u, v.
INSTANTIATE_TEST_SUITE_P(
    Cases, TwoPlanes,
    testing::Values(
        SolverCase{"case_1", {{{0, 1, 0}, {0, 0, 1}, {0, 1, 1}}}, 0.6F, 0, 21, {0.8F, 0.6F, 0}, {-0.8F, 0.6F, 0}},
        SolverCase{"case_2", {{{1, 0, 0}, {0, 1, 0}, {1, 1, 0}}}, 0.6F, 0, 22, {0, 0.8F, 0.6F}, {0, -0.8F, 0.6F}},
        SolverCase{"case_3", {{{0, 0, 1}, {1, 0, 0}, {1, 0, 1}}}, 0.6F, 0, 23, {0.6F, 0, 0.8F}, {0.6F, 0, -0.8F}},
        // (0 1 0) and (0 1 1): v = 0.36, v + w = sqrt(2) 0.6364 = 0.9, so w = 0.54, u = 0.760789
        SolverCase{"oblique",
                   {{{0, 1, 0}, {0, 1, 1}, {0, 0, 1}}},
                   0.36F,
                   0.6363961F,
                   21,
                   {0.760789F, 0.36F, 0.54F},
                   {-0.760789F, 0.36F, 0.54F}},
        SolverCase{"touching", {{{1, 0, 0}, {0, 1, 0}, {1, 1, 0}}}, 1, 0, 12, {0, 0, 1}, {0, 0, 0}},
        SolverCase{"none_1", {{{0, 1, 0}, {0, 0, 1}, {0, 1, 1}}}, 1, 1, 2, {1, 0, 0}, {1, 0, 0}},
        SolverCase{"none_2", {{{1, 0, 0}, {0, 1, 0}, {1, 1, 0}}}, 1, 1, 2, {0, 1, 0}, {0, 1, 0}},
        SolverCase{"none_3", {{{0, 0, 1}, {1, 0, 0}, {1, 0, 1}}}, 1, 1, 3, {0, 0, 1}, {0, 0, 1}},
        SolverCase{"parallel", {{{1, 0, 0}, {-1, 0, 0}, {0, 1, 0}}}, 0.5F, 0.5F, 4, {9, 9, 9}, {9, 9, 9}}),
    [](const auto& row) { return std::string(row.param.name); });

// u = v = 0.5 and w from u^2 + v^2 + w^2 - 0.5 u v = 1, where the length has the cross term -u v.
TEST(SolveTwoPlanes, CountsTheLastCrossTermOnce) {
  Main1State cell = exact_cell();
  cell.CosGamma = -0.5F;
  TwoDirections directions;
  ASSERT_EQ(SolveTwoPlanes(cell, {{{1, 0, 0}, {0, 1, 0}, {1, 1, 0}}}, {0.5F, 0.5F, 0}, directions), 22);
  EXPECT_NEAR(directions.A1[1], 0.790569, 1e-6);
}

TEST(SolveTwoPlanes, FailsBeyondSixteenBits) {
  TwoDirections directions;
  EXPECT_NE(failure_of([&] {
              (void)SolveTwoPlanes(exact_cell(), {{{0, 200, 1}, {0, 1, 200}, {1, 0, 0}}}, {0, 0, 0}, directions);
            }).find("40000"),
            std::string::npos);
}

}  // namespace
}  // namespace zol
