// The bands of a crystal of the program: its reflection list for fast electrons, gathered into families.
#pragma once

#include "core/crystal_state.h"
#include "core/space_group.h"
#include "indexing/reflectors.h"

namespace zol {

/// Relativistic, angstroms. Source: Reimer & Kohl, Transmission Electron Microscopy (2008) 2.1.
[[nodiscard]] double electron_wavelength(double kilovolt);

/// By the structure factors of the unit cell for electrons, or by the observed reflections where there are no atoms.
/// The state is left as it is. Reflections go down to 0.7 angstroms, of a large cell as far as some 20 000 go.
/// @param group  of the crystal; a null pointer: no symmetry
/// @throws RunFailure  the cell is none, or no reflection has an intensity
[[nodiscard]] ReflectorSet crystal_reflectors(const CrystalState& state, const SpaceGroup* group, double kilovolt,
                                              Task& task);

}  // namespace zol
