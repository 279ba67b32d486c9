#include "dynamics/sphere_names.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <numeric>

#include "core/run_failure.h"

namespace zol {
namespace {

constexpr double same_weight = 1e-6;  // relative; sums of the same weights in another order

/// What the planes that contain a row of the lattice weigh, faint ones aside, by the distance of its points.
double weight_of(const ReflectorSet& reflectors, const Lattice& lattice, const std::array<int, 3>& uvw) {
  constexpr double faint = 0.01;  // of the strongest
  double weight = 0;
  for (const Reflector& plane : reflectors.members) {
    const auto& [h, k, l] = plane.hkl;
    if (h * uvw[0] + k * uvw[1] + l * uvw[2] != 0) continue;
    const double own = reflectors.families[static_cast<std::size_t>(plane.family)].weight;
    if (own > faint * reflectors.families.front().weight) weight += own;
  }
  return weight / length(lattice.cartesian(DirectVector{1.0 * uvw[0], 1.0 * uvw[1], 1.0 * uvw[2]}));
}

}  // namespace

std::vector<NamedBand> named_bands(const ReflectorSet& reflectors, int most) {
  std::vector<ReflectorFamily> families = reflectors.families;
  std::stable_sort(families.begin(), families.end(), [](const auto& a, const auto& b) { return a.weight > b.weight; });
  std::vector<NamedBand> bands;
  for (const ReflectorFamily& family : families) {
    const auto first = reflectors.members.begin() + family.first;
    std::vector<NamedBand> own;
    std::for_each(first, first + family.count, [&](const Reflector& plane) {
      const bool new_plane = std::none_of(bands.begin(), bands.end(), [&plane](const NamedBand& band) {
        constexpr double parallel = 1 - 1e-9;
        return std::abs(band.normal.dot(plane.normal)) > parallel;
      });
      if (new_plane) own.push_back({plane.hkl, plane.normal});
    });
    if (!bands.empty() && static_cast<int>(bands.size() + own.size()) > most) break;
    bands.insert(bands.end(), own.begin(), own.end());
  }
  return bands;
}

std::vector<NamedAxis> named_axes(const ReflectorSet& reflectors, int most) {
  constexpr int largest = 5;
  const Lattice lattice(reflectors.cell);
  std::vector<NamedAxis> axes;
  for (int u = -largest; u <= largest; ++u) {
    for (int v = -largest; v <= largest; ++v) {
      for (int w = -largest; w <= largest; ++w) {
        if (std::gcd(std::gcd(u, v), w) != 1) continue;
        axes.push_back(
            {{u, v, w}, direction_of(lattice, {1.0 * u, 1.0 * v, 1.0 * w}), weight_of(reflectors, lattice, {u, v, w})});
      }
    }
  }
  std::stable_sort(axes.begin(), axes.end(), [](const auto& a, const auto& b) { return a.weight > b.weight; });
  auto end = static_cast<std::size_t>(std::max(most, 1));
  if (end >= axes.size()) return axes;
  const double left_out = axes[end].weight * (1 + same_weight);
  while (end > 0 && axes[end - 1].weight <= left_out) --end;
  if (end == 0) end = static_cast<std::size_t>(most);  // more of one weight than there is room for
  axes.resize(end);
  return axes;
}

const NamedAxis& nearest_axis(const std::vector<NamedAxis>& axes, const Vector3& direction) {
  return *std::max_element(axes.begin(), axes.end(), [&direction](const NamedAxis& a, const NamedAxis& b) {
    return a.direction.dot(direction) < b.direction.dot(direction);
  });
}

double angle_between_deg(const Vector3& a, const Vector3& b) {
  return std::atan2(a.cross(b).norm(), a.dot(b)) * 180 / std::numbers::pi;
}

std::array<double, 3> components_of(const Lattice& lattice, const Vector3& direction) {
  const auto [u, v, w] = lattice.direct(CartesianVector{direction[0], direction[1], direction[2]});
  const double largest = std::max({std::abs(u), std::abs(v), std::abs(w)});
  return {u / largest, v / largest, w / largest};
}

Vector3 direction_of(const Lattice& lattice, const std::array<double, 3>& uvw) {
  const auto [x, y, z] = lattice.cartesian(DirectVector{uvw[0], uvw[1], uvw[2]});
  const Vector3 direction(x, y, z);
  if (!(direction.norm() > 0)) throw RunFailure("the direction [0 0 0] is none");
  return direction.normalized();
}

}  // namespace zol
