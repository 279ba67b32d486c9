#include "calculators/atom_distances.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>

#include "core/cell_geometry.h"
#include "tests/test_files.h"

namespace zol {
namespace {

using Position = std::array<Single, 3>;

/// One site, and the atoms of the unit cell as they are given.
CrystalState crystal(const std::array<Single, 6>& cell, const Position& site, const std::vector<Position>& atoms) {
  CrystalState state;
  state.CellA = cell[0];
  state.CellB = cell[1];
  state.CellC = cell[2];
  state.CellAlpha = cell[3];
  state.CellBeta = cell[4];
  state.CellGamma = cell[5];
  EXPECT_TRUE(calc_cell(state));
  state.NAtom = 1;
  state.NCell = static_cast<int>(atoms.size());
  for (int i = 0; i < 3; ++i) {
    const auto axis = static_cast<std::size_t>(i);
    state.AtomPos(1, i + 1) = site[axis];
    for (int j = 1; j <= state.NCell.value(); ++j) {
      state.UCPos(j, i + 1) = atoms[static_cast<std::size_t>(j) - 1][axis];
    }
  }
  return state;
}

std::vector<AtomDistance> distances(const CrystalState& state, Single limit) {
  return distances_from(state, distance_cell(state), 1, limit);
}

struct ListCase {
  const char* name;
  std::array<Single, 6> cell;
  Position site;
  std::vector<Position> atoms;
  Single limit;
  std::vector<std::pair<int, double>> list;  ///< atom and distance, in order
};
class DistanceList : public testing::TestWithParam<ListCase> {};
TEST_P(DistanceList, HoldsAtomsInTheOrderOfTheCells) {
  const auto& row = GetParam();
  const auto found = distances(crystal(row.cell, row.site, row.atoms), row.limit);
  ASSERT_EQ(found.size(), row.list.size());
  for (std::size_t i = 0; i < found.size(); ++i) {
    EXPECT_EQ(found[i].cell_atom, row.list[i].first) << i;
    EXPECT_NEAR(found[i].distance, row.list[i].second, 6e-5) << i;  // 4 decimals; the truncated pi shifts by 1e-5
  }
}
INSTANTIATE_TEST_SUITE_P(
    Crystals, DistanceList,
    testing::Values(
        // By hand: differences -2.7, 0.3, 3.3 along a, -3.2, 0.8, 4.8 along b, -3.5, 1.5, 6.5 along c.
        ListCase{"orthorhombic",
                 {3, 4, 5, 90, 90, 90},
                 {0, 0, 0},
                 {{0.1F, 0.2F, 0.3F}},
                 5,
                 {{1, 4.4475},
                  {1, 4.4922},
                  {1, 3.1906},
                  {1, 4.7518},
                  {1, 3.5468},
                  {1, 3.6028},
                  {1, 1.7263},
                  {1, 4.8353},
                  {1, 4.8765},
                  {1, 3.7121}}},
        // With the orthogonalization of gemmi 0.5 (UnitCell::orthogonalize_difference).
        ListCase{"triclinic",
                 {5.58F, 8.14F, 12.78F, 94.2F, 116.6F, 87.8F},
                 {0.1F, 0.2F, 0.7F},
                 {{0.1F, 0.2F, 0.7F}, {0.9F, 0.8F, 0.3F}},
                 8.5,
                 {{2, 5.5418}, {1, 5.58}, {2, 7.0257}, {1, 8.14}, {2, 7.824}, {2, 8.2531}, {1, 8.14}, {1, 5.58}}},
        // Coordinates count as they stand: from 2.25 along a the nearest of three cells is at 1.
        ListCase{"site_outside_the_cell", {4, 9, 9, 90, 90, 90}, {2.25F, 0, 0}, {{0, 0, 0}}, 8, {{1, 5}}},
        // The same place in two kinds, and its images along a.
        ListCase{"mixed_occupancy",
                 {4, 9, 9, 90, 90, 90},
                 {0, 0, 0},
                 {{0, 0, 0}, {0, 0, 0}},
                 4,
                 {{1, 4}, {2, 4}, {1, 4}, {2, 4}}},
        ListCase{"limit_belongs_to_the_list", {4, 9, 9, 90, 90, 90}, {0, 0, 0}, {{0.5F, 0, 0}}, 2, {{1, 2}, {1, 2}}},
        ListCase{"limit_below", {4, 9, 9, 90, 90, 90}, {0, 0, 0}, {{0.5F, 0, 0}}, 1.9999F, {}},
        ListCase{"no_limit_set", {4, 9, 9, 90, 90, 90}, {0, 0, 0}, {{0.5F, 0, 0}}, 0, {}},
        ListCase{"same_place_within_0_01",
                 {1, 9, 9, 90, 90, 90},
                 {0, 0, 0},
                 {{0.01F, 0, 0}, {0.0101F, 0, 0}},
                 0.5,
                 {{2, 0.0101}}}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(AtomDistances, ReachTheNextCellsAndNoFarther) {
  const auto state = crystal({4, 4, 4, 90, 90, 90}, {0, 0, 0}, {{0, 0, 0}});
  const auto found = distances(state, 100);
  EXPECT_EQ(found.size(), 26U);
  const auto at = [&found](double length) {
    return std::count_if(found.begin(), found.end(),
                         [length](const auto& d) { return std::abs(double{d.distance} - length) < 1e-4; });
  };
  EXPECT_EQ(at(4), 6);
  EXPECT_EQ(at(4 * std::sqrt(2)), 12);
  EXPECT_EQ(at(4 * std::sqrt(3)), 8);
}

TEST(AtomDistances, BeyondTheArraysOfTheCrystal) {
  auto state = crystal({4, 4, 4, 90, 90, 90}, {0, 0, 0}, {{0, 0, 0}});
  state.NCell = max_cell_atoms + 1;
  EXPECT_NE(failure_of([&] { (void)distances(state, 1); }).find("UCPos"), std::string::npos);
}

struct LineCase {
  const char* name;
  const char* label;
  const char* element;
  const char* line;
};
class DistanceLine : public testing::TestWithParam<LineCase> {};
TEST_P(DistanceLine, IsMadeOfFivePieces) {
  CrystalState state;
  state.AtomLabel(1) = state.UCLabel(2) = GetParam().label;
  state.AtomElement(1) = state.UCElement(2) = GetParam().element;
  EXPECT_EQ(distance_line(state, 1, {2, 1.94651F}), GetParam().line);
}
INSTANTIATE_TEST_SUITE_P(
    Names, DistanceLine,
    testing::Values(LineCase{"common", "Fe1", "Fe", "    Fe1      (Fe) -    Fe1     (Fe)   1.9465"},
                    LineCase{"one_letter", "O", "O", "      O      (O) -      O      (O)   1.9465"},
                    LineCase{"fills_the_field", "Al12345", "Abcd", "Al12345    (Abcd) -Al12345   (Abcd)   1.9465"},
                    LineCase{"cut_at_its_left", "LongLabel1", "VeryLongEl",
                             "gLabel1eryLongEl) -gLabel1ryLongEl)   1.9465"},
                    // Six blanks in front do not fill the field of an empty name.
                    LineCase{"empty", "", "", "            () -            ()   1.9465"}),
    [](const auto& row) { return std::string(row.param.name); });

}  // namespace
}  // namespace zol
