#include "reflections/merged_reflections.h"

#include <algorithm>
#include <cmath>
#include <map>

#include "reflections/equivalents.h"

namespace zol {
namespace {

using Triple = std::array<int, 3>;

Triple indices_of(const CrystalState& state, int entry) {
  return {state.RefH(entry).value(), state.RefK(entry).value(), state.RefL(entry).value()};
}

std::vector<Triple> equivalents_of(Integer space_group, const Triple& hkl) {
  std::vector<Triple> all{hkl, {-hkl[0], -hkl[1], -hkl[2]}};
  const SingleTriple numbers{static_cast<Single>(hkl[0]), static_cast<Single>(hkl[1]), static_cast<Single>(hkl[2])};
  for (const auto& triple : equivalent_indices(space_group, numbers)) {
    all.push_back({static_cast<int>(triple[0]), static_cast<int>(triple[1]), static_cast<int>(triple[2])});
  }
  std::sort(all.begin(), all.end());
  all.erase(std::unique(all.begin(), all.end()), all.end());
  return all;
}

}  // namespace

std::vector<MergedReflection> merged_reflections(const CrystalState& state) {
  constexpr double rounding = 1e-5;  // of Singles, with room
  std::map<Triple, int> places;
  for (int i = 1; i <= state.RefCount.value(); ++i) places.emplace(indices_of(state, i), i);
  std::vector<bool> taken(static_cast<std::size_t>(state.RefCount.value()) + 1, false);
  std::vector<MergedReflection> merged;
  for (int i = 1; i <= state.RefCount.value(); ++i) {
    if (taken[static_cast<std::size_t>(i)]) continue;
    MergedReflection form;
    const double s = state.RefS(i);
    for (const Triple& hkl : equivalents_of(state.SGNumber, indices_of(state, i))) {
      const auto place = places.find(hkl);
      if (place == places.end() || taken[static_cast<std::size_t>(place->second)]) continue;
      if (std::abs(state.RefS(place->second) - s) > rounding * s) continue;
      taken[static_cast<std::size_t>(place->second)] = true;
      form.members.push_back(place->second);
      form.hkl = hkl;  // they rise
      form.entry = place->second;
      form.intensity += state.RefI(place->second);
    }
    std::sort(form.members.begin(), form.members.end());
    form.multiplicity = static_cast<int>(form.members.size());
    merged.push_back(std::move(form));
  }
  return merged;
}

}  // namespace zol
