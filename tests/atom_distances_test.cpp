#include "calculators/atom_distances.h"

#include <gtest/gtest.h>

#include "core/triples.h"
#include "tests/crystals.h"
#include "tests/recorded_task.h"

namespace zol {
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
    for (std::size_t j = 0; j < atoms.size(); ++j) state.UCPos(static_cast<int>(j) + 1, i + 1) = atoms[j][axis];
  }
  RecordedTask task;
  const auto found = atom_distances(state, distance_cell(state), limit, task);
  EXPECT_EQ(task.steps.back(), std::pair(1, 1));
  EXPECT_EQ(task.checks, 27) << "one for each cell";
  return found.front();
}

TEST(AtomDistances, StandInTheOrderOfTheCells) {
  struct Row {
    const char* name;
    CellNumbers cell;
    SingleTriple site;
    std::vector<SingleTriple> atoms;
    Single limit;
    std::vector<int> found;  ///< numbers of the atoms
    std::vector<double> at;  ///< their distances
  };
  constexpr CellNumbers long_b_and_c{4, 9, 9, 90, 90, 90};
  const std::vector<Row> rows{// With the orthogonalization of gemmi 0.5 (UnitCell::orthogonalize_difference).
                              {"triclinic",
                               {5.58F, 8.14F, 12.78F, 94.2F, 116.6F, 87.8F},
                               {0.1F, 0.2F, 0.7F},
                               {{0.1F, 0.2F, 0.7F}, {0.9F, 0.8F, 0.3F}},
                               8.5,
                               {2, 1, 2, 1, 2, 2, 1, 1},
                               {5.5418, 5.58, 7.0257, 8.14, 7.824, 8.2531, 8.14, 5.58}},
                              // Coordinates count as they stand: from 2.25 along a the nearest of three cells is at 1.
                              {"site outside the cell", long_b_and_c, {2.25F, 0, 0}, {{0, 0, 0}}, 8, {1}, {5}},
                              {"limit belongs to the list", long_b_and_c, {0, 0, 0}, {{0.5F, 0, 0}}, 2, {1, 1}, {2, 2}},
                              {"same place within 0.01",
                               {1, 9, 9, 90, 90, 90},
                               {0, 0, 0},
                               {{0.01F, 0, 0}, {0.0101F, 0, 0}},
                               0.5,
                               {2},
                               {0.0101}}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    const auto found = distances(row.cell, row.site, row.atoms, row.limit);
    ASSERT_EQ(found.size(), row.found.size());
    for (std::size_t i = 0; i < found.size(); ++i) {
      EXPECT_EQ(found[i].cell_atom, row.found[i]) << i;
      EXPECT_NEAR(found[i].distance, row.at[i], 6e-5) << i;  // 4 decimals; the truncated pi shifts by 1e-5
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

}  // namespace
}  // namespace zol
