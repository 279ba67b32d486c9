// What is odd about the atoms of a crystal or the radiation, though nothing forbids it.
#pragma once

#include <string>
#include <vector>

#include "core/crystal_state.h"

namespace zol {

/// Occupancies above 1, atoms of the unit cell nearer than 0.7 angstroms that can be there at once, operators that are
/// none or another group's. Each in words, Latin-1; empty where nothing is odd.
[[nodiscard]] std::vector<std::string> site_remarks(const CrystalState& state);

/// X-rays with the wavelength of the electrons that were chosen before; empty where nothing is odd.
[[nodiscard]] std::string wavelength_remark(const CrystalState& state, bool xrays);

}  // namespace zol
