// Edges of the calculators, and the passes of the search. Plain runs: scripts/calculators.zs.
#include <gtest/gtest.h>

#include <cmath>

#include "calculators/atom_distances.h"
#include "calculators/direction_search.h"
#include "calculators/vector_calculations.h"
#include "core/triples.h"
#include "tests/crystals.h"
#include "tests/recorded_task.h"
#include "tests/test_files.h"

namespace zol::utility {
namespace {

/// Distances to the atoms of a unit cell, given as they stand, from one site.
std::vector<AtomDistance> distances(const CellNumbers& cell, const SingleTriple& site,
                                    const std::vector<SingleTriple>& atoms, Single limit) {
  CrystalState state = with_cell(cell);
  state.NAtom = 1;
  state.NCell = static_cast<int>(atoms.size());
  for (int i = 0; i < 3; ++i) {
    const auto axis = static_cast<std::size_t>(i);
    state.AtomPos(1, i + 1) = site[axis];
    for (int j = 1; j <= state.NCell.value(); ++j) state.UCPos(j, i + 1) = atoms[static_cast<std::size_t>(j - 1)][axis];
  }
  RecordedTask task;
  const auto found = atom_distances(state, distance_cell(state), limit, task);
  EXPECT_EQ(task.steps.back(), std::pair(1, 1));
  EXPECT_EQ(task.checks, 27) << "one for each cell";
  return found.front();
}

TEST(AtomDistances, StandInTheOrderOfTheCells) {
  struct Row {
    CellNumbers cell;
    SingleTriple site;
    std::vector<SingleTriple> atoms;
    Single limit;
    std::vector<std::pair<int, double>> found;  ///< number of the atom, distance
  };
  for (const auto& row :
       // With the orthogonalization of gemmi 0.5 (UnitCell::orthogonalize_difference).
       {Row{{5.58F, 8.14F, 12.78F, 94.2F, 116.6F, 87.8F},
            {0.1F, 0.2F, 0.7F},
            {{0.1F, 0.2F, 0.7F}, {0.9F, 0.8F, 0.3F}},
            8.5,
            {{2, 5.5418}, {1, 5.58}, {2, 7.0257}, {1, 8.14}, {2, 7.824}, {2, 8.2531}, {1, 8.14}, {1, 5.58}}},
        // Coordinates count as they stand: from 2.25 along a the nearest of three cells is at 1.
        Row{{4, 9, 9, 90, 90, 90}, {2.25F, 0, 0}, {{0, 0, 0}}, 8, {{1, 5}}},
        // The same place within 0.01 does not count, the limit does.
        Row{{1, 9, 9, 90, 90, 90},
            {},
            {{0.01F, 0, 0}, {0.0101F, 0, 0}, {0.5F, 0, 0}},
            0.5,
            {{3, 0.5}, {2, 0.0101}, {3, 0.5}}}}) {
    const auto found = distances(row.cell, row.site, row.atoms, row.limit);
    ASSERT_EQ(found.size(), row.found.size()) << row.limit;
    for (std::size_t i = 0; i < found.size(); ++i) {
      EXPECT_EQ(found[i].cell_atom, row.found[i].first) << i;
      EXPECT_NEAR(found[i].distance, row.found[i].second, 6e-5) << i;  // 4 decimals; the truncated pi shifts by 1e-5
    }
  }
}

TEST(DistanceLine, CutsLongNamesAtTheirLeft) {
  CrystalState state;
  for (const auto& [label, element, line] :
       {std::array{"LongLabel1", "VeryLongEl", "gLabel1eryLongEl) -gLabel1ryLongEl)   1.9465"},
        {"", "", "            () -            ()   1.9465"}}) {  // six blanks in front do not fill an empty field
    state.AtomLabel(1) = state.UCLabel(2) = label;
    state.AtomElement(1) = state.UCElement(2) = element;
    EXPECT_EQ(distance_line(state, 1, {2, 1.94651F}), line);
  }
}

DirectionSearch search(const PhotographPair& wanted) {
  RecordedTask task;
  const auto found = search_direction(wanted, task);
  EXPECT_EQ(task.steps.back(), std::pair(4, 4));
  EXPECT_GT(task.checks, 36 + 20 + 20 + 19) << "one for each row of trials";
  return found;
}

TEST(DirectionPasses, FourthIsCentredOnTheSecond) {
  // Azimuth 33.5, polar angle 47.4, half way between the steps of the second pass: the third comes near, the fourth can
  // move by 0.1 only.
  const auto found = search({33.5F, 0, -5.1605215F, 35});
  const auto& [first, second, third, fourth] = found.passes;
  EXPECT_NEAR(third.azimuth, 33.5, 0.051);
  EXPECT_NEAR(third.polar, 47.4, 0.051);
  EXPECT_NEAR(fourth.azimuth, second.azimuth, 0.1001);
  EXPECT_NEAR(fourth.polar, second.polar, 0.1001);
  EXPECT_GT(std::abs(double{fourth.azimuth} - 33.5), 0.3);
  EXPECT_EQ(found.answer(), fourth);
}

TEST(DirectionPasses, FirstOfEqualTrialsWinsAndTheEdgesAreClamped) {
  // Without rotation and with both azimuths 0, any polar angle fits azimuth 0, and polar angle 0 fits any azimuth.
  const auto& [first, second, third, fourth] = search({}).passes;
  EXPECT_EQ(first, (DirectionTrial{0, 10, 0, 0})) << "polar angle 0, clamped to 10";
  EXPECT_EQ(second, (DirectionTrial{-10, 1, 0, 0})) << "polar angle 0 of the first azimuth, clamped to 1";
  EXPECT_NEAR(third.polar, 0, 1e-6) << "1 - 1";
  EXPECT_NEAR(fourth.azimuth, -9.91, 1e-4) << "nearest to 0; the sums of steps pass the limit of -9.9 by a last bit";

  // In the plane of the first photograph: 90 is clamped to 80, and the second pass reaches 90, clamped to 89.
  const auto upper = search({40, 0, 36.0052148F, 30}).passes;
  EXPECT_EQ(upper[0].polar, 80);
  EXPECT_EQ(upper[1].azimuth, 40);
  EXPECT_EQ(upper[1].polar, 89);
  EXPECT_NEAR(upper[3].polar, 89.1, 0.011);

  EXPECT_EQ(search({300, 0, 300, 0}).answer(), DirectionTrial()) << "nothing comes within 100 of both";
}

TEST(UtilityArcCos, IsInRadiansButForItsLowerEdge) {
  for (const auto& [x, arc] : {std::pair{0.0F, 1.5707963F}, {-0.5F, 2.0943951F}, {1.5F, 0.0F}, {-1.0F, 180.0F}}) {
    EXPECT_NEAR(ArcCos(x), arc, 2e-7);
  }
}

TEST(DirectionFromLengths, AtItsEdges) {
  const auto equal = direction_from_lengths({3, 15, 3, 15});
  EXPECT_EQ(std::pair(equal.phi.value(), equal.theta), std::pair(-90, 90.0F)) << "every angle fits; the first one wins";
  const auto none = direction_from_lengths({1, 0, 101.5, 0});
  EXPECT_EQ(std::pair(none.phi.value(), none.theta), std::pair(90, 0.0F)) << "nothing comes within 100: it stays 0";
  EXPECT_EQ(direction_from_lengths({1, 0, 100.5, 0}).theta, 90);
  EXPECT_TRUE(fails_with("length_1 is 0", [] { (void)direction_from_lengths({}); }));
}

const CellNumbers cube = cubic_cell(4);

// cos 90 is 1.3e-6 here, so that k and l are -0.001: rounded down, not off. Plain vectors: scripts/calculators.zs.
TEST(EquivalentVectors, AreRoundedDown) {
  const auto cubic = with_cell(cube);
  EXPECT_EQ(reciprocal_equivalent(cubic, {-1, 0, 0}), (SingleTriple{-1000, -1, -1}));
  EXPECT_EQ(reciprocal_equivalent(cubic, {1, 0, 0}), (SingleTriple{999, 0, 0}));
  EXPECT_TRUE(fails_with("no cell or no vector", [&] { (void)direct_equivalent(cubic, {}); }));
}

// Obtuse angles of directions show as negative ones, the angle less 180.
TEST(VectorAngle, BetweenVectorsOfALengthOnly) {
  const auto cubic = with_cell(cube);
  const auto hexagonal = with_cell({3, 3, 5, 90, 90, 120});
  EXPECT_NEAR(vector_angle(hexagonal, AngleOf::Directions, {1, 0, 0}, {0, 1, 0}).value_or(-999), -60, 5e-4);
  EXPECT_EQ(vector_angle(cubic, AngleOf::Directions, {1, 0, 0}, {-2, 0, 0}), 0);
  EXPECT_EQ(vector_angle(cubic, AngleOf::Planes, {1, 0, 0}, {1, 0, 0}), 180);
  for (const auto kind : {AngleOf::Directions, AngleOf::Normals, AngleOf::Planes}) {
    EXPECT_FALSE(vector_angle(cubic, kind, {}, {1, 0, 0}));
    EXPECT_FALSE(vector_angle(cubic, kind, {1, 0, 0}, {}));
    EXPECT_FALSE(vector_angle(CrystalState(), kind, {1, 0, 0}, {0, 1, 0})) << "no crystal";
  }
}

// A right angle shows as 0 when the cosine is just that, which it is not with a cos 90 of 1.3e-6. Lengths that a Single
// rounds up and down give a cosine of 1 + 1.2e-7: no sine, which ends the run for reciprocal vectors alone.
TEST(VectorAngle, AtCosinesOfZeroAndBeyondOne) {
  CrystalState exact;
  exact.CellA = exact.CellB = exact.CellC = exact.AStar = exact.BStar = exact.CStar = 1;
  const SingleTriple x{3, 0, 0};
  const SingleTriple y{0, 4, 0};  // the third side is 5: 16 + 9 - 25 is 0
  EXPECT_NEAR(vector_angle(with_cell(cube), AngleOf::Directions, x, y).value_or(0), 90, 2e-4);
  EXPECT_EQ(vector_angle(exact, AngleOf::Directions, {0, 1, 1}, {0, 4, 4}), 0);
  for (const auto kind : {AngleOf::Directions, AngleOf::Normals, AngleOf::Planes}) {
    EXPECT_EQ(vector_angle(exact, kind, x, y), kind == AngleOf::Planes ? 180 : 0);
    if (kind == AngleOf::Directions) continue;
    EXPECT_TRUE(fails_with("1 - cos^2", [&] { (void)vector_angle(exact, kind, {0, 1, 1}, {0, 4, 4}); }));
  }
}

}  // namespace
}  // namespace zol::utility
