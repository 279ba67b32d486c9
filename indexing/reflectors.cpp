#include "indexing/reflectors.h"

#include <algorithm>
#include <cmath>
#include <map>

namespace zol {
namespace {

using Indices = std::array<int, 3>;

Vector3 vector_of(const CartesianVector& v) { return {v.x, v.y, v.z}; }

/// Columns are a, b, c, or a*, b*, c*, in the frame.
Rotation direct_basis(const Lattice& lattice) {
  Rotation basis;
  basis << vector_of(lattice.cartesian(DirectVector{1, 0, 0})), vector_of(lattice.cartesian(DirectVector{0, 1, 0})),
      vector_of(lattice.cartesian(DirectVector{0, 0, 1}));
  return basis;
}

Rotation reciprocal_basis(const Lattice& lattice) { return direct_basis(lattice).inverse().transpose(); }

/// Of (h k l) and (-h -k -l) the one whose first index that is not 0 is positive.
Indices half_sphere(const Indices& hkl) {
  for (const int index : hkl) {
    if (index > 0) return hkl;
    if (index < 0) return {-hkl[0], -hkl[1], -hkl[2]};
  }
  return hkl;
}

/// How much of a pattern a band of this width takes: narrow bands are hard to see.
double visibility(double weight, double bragg_rad) { return weight * bragg_rad; }

}  // namespace

std::vector<Rotation> proper_rotations(const Lattice& lattice,
                                       std::span<const std::array<std::array<double, 3>, 3>> operators) {
  const Rotation basis = direct_basis(lattice);
  const Rotation inverse = basis.inverse();
  std::vector<Rotation> rotations{Rotation::Identity()};
  constexpr double most_strain = 0.02;
  for (const auto& op : operators) {
    Rotation fractional;
    for (int i = 0; i < 3; ++i) {
      for (int j = 0; j < 3; ++j) fractional(i, j) = op[static_cast<std::size_t>(i)][static_cast<std::size_t>(j)];
    }
    Rotation turned = basis * fractional * inverse;
    if (turned.determinant() < 0) turned = -turned;
    if (!((turned * turned.transpose() - Rotation::Identity()).norm() < most_strain)) continue;
    const bool known = std::any_of(rotations.begin(), rotations.end(), [&turned](const Rotation& rotation) {
      return (rotation - turned).norm() < 10 * most_strain;
    });
    if (!known) rotations.push_back(turned);
  }
  return rotations;
}

ReflectorSet make_reflectors(const Lattice& lattice, std::span<const Rotation> symmetry,
                             std::span<const ListedReflection> reflections, double wavelength, Task& task) {
  const Rotation basis = reciprocal_basis(lattice);
  const Rotation inverse = basis.inverse();
  const auto cartesian = [&basis](const Indices& hkl) -> Vector3 { return basis * Vector3(hkl[0], hkl[1], hkl[2]); };

  std::map<Indices, bool> open;  // of the listed planes, those that stand in no family yet
  for (const auto& reflection : reflections) {
    if (reflection.hkl != Indices{0, 0, 0}) open.emplace(half_sphere(reflection.hkl), true);
  }
  ReflectorSet set;
  set.cell = lattice.cell();
  set.symmetry.assign(symmetry.begin(), symmetry.end());
  std::vector<std::vector<Reflector>> members;
  for (const auto& reflection : reflections) {
    task.check();
    if (reflection.hkl == Indices{0, 0, 0} || !(reflection.weight > 0)) continue;
    if (!open.at(half_sphere(reflection.hkl))) continue;
    const Vector3 g = cartesian(reflection.hkl);
    const double sine = g.norm() * wavelength / 2;
    if (!(sine < 1)) continue;
    std::vector<Reflector> family;
    for (const Rotation& rotation : symmetry) {
      const Vector3 image = inverse * (rotation * g);
      const Indices hkl = half_sphere({static_cast<int>(std::lround(image[0])), static_cast<int>(std::lround(image[1])),
                                       static_cast<int>(std::lround(image[2]))});
      const bool known = std::any_of(family.begin(), family.end(), [&hkl](const Reflector& r) { return r.hkl == hkl; });
      if (known) continue;
      family.push_back({hkl, cartesian(hkl).normalized(), 0});
      if (const auto listed = open.find(hkl); listed != open.end()) listed->second = false;
    }
    set.families.push_back({family.front().hkl, 1 / g.norm(), reflection.weight, std::asin(sine),
                            static_cast<int>(members.size()), static_cast<int>(family.size())});
    members.push_back(std::move(family));
  }
  std::stable_sort(set.families.begin(), set.families.end(), [](const ReflectorFamily& a, const ReflectorFamily& b) {
    return visibility(a.weight, a.bragg_rad) > visibility(b.weight, b.bragg_rad);
  });
  int number = 0;
  for (ReflectorFamily& family : set.families) {
    auto& own = members[static_cast<std::size_t>(family.first)];
    family.first = static_cast<int>(set.members.size());
    for (Reflector& member : own) {
      member.family = number;
      set.members.push_back(member);
    }
    ++number;
  }
  return set;
}

}  // namespace zol
