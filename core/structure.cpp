#include "core/structure.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>

#include "core/run_failure.h"

namespace zol {
namespace {

/// x - floor(x), and 0 for what rounds up to 1.
double folded(double x) {
  const double fraction = x - std::floor(x);
  return fraction < 1.0 ? fraction : 0.0;
}

DirectVector folded(const DirectVector& position, const std::string& label) {
  if (!std::isfinite(position.u) || !std::isfinite(position.v) || !std::isfinite(position.w))
    throw RunFailure("the position of the site \"" + label + "\" is not a finite number");
  return {folded(position.u), folded(position.v), folded(position.w)};
}

int folded(int translation) { return ((translation % operator_unit) + operator_unit) % operator_unit; }

/// A sum of products of two elements, back in 24ths.
int in_units(std::int64_t products) {
  constexpr std::int64_t largest = 1 << 20;  // those of no finite group grow without end
  if (products % operator_unit != 0 || std::abs(products) > largest)
    throw RunFailure("the product of two symmetry operators has no exact form");
  return static_cast<int>(products / operator_unit);
}

/// Shortest distance between two positions, over the lattice translations around them.
double distance(const Lattice& lattice, const DirectVector& a, const DirectVector& b) {
  const auto nearest = [](double difference) { return difference - std::round(difference); };
  const DirectVector step{nearest(a.u - b.u), nearest(a.v - b.v), nearest(a.w - b.w)};
  double shortest = length(lattice.cartesian(step));
  for (int i = -1; i <= 1; ++i) {
    for (int j = -1; j <= 1; ++j) {
      for (int k = -1; k <= 1; ++k) {
        shortest = std::min(shortest, length(lattice.cartesian(DirectVector{step.u + i, step.v + j, step.w + k})));
      }
    }
  }
  return shortest;
}

}  // namespace

DirectVector ExactOperator::apply(const DirectVector& position) const {
  constexpr double unit = operator_unit;
  const std::array x{position.u, position.v, position.w};
  std::array<double, 3> image{};
  for (std::size_t i = 0; i < 3; ++i) {
    double sum = 0;  // of exact factors: what an operator leaves in its place stays to the bit
    for (std::size_t j = 0; j < 3; ++j) sum += rotation[i][j] / unit * x[j];
    image[i] = sum + translation[i] / unit;
  }
  return {image[0], image[1], image[2]};
}

ExactOperator operator*(const ExactOperator& left, const ExactOperator& right) {
  ExactOperator product;
  for (std::size_t i = 0; i < 3; ++i) {
    std::int64_t translation = std::int64_t{left.translation[i]} * operator_unit;
    for (std::size_t j = 0; j < 3; ++j) {
      std::int64_t sum = 0;
      for (std::size_t k = 0; k < 3; ++k) sum += std::int64_t{left.rotation[i][k]} * right.rotation[k][j];
      product.rotation[i][j] = in_units(sum);
      translation += std::int64_t{left.rotation[i][j]} * right.translation[j];
    }
    product.translation[i] = folded(in_units(translation));
  }
  return product;
}

std::vector<CellAtom> cell_atoms(const Structure& structure, double merge_angstrom, Task& task) {
  const Lattice lattice(structure.cell);
  const std::vector<ExactOperator> identity{ExactOperator{}};
  const auto& operators = structure.operators.empty() ? identity : structure.operators;
  std::vector<CellAtom> atoms;
  for (std::size_t site = 0; site < structure.sites.size(); ++site) {
    const auto first = static_cast<std::ptrdiff_t>(atoms.size());
    for (const ExactOperator& op : operators) {
      task.check();
      const DirectVector position = folded(op.apply(structure.sites[site].position), structure.sites[site].label);
      const bool there = std::any_of(atoms.begin() + first, atoms.end(), [&](const CellAtom& atom) {
        return distance(lattice, atom.position, position) <= merge_angstrom;
      });
      if (!there) atoms.push_back({static_cast<int>(site), position});
    }
  }
  return atoms;
}

}  // namespace zol
