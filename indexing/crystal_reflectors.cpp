#include "indexing/crystal_reflectors.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "core/run_failure.h"
#include "reflections/reflection_list.h"

namespace zol {
namespace {

constexpr double smallest_spacing = 0.7;
constexpr double most_reflections = 20000;
constexpr double faint = 1e-6;  ///< of the strongest: what the arithmetic leaves of an extinct reflection

}  // namespace

double electron_wavelength(double kilovolt) {
  const double volt = 1000 * kilovolt;
  return 12.264259 / std::sqrt(volt * (1 + 0.97847641e-6 * volt));
}

ReflectorSet crystal_reflectors(const CrystalState& state, const SpaceGroup* group, double kilovolt, Task& task) {
  if (!(kilovolt > 0)) throw RunFailure("the acceleration voltage is not above 0");
  const Lattice lattice({state.CellA, state.CellB, state.CellC, state.CellAlpha, state.CellBeta, state.CellGamma});
  std::vector<std::array<std::array<double, 3>, 3>> rotations;
  if (group != nullptr) {
    for (const SymmetryOperator& op : group->operators) {
      const SymmetryOperator turned = permute_axes(op, state.AxisSetting);
      auto& rotation = rotations.emplace_back();
      for (std::size_t i = 0; i < 3; ++i)
        std::copy(turned.rotation[i].begin(), turned.rotation[i].end(), rotation[i].begin());
    }
  }

  CrystalState own = state;
  const double by_volume = std::cbrt(4 * std::numbers::pi / 3 * lattice.volume() / most_reflections);
  const double wavelength = electron_wavelength(kilovolt);
  own.Dmin = to_single(std::max(smallest_spacing, by_volume));
  own.WaveLength = to_single(wavelength);
  own.MassRatio = 1;
  const bool has_atoms = own.NCell > 0;
  const auto list = reflection_list(own, {{false, true, true}, {}}, {false, true}, task);
  if (list.scatter_missing) throw RunFailure("an element of the crystal has no scattering factor");

  std::vector<ListedReflection> reflections;
  double strongest = 0;
  for (int i = 1; i <= list.count.value(); ++i) {
    const double a = list.a(i);
    const double b = list.b(i);
    const double intensity = list.i(i);
    const double weight = has_atoms ? a * a + b * b : intensity * intensity;
    strongest = std::max(strongest, weight);
    reflections.push_back({{list.h(i).value(), list.k(i).value(), list.l(i).value()}, weight});
  }
  if (!(strongest > 0))
    throw RunFailure("the crystal has no reflection of any intensity: it needs atoms or observed lines");
  for (auto& reflection : reflections) {
    if (reflection.weight < faint * strongest) reflection.weight = 0;
  }
  ReflectorSet set = make_reflectors(lattice, proper_rotations(lattice, rotations), reflections, wavelength, task);
  if (group != nullptr) set.lookalikes = lookalikes_of(lattice, point_group(lattice, rotations));
  return set;
}

}  // namespace zol
