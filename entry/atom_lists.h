// Readers of bare atom lists for the atom table: texts only, numbers are parsed when the table is applied. They check
// the task at each line.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "core/task.h"

namespace zol {

/// Site name, element, occupancy, x, y, z, B, the texts of columns 1 to 7 of the atom table.
using AtomRow = std::array<std::string, 7>;

/// A block of atom lines "label x y z ...": the element is made from the label, occupancy 1.0, B 0.0. Empty lines do
/// not count.
/// @throws RunFailure  the file cannot be read, has more than 200 such lines, or more than 100 words on a line
[[nodiscard]] std::vector<AtomRow> read_bare_atom_list(const std::string& path, Task& task);

/// Atom lines of MINCRYST: number, x, y, z, B, element, a word not read, occupancy. Every line makes a row, an empty
/// line an empty one.
/// @throws RunFailure  as above
[[nodiscard]] std::vector<AtomRow> read_mincryst_list(const std::string& path, Task& task);

}  // namespace zol
