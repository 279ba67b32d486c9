// Structure factor and intensity of one reflection of the list.
#pragma once

#include <algorithm>
#include <span>
#include <string>
#include <vector>

#include "core/crystal_state.h"
#include "reflections/equivalents.h"
#include "reflections/scattering.h"

namespace zol {

/// Real and imaginary part of a structure factor: electrons, or angstroms times MassRatio for electron scattering.
struct Amplitude {
  Single a = 0, b = 0;
};

/// The unit cell prepared for the structure factors of many reflections. What atoms share is computed once: the row and
/// the scattering factor of an element, weight and damping of a kind, which is an element with an occupancy and a B. It
/// refers to the state that it was made from, which must outlive it. Several threads may use it.
class ScatteringCell {
 public:
  ScatteringCell(const CrystalState& state, const Radiation& radiation);

  /// The structure factor of (h, k, l) at s = sin(theta)/lambda in 1/angstrom. Sums are rounded to Single after each
  /// atom; 2 pi is 6.28318. An element without a scattering factor counts as 0.
  /// @throws RunFailure  a sum passes the range of a Single
  [[nodiscard]] Amplitude StructureFactor(Integer h, Integer k, Integer l, Single s) const;

  /// An element of the cell has no row in the table of scattering factors.
  [[nodiscard]] bool scatter_missing() const {
    return std::any_of(elements_.begin(), elements_.end(), [](const AsfRow* row) { return row == nullptr; });
  }

  [[nodiscard]] const Radiation& radiation() const { return radiation_; }

 private:
  struct Kind {
    std::size_t element = 0;
    double occupancy = 0;
    double b = 0;
  };

  [[nodiscard]] std::size_t kind_of(const AsfRow* row, double occupancy, double b);
  void scatter_at(Single s, std::span<double> factors, std::span<double> weights, std::span<double> dampings) const;
  void phases_at(double h, double k, double l, std::span<double> phases) const;

  const Main1State* state_;
  Radiation radiation_;
  std::vector<const AsfRow*> elements_;  ///< null where the table has no row
  std::vector<Kind> kinds_;

  // One entry per atom.
  std::vector<double> x_, y_, z_;
  std::vector<std::size_t> kind_;
};

/// A reflection of the list, with what its intensity depends on.
struct ListEntry {
  Integer h, k, l;
  Single s = 0;      ///< sin(theta)/lambda
  Single theta = 0;  ///< Bragg angle in radians, 0 when the reflection has no angle
};

struct Intensity {
  Amplitude f;
  Single value = 0;     ///< what RefI takes
  std::string columns;  ///< A, B, F, I as the list shows them
};

/// Structure factor, intensity and columns of a reflection.
///
/// With atoms: X-rays |F|^2 LP / V^2 * 100; without an angle the intensity is 0 and there is no column I. Electrons
/// |F|^2 / (2 s V^2) * 1e5, while the column shows |F|^2 / V^2 * 1e5.
/// Without atoms, from the observed reflections: the intensity is F, the observed value of an equivalent reflection,
/// or 0. With neither, all is 0 and there are no columns.
/// @param observed  the observed reflections of the crystal with all equivalents
/// @param atoms     the unit cell
/// @throws RunFailure  the cell volume is 0
[[nodiscard]] Intensity ReflectionIntensity(const CrystalState& state, const ListEntry& entry,
                                            const ObservedReflections& observed, const ScatteringCell& atoms);

}  // namespace zol
