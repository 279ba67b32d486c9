// Lattice and structure in double precision, expected values by hand where not told otherwise; the metric in Singles
// held against them.
#include "core/lattice.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "core/cell_geometry.h"
#include "core/number_text.h"
#include "core/structure.h"
#include "tests/cartesian_cell.h"
#include "tests/test_files.h"

namespace zol {
namespace {

constexpr double rounding = 1e-12;
const CellConstants triclinic{5.1, 6.3, 7.7, 82.0, 101.0, 113.0};

// d from the general formula of International Tables B 1.1 at a desk calculator.
TEST(LatticeTest, SpacingsOfAllSystems) {
  struct Row {
    CellConstants cell;
    ReciprocalVector hkl;
    double d;
  };
  const Row rows[] = {{{4, 4, 4, 90, 90, 90}, {1, 1, 1}, 4 / std::sqrt(3.0)},
                      {{3, 3, 5, 90, 90, 120}, {1, 1, 0}, 1.5},
                      {{3, 3, 3, 60, 60, 60}, {1, 1, 1}, std::sqrt(6.0)},  // primitive cell of a face-centred one
                      {{5, 6, 7, 90, 100, 90}, {1, 0, 1}, 3.713456},
                      {{5, 6, 7, 90, 100, 90}, {1, 0, -1}, 4.382970}};
  for (const Row& row : rows) EXPECT_NEAR(Lattice(row.cell).spacing(row.hkl), row.d, 1e-6);
}

TEST(LatticeTest, FrameHasAAlongE1AndCStarAlongE3ThereAndBack) {
  const Lattice lattice(triclinic);
  EXPECT_EQ(lattice.cartesian(DirectVector{1, 0, 0}), (CartesianVector{triclinic.a, 0, 0}));
  EXPECT_GT(lattice.cartesian(DirectVector{0, 1, 0}).y, 0);
  const auto c_star = lattice.cartesian(ReciprocalVector{0, 0, 1});
  EXPECT_NEAR(c_star.z, length(c_star), rounding);
  const DirectVector uvw = lattice.direct(lattice.cartesian(DirectVector{1, -2, 3}));
  EXPECT_NEAR(std::hypot(uvw.u - 1, uvw.v + 2, uvw.w - 3), 0, rounding);
  const ReciprocalVector hkl = lattice.reciprocal(lattice.cartesian(ReciprocalVector{4, 0, -1}));
  EXPECT_NEAR(std::hypot(hkl.h - 4, hkl.k, hkl.l + 1), 0, rounding);
  const Lattice reciprocal(lattice.reciprocal_cell());
  EXPECT_NEAR(reciprocal.volume() * lattice.volume(), 1, rounding);
  const CellConstants twice = reciprocal.reciprocal_cell();
  for (const auto constant : {&CellConstants::a, &CellConstants::b, &CellConstants::c, &CellConstants::alpha,
                              &CellConstants::beta, &CellConstants::gamma}) {
    EXPECT_NEAR(twice.*constant, triclinic.*constant, 1e-10);
  }
}

TEST(LatticeTest, RefusesWhatIsNoCell) {
  for (const auto& [cell, words] : {std::pair{CellConstants{0, 1, 1, 90, 90, 90}, "edge a is 0"},
                                    {{1, NAN, 1, 90, 90, 90}, "edge b is not a finite number"},
                                    {{1, 1, -2, 90, 90, 90}, "edge c is -2"},
                                    {{1, 1, 1, 0, 90, 90}, "angle alpha is 0"},
                                    {{1, 1, 1, 90, -1, 90}, "angle beta is -1"},
                                    {{1, 1, 1, 90, 90, 180}, "angle gamma is 180"},
                                    {{1, 1, 1, 120, 120, 120}, "no such cell"},
                                    {{1, 1, 1, 30, 60, 100}, "no such cell"},
                                    {{1e-200, 1e-200, 1, 90, 90, 90}, "a volume beyond all numbers"}}) {
    EXPECT_TRUE(fails_with(words, [&cell = cell] { Lattice{cell}; }));
  }
  EXPECT_TRUE(fails_with("no spacing", [] { (void)Lattice(triclinic).spacing({}); }));
}

// The four translations of an F lattice with the inversion.
TEST(StructureTest, CellAtomsMergeOnSymmetryElementsAndAcrossTheEdge) {
  Structure structure;
  structure.cell = {5.64, 5.64, 5.64, 90, 90, 90};
  constexpr std::array<std::array<int, 3>, 4> halves{{{0, 0, 0}, {0, 12, 12}, {12, 0, 12}, {12, 12, 0}}};
  for (const auto& half : halves) {
    for (const int sign : {operator_unit, -operator_unit}) {
      structure.operators.push_back({{{{sign, 0, 0}, {0, sign, 0}, {0, 0, sign}}}, half});
    }
  }
  QuietTask quiet;
  structure.sites = {{"Na", "Na", 1, 1, {0, 0, 0}, 0.5}, {"Cl", "Cl", -1, 1, {0.5, 0.5, 0.5}, 0.5}};
  EXPECT_EQ(cell_atoms(structure, 0, quiet).size(), 8U);
  for (const auto& [position, atoms] : {std::pair{DirectVector{0.999, 0, 0}, 8U},  // 0.011 from its inverse image
                                        {{0.25, 0.1, -1e-17}, 12U}}) {
    structure.sites[0].position = position;
    EXPECT_EQ(cell_atoms(structure, 0.1, quiet).size(), atoms);
  }
  structure.operators.clear();
  ASSERT_EQ(cell_atoms(structure, 0.1, quiet).size(), 2U);
  EXPECT_EQ(cell_atoms(structure, 0.1, quiet)[0].position, (DirectVector{0.25, 0.1, 0}));
  structure.sites[0].position.v = NAN;
  EXPECT_TRUE(fails_with("\"Na\" is not a finite number", [&] { (void)cell_atoms(structure, 0.1, quiet); }));
}

TEST(StructureTest, OperatorsMultiplyFromTheRight) {
  const ExactOperator screw{{{{-operator_unit, 0, 0}, {0, -operator_unit, 0}, {0, 0, operator_unit}}}, {0, 0, 12}};
  ExactOperator shift;
  shift.translation = {6, 0, 18};
  EXPECT_EQ(screw * shift, (ExactOperator{screw.rotation, {18, 0, 6}}));
  EXPECT_EQ(shift * screw, (ExactOperator{screw.rotation, {6, 0, 6}}));
  EXPECT_EQ(screw * screw, ExactOperator{});
  const DirectVector image = screw.apply({0.1, 0.2, 0.3});  // -x, -y, z + 1/2
  EXPECT_NEAR(std::hypot(image.u + 0.1, image.v + 0.2, image.w - 0.8), 0, rounding);
}

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
  state.CellAlpha = state.CellBeta = 60.00005F;  // a cosine of just 0.5; with one of 1 they lie in a plane
  state.CellGamma = 0.001F;
  EXPECT_FALSE(calc_cell(state));
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
