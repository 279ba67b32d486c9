#include "core/site_remarks.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

#include "core/cell_geometry.h"
#include "core/number_text.h"
#include "core/run_failure.h"

namespace zol {
namespace {

constexpr double nearest = 0.7;  // angstroms; the shortest bond, H-H, has 0.74

struct Pair {
  int first = 0, second = 0;
  double distance = nearest;
};

/// The nearest of the pairs that are nearer than that. Atoms whose occupancies add up to 1 share a place.
std::optional<Pair> nearest_pair(const CrystalState& state) {
  std::vector<int> by_x;
  for (int m = 1; m <= state.NCell.value(); ++m) by_x.push_back(m);
  const auto x = [&state](int m) { return double{state.UCPos(m, 1)}; };
  std::sort(by_x.begin(), by_x.end(), [&x](int a, int b) { return x(a) < x(b); });
  const double reach = nearest * state.AStar;  // planes of constant x lie 1 / a* apart
  std::optional<Pair> found;
  const auto count = by_x.size();
  for (std::size_t i = 0; i < count; ++i) {
    for (std::size_t step = 1; step < count; ++step) {
      const std::size_t j = (i + step) % count;
      const double ahead = x(by_x[j]) - x(by_x[i]) + (j < i ? 1 : 0);
      if (ahead > reach) break;
      const int a = by_x[i];
      const int b = by_x[j];
      if (double{state.UCOcc(a)} + state.UCOcc(b) <= 1) continue;
      std::array<double, 3> apart{};
      for (int axis = 1; axis <= 3; ++axis) {
        const double difference = double{state.UCPos(b, axis)} - state.UCPos(a, axis);
        apart[static_cast<std::size_t>(axis - 1)] = difference - std::round(difference);
      }
      const Axes cell = direct_axes(state);
      const auto [u, v, w] = apart;
      const double square = u * u * cell.a * cell.a + v * v * cell.b * cell.b + w * w * cell.c * cell.c +
                            2 * (u * v * cell.a * cell.b * cell.cos_gamma + u * w * cell.a * cell.c * cell.cos_beta +
                                 v * w * cell.b * cell.c * cell.cos_alpha);
      const double distance = std::sqrt(std::max(0.0, square));
      if (distance < (found ? found->distance : nearest)) found = Pair{a, b, distance};
    }
  }
  return found;
}

}  // namespace

std::vector<std::string> site_remarks(const CrystalState& state) {
  std::vector<std::string> remarks;
  for (int i = 1; i <= state.NAtom.value() && remarks.empty(); ++i) {
    if (state.AtomOcc(i) <= 1) continue;
    remarks.push_back("the occupancy of " + state.AtomLabel(i) + " is " + short_text(state.AtomOcc(i), 4) +
                      ", above 1");
  }
  if (const auto pair = nearest_pair(state)) {
    remarks.push_back(state.UCLabel(pair->first) + " and " + state.UCLabel(pair->second) + " are " +
                      Format(pair->distance, "0.00") + " \xC5 apart, nearer than any bond");
  }
  if (state.NAtom > 0 && state.SGNumber == 1)
    remarks.emplace_back("P 1 has no symmetry operators: only the sites fill the cell");
  if (state.NAtom > 0 && !state.SGFile.empty() && (state.SGNumber < 1 || state.SGNumber > max_space_group_number)) {
    remarks.push_back("group " + plain_text(state.SGNumber) + " has no operators: those of the previous group stay");
  }
  return remarks;
}

std::string wavelength_remark(const CrystalState& state, bool xrays) {
  if (!xrays || !(state.AccVoltage > 0)) return "";
  // without relativity, which takes a third off at 1250 kV
  const double of_electrons = std::sqrt(0.15 / state.AccVoltage);
  if (state.WaveLength < 0.6 * of_electrons || state.WaveLength > 1.05 * of_electrons) return "";
  return "the wavelength is still that of electrons of " + plain_text(state.AccVoltage) + " kV: choose CuKa or MoKa";
}

}  // namespace zol
