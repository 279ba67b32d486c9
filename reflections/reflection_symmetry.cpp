#include "reflections/reflection_symmetry.h"

#include <algorithm>
#include <cmath>

#include "core/run_failure.h"
#include "reflections/equivalents.h"

namespace zol {
namespace {

constexpr int parts = 24;  // of an axis: all translations of the groups are multiples of these

int negatives(const Indices3& hkl) {
  return static_cast<int>(std::count_if(hkl.begin(), hkl.end(), [](int index) { return index < 0; }));
}

}  // namespace

ReflectionSymmetry::ReflectionSymmetry(const std::vector<SymmetryOperator>& operators) {
  for (const auto& op : operators) {
    Operator whole;
    for (std::size_t i = 0; i < 3; ++i) {
      for (std::size_t j = 0; j < 3; ++j) whole.rotation[i][j] = static_cast<int>(std::lround(op.rotation[i][j]));
      whole.translation[i] = static_cast<int>(std::lround(double{op.translation[i]} * parts));
    }
    operators_.push_back(whole);
    const bool known = std::any_of(rotations_.begin(), rotations_.end(),
                                   [&whole](const Operator& other) { return other.rotation == whole.rotation; });
    if (!known) rotations_.push_back(whole);
  }
}

ReflectionSymmetry ReflectionSymmetry::of_crystal(const Main1State& crystal) {
  try {
    if (!crystal.SGFile.empty()) {
      std::vector<SymmetryOperator> operators;
      for (const auto& op : read_space_group(crystal.SGFile).operators) {
        operators.push_back(permute_axes(op, crystal.AxisSetting));
      }
      return ReflectionSymmetry(operators);
    }
  } catch (const RunFailure&) {  // the number says what can be said then
  }
  ReflectionSymmetry symmetry;
  symmetry.laue_number_ = crystal.SGNumber;
  return symmetry;
}

Indices3 ReflectionSymmetry::turned(const Indices3& hkl, const Operator& op) {
  Indices3 image{};
  for (std::size_t j = 0; j < 3; ++j) {
    for (std::size_t i = 0; i < 3; ++i) image[j] += hkl[i] * op.rotation[i][j];
  }
  return image;
}

std::vector<Indices3> ReflectionSymmetry::equivalents(const Indices3& hkl) const {
  std::vector<Indices3> all{hkl};
  for (const Operator& op : rotations_) all.push_back(turned(hkl, op));
  const SingleTriple indices{static_cast<Single>(hkl[0]), static_cast<Single>(hkl[1]), static_cast<Single>(hkl[2])};
  for (const auto& [h, k, l] : equivalent_indices(laue_number_, indices)) {
    all.push_back({static_cast<int>(h), static_cast<int>(k), static_cast<int>(l)});
  }
  for (std::size_t i = all.size(); i-- > 0;) all.push_back({-all[i][0], -all[i][1], -all[i][2]});
  std::sort(all.begin(), all.end(), std::greater<>());
  all.erase(std::unique(all.begin(), all.end()), all.end());
  return all;
}

Indices3 ReflectionSymmetry::leader(const Indices3& hkl) const {
  const auto all = equivalents(hkl);
  return *std::min_element(all.begin(), all.end(),
                           [](const Indices3& a, const Indices3& b) { return negatives(a) < negatives(b); });
}

bool ReflectionSymmetry::absent(const Indices3& hkl) const {
  return std::any_of(operators_.begin(), operators_.end(), [&hkl](const Operator& op) {
    if (turned(hkl, op) != hkl) return false;
    const auto& t = op.translation;
    return (hkl[0] * t[0] + hkl[1] * t[1] + hkl[2] * t[2]) % parts != 0;
  });
}

}  // namespace zol
