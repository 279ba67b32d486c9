// What the cell of a structure holds: its contents by element, its density, its shortest distance.
#pragma once

#include <optional>
#include <string>

#include "core/structure.h"
#include "core/task.h"
#include "structures/elements.h"

namespace zol {

/// Images of a site that lie closer are one atom: no two atoms do, and positions are not known better in old work.
inline constexpr double one_atom_angstrom = 0.45;
/// Images that are one atom once positions are settled; those of split sites lie further apart.
inline constexpr double settled_angstrom = 0.04;

/// A cell that atoms fit into: the planes of its faces lie 1 angstrom apart or more.
/// @throws RunFailure  it is none
void check_cell(const CellConstants& cell);

/// How far the operators are from leaving the cell as it is: the largest change of a scalar product of two edges, in
/// parts of the square of the longest edge.
[[nodiscard]] double cell_misfit(const Structure& structure);

/// Atoms of the cell by element, occupancies counted.
[[nodiscard]] Formula cell_contents(const Structure& structure, Task& task);

/// Grams per cubic centimetre.
[[nodiscard]] double density(const Formula& contents, const CellConstants& cell);

/// How many formulas a cell holds when it holds nothing else, within 3 % of each element; hydrogen may be missing.
/// @returns none where the contents are no multiple of the formula
[[nodiscard]] std::optional<double> formula_units(const Formula& contents, const Formula& formula);

struct ShortestDistance {
  double angstrom = 0;
  std::string first, second;  ///< labels of the sites
};

/// Between atoms of different places that may be there at the same time (their occupancies sum up to above 1).
/// @param with_hydrogen  also between pairs of which one is hydrogen
/// @returns none where no two atoms lie closer than 4 angstroms
[[nodiscard]] std::optional<ShortestDistance> shortest_distance(const Structure& structure, bool with_hydrogen,
                                                                Task& task);

/// Puts each site onto the symmetry element that it lies within one_atom_angstrom of: in the middle of those of its
/// images that are one atom. A site whose images share one atom by their occupancies is split, and stays as it is.
/// @returns labels of the split sites
[[nodiscard]] std::vector<std::string> settle_positions(Structure& structure, Task& task);

}  // namespace zol
