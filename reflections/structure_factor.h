// Structure factor and intensity of one reflection of the list.
#pragma once

#include <string>
#include <vector>

#include "core/crystal_state.h"
#include "reflections/equivalents.h"
#include "reflections/scattering.h"

namespace zol {

/// Sets RefA(i) and RefB(i), the real and imaginary part of the structure factor, from the unit cell. Entry i must hold
/// h, k, l and RefS(i). Sums are rounded to Single after each atom; 2 pi is 6.28318.
/// An element without a scattering factor sets ScatterMissing.
void StructureFactor(CrystalState& state, int i, const Radiation& radiation);

/// The unit cell laid out for many reflections: atoms that share element, occupancy and B share factor and damping, and
/// the rows of the table are found once. Gives what StructureFactor gives, to the bit.
class ScatteringCell {
 public:
  ScatteringCell(const CrystalState& state, const Radiation& radiation);

  /// As StructureFactor.
  void structure_factor(CrystalState& state, int i);

 private:
  struct Kind {
    const AsfRow* row = nullptr;
    Single occupancy = 0;
    Single b = 0;
    double weight = 0;  ///< of the reflection under work
    double damping = 0;
  };
  struct Atom {
    double x = 0, y = 0, z = 0;
    std::size_t kind = 0;
  };

  Radiation radiation_;
  std::vector<Kind> kinds_;
  std::vector<Atom> atoms_;
  bool element_missing_ = false;
};

/// Sets RefA(i), RefB(i), RefI(i) and appends the columns A, B, F, I to the line.
///
/// With atoms: X-rays |F|^2 LP / V^2 * 100; without an angle RefI(i) stays 0 and there is no column I. Electrons
/// RefI(i) = |F|^2 / (2 s V^2) * 1e5, while the column shows |F|^2 / V^2 * 1e5.
/// Without atoms, from the observed reflections: RefI(i) = F = the observed value of an equivalent reflection, or 0.
/// With neither, nothing happens.
/// @param theta     Bragg angle in radians, 0 when the reflection has no angle
/// @param observed  the observed reflections of the crystal with all equivalents
/// @param atoms     the unit cell
/// @throws RunFailure  the cell volume is 0
void ReflectionIntensity(CrystalState& state, int i, Single theta, const Radiation& radiation,
                         const ObservedReflections& observed, ScatteringCell& atoms, std::string& line);

}  // namespace zol
