#include "powder/reflection_lines.h"

#include <algorithm>
#include <cmath>
#include <tuple>
#include <vector>

namespace zol {
namespace {

/// Spacings that agree to this part are one line; those of equivalent reflections differ by the rounding of the cell.
constexpr double same_spacing = 2e-5;
/// Structure factors of equivalent reflections agree to these parts of themselves and of the strongest one: the phases
/// of atoms are rounded, which shows where strong contributions cancel.
constexpr double same_factor = 5e-5;
constexpr double rounding_of_factors = 2e-5;
/// Of the strongest line; what is weaker is extinct, and its intensity the rounding of structure factors.
constexpr double least_intensity = 1e-6;

int negatives(const ReflectionLine& line) { return int{line.h < 0} + int{line.k < 0} + int{line.l < 0}; }

/// @param rounding  of the square roots of intensities
bool leads(const ReflectionLine& a, const ReflectionLine& b, double rounding) {
  const auto stronger = [rounding](double x, double y) {
    return std::sqrt(x) > std::sqrt(y) * (1 + same_factor) + rounding;
  };
  if (stronger(a.intensity, b.intensity)) return true;
  if (stronger(b.intensity, a.intensity)) return false;
  if (negatives(a) != negatives(b)) return negatives(a) < negatives(b);
  return std::tie(a.h, a.k, a.l) > std::tie(b.h, b.k, b.l);
}

}  // namespace

SharedVector<ReflectionLine> reflection_lines(const CrystalState& state) {
  std::vector<ReflectionLine> all;
  double largest = 0;
  for (int i = 1; i <= state.RefCount.value(); ++i) {
    if (!(state.RefI(i) > 0)) continue;
    all.push_back({2.0 * double{state.RefS(i)}, state.RefI(i), state.RefH(i).value(), state.RefK(i).value(),
                   state.RefL(i).value()});
    largest = std::max(largest, all.back().intensity);
  }
  const double rounding = rounding_of_factors * std::sqrt(largest);
  std::stable_sort(all.begin(), all.end(),
                   [](const ReflectionLine& a, const ReflectionLine& b) { return a.d_star < b.d_star; });
  std::vector<ReflectionLine> gathered;
  double strongest = 0;
  for (std::size_t i = 0; i < all.size();) {
    ReflectionLine leader = all[i];
    double sum = 0;
    const double end = all[i].d_star * (1 + same_spacing);
    for (; i < all.size() && all[i].d_star <= end; ++i) {
      sum += all[i].intensity;
      if (leads(all[i], leader, rounding)) leader = all[i];
    }
    leader.intensity = sum;
    strongest = std::max(strongest, sum);
    gathered.push_back(leader);
  }
  SharedVector<ReflectionLine> lines;
  for (const auto& line : gathered) {
    if (line.intensity > strongest * least_intensity) lines.push_back(line);
  }
  return lines;
}

std::string indices_text(const ReflectionLine& line) {
  return std::to_string(line.h) + ' ' + std::to_string(line.k) + ' ' + std::to_string(line.l);
}

}  // namespace zol
