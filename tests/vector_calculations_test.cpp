#include "calculators/vector_calculations.h"

#include <gtest/gtest.h>

#include <cmath>

#include "core/cell_geometry.h"
#include "tests/test_files.h"

namespace zol::utility {
namespace {

CrystalState with_cell(Single a, Single b, Single c, Single alpha, Single beta, Single gamma) {
  CrystalState state;
  state.CellA = a;
  state.CellB = b;
  state.CellC = c;
  state.CellAlpha = alpha;
  state.CellBeta = beta;
  state.CellGamma = gamma;
  EXPECT_TRUE(calc_cell(state));
  return state;
}

struct EquivalentCase {
  const char* name;
  Single cell[6];
  Vector uvw;
  double hkl[3];  ///< magnitudes sum to 1000
};
class EquivalentVector : public testing::TestWithParam<EquivalentCase> {};
TEST_P(EquivalentVector, IsScaledAndRoundedDown) {
  const auto& [name, cell, uvw, hkl] = GetParam();
  const auto state = with_cell(cell[0], cell[1], cell[2], cell[3], cell[4], cell[5]);
  const Vector found = reciprocal_equivalent(state, uvw);
  const double components[3] = {found.x, found.y, found.z};
  for (int i = 0; i < 3; ++i) {
    // A whole number can come out one lower: the truncated pi leaves right angles just below 90 degrees.
    EXPECT_LE(components[i], hkl[i] + 0.01);
    EXPECT_GT(components[i], hkl[i] - 1.01);
    EXPECT_EQ(components[i], std::floor(components[i]));
  }
}
// By hand with the metric a.a, a.b = ab cos(gamma), ...
INSTANTIATE_TEST_SUITE_P(
    Cells, EquivalentVector,
    testing::Values(EquivalentCase{"cubic", {4, 4, 4, 90, 90, 90}, {1, 2, 3}, {166.667, 333.333, 500}},
                    EquivalentCase{"tetragonal", {3, 3, 6, 90, 90, 90}, {1, 0, 1}, {200, 0, 800}},  // 9 : 36
                    EquivalentCase{"orthorhombic", {3, 4, 5, 90, 90, 90}, {1, -1, 1}, {180, -320, 500}},
                    EquivalentCase{"hexagonal_210", {3, 3, 5, 90, 90, 120}, {2, 1, 0}, {1000, 0, 0}},
                    EquivalentCase{"hexagonal_100", {3, 3, 5, 90, 90, 120}, {1, 0, 0}, {666.667, -333.333, 0}},
                    EquivalentCase{"monoclinic", {4, 3, 2, 90, 120, 90}, {1, 0, 0}, {800, 0, -200}},  // 16 : -4
                    EquivalentCase{"alpha_60", {2, 3, 4, 60, 90, 90}, {0, 1, 0}, {0, 600, 400}}),     // 9 : 6
    [](const auto& row) { return std::string(row.param.name); });

TEST(EquivalentVectors, LeadBack) {
  const auto state = with_cell(5.58F, 8.14F, 12.78F, 94.2F, 116.6F, 87.8F);
  const Vector uvw{1, -2, 3};
  const Vector hkl = reciprocal_equivalent(state, uvw);
  EXPECT_NEAR(std::abs(hkl.x) + std::abs(hkl.y) + std::abs(hkl.z), 1000, 3);
  const Vector back = direct_equivalent(state, hkl);
  EXPECT_NEAR(back.x, 1000.0 / 6, 6) << "h k l were rounded down by up to a thousandth of their sum";
  EXPECT_NEAR(back.y, -2000.0 / 6, 6);
  EXPECT_NEAR(back.z, 3000.0 / 6, 6);
}

TEST(EquivalentVectors, RoundDownBelowZero) {
  // cos 90 is 1.3e-6 here, so that k and l are -0.001: rounded down, not off.
  const auto state = with_cell(4, 4, 4, 90, 90, 90);
  EXPECT_EQ(reciprocal_equivalent(state, {-1, 0, 0}), (Vector{-1000, -1, -1}));
  EXPECT_EQ(reciprocal_equivalent(state, {1, 0, 0}), (Vector{999, 0, 0}));
}

TEST(EquivalentVectors, NeedACellAndAVector) {
  const auto state = with_cell(4, 4, 4, 90, 90, 90);
  EXPECT_NE(failure_of([&] { (void)reciprocal_equivalent(state, {}); }).find("no cell or no vector"),
            std::string::npos);
  EXPECT_THROW((void)direct_equivalent(state, {}), RunFailure);
  EXPECT_THROW((void)direct_equivalent(CrystalState(), {1, 0, 0}), RunFailure);
}

struct AngleCase {
  const char* name;
  Single cell[6];
  AngleOf kind;
  Vector first, second;
  double angle;
};
class AngleBetween : public testing::TestWithParam<AngleCase> {};
TEST_P(AngleBetween, AgreesWithHandCalculation) {
  const auto& row = GetParam();
  const auto& c = row.cell;
  const auto angle = vector_angle(with_cell(c[0], c[1], c[2], c[3], c[4], c[5]), row.kind, row.first, row.second);
  ASSERT_TRUE(angle);
  EXPECT_NEAR(*angle, row.angle, 5e-4);
}
INSTANTIATE_TEST_SUITE_P(
    Cells, AngleBetween,
    testing::Values(
        AngleCase{"cubic_45", {4, 4, 4, 90, 90, 90}, AngleOf::Directions, {1, 0, 0}, {1, 1, 0}, 45},
        AngleCase{"obtuse_135", {4, 4, 4, 90, 90, 90}, AngleOf::Directions, {1, 0, 0}, {-1, 1, 0}, -45},
        AngleCase{"octahedron_normals", {4, 4, 4, 90, 90, 90}, AngleOf::Normals, {1, 1, 1}, {1, -1, 1}, 70.52878},
        AngleCase{"octahedron_planes", {4, 4, 4, 90, 90, 90}, AngleOf::Planes, {1, 1, 1}, {1, -1, 1}, 109.47122},
        AngleCase{"tetragonal_direction", {3, 3, 6, 90, 90, 90}, AngleOf::Directions, {1, 0, 1}, {0, 0, 1}, 26.56505},
        AngleCase{"tetragonal_normal", {3, 3, 6, 90, 90, 90}, AngleOf::Normals, {1, 0, 1}, {0, 0, 1}, 63.43495},
        AngleCase{"hexagonal_axes", {3, 3, 5, 90, 90, 120}, AngleOf::Directions, {1, 0, 0}, {0, 1, 0}, -60},  // 120
        AngleCase{"hexagonal_normals", {3, 3, 5, 90, 90, 120}, AngleOf::Normals, {1, 0, 0}, {0, 1, 0}, 60},
        AngleCase{"hexagonal_prism", {3, 3, 5, 90, 90, 120}, AngleOf::Planes, {1, 0, 0}, {0, 1, 0}, 120},
        AngleCase{"monoclinic_beta", {5, 6, 7, 90, 100, 90}, AngleOf::Directions, {0, 0, 1}, {-1, 0, 0}, 80},
        AngleCase{"planes_of_obtuse_normals", {4, 4, 4, 90, 90, 90}, AngleOf::Planes, {1, 0, 0}, {-1, 1, 0}, 225},
        AngleCase{"parallel_directions", {4, 4, 4, 90, 90, 90}, AngleOf::Directions, {1, 0, 0}, {1, 0, 0}, 0},
        AngleCase{"parallel_normals", {4, 4, 4, 90, 90, 90}, AngleOf::Normals, {1, 0, 0}, {1, 0, 0}, 0},
        AngleCase{"parallel_planes", {4, 4, 4, 90, 90, 90}, AngleOf::Planes, {1, 0, 0}, {1, 0, 0}, 180},
        AngleCase{"opposite_directions", {4, 4, 4, 90, 90, 90}, AngleOf::Directions, {1, 0, 0}, {-2, 0, 0}, 0}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(RightAngle, ShowsAsZeroOnlyWhenTheCosineIsZero) {
  CrystalState exact;
  exact.CellA = exact.CellB = exact.CellC = exact.AStar = exact.BStar = exact.CStar = 1;
  const Vector x{3, 0, 0};
  const Vector y{0, 4, 0};  // the third side is 5: 16 + 9 - 25 is 0
  EXPECT_EQ(vector_angle(exact, AngleOf::Directions, x, y), 0);
  EXPECT_EQ(vector_angle(exact, AngleOf::Normals, x, y), 0);
  EXPECT_EQ(vector_angle(exact, AngleOf::Planes, x, y), 180);
  const auto truncated = with_cell(4, 4, 4, 90, 90, 90);
  const auto angle = vector_angle(truncated, AngleOf::Directions, x, y);
  ASSERT_TRUE(angle);
  EXPECT_NEAR(*angle, 90, 2e-4) << "cos 90 is 1.3e-6";
}

TEST(VectorAngle, NeedsTwoLengths) {
  const auto state = with_cell(4, 4, 4, 90, 90, 90);
  for (const auto kind : {AngleOf::Directions, AngleOf::Normals, AngleOf::Planes}) {
    EXPECT_FALSE(vector_angle(state, kind, {}, {1, 0, 0}));
    EXPECT_FALSE(vector_angle(state, kind, {1, 0, 0}, {}));
    EXPECT_FALSE(vector_angle(CrystalState(), kind, {1, 0, 0}, {0, 1, 0})) << "no crystal";
  }
}

TEST(CosineBeyondOne, EndsTheRunForReciprocalVectorsAlone) {
  // Lengths that a Single rounds up and down: a cosine of 1 + 1.2e-7.
  CrystalState state;
  state.CellA = state.CellB = state.CellC = state.AStar = state.BStar = state.CStar = 1;
  const Vector first{0, 1, 1};
  const Vector second{0, 4, 4};
  EXPECT_EQ(vector_angle(state, AngleOf::Directions, first, second), 0);
  for (const auto kind : {AngleOf::Normals, AngleOf::Planes}) {
    EXPECT_NE(failure_of([&] { (void)vector_angle(state, kind, first, second); }).find("1 - cos^2"), std::string::npos);
  }
}

}  // namespace
}  // namespace zol::utility
