// How the lists of atoms and reflections are read as tables, and what can stand beside their columns there.
#pragma once

#include <memory>

#include "core/crystal_state.h"
#include "shell/services/list_columns.h"

namespace zol {

[[nodiscard]] std::shared_ptr<const ListColumns> space_group_table();
[[nodiscard]] std::shared_ptr<const ListColumns> atom_table();
/// With multiplicity, families, absences and, on hexagonal axes, four indices on request.
[[nodiscard]] std::shared_ptr<const ListColumns> reflection_table(const CrystalState& seen);

/// [U V T W] of the three columns u, v, w that begin at this one, behind them. @param hexagonal  whether a row is of a
/// crystal on hexagonal axes; it has no four indices otherwise
[[nodiscard]] AddedColumns direction_columns(int at, std::function<bool(const ListCells& row)> hexagonal);

}  // namespace zol
