#include "indexing/band_contrast.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <numeric>
#include <utility>

namespace zol {

double band_contrast(const KinematicSphere& sphere, const Vector3& normal, double bragg_rad) {
  constexpr int along = 240;
  constexpr int across = 4;  // to either side, within the band and as many beyond
  const Vector3 first = normal.unitOrthogonal();
  const Vector3 second = normal.cross(first);
  double contrast = 0;
  for (int step = -2 * across; step < 2 * across; ++step) {
    const double angle = (step + .5) / across * bragg_rad;
    const double sign = std::abs(angle) < bragg_rad ? 1 : -1;
    for (int i = 0; i < along; ++i) {
      const double turn = 2 * std::numbers::pi * i / along;
      const Vector3 direction =
          std::cos(angle) * (std::cos(turn) * first + std::sin(turn) * second) + std::sin(angle) * normal;
      contrast += sign * static_cast<double>(sphere.at(direction));
    }
  }
  return contrast / (2 * across * along);
}

void rank_by_contrast(ReflectorSet& reflectors, const KinematicSphere& sphere, Task& task) {
  // What is far down the list by structure factors has no band that could be found.
  constexpr std::size_t most_ranked = 150;
  const std::size_t count = std::min(reflectors.families.size(), most_ranked);
  std::vector<double> seen;
  for (std::size_t i = 0; i < count; ++i) {
    task.check();
    const ReflectorFamily& family = reflectors.families[i];
    const Vector3& normal = reflectors.members[static_cast<std::size_t>(family.first)].normal;
    seen.push_back(band_contrast(sphere, normal, family.bragg_rad) * family.bragg_rad);
  }
  std::vector<std::size_t> order(reflectors.families.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::stable_sort(order.begin(), order.begin() + static_cast<std::ptrdiff_t>(count),
                   [&seen](std::size_t a, std::size_t b) { return seen[a] > seen[b]; });
  std::vector<ReflectorFamily> families;
  std::vector<Reflector> members;
  for (const std::size_t number : order) {
    ReflectorFamily family = reflectors.families[number];
    const auto first = reflectors.members.begin() + family.first;
    family.first = static_cast<int>(members.size());
    for (auto member = first; member != first + family.count; ++member) {
      members.push_back(*member);
      members.back().family = static_cast<int>(families.size());
    }
    families.push_back(family);
  }
  reflectors.families = std::move(families);
  reflectors.members = std::move(members);
}

CrystalModel with_pattern(const CrystalModel& drawn, std::shared_ptr<const KinematicSphere> pattern, int family_count,
                          Task& task) {
  ReflectorSet reflectors = drawn.reflectors;
  rank_by_contrast(reflectors, *pattern, task);
  auto used = voting_families(reflectors, family_count);
  return make_crystal_model(drawn.title, std::move(reflectors), std::move(used), std::move(pattern), task);
}

}  // namespace zol
