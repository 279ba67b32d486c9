// Lattice and structure in double precision. Expected values by hand where not told otherwise.
#include "core/lattice.h"

#include <gtest/gtest.h>

#include <cmath>

#include "core/structure.h"
#include "tests/test_files.h"

namespace zol {
namespace {

constexpr double exact = 1e-12;
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
  EXPECT_NEAR(c_star.z, length(c_star), exact);
  const DirectVector uvw = lattice.direct(lattice.cartesian(DirectVector{1, -2, 3}));
  EXPECT_NEAR(std::hypot(uvw.u - 1, uvw.v + 2, uvw.w - 3), 0, exact);
  const ReciprocalVector hkl = lattice.reciprocal(lattice.cartesian(ReciprocalVector{4, 0, -1}));
  EXPECT_NEAR(std::hypot(hkl.h - 4, hkl.k, hkl.l + 1), 0, exact);
  const Lattice reciprocal(lattice.reciprocal_cell());
  EXPECT_NEAR(reciprocal.volume() * lattice.volume(), 1, exact);
  const CellConstants twice = reciprocal.reciprocal_cell();
  for (const auto constant : {&CellConstants::a, &CellConstants::b, &CellConstants::c, &CellConstants::alpha,
                              &CellConstants::beta, &CellConstants::gamma}) {
    EXPECT_NEAR(twice.*constant, triclinic.*constant, 1e-10);
  }
}

TEST(LatticeTest, RefusesWhatIsNoCell) {
  for (const auto& [cell, words] : {std::pair{CellConstants{0, 1, 1, 90, 90, 90}, "edge a is 0"},
                                    {{1, NAN, 1, 90, 90, 90}, "edge b is no finite number"},
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
  EXPECT_TRUE(fails_with("\"Na\" is no finite number", [&] { (void)cell_atoms(structure, 0.1, quiet); }));
}

TEST(StructureTest, OperatorsMultiplyFromTheRight) {
  const ExactOperator screw{{{{-operator_unit, 0, 0}, {0, -operator_unit, 0}, {0, 0, operator_unit}}}, {0, 0, 12}};
  ExactOperator shift;
  shift.translation = {6, 0, 18};
  EXPECT_EQ(screw * shift, (ExactOperator{screw.rotation, {18, 0, 6}}));
  EXPECT_EQ(shift * screw, (ExactOperator{screw.rotation, {6, 0, 6}}));
  EXPECT_EQ(screw * screw, ExactOperator{});
  const DirectVector image = screw.apply({0.1, 0.2, 0.3});  // -x, -y, z + 1/2
  EXPECT_NEAR(std::hypot(image.u + 0.1, image.v + 0.2, image.w - 0.8), 0, exact);
}

}  // namespace
}  // namespace zol
