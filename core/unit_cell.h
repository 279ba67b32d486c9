// From the asymmetric unit to the full content of the unit cell.
#pragma once

#include <string>
#include <vector>

#include "core/crystal_state.h"
#include "core/space_group.h"
#include "core/task.h"
#include "core/triples.h"

namespace zol {

/// An atom of the cell as the image of a site: the number of the site, from 1, and the fractional position of the
/// image, 0 <= x < 1.
struct SiteImage {
  int site = 0;
  SingleTriple position{};
};

using UnitCell = std::vector<SiteImage>;

/// Applies every operator to every site, folds the positions into the cell and drops what coincides with an atom of the
/// same label and element (each axis nearer than 0.01, modulo 1). The first image of a site is kept.
/// Reads the sites and AxisSetting. Checks the task, reports nothing.
/// @throws RunFailure  more than 2000 atoms
[[nodiscard]] UnitCell expand_unit_cell(const CrystalState& state, const SpaceGroup& group, Task& task);

/// Sets NCell and entries 1 to NCell of the UC arrays from the sites of the state; later entries keep their values.
void commit(CrystalState& state, const UnitCell& cell);

/// "N(S)": the number of atoms in the cell and the sum of their occupancies.
[[nodiscard]] std::string unit_cell_summary(const CrystalState& state);

/// Line of the atom list for cell atom m, columns of fixed width. @throws RunFailure  m is above 2000 or negative
[[nodiscard]] std::string unit_cell_line(const CrystalState& state, int m);

}  // namespace zol
