// Distances from an atom of the asymmetric unit to the atoms of the unit cell and its 26 neighbours, in angstroms.
#pragma once

#include <string>
#include <vector>

#include "core/crystal_state.h"
#include "core/task.h"

namespace zol {

/// The part of the cell that lengths depend on, angstroms and cosines.
struct DistanceCell {
  Single CellA = 0, CellB = 0, CellC = 0;
  Single CosAlpha = 0, CosBeta = 0, CosGamma = 0;
};
[[nodiscard]] DistanceCell distance_cell(const Main1State& state);

struct AtomDistance {
  int cell_atom = 0;    ///< index in the arrays of the unit cell
  Single distance = 0;  ///< angstroms, above 0.01
};

/// For each site of the crystal all distances up to the limit, in the order of the cells (along a slowest) and of the
/// atoms in them. Reports the sites.
/// @throws RunFailure  an index beyond the arrays of the crystal, or the metric gives a negative square
/// @throws Cancelled   by the task
[[nodiscard]] std::vector<std::vector<AtomDistance>> atom_distances(const Module1State& crystal,
                                                                    const DistanceCell& cell, Single limit, Task& task);

/// Labels and elements of both atoms, right-aligned, and the distance.
[[nodiscard]] std::string distance_line(const Module1State& crystal, int site, const AtomDistance& distance);

}  // namespace zol
