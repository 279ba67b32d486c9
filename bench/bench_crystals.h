// Crystals for benchmarks, with the tables that ship.
#pragma once

#include <cmath>
#include <memory>
#include <random>
#include <string>

#include "core/cell_geometry.h"
#include "core/crystal_file.h"
#include "core/number_text.h"
#include "core/space_group.h"
#include "core/unit_cell.h"
#include "reflections/scattering.h"
#include "tests/lists.h"

namespace zol {

/// Everything that a calculation of the list needs, from the state's cell, number and sites on.
inline void complete(CrystalState& state) {
  calc_cell(state);
  const auto group =
      read_space_group(ZOL_SOURCE_DIR "/data/ZOL/SpaceGr/No" + Format(state.SGNumber.value(), "000") + ".dat");
  state.SGName = group.symbol;
  state.LatticeLetter = group.symbol.substr(0, 1);
  QuietTask task;
  commit(state, expand_unit_cell(state, group, task));
  state.AsfXCount = read_scatter_table(ZOL_SOURCE_DIR "/data/ZOL/Asf/ASF-X.csv", state.AsfX);
  state.WaveLength = 1.542F;
  state.MassRatio = 1;
}

inline std::unique_ptr<CrystalState> shipped_crystal(const std::string& file_name) {
  auto state = std::make_unique<CrystalState>();
  CrystalFileReader file(ZOL_SOURCE_DIR "/data/ZOLDATA/" + file_name);
  file.read_cell(*state);
  file.read_contents(*state);
  complete(*state);
  return state;
}

/// A made-up triclinic cell of some 2300 cubic angstroms without symmetry, sites at random.
inline std::unique_ptr<CrystalState> p1_crystal(int atoms) {
  auto state = std::make_unique<CrystalState>();
  state->CellA = 12.1F;
  state->CellB = 13.2F;
  state->CellC = 15.3F;
  state->CellAlpha = 93;
  state->CellBeta = 104;
  state->CellGamma = 97;
  state->SGNumber = 1;
  state->AxisSetting = "abc";
  std::mt19937 random(200);
  std::uniform_real_distribution<Single> uniform(0, 1);
  constexpr std::array elements{"Si", "O", "O", "Al", "Na", "O", "O", "Ca"};
  for (int i = 1; i <= atoms; ++i) {
    state->NAtom = i;
    state->AtomLabel(i) = "X" + std::to_string(i);
    state->AtomElement(i) = elements[static_cast<std::size_t>(i) % elements.size()];
    state->AtomOcc(i) = 1;
    for (int axis = 1; axis <= 3; ++axis) state->AtomPos(i, axis) = uniform(random);
    state->AtomB(i) = 0.5F + uniform(random);
  }
  complete(*state);
  return state;
}

/// Lists all reflections of the cell down to dmin, in full sphere.
inline void make_list(CrystalState& state, Single dmin, const Radiation& radiation) {
  state.Dmin = dmin;
  QuietTask task;
  commit(state, reflection_list(state, {{true, true, true}, {}}, radiation, task));
}

/// Down to where the made-up cell has about so many reflections: 19180 to 0.8 angstroms.
inline Single dmin_for(double reflections) { return to_single(0.8 * std::cbrt(19180 / reflections)); }

}  // namespace zol
