#include "core/cell_geometry.h"

#include <gtest/gtest.h>

#include <random>

#include "core/number_text.h"
#include "tests/cartesian_cell.h"
#include "tests/test_files.h"

namespace zol {
namespace {

// The truncated pi shifts the angles by 1.3e-6 rad, hence the tolerances.
TEST(Metric, IsThatOfTheExactLattice) {
  std::mt19937 random(3);
  std::uniform_int_distribution<int> index(-9, 9);
  for (const auto& cell : cells_of_all_systems) {
    const auto state = with_cell(cell);
    const CartesianCell exact(state);
    const std::array stars{exact.normal(1, 0, 0), exact.normal(0, 1, 0), exact.normal(0, 0, 1)};
    EXPECT_NEAR(state.CellVolume * dot(stars[0], cross(stars[1], stars[2])), 1, 2e-5);
    const std::array angles{state.AlphaStar, state.BetaStar, state.GammaStar};
    const std::array sines{state.SinAlphaStar, state.SinBetaStar, state.SinGammaStar};
    for (std::size_t i = 0; i < 3; ++i) {
      EXPECT_NEAR(angles[i], angle_deg(stars[(i + 1) % 3], stars[(i + 2) % 3]), 2e-3) << i;
      EXPECT_NEAR(sines[i], std::sin(angles[i] * degree), 2e-5) << i;
    }
    const auto compare = [](double length, double product, const Cartesian& first, const Cartesian& second) {
      const double exact_length = std::sqrt(dot(first, first));
      EXPECT_NEAR(length / exact_length, 1, 2e-5);
      const double scale = exact_length * std::sqrt(dot(second, second));
      EXPECT_NEAR(product / scale, dot(first, second) / scale, 2e-5);
    };
    for (int n = 1; n <= 20; ++n) {
      const std::array v{n, index(random), index(random), -n, index(random), index(random)};
      compare(DHKL(state, v[0], v[1], v[2]), Product(state, v[0], v[1], v[2], v[3], v[4], v[5]),
              exact.normal(v[0], v[1], v[2]), exact.normal(v[3], v[4], v[5]));
      compare(DHKLTI(state, v[0], v[1], v[2]), ProductT(state, v[0], v[1], v[2], v[3], v[4], v[5]),
              exact.direction(v[0], v[1], v[2]), exact.direction(v[3], v[4], v[5]));
    }
  }
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
  EXPECT_TRUE(fails_with("sin(theta) in Bragg's law is 0", [&state] { (void)Bragg(state, 0); }));
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
  EXPECT_TRUE(fails_with("index 11 of perm", [&large] { (void)Matrix(11, large); }));
}

}  // namespace
}  // namespace zol
