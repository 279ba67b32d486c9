#include "core/cell_geometry.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <random>

#include "core/number_text.h"
#include "tests/test_files.h"

namespace zol {
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

// d by hand: cubic a/sqrt(N), hexagonal 1/d^2 = 4/3 (h^2+hk+k^2)/a^2 + l^2/c^2; monoclinic and triclinic by the
// reciprocal metric in exact arithmetic. The truncated pi shifts the angles by 1.3e-6 rad, hence the tolerance.
struct SpacingCase {
  const char* name;
  Single cell[6];
  int hkl[3];
  double d;
};
class Spacing : public testing::TestWithParam<SpacingCase> {};
TEST_P(Spacing, AgreesWithHandCalculation) {
  const auto& [name, cell, hkl, d] = GetParam();
  const auto state = with_cell(cell[0], cell[1], cell[2], cell[3], cell[4], cell[5]);
  EXPECT_NEAR(1.0 / double{DHKL(state, hkl[0], hkl[1], hkl[2])}, d, 2e-5);
  EXPECT_EQ(DHKL(state, hkl[0], hkl[1], hkl[2]), DHKL_Long(state, hkl[0], hkl[1], hkl[2]));
}
INSTANTIATE_TEST_SUITE_P(
    Cells, Spacing,
    testing::Values(SpacingCase{"cubic", {4, 4, 4, 90, 90, 90}, {1, 1, 1}, 2.309401},
                    SpacingCase{"hexagonal", {3, 3, 5, 90, 90, 120}, {1, 1, 0}, 1.5},  // a / 2: sign of cos(gamma)
                    SpacingCase{"hexagonal_2", {3, 3, 5, 90, 90, 120}, {2, -1, 0}, 1.5},
                    SpacingCase{"monoclinic", {5, 6, 7, 90, 100, 90}, {1, 0, 1}, 3.71346},
                    SpacingCase{"monoclinic_minus", {5, 6, 7, 90, 100, 90}, {1, 0, -1}, 4.38297},
                    SpacingCase{"rhombohedral", {3, 3, 3, 60, 60, 60}, {1, 1, 1}, 2.449490}),  // a sqrt(2/3), fcc
    [](const auto& row) { return std::string(row.param.name); });

TEST(ReciprocalCell, OfARhombohedralCellIsTheOneOfBcc) {
  const auto state = with_cell(3, 3, 3, 60, 60, 60);
  EXPECT_NEAR(state.AlphaStar, 109.471, 2e-3);
  EXPECT_NEAR(state.CellVolume, 27 / std::numbers::sqrt2, 1e-3);
}

TEST(ReciprocalCell, OfTheReciprocalCellIsTheCell) {
  const auto state = with_cell(5.58F, 8.14F, 12.78F, 94.2F, 116.6F, 87.8F);
  const auto back = with_cell(state.AStar, state.BStar, state.CStar, state.AlphaStar, state.BetaStar, state.GammaStar);
  EXPECT_NEAR(back.AStar, 5.58, 2e-4);
  EXPECT_NEAR(back.BStar, 8.14, 2e-4);
  EXPECT_NEAR(back.CStar, 12.78, 4e-4);
  EXPECT_NEAR(back.AlphaStar, 94.2, 2e-3);
  EXPECT_NEAR(back.BetaStar, 116.6, 2e-3);
  EXPECT_NEAR(back.GammaStar, 87.8, 2e-3);
  EXPECT_NEAR(double{state.CellVolume} * double{back.CellVolume}, 1.0, 1e-4);
}

TEST(ImpossibleCell, LeavesTheReciprocalCellAsItWas) {
  auto state = with_cell(4, 5, 6, 90, 90, 90);
  const Single a_star = state.AStar;
  state.CellAlpha = state.CellBeta = state.CellGamma = 125;
  EXPECT_FALSE(calc_cell(state));
  EXPECT_NEAR(state.CosAlpha, -0.573576, 2e-6);
  EXPECT_EQ(state.AStar, a_star);
  EXPECT_NEAR(state.CellVolume, 120, 1e-3);
}

TEST(ScalarProducts, AgreeWithLengths) {
  const auto state = with_cell(5.58F, 8.14F, 12.78F, 94.2F, 116.6F, 87.8F);
  const double length = DHKL(state, 2, -1, 3);
  EXPECT_NEAR(Product(state, 2, -1, 3, 2, -1, 3), length * length, 1e-6);
  EXPECT_EQ(Product(state, 1, 2, 3, -2, 0, 5), Product(state, -2, 0, 5, 1, 2, 3)) << "symmetric to the last bit";
  EXPECT_EQ(Product(state, 1, 2, 3, -2, 0, 5), Product_Long(state, 1, 2, 3, -2, 0, 5));
  const double direct = DHKLT(state, 1, -1, 2);
  EXPECT_NEAR(ProductT(state, 1, -1, 2, 1, -1, 2), direct * direct, 1e-3);
  EXPECT_EQ(ProductTS(state, 1, -1, 2, 0, 3, 1), ProductT(state, 1, -1, 2, 0, 3, 1));
  EXPECT_EQ(DHKLTI(state, 1, -1, 2), DHKLT(state, 1, -1, 2));
  EXPECT_EQ(DHKLS(state, 2, -1, 3), DHKL(state, 2, -1, 3));
  EXPECT_EQ(DHKL(state, 0, 0, 0), 0);
}

TEST(InverseFunctions, KeepTheirTruncatedQuarterTurn) {
  EXPECT_EQ(plain_text(ArcCos(0)), "90.00029");
  EXPECT_EQ(ArcSin(0), 0);
  struct Row {
    Single x, arc_cos, arc_sin;
  };
  for (const auto& row : {Row{1, 0, 90}, Row{-1, 180, -90}, Row{1.5F, 0, 90}, Row{-7, 180, -90}}) {
    EXPECT_EQ(ArcCos(row.x), row.arc_cos);
    EXPECT_EQ(ArcSin(row.x), row.arc_sin);
  }
  EXPECT_NEAR(ArcCos(0.5F), 60, 1e-3);
  EXPECT_NEAR(ArcCos(-0.5F), 120, 1e-3);
  EXPECT_NEAR(ArcSin(-0.5F), -30, 1e-4);
}

TEST(BraggsLaw, GivesDOfThePresentWavelength) {
  CrystalState state;
  state.WaveLength = 1.542F;
  EXPECT_NEAR(Bragg(state, 31.70F), 2.82293, 2e-5);  // 0.771 / sin(15.85)
  EXPECT_THROW((void)Bragg(state, 0), RunFailure);
}

BoundedTable<Single> square(std::initializer_list<Single> values) {
  const int n = static_cast<int>(std::lround(std::sqrt(static_cast<double>(values.size()))));
  BoundedTable<Single> table("A", n, n);
  int place = 0;
  for (const Single value : values) {
    table(place / n + 1, place % n + 1) = value;
    ++place;
  }
  return table;
}

TEST(MatrixInverse, NeedsItsRowExchangesUndone) {
  auto matrix = square({0, 2, 1, 1, 0, 0, 0, 0, 4});
  ASSERT_TRUE(Matrix(3, matrix));
  const auto expected = square({0, 1, 0, 0.5F, 0, -0.125F, 0, 0, 0.25F});
  for (int i = 1; i <= 3; ++i) {
    for (int j = 1; j <= 3; ++j) EXPECT_FLOAT_EQ(matrix(i, j), expected(i, j)) << i << ' ' << j;
  }
}

TEST(MatrixInverse, TimesTheMatrixIsTheUnit) {
  std::mt19937 random(7);
  std::uniform_real_distribution<Single> uniform(-2, 2);
  for (int n = 1; n <= 10; ++n) {
    BoundedTable<Single> matrix("A", n, n);
    for (int i = 1; i <= n; ++i) {
      for (int j = 1; j <= n; ++j) matrix(i, j) = uniform(random) + (i == j ? 5.0F : 0.0F);
    }
    BoundedTable<Single> inverse = matrix;
    ASSERT_TRUE(Matrix(n, inverse));
    for (int i = 1; i <= n; ++i) {
      for (int j = 1; j <= n; ++j) {
        double sum = 0;
        for (int m = 1; m <= n; ++m) sum += double{matrix(i, m)} * double{inverse(m, j)};
        EXPECT_NEAR(sum, i == j ? 1 : 0, 1e-5);
      }
    }
  }
}

TEST(MatrixInverse, OfASingularMatrixIsRefused) {
  auto matrix = square({1, 2, 2, 4});
  EXPECT_FALSE(Matrix(2, matrix));
  auto zero = square({0, 0, 0, 0});
  EXPECT_FALSE(Matrix(2, zero));
  BoundedTable<Single> large("A", 11, 11);
  for (int i = 1; i <= 11; ++i) large(i, i) = 1;
  EXPECT_THROW((void)Matrix(11, large), RunFailure);
}

}  // namespace
}  // namespace zol
