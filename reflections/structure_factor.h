// Structure factor and intensity of one reflection of the list.
#pragma once

#include <string>
#include <vector>

#include "core/crystal_state.h"
#include "reflections/equivalents.h"
#include "reflections/scattering.h"

namespace zol {

/// The unit cell laid out for the structure factors of many reflections. What atoms share is worked out once: the row
/// of the table and the scattering factor of an element, weight and damping of a kind, which is an element with an
/// occupancy and a B.
class ScatteringCell {
 public:
  ScatteringCell(const CrystalState& state, const Radiation& radiation);

  /// Sets RefA(i) and RefB(i), the real and imaginary part of the structure factor. Entry i must hold h, k, l and
  /// RefS(i). Sums are rounded to Single after each atom; 2 pi is 6.28318.
  /// An element without a scattering factor sets ScatterMissing.
  void StructureFactor(CrystalState& state, int i);

 private:
  struct Element {
    const AsfRow* row = nullptr;
    double factor = 0;  ///< of the reflection under work
  };
  struct Kind {
    std::size_t element = 0;
    double occupancy = 0;
    double b = 0;
    double weight = 0;  ///< of the reflection under work
    double damping = 0;
  };

  [[nodiscard]] std::size_t kind_of(const AsfRow* row, double occupancy, double b);
  void set_kinds(const CrystalState& state, Single s);
  void set_waves(double h, double k, double l);

  Radiation radiation_;
  std::vector<Element> elements_;
  std::vector<Kind> kinds_;

  // One entry an atom.
  std::vector<double> x_, y_, z_;
  std::vector<std::size_t> kind_;
  std::vector<double> phases_, sines_, cosines_;  ///< of the reflection under work
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
