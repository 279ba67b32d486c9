// What is odd about the atoms of a crystal, though nothing forbids it.
#pragma once

#include <string>
#include <vector>

#include "core/crystal_state.h"

namespace zol {

/// Occupancies above 1, atoms of the unit cell nearer than 0.7 angstroms that can be there at once, operators that are
/// none or another group's. Each in words, Latin-1; empty where nothing is odd.
[[nodiscard]] std::vector<std::string> site_remarks(const CrystalState& state);

}  // namespace zol
