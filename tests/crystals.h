// Crystals made up for tests: a cell, and a list of reflections put in by hand.
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <vector>

#include "core/cell_geometry.h"
#include "core/crystal_state.h"

namespace zol {

using CellNumbers = std::array<Single, 6>;  ///< a, b, c in angstroms, alpha, beta, gamma in degrees

inline CellNumbers cubic_cell(Single edge) { return {edge, edge, edge, 90, 90, 90}; }

inline void set_cell(CrystalState& state, const CellNumbers& cell) {
  state.CellA = cell[0];
  state.CellB = cell[1];
  state.CellC = cell[2];
  state.CellAlpha = cell[3];
  state.CellBeta = cell[4];
  state.CellGamma = cell[5];
  EXPECT_TRUE(calc_cell(state));
}

inline CrystalState with_cell(const CellNumbers& cell) {
  CrystalState state;
  set_cell(state, cell);
  return state;
}

struct GivenReflection {
  int h, k, l;
  Single intensity = 1;
  Single s = 0;  ///< sin(theta)/lambda; 0 for that of the cell
};

/// The reflection list of the state, all of it for Kikuchi patterns: one entry spare, RefA 0.
inline void set_list(CrystalState& state, const std::vector<GivenReflection>& entries) {
  const int count = static_cast<int>(entries.size());
  state.RefCount = state.KikuchiRefLimit = count;
  state.BandHKL.allocate(count, 2);
  for (auto* array : {&state.RefH, &state.RefK, &state.RefL}) array->allocate(count + 1);
  for (auto* array : {&state.RefS, &state.RefI, &state.RefA}) array->allocate(count + 1);
  for (int i = 1; i <= count; ++i) {
    const auto& entry = entries[static_cast<std::size_t>(i - 1)];
    state.RefH(i) = entry.h;
    state.RefK(i) = entry.k;
    state.RefL(i) = entry.l;
    state.RefS(i) = entry.s == 0 ? to_single(DHKL(state, entry.h, entry.k, entry.l) / 2.0) : entry.s;
    state.RefI(i) = entry.intensity;
  }
}

}  // namespace zol
