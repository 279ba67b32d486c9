#include "calculators/vector_calculations.h"

#include <gtest/gtest.h>

#include <cmath>

#include "tests/crystals.h"
#include "tests/test_files.h"

namespace zol::utility {
namespace {

const CellNumbers cube = cubic_cell(4);

// cos 90 is 1.3e-6 here, so that k and l are -0.001: rounded down, not off. Plain vectors: scripts/calculators.zs.
TEST(EquivalentVectors, AreRoundedDown) {
  const auto cubic = with_cell(cube);
  EXPECT_EQ(reciprocal_equivalent(cubic, {-1, 0, 0}), (SingleTriple{-1000, -1, -1}));
  EXPECT_EQ(reciprocal_equivalent(cubic, {1, 0, 0}), (SingleTriple{999, 0, 0}));
  EXPECT_NE(failure_of([&] { (void)direct_equivalent(cubic, {}); }).find("no cell or no vector"), std::string::npos);
}

// Obtuse angles of directions and normals show as negative ones, the angle less 180.
TEST(VectorAngle, AgreesWithHandCalculation) {
  struct Row {
    CellNumbers cell;
    AngleOf kind;
    SingleTriple first, second;
    double angle;
  };
  for (const auto& [cell, kind, first, second, angle] :
       {Row{cube, AngleOf::Directions, {1, 0, 0}, {-1, 1, 0}, -45},
        Row{cube, AngleOf::Normals, {1, 1, 1}, {1, -1, 1}, 70.52878},
        Row{cube, AngleOf::Planes, {1, 1, 1}, {1, -1, 1}, 109.47122},
        Row{cube, AngleOf::Planes, {1, 0, 0}, {-1, 1, 0}, 225},
        Row{{3, 3, 5, 90, 90, 120}, AngleOf::Directions, {1, 0, 0}, {0, 1, 0}, -60},
        Row{cube, AngleOf::Planes, {1, 0, 0}, {1, 0, 0}, 180},
        Row{cube, AngleOf::Directions, {1, 0, 0}, {-2, 0, 0}, 0}}) {
    EXPECT_NEAR(vector_angle(with_cell(cell), kind, first, second).value_or(-999), angle, 5e-4);
  }
}

TEST(VectorAngle, IsZeroAtARightAngleOnlyWhenTheCosineIsZero) {
  CrystalState exact;
  exact.CellA = exact.CellB = exact.CellC = exact.AStar = exact.BStar = exact.CStar = 1;
  const SingleTriple x{3, 0, 0};
  const SingleTriple y{0, 4, 0};  // the third side is 5: 16 + 9 - 25 is 0
  EXPECT_EQ(vector_angle(exact, AngleOf::Directions, x, y), 0);
  EXPECT_EQ(vector_angle(exact, AngleOf::Normals, x, y), 0);
  EXPECT_EQ(vector_angle(exact, AngleOf::Planes, x, y), 180);
  EXPECT_NEAR(vector_angle(with_cell(cube), AngleOf::Directions, x, y).value_or(0), 90, 2e-4) << "cos 90 is 1.3e-6";
}

TEST(VectorAngle, NeedsTwoLengths) {
  const auto cubic = with_cell(cube);
  for (const auto kind : {AngleOf::Directions, AngleOf::Normals, AngleOf::Planes}) {
    EXPECT_FALSE(vector_angle(cubic, kind, {}, {1, 0, 0}));
    EXPECT_FALSE(vector_angle(cubic, kind, {1, 0, 0}, {}));
    EXPECT_FALSE(vector_angle(CrystalState(), kind, {1, 0, 0}, {0, 1, 0})) << "no crystal";
  }
}

TEST(VectorAngle, EndsTheRunAtACosineBeyondOneForReciprocalVectorsAlone) {
  // Lengths that a Single rounds up and down: a cosine of 1 + 1.2e-7.
  CrystalState state;
  state.CellA = state.CellB = state.CellC = state.AStar = state.BStar = state.CStar = 1;
  const SingleTriple first{0, 1, 1};
  const SingleTriple second{0, 4, 4};
  EXPECT_EQ(vector_angle(state, AngleOf::Directions, first, second), 0);
  for (const auto kind : {AngleOf::Normals, AngleOf::Planes}) {
    EXPECT_NE(failure_of([&] { (void)vector_angle(state, kind, first, second); }).find("1 - cos^2"), std::string::npos);
  }
}

}  // namespace
}  // namespace zol::utility
