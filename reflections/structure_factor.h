// Structure factor and intensity of one reflection of the list.
#pragma once

#include <string>

#include "core/crystal_state.h"
#include "reflections/equivalents.h"
#include "reflections/scattering.h"

namespace zol {

/// Sets RefA(i) and RefB(i), the real and imaginary part of the structure factor, from the unit cell. Entry i must hold
/// h, k, l and RefS(i). Sums are rounded to Single after each atom; 2 pi is 6.28318.
/// An element without a scattering factor sets ScatterMissing.
void StructureFactor(CrystalState& state, int i, const Radiation& radiation);

/// Sets RefA(i), RefB(i), RefI(i) and appends the columns A, B, F, I to the line.
///
/// With atoms: X-rays |F|^2 LP / V^2 * 100; without an angle RefI(i) stays 0 and there is no column I. Electrons
/// RefI(i) = |F|^2 / (2 s V^2) * 1e5, while the column shows |F|^2 / V^2 * 1e5.
/// Without atoms, from the observed reflections: RefI(i) = F = the observed value of an equivalent reflection, or 0.
/// With neither, nothing happens.
/// @param theta     Bragg angle in radians, 0 when the reflection has no angle
/// @param observed  the observed reflections of the crystal with all equivalents
/// @throws RunFailure  the cell volume is 0
void ReflectionIntensity(CrystalState& state, int i, Single theta, const Radiation& radiation,
                         const ObservedReflections& observed, std::string& line);

}  // namespace zol
