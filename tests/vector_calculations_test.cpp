#include "calculators/vector_calculations.h"

#include <gtest/gtest.h>

#include <cmath>

#include "tests/crystals.h"
#include "tests/test_files.h"

namespace zol::utility {
namespace {

constexpr CellNumbers hexagonal{3, 3, 5, 90, 90, 120};
const CellNumbers cube = cubic_cell(4);

// By hand with the metric a.a, a.b = ab cos(gamma), ...; the magnitudes sum to 1000.
TEST(EquivalentVectors, AreScaledAndRoundedDown) {
  struct Row {
    CellNumbers cell;
    SingleTriple uvw;
    std::array<double, 3> hkl;
  };
  for (const auto& [cell, uvw, hkl] :
       {Row{{3, 4, 5, 90, 90, 90}, {1, -1, 1}, {180, -320, 500}}, Row{hexagonal, {1, 0, 0}, {666.667, -333.333, 0}},
        Row{{4, 3, 2, 90, 120, 90}, {1, 0, 0}, {800, 0, -200}},   // 16 : -4
        Row{{2, 3, 4, 60, 90, 90}, {0, 1, 0}, {0, 600, 400}}}) {  // 9 : 6
    const SingleTriple found = reciprocal_equivalent(with_cell(cell), uvw);
    for (std::size_t i = 0; i < 3; ++i) {
      // A whole number can come out one lower: the truncated pi leaves right angles just below 90 degrees.
      EXPECT_LE(found[i], hkl[i] + 0.01);
      EXPECT_GT(found[i], hkl[i] - 1.01);
      EXPECT_EQ(found[i], std::floor(found[i]));
    }
  }
  const auto cubic = with_cell(cube);
  // cos 90 is 1.3e-6 here, so that k and l are -0.001: rounded down, not off.
  EXPECT_EQ(reciprocal_equivalent(cubic, {-1, 0, 0}), (SingleTriple{-1000, -1, -1}));
  EXPECT_EQ(reciprocal_equivalent(cubic, {1, 0, 0}), (SingleTriple{999, 0, 0}));
  EXPECT_THROW((void)direct_equivalent(cubic, {}), RunFailure);
}

TEST(EquivalentVectors, LeadBack) {
  const auto state = with_cell({5.58F, 8.14F, 12.78F, 94.2F, 116.6F, 87.8F});
  const SingleTriple back = direct_equivalent(state, reciprocal_equivalent(state, {1, -2, 3}));
  EXPECT_NEAR(back[0], 1000.0 / 6, 6) << "h k l were rounded down by up to a thousandth of their sum";
  EXPECT_NEAR(back[1], -2000.0 / 6, 6);
  EXPECT_NEAR(back[2], 3000.0 / 6, 6);
}

// Obtuse angles of directions and normals show as negative ones, the angle less 180.
TEST(VectorAngle, AgreesWithHandCalculation) {
  struct Row {
    CellNumbers cell;
    AngleOf kind;
    SingleTriple first, second;
    double angle;
  };
  constexpr CellNumbers tetragonal{3, 3, 6, 90, 90, 90};
  for (const auto& [cell, kind, first, second, angle] :
       {Row{cube, AngleOf::Directions, {1, 0, 0}, {-1, 1, 0}, -45},
        Row{cube, AngleOf::Normals, {1, 1, 1}, {1, -1, 1}, 70.52878},
        Row{cube, AngleOf::Planes, {1, 1, 1}, {1, -1, 1}, 109.47122},
        Row{cube, AngleOf::Planes, {1, 0, 0}, {-1, 1, 0}, 225},
        Row{tetragonal, AngleOf::Directions, {1, 0, 1}, {0, 0, 1}, 26.56505},
        Row{tetragonal, AngleOf::Normals, {1, 0, 1}, {0, 0, 1}, 63.43495},
        Row{hexagonal, AngleOf::Directions, {1, 0, 0}, {0, 1, 0}, -60},
        Row{{5, 6, 7, 90, 100, 90}, AngleOf::Directions, {0, 0, 1}, {-1, 0, 0}, 80},
        Row{cube, AngleOf::Directions, {1, 0, 0}, {1, 0, 0}, 0}, Row{cube, AngleOf::Planes, {1, 0, 0}, {1, 0, 0}, 180},
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
