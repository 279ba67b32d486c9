// Lattice and structure in double precision. Expected values by hand where not told otherwise.
#include "core/lattice.h"

#include <gtest/gtest.h>

#include <cmath>

#include "core/run_failure.h"
#include "core/structure.h"

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
                      {{5, 6, 7, 90, 100, 90}, {1, 0, 1}, 3.713456},
                      {{5, 6, 7, 90, 100, 90}, {1, 0, -1}, 4.382970}};
  for (const Row& row : rows) EXPECT_NEAR(Lattice(row.cell).spacing(row.hkl), row.d, 1e-6);
}

TEST(LatticeTest, FrameHasAAlongE1AndCStarAlongE3) {
  const Lattice lattice(triclinic);
  const auto a = lattice.cartesian(DirectVector{1, 0, 0});
  const auto b = lattice.cartesian(DirectVector{0, 1, 0});
  const auto c = lattice.cartesian(DirectVector{0, 0, 1});
  const auto c_star = lattice.cartesian(ReciprocalVector{0, 0, 1});
  EXPECT_NEAR(a.x, triclinic.a, exact);
  EXPECT_EQ(a.y, 0);
  EXPECT_NEAR(std::hypot(c_star.x, c_star.y), 0, exact);
  EXPECT_GT(c_star.z, 0);
  EXPECT_GT(b.y, 0);
  EXPECT_NEAR(angle_deg(b, c), triclinic.alpha, 1e-10);
  EXPECT_NEAR(angle_deg(c, a), triclinic.beta, 1e-10);
  EXPECT_NEAR(angle_deg(a, b), triclinic.gamma, 1e-10);
}

TEST(LatticeTest, ThereAndBack) {
  const Lattice lattice(triclinic);
  const DirectVector uvw = lattice.direct(lattice.cartesian(DirectVector{1, -2, 3}));
  EXPECT_NEAR(uvw.u, 1, exact);
  EXPECT_NEAR(uvw.v, -2, exact);
  EXPECT_NEAR(uvw.w, 3, exact);
  const ReciprocalVector hkl = lattice.reciprocal(lattice.cartesian(ReciprocalVector{4, 0, -1}));
  EXPECT_NEAR(hkl.h, 4, exact);
  EXPECT_NEAR(hkl.k, 0, exact);
  EXPECT_NEAR(hkl.l, -1, exact);
  const CellConstants twice = Lattice(lattice.reciprocal_cell()).reciprocal_cell();
  EXPECT_NEAR(twice.b, triclinic.b, 1e-10);
  EXPECT_NEAR(twice.beta, triclinic.beta, 1e-10);
  EXPECT_NEAR(Lattice(lattice.reciprocal_cell()).volume() * lattice.volume(), 1, exact);
}

TEST(LatticeTest, RefusesWhatIsNoCell) {
  const CellConstants cells[] = {{0, 1, 1, 90, 90, 90},  {1, 1, 1, 90, 90, 180},  {1, 1, 1, 120, 120, 120},
                                 {1, 1, 1, 30, 60, 100}, {1, NAN, 1, 90, 90, 90}, {1e-200, 1e-200, 1, 90, 90, 90}};
  for (const CellConstants& cell : cells) EXPECT_THROW(Lattice{cell}, RunFailure);
  EXPECT_THROW((void)Lattice(triclinic).spacing({}), RunFailure);
}

/// The four translations of an F lattice with the inversion.
Structure rock_salt() {
  Structure structure;
  structure.cell = {5.64, 5.64, 5.64, 90, 90, 90};
  const int halves[4][3] = {{0, 0, 0}, {0, 12, 12}, {12, 0, 12}, {12, 12, 0}};
  for (const auto& half : halves) {
    ExactOperator op;
    op.translation = {half[0], half[1], half[2]};
    structure.operators.push_back(op);
    for (auto& row : op.rotation) {
      for (int& element : row) element = -element;
    }
    structure.operators.push_back(op);
  }
  structure.sites = {{"Na", "Na", 1, 1, {0, 0, 0}, 0.5}, {"Cl", "Cl", -1, 1, {0.5, 0.5, 0.5}, 0.5}};
  return structure;
}

TEST(StructureTest, CellAtomsMergeOnSymmetryElementsAndAcrossTheEdge) {
  QuietTask quiet;
  Structure structure = rock_salt();
  for (const double merge : {0.0, 0.1}) EXPECT_EQ(cell_atoms(structure, merge, quiet).size(), 8U);
  structure.sites[0].position = {0.999, 0, 0};  // 0.011 angstroms from its inverse image
  EXPECT_EQ(cell_atoms(structure, 0.1, quiet).size(), 8U);
  structure.sites[0].position = {0.25, 0.1, 0};
  EXPECT_EQ(cell_atoms(structure, 0.1, quiet).size(), 12U);
  structure.operators.clear();
  EXPECT_EQ(cell_atoms(structure, 0.1, quiet).size(), 2U);
  structure.sites[0].position.v = NAN;
  EXPECT_THROW((void)cell_atoms(structure, 0.1, quiet), RunFailure);
}

TEST(StructureTest, OperatorsMultiplyFromTheRight) {
  ExactOperator screw;  // -x, -y, z + 1/2
  screw.rotation[0][0] = screw.rotation[1][1] = -operator_unit;
  screw.translation = {0, 0, 12};
  ExactOperator shift;
  shift.translation = {6, 0, 18};
  EXPECT_EQ((screw * shift).translation, (std::array{18, 0, 6}));
  EXPECT_EQ((shift * screw).translation, (std::array{6, 0, 6}));
  EXPECT_EQ(screw * screw, ExactOperator{});
  const DirectVector image = screw.apply({0.1, 0.2, 0.3});
  EXPECT_EQ(image.u, -0.1);
  EXPECT_NEAR(image.w, 0.8, exact);
}

}  // namespace
}  // namespace zol
