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

  // Measured: 25 microseconds a direction with 64 beams, 140 with 144.
  constexpr double of_direction = 25e-6;
  const double beams = std::pow(choice.beams / 64.0, 2.2);
  // The potential sums over the atoms for half of all differences of beams, which reach twice as far as these.
  constexpr double of_phase = 2e-9;
  constexpr double differences = 4;
  const double reflections =
      4 * std::numbers::pi / 3 * crystal.lattice().volume() / std::pow(choice.smallest_spacing, 3);
  const double of_potential =
      of_phase * differences * reflections * static_cast<double>(crystal.atoms.size() + crystal.kinds.size());
  return {static_cast<double>(settings.kilovolts.size()) * (directions * of_direction * beams + of_potential), 0};
}

}  // namespace zol
