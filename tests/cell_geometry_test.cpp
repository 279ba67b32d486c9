#include "core/cell_geometry.h"

#include <gtest/gtest.h>

#include <numbers>
#include <random>

#include "core/number_text.h"
#include "tests/crystals.h"
#include "tests/test_files.h"

namespace zol {
namespace {

constexpr CellNumbers hexagonal{3, 3, 5, 90, 90, 120};
constexpr CellNumbers monoclinic{5, 6, 7, 90, 100, 90};
constexpr CellNumbers rhombohedral{3, 3, 3, 60, 60, 60};
constexpr CellNumbers triclinic{5.58F, 8.14F, 12.78F, 94.2F, 116.6F, 87.8F};

// d by hand: cubic a/sqrt(N), hexagonal 1/d^2 = 4/3 (h^2+hk+k^2)/a^2 + l^2/c^2; monoclinic by the reciprocal metric in
// exact arithmetic. The truncated pi shifts the angles by 1.3e-6 rad, hence the tolerance.
TEST(Spacing, AgreesWithHandCalculation) {
  struct Row {
    CellNumbers cell;
    std::array<int, 3> hkl;
    double d;
  };
  for (const auto& [cell, hkl, d] :
       {Row{cubic_cell(4), {1, 1, 1}, 2.309401}, Row{hexagonal, {1, 1, 0}, 1.5},  // a / 2: sign of cos(gamma)
        Row{monoclinic, {1, 0, 1}, 3.71346}, Row{monoclinic, {1, 0, -1}, 4.38297},
        Row{rhombohedral, {1, 1, 1}, 2.449490}}) {  // a sqrt(2/3), fcc
    const auto state = with_cell(cell);
    EXPECT_NEAR(1.0 / double{DHKL(state, hkl[0], hkl[1], hkl[2])}, d, 2e-5);
    EXPECT_EQ(DHKL(state, hkl[0], hkl[1], hkl[2]), DHKL_Long(state, hkl[0], hkl[1], hkl[2])) << d;
  }
}

TEST(ReciprocalCell, OfTheReciprocalCellIsTheCell) {
  const auto fcc = with_cell(rhombohedral);  // its reciprocal lattice is body-centred
  EXPECT_NEAR(fcc.AlphaStar, 109.471, 2e-3);
  EXPECT_NEAR(fcc.CellVolume, 27 / std::numbers::sqrt2, 1e-3);

  const auto state = with_cell(triclinic);
  const auto back =
      with_cell({state.AStar, state.BStar, state.CStar, state.AlphaStar, state.BetaStar, state.GammaStar});
  const CellNumbers found{back.AStar, back.BStar, back.CStar, back.AlphaStar, back.BetaStar, back.GammaStar};
  for (std::size_t i = 0; i < 6; ++i) EXPECT_NEAR(found[i], triclinic[i], i < 3 ? 4e-4 : 2e-3) << i;
  EXPECT_NEAR(double{state.CellVolume} * double{back.CellVolume}, 1.0, 1e-4);
}

TEST(ImpossibleCell, LeavesTheReciprocalCellAsItWas) {
  auto state = with_cell({4, 5, 6, 90, 90, 90});
  const Single a_star = state.AStar;
  state.CellAlpha = state.CellBeta = state.CellGamma = 125;
  EXPECT_FALSE(calc_cell(state));
  EXPECT_NEAR(state.CosAlpha, -0.573576, 2e-6);
  EXPECT_EQ(state.AStar, a_star);
  EXPECT_NEAR(state.CellVolume, 120, 1e-3);
}

TEST(ScalarProducts, AgreeWithLengths) {
  const auto state = with_cell(triclinic);
  const double length = DHKL(state, 2, -1, 3);
  EXPECT_NEAR(Product(state, 2, -1, 3, 2, -1, 3), length * length, 1e-6);
  EXPECT_EQ(Product(state, 1, 2, 3, -2, 0, 5), Product(state, -2, 0, 5, 1, 2, 3)) << "symmetric to the last bit";
  EXPECT_EQ(Product(state, 1, 2, 3, -2, 0, 5), Product_Long(state, 1, 2, 3, -2, 0, 5));
  const double direct = DHKLT(state, 1, -1, 2);
  EXPECT_NEAR(ProductT(state, 1, -1, 2, 1, -1, 2), direct * direct, 1e-3);
  EXPECT_EQ(ProductTS(state, 1, -1, 2, 0, 3, 1), ProductT(state, 1, -1, 2, 0, 3, 1));
  EXPECT_EQ(DHKLTI(state, 1, -1, 2), DHKLT(state, 1, -1, 2));
  EXPECT_EQ(DHKLS(state, 2, -1, 3), DHKL(state, 2, -1, 3));
}

TEST(InverseFunctions, KeepTheirTruncatedQuarterTurn) {
  EXPECT_EQ(plain_text(ArcCos(0)), "90.00029");
  EXPECT_NEAR(ArcCos(-0.5F), 120, 1e-3);
  EXPECT_NEAR(ArcSin(-0.5F), -30, 1e-4);
  for (const Single beyond : {1.0F, 7.0F}) {
    EXPECT_EQ(ArcCos(beyond), 0);
    EXPECT_EQ(ArcCos(-beyond), 180);
    EXPECT_EQ(ArcSin(beyond), 90);
    EXPECT_EQ(ArcSin(-beyond), -90);
  }
}

TEST(BraggsLaw, GivesDOfThePresentWavelength) {
  CrystalState state;
  state.WaveLength = 1.542F;
  EXPECT_NEAR(Bragg(state, 31.70F), 2.82293, 2e-5);  // 0.771 / sin(15.85)
  EXPECT_THROW((void)Bragg(state, 0), RunFailure);
}

TEST(MatrixInverse, TimesTheMatrixIsTheUnit) {
  std::mt19937 random(7);
  std::uniform_real_distribution<Single> uniform(-2, 2);
  for (int n = 1; n <= 10; ++n) {
    BoundedTable<Single> matrix("A", n, n);
    for (int i = 1; i <= n; ++i) {
      for (int j = 1; j <= n; ++j) matrix(i, j) = uniform(random);
      matrix(i, i % n + 1) += 5.0F;  // beside the diagonal: pivots need an exchange of rows, undone at the end
    }
    BoundedTable<Single> inverse = matrix;
    ASSERT_TRUE(Matrix(n, inverse));
    for (int i = 1; i <= n; ++i) {
      for (int j = 1; j <= n; ++j) {
        double sum = 0;
        for (int m = 1; m <= n; ++m) sum += double{matrix(i, m)} * double{inverse(m, j)};
        EXPECT_NEAR(sum, i == j ? 1 : 0, 1e-5) << "size " << n;
      }
    }
  }
  BoundedTable<Single> large("A", 11, 11);
  for (int i = 1; i <= 11; ++i) large(i, i) = 1;
  EXPECT_THROW((void)Matrix(11, large), RunFailure);
}

}  // namespace
}  // namespace zol
