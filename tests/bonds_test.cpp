// Bonds, angles and coordination numbers of published structures.
#include "calculators/bonds.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>

#include "core/structure.h"
#include "tests/recorded_task.h"
#include "tests/test_files.h"

namespace zol {
namespace {

/// All atoms of a cell as they stand; the sites are the first of each element.
BondedCrystal crystal_of(const CellConstants& cell, const std::vector<std::pair<const char*, DirectVector>>& atoms) {
  BondedCrystal crystal;
  crystal.cell = cell;
  for (const auto& [element, position] : atoms) {
    const BondAtom atom{element, element, 1, position};
    if (crystal.sites.empty() || crystal.sites.back().element != element) crystal.sites.push_back(atom);
    crystal.atoms.push_back(atom);
  }
  return crystal;
}

CellConstants cubic(double a) { return {a, a, a, 90, 90, 90}; }

/// Levien, Prewitt, Weidner, Am. Mineral. 65 (1980) 920, by the operators of P 32 2 1.
BondedCrystal quartz() {
  constexpr double third = 1.0 / 3;
  Structure structure;
  structure.cell = {4.916, 4.916, 5.4054, 90, 90, 120};
  structure.sites = {{"Si", "Si", 0, 1, {0.4697, 0, 2 * third}, 0},
                     {"O", "O", 0, 1, {0.4135, 0.2669, 0.1191 + 2 * third}, 0}};
  const auto add = [&structure](std::array<std::array<int, 3>, 3> rotation, int thirds) {
    for (auto& row : rotation) {
      for (int& element : row) element *= operator_unit;
    }
    structure.operators.push_back({rotation, {0, 0, thirds * operator_unit / 3}});
  };
  add({{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}}, 0);
  add({{{0, -1, 0}, {1, -1, 0}, {0, 0, 1}}}, 2);
  add({{{-1, 1, 0}, {-1, 0, 0}, {0, 0, 1}}}, 1);
  add({{{0, 1, 0}, {1, 0, 0}, {0, 0, -1}}}, 0);
  add({{{1, -1, 0}, {0, -1, 0}, {0, 0, -1}}}, 1);
  add({{{-1, 0, 0}, {-1, 1, 0}, {0, 0, -1}}}, 2);
  BondedCrystal crystal;
  crystal.cell = structure.cell;
  QuietTask task;
  for (const Site& site : structure.sites) crystal.sites.push_back({site.label, site.element, 1, site.position});
  for (const CellAtom& atom : cell_atoms(structure, 0.1, task)) {
    const Site& site = structure.sites[static_cast<std::size_t>(atom.site)];
    crystal.atoms.push_back({site.label, site.element, 1, atom.position});
  }
  return crystal;
}

const DirectVector o{0, 0, 0};
const std::vector<DirectVector> face_centred{o, {0, .5, .5}, {.5, 0, .5}, {.5, .5, 0}};

std::vector<std::pair<const char*, DirectVector>> two_lattices(const char* first, const char* second, double shift) {
  std::vector<std::pair<const char*, DirectVector>> atoms;
  atoms.reserve(2 * face_centred.size());
  for (const auto& x : face_centred) atoms.emplace_back(first, x);
  for (const auto& x : face_centred) atoms.emplace_back(second, DirectVector{x.u + shift, x.v + shift, x.w + shift});
  return atoms;
}

TEST(Bonds, EndAtTheFirstGap) {
  // Rutile: Abrahams and Bernstein, J. Chem. Phys. 55 (1971) 3206.
  constexpr double u = 0.30479;
  const BondedCrystal rutile = crystal_of({4.593659, 4.593659, 2.958682, 90, 90, 90}, {{"Ti", o},
                                                                                       {"Ti", {.5, .5, .5}},
                                                                                       {"O", {u, u, 0}},
                                                                                       {"O", {1 - u, 1 - u, 0}},
                                                                                       {"O", {.5 + u, .5 - u, .5}},
                                                                                       {"O", {.5 - u, .5 + u, .5}}});
  struct Row {
    const char* name;
    BondedCrystal crystal;
    std::vector<int> numbers;                ///< coordination numbers of the sites
    std::array<double, 2> shortest_longest;  ///< of the first site
    double next;
    std::set<double> angles;  ///< at the first site, degrees
    double error_deg = 0.006;
  };
  for (const auto& row :
       {Row{"rock salt",
            crystal_of(cubic(5.6402), two_lattices("Na", "Cl", .5)),
            {6, 6},
            {2.8201, 2.8201},
            3.98822,
            {90, 180}},
        Row{"diamond",
            crystal_of(cubic(3.567), two_lattices("C", "C", .25)),
            {4},
            {1.54456, 1.54456},
            2.52225,
            {109.47}},
        Row{"caesium chloride",
            crystal_of(cubic(4.123), {{"Cs", o}, {"Cl", {.5, .5, .5}}}),
            {8, 8},
            {3.57062, 3.57062},
            4.123,
            {70.53, 109.47, 180}},
        Row{"rutile", rutile, {6, 3}, {1.9485, 1.9800}, 2.958682, {81.21, 90, 98.79, 180}},
        Row{"quartz", quartz(), {4, 2}, {1.6046, 1.6136}, 3.0577, {108.81, 108.93, 109.24, 110.52}, 0.09}}) {
    RecordedTask task;
    const auto found = coordinations(row.crystal, {}, task);
    ASSERT_EQ(found.size(), row.numbers.size()) << row.name;
    for (std::size_t i = 0; i < found.size(); ++i) {
      EXPECT_EQ(static_cast<int>(found[i].bonds.size()), row.numbers[i]) << row.name;
    }
    EXPECT_NEAR(found[0].bonds.front().distance, row.shortest_longest[0], 1e-3) << row.name;
    EXPECT_NEAR(found[0].bonds.back().distance, row.shortest_longest[1], 1e-3) << row.name;
    EXPECT_NEAR(found[0].next, row.next, 2e-3) << row.name;
    std::set<double> angles;
    for (const auto& angle : bond_angles(found[0])) angles.insert(std::round(angle.degrees * 100) / 100);
    ASSERT_EQ(angles.size(), row.angles.size()) << row.name;
    std::equal(angles.begin(), angles.end(), row.angles.begin(), [&row](double found_deg, double told_deg) {
      EXPECT_NEAR(found_deg, told_deg, row.error_deg) << row.name;
      return true;
    });
  }
}

// A line of atoms 1 angstrom apart: up to 7.5 there are 7 on each side, far beyond the neighbouring cells.
TEST(Bonds, AreLookedForAsFarAsTheLimitAsks) {
  RecordedTask task;
  const auto line = crystal_of({1, 40, 40, 90, 90, 90}, {{"X", {0.3, 0, 0}}});
  const auto found = coordinations(line, {7.5, 0}, task).front();
  EXPECT_EQ(found.bonds.size(), 14U);
  EXPECT_NEAR(found.bonds.back().distance, 7, 1e-12);
  EXPECT_NEAR(found.next, 8, 1e-12);
  EXPECT_EQ(task.steps.back(), std::pair(1, 1));
  QuietTask quiet;
  EXPECT_TRUE(coordinations(crystal_of(cubic(100), {{"X", o}}), {}, quiet).front().bonds.empty());
  // A quarter of an atom 0.5 angstroms beside three quarters shares its place; two whole ones are a fault that shows.
  auto split = crystal_of(cubic(5), {{"A", o}, {"B", {0.1, 0, 0}}});
  EXPECT_EQ(coordinations(split, {1, 0}, quiet).front().bonds.size(), 1U);
  split.atoms[1].occupancy = 0.25;
  split.sites[0].occupancy = 0.75;
  EXPECT_TRUE(coordinations(split, {1, 0}, quiet).front().bonds.empty());
}

// An edge of 1e-30 would be walked through for ever.
TEST(Bonds, RefuseCellsTooSmall) {
  QuietTask quiet;
  for (const auto& cell : {CellConstants{1e-30, 4, 4, 90, 90, 90}, CellConstants{0.2, 0.2, 0.2, 90, 90, 90}}) {
    const auto tiny = crystal_of(cell, {{"X", o}});
    EXPECT_TRUE(fails_with("the cell is too small", [&] { (void)coordinations(tiny, {15, 0}, quiet); }));
  }
}

}  // namespace
}  // namespace zol
