// From the asymmetric unit to the full content of the unit cell.
#pragma once

#include <string>

#include "core/crystal_state.h"
#include "core/space_group.h"

namespace zol {

/// Applies every operator to every site, folds the positions into the cell and drops what coincides with an atom of the
/// same label and element (each axis nearer than 0.01, modulo 1). The first image of a site is kept.
/// Reads the sites and AxisSetting; writes NCell and the UC arrays.
/// @throws RunFailure  more than 2000 atoms
void expand_unit_cell(CrystalState& state, const SpaceGroup& group);

/// "N(S)": the number of atoms in the cell and the sum of their occupancies.
[[nodiscard]] std::string unit_cell_summary(const CrystalState& state);

/// Line of the atom list for cell atom m, columns of fixed width.
[[nodiscard]] std::string unit_cell_line(const CrystalState& state, int m);

}  // namespace zol
