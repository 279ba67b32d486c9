#include "analysis/direction_solvers.h"

#include <gtest/gtest.h>

#include "tests/test_files.h"

namespace zol {
namespace {

BoundedTable<Single> matrix(const std::array<Single, 9>& numbers) {
  BoundedTable<Single> table("M", 3, 3);
  int place = 3;
  for (const Single number : numbers) {
    table(place / 3, place % 3 + 1) = number;
    ++place;
  }
  return table;
}

// By hand; the last one is half reduced.
TEST(InvertMatrix, InvertsOrStopsHalfWay) {
  for (auto [given, status, left] :
       {std::tuple{matrix({0, 2, 0, 0, 0, 4, 1, 0, 0}), 0, matrix({0, 0, 1, 0.5, 0, 0, 0, 0.25, 0})},
        {matrix({1, 0, 0, 2, 0, 0, 0, 1, 0}), 1, matrix({0.5, 0, 0, 0, 1, 0, -0.5, 0, 0})}}) {
    EXPECT_EQ(InvertMatrix(3, given), status);
    for (int i = 0; i < 9; ++i) EXPECT_FLOAT_EQ(given(i / 3 + 1, i % 3 + 1), left(i / 3 + 1, i % 3 + 1)) << i;
  }
  BoundedTable<Single> large("M", 11, 11);
  for (int i = 1; i <= 11; ++i) large(i, i) = 1;
  EXPECT_NE(failure_of([&] { (void)InvertMatrix(11, large); }), "");
}

/// Cubic of edge 1 and free of the rounding of cos(90 degrees).
Main1State exact_cell() {
  Main1State cell;
  cell.CellA = cell.CellB = cell.CellC = 1;
  cell.AStar = cell.BStar = cell.CStar = 1;
  return cell;
}

TEST(SolveTwoPlanes, GivesDirectionsOfUnitLength) {
  struct Case {
    Indices<Integer> plane1, plane2;
    Single cosine1, cosine2;
    int status;
    SingleTriple A1, A2;
  };
  constexpr Indices<Integer> third{7, 7, 7};  // of no account, like its cosine
  for (const auto& row : {
           // Case 2 gives v, w, u and case 3 w, u, v.
           Case{{0, 1, 0}, {0, 0, 1}, 0.6F, 0, 21, {0.8F, 0.6F, 0}, {-0.8F, 0.6F, 0}},
           Case{{1, 0, 0}, {0, 1, 0}, 0.6F, 0, 22, {0, 0.8F, 0.6F}, {0, -0.8F, 0.6F}},
           Case{{0, 0, 1}, {1, 0, 0}, 0.6F, 0, 23, {0.6F, 0, 0.8F}, {0.6F, 0, -0.8F}},
           // v = 0.36, v + w = sqrt(2) 0.6364 = 0.9, so w = 0.54, u = 0.760789
           Case{{0, 1, 0}, {0, 1, 1}, 0.36F, 0.6363961F, 21, {0.760789F, 0.36F, 0.54F}, {-0.760789F, 0.36F, 0.54F}},
           Case{{1, 0, 0}, {0, 1, 0}, 1, 0, 12, {0, 0, 1}, {0, 0, 0}},
           // no real root
           Case{{0, 1, 0}, {0, 0, 1}, 1, 1, 2, {1, 0, 0}, {1, 0, 0}},
           Case{{1, 0, 0}, {0, 1, 0}, 1, 1, 2, {0, 1, 0}, {0, 1, 0}},
           Case{{0, 0, 1}, {1, 0, 0}, 1, 1, 3, {0, 0, 1}, {0, 0, 1}},
           // parallel planes
           Case{{1, 0, 0}, {-1, 0, 0}, 0.5F, 0.5F, 4, {9, 9, 9}, {9, 9, 9}},
       }) {
    SCOPED_TRACE(testing::Message() << "status " << row.status << ", first cosine " << row.cosine1);
    TwoDirections directions{{9, 9, 9}, {9, 9, 9}};
    const std::array planes{row.plane1, row.plane2, third};
    EXPECT_EQ(SolveTwoPlanes(exact_cell(), planes, {row.cosine1, row.cosine2, 0.123F}, directions), row.status);
    for (std::size_t i = 0; i < 3; ++i) {
      EXPECT_NEAR(directions.A1[i], row.A1[i], 1e-6) << i;
      EXPECT_NEAR(directions.A2[i], row.A2[i], 1e-6) << i;
    }
  }
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
