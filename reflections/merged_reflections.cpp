#include "reflections/merged_reflections.h"

#include <map>

#include "reflections/reflection_symmetry.h"

namespace zol {

std::vector<MergedReflection> merged_reflections(const CrystalState& state) {
  std::map<Indices3, int> places;  // of those that are in no form yet
  const auto indices_of = [&state](int entry) {
    return Indices3{state.RefH(entry).value(), state.RefK(entry).value(), state.RefL(entry).value()};
  };
  for (int i = 1; i <= state.RefCount.value(); ++i) places.emplace(indices_of(i), i);
  const ReflectionSymmetry symmetry = ReflectionSymmetry::of_crystal(state);
  std::vector<MergedReflection> merged;
  for (int i = 1; i <= state.RefCount.value(); ++i) {
    const Indices3 hkl = indices_of(i);
    if (places.find(hkl) == places.end()) continue;
    MergedReflection form;
    const Indices3 leader = symmetry.leader(hkl);
    for (const Indices3& other : symmetry.equivalents(hkl)) {
      const auto place = places.find(other);
      if (place == places.end()) continue;
      if (form.multiplicity++ == 0 || other == leader) {
        form.hkl = other;
        form.entry = place->second;
      }
      form.intensity += state.RefI(place->second);
      places.erase(place);
    }
    merged.push_back(form);
  }
  return merged;
}

}  // namespace zol
