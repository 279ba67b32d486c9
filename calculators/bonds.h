// Bonds of the atoms of a crystal, their angles and coordination numbers, in double precision.
//
// Neighbours are looked for as far as is asked, over as many cells as that takes. What a bond is cannot be told from
// distances alone: either the user says up to which length, or the neighbours of an atom end where the next one is
// farther by more than a share of the distance (the first gap). The share is 10 % unless told otherwise: between the
// shells of rock salt lie 41 %, of caesium chloride 15 %, of diamond 63 %, while the longer bonds of an octahedron in
// rutile or corundum exceed the shorter ones by 2 and 6 %.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "core/crystal_state.h"
#include "core/lattice.h"
#include "core/task.h"

namespace zol {

struct BondAtom {
  std::string label;
  std::string element;
  double occupancy = 1;
  DirectVector position;  ///< fractional
};

/// Sites whose bonds are asked for, and all atoms of the cell.
struct BondedCrystal {
  CellConstants cell;
  std::vector<BondAtom> sites;
  std::vector<BondAtom> atoms;
};
[[nodiscard]] BondedCrystal bonded_crystal(const CrystalState& state);

struct BondSettings {
  double limit = 0;  ///< angstroms; 0: bonds end at the first gap
  double gap = 0.1;  ///< share of the distance before it
};

struct Bond {
  int atom = 0;           ///< of the cell, from 0
  double distance = 0;    ///< angstroms
  DirectVector position;  ///< of that atom, fractional, in the cell where it is
  CartesianVector along;  ///< from the site to it
};

struct Coordination {
  std::vector<Bond> bonds;  ///< rising in distance; their number is the coordination number
  double next = 0;          ///< distance of the nearest atom that is not bonded; 0: none was met
};

/// Of each site, in their order. Atoms nearer than 0.7 angstroms whose occupancies add up to 1 at most share a place:
/// they are no neighbours. Checks and reports.
/// @throws RunFailure  the cell constants make no cell, or one so small that too many others lie within reach
/// @throws Cancelled   by the task
[[nodiscard]] std::vector<Coordination> coordinations(const BondedCrystal& crystal, const BondSettings& settings,
                                                      Task& task);

struct BondAngle {
  int first = 0, second = 0;  ///< bonds of the site
  double degrees = 0;
};
/// Between each two bonds of a site.
[[nodiscard]] std::vector<BondAngle> bond_angles(const Coordination& site);

// Lines of lists with columns of fixed width: of a site, of a bond, of an angle.
[[nodiscard]] std::string coordination_line(const BondAtom& site, const Coordination& found);
[[nodiscard]] std::string bond_line(const BondedCrystal& crystal, const BondAtom& site, const Bond& bond);
[[nodiscard]] std::string angle_line(const BondedCrystal& crystal, const BondAtom& site, const Coordination& found,
                                     const BondAngle& angle);

}  // namespace zol
