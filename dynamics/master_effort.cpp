#include <algorithm>
#include <cmath>
#include <numbers>

#include "dynamics/master_pattern.h"

namespace zol {
namespace {

template <class Grid>
double kept(const DynamicCrystal& crystal) {
  return static_cast<double>(std::count_if(crystal.operations.begin(), crystal.operations.end(),
                                           [](const auto& operation) { return Grid::keeps(operation); }));
}

}  // namespace

Effort master_effort(const DynamicCrystal& crystal, const MasterSettings& settings) {
  const MasterChoice choice = master_choice(crystal, settings);
  const double by_rings = kept<RingGrid>(crystal);
  const double on_square = kept<SquareGrid>(crystal);
  const double third_more = 4.0 / 3;
  const double points = 2.0 * settings.size * settings.size;
  const double directions = points * (by_rings > on_square ? third_more / by_rings : 1 / on_square);

  // Measured, docs/performance.md: what takes a candidate, an element of the matrix, and one of its factorisation.
  constexpr double of_candidate = 3e-9;
  constexpr double of_element = 2e-9;
  constexpr double of_factor = 2e-11;
  constexpr double of_phase = 1.5e-9;  // of an atom in a difference of beams
  const double volume = crystal.lattice().volume();
  const double reflections = 4 * std::numbers::pi / 3 * volume / std::pow(choice.smallest_spacing, 3);
  const double candidates = reflections / static_cast<double>(1 + crystal.centring.size());
  const double beams = choice.rule ? choice.rule->listed : choice.beams;
  const double of_direction = of_candidate * candidates + of_element * beams * beams +
                              of_factor * std::pow(beams, 3) * (crystal.centrosymmetric ? 1 : 2);
  constexpr double half_of_twice_as_far = 4;
  const double of_potential =
      of_phase * half_of_twice_as_far * reflections * static_cast<double>(crystal.atoms.size() + crystal.kinds.size());
  return {static_cast<double>(settings.kilovolts.size()) * (directions * of_direction + of_potential), 0};
}

}  // namespace zol
