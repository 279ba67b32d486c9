#include "analysis/direction_solvers.h"

#include <gtest/gtest.h>

#include "tests/test_files.h"

namespace zol {
namespace {

// Inverses: cell_geometry_test.cpp.
TEST(InvertMatrix, TellsWhetherThereIsAnInverse) {
  BoundedTable<Single> matrix("M", 2, 2);
  matrix(1, 2) = matrix(2, 1) = 4;
  EXPECT_EQ(InvertMatrix(2, matrix), 0);
  EXPECT_EQ(matrix(1, 2), 0.25F);
  matrix(1, 2) = 0;
  EXPECT_EQ(InvertMatrix(2, matrix), 1);
}

TEST(SolveTwoPlanes, GivesDirectionsOfUnitLength) {
  struct Case {
    Indices<Integer> plane1, plane2;
    Single cosine1, cosine2;
    int status;
    SingleTriple A1, A2;
  };
  constexpr Indices<Integer> third{7, 7, 7};  // of no account, like its cosine
  Main1State cell;                            // cubic of edge 1 and free of the rounding of cos(90 degrees)
  cell.CellA = cell.CellB = cell.CellC = cell.AStar = cell.BStar = cell.CStar = 1;
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
    EXPECT_EQ(SolveTwoPlanes(cell, planes, {row.cosine1, row.cosine2, 0.123F}, directions), row.status);
    for (std::size_t i = 0; i < 3; ++i) {
      EXPECT_NEAR(directions.A1[i], row.A1[i], 1e-6) << i;
      EXPECT_NEAR(directions.A2[i], row.A2[i], 1e-6) << i;
    }
  }
  TwoDirections none;
  const std::array steep{Indices<Integer>{0, 200, 1}, Indices<Integer>{0, 1, 200}, third};
  EXPECT_TRUE(fails_with("40000", [&] { (void)SolveTwoPlanes(cell, steep, {}, none); })) << "beyond 16 bits";
}

}  // namespace
}  // namespace zol
