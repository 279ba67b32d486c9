#include "indexing/lookalikes.h"

#include <Eigen/LU>
#include <Eigen/SVD>
#include <algorithm>
#include <cmath>
#include <optional>

namespace zol {
namespace {

constexpr double most_strain = 0.02;
constexpr double most_difference = 0.2;  ///< of operations that are the same

Rotation direct_basis(const Lattice& lattice) {
  Rotation basis;
  int column = 0;
  for (const DirectVector& edge : {DirectVector{1, 0, 0}, DirectVector{0, 1, 0}, DirectVector{0, 0, 1}}) {
    const auto [x, y, z] = lattice.cartesian(edge);
    basis.col(column++) = Vector3(x, y, z);
  }
  return basis;
}

/// In the crystal's frame, where it keeps lengths and angles; free of the strain that was left.
std::optional<Rotation> in_frame(const Rotation& fractional, const Rotation& basis, const Rotation& inverse) {
  const Rotation turned = basis * fractional * inverse;
  if (!((turned * turned.transpose() - Rotation::Identity()).norm() < most_strain)) return std::nullopt;
  const Eigen::JacobiSVD<Rotation> parts(turned, Eigen::ComputeFullU | Eigen::ComputeFullV);
  return parts.matrixU() * parts.matrixV().transpose();
}

bool contains(std::span<const Rotation> all, const Rotation& one) {
  return std::any_of(all.begin(), all.end(), [&one](const Rotation& o) { return (o - one).norm() < most_difference; });
}

/// Those that keep the cell, with indices from -1 to 1: all of them in the usual settings.
std::vector<Rotation> cell_group(const Lattice& lattice) {
  const Rotation basis = direct_basis(lattice);
  const Rotation inverse = basis.inverse();
  std::vector<Rotation> group;
  constexpr int matrices = 19683;  // 3^9
  for (int number = 0; number < matrices; ++number) {
    Rotation fractional;
    int rest = number;
    for (int i = 0; i < 9; ++i, rest /= 3) fractional(i / 3, i % 3) = rest % 3 - 1;
    if (std::abs(std::abs(fractional.determinant()) - 1) > most_difference) continue;
    if (const auto operation = in_frame(fractional, basis, inverse)) group.push_back(*operation);
  }
  return group;
}

}  // namespace

std::vector<Rotation> point_group(const Lattice& lattice,
                                  std::span<const std::array<std::array<double, 3>, 3>> operators) {
  const Rotation basis = direct_basis(lattice);
  const Rotation inverse = basis.inverse();
  std::vector<Rotation> group{Rotation::Identity()};
  for (const auto& op : operators) {
    Rotation fractional;
    for (int i = 0; i < 3; ++i) {
      for (int j = 0; j < 3; ++j) fractional(i, j) = op[static_cast<std::size_t>(i)][static_cast<std::size_t>(j)];
    }
    const auto operation = in_frame(fractional, basis, inverse);
    if (operation && !contains(group, *operation)) group.push_back(*operation);
  }
  return group;
}

std::vector<Lookalike> lookalikes_of(const Lattice& lattice, std::span<const Rotation> point_group) {
  std::vector<Lookalike> lookalikes;
  std::vector<Rotation> seen(point_group.begin(), point_group.end());
  for (const Rotation& operation : cell_group(lattice)) {
    if (contains(seen, operation)) continue;
    Lookalike found{-operation, true};
    for (const Rotation& own : point_group) {
      const Rotation same = own * operation;
      seen.push_back(same);
      if (same.determinant() > 0 && found.other_hand) found = {same, false};
    }
    lookalikes.push_back(found);
  }
  return lookalikes;
}

}  // namespace zol
