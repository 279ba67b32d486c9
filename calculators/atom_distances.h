// Distances from an atom of the asymmetric unit to the atoms of the unit cell and its 26 neighbours, in angstroms.
#pragma once

#include <string>
#include <vector>

#include "core/crystal_state.h"

namespace zol {

/// The part of the cell that lengths need.
struct DistanceCell {
  Single CellA = 0, CellB = 0, CellC = 0;
  Single CosAlpha = 0, CosBeta = 0, CosGamma = 0;
};
[[nodiscard]] DistanceCell distance_cell(const Main1State& state);

struct AtomDistance {
  int cell_atom = 0;    ///< index in the arrays of the unit cell
  Single distance = 0;  ///< above 0.01
};

/// All distances of a site up to the limit, in the order of the cells (along a slowest) and of the atoms in them.
/// @throws RunFailure  an index beyond the arrays of the crystal, or the metric gives a negative square
[[nodiscard]] std::vector<AtomDistance> distances_from(const Module1State& crystal, const DistanceCell& cell, int site,
                                                       Single limit);

/// Labels and elements of both atoms, right-aligned, and the distance.
[[nodiscard]] std::string distance_line(const Module1State& crystal, int site, const AtomDistance& distance);

}  // namespace zol
