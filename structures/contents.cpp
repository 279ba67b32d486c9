#include "structures/contents.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

#include "core/run_failure.h"

namespace zol {
namespace {

double from_nearest(double difference) { return difference - std::round(difference); }

DirectVector minus(const DirectVector& a, const DirectVector& b) { return {a.u - b.u, a.v - b.v, a.w - b.w}; }

/// Steps from one atom to the images of another that may lie within reach of it.
class Neighbours {
 public:
  Neighbours(const Lattice& lattice, double reach) : lattice_(lattice), reach_(reach) {
    const auto reciprocal = lattice.reciprocal_cell();
    const std::array stars{reciprocal.a, reciprocal.b, reciprocal.c};
    for (std::size_t i = 0; i < 3; ++i) {
      farthest_[i] = reach * stars[i];  // lattice planes lie 1/star apart
      around_[i] = static_cast<int>(std::ceil(farthest_[i] - 0.5));
    }
  }

  /// Calls visit with each step of at most the reach, and its length.
  template <class Visit>
  void visit(const DirectVector& difference, const Visit& visit) const {
    const std::array nearest{from_nearest(difference.u), from_nearest(difference.v), from_nearest(difference.w)};
    for (std::size_t i = 0; i < 3; ++i) {
      if (std::abs(nearest[i]) > farthest_[i]) return;
    }
    for (int u = -around_[0]; u <= around_[0]; ++u) {
      for (int v = -around_[1]; v <= around_[1]; ++v) {
        for (int w = -around_[2]; w <= around_[2]; ++w) {
          const DirectVector step{nearest[0] + u, nearest[1] + v, nearest[2] + w};
          const double distance = length(lattice_.cartesian(step));
          if (distance <= reach_) visit(step, distance);
        }
      }
    }
  }

 private:
  const Lattice& lattice_;
  double reach_;
  std::array<double, 3> farthest_{};
  std::array<int, 3> around_{};
};

/// The middle of the images of a site that are one atom with it, and how many they are.
struct Merged {
  DirectVector position;
  int images = 0;    ///< by operators, those that leave it in its place counted each
  int in_place = 0;  ///< those alone
  double moved = 0;  ///< angstroms to the farthest image
};

Merged merged(const DirectVector& position, const std::vector<ExactOperator>& operators, const Neighbours& near) {
  constexpr double in_place = 1e-3;  // angstroms
  DirectVector sum;
  Merged result;
  for (const auto& op : operators) {
    near.visit(minus(op.apply(position), position), [&](const DirectVector& step, double distance) {
      sum = {sum.u + step.u, sum.v + step.v, sum.w + step.w};
      result.moved = std::max(result.moved, distance);
      ++result.images;
      if (distance < in_place) ++result.in_place;
    });
  }
  const double n = std::max(1, result.images);
  result.position = {position.u + sum.u / n, position.v + sum.v / n, position.w + sum.w / n};
  return result;
}

bool is_hydrogen(const Site& site) { return site.element == "H"; }

}  // namespace

void check_cell(const CellConstants& cell) {
  const CellConstants reciprocal = Lattice(cell).reciprocal_cell();
  if (std::max({reciprocal.a, reciprocal.b, reciprocal.c}) > 1) {
    throw RunFailure("the cell is too small or too flat to hold atoms");
  }
}

double cell_misfit(const Structure& structure) {
  const Lattice lattice(structure.cell);
  const std::array edges{lattice.cartesian(DirectVector{1, 0, 0}), lattice.cartesian(DirectVector{0, 1, 0}),
                         lattice.cartesian(DirectVector{0, 0, 1})};
  const double longest = std::max({structure.cell.a, structure.cell.b, structure.cell.c});
  double misfit = 0;
  for (const auto& op : structure.operators) {
    std::array<CartesianVector, 3> turned{};
    for (std::size_t j = 0; j < 3; ++j) {
      const ExactOperator rotation{op.rotation, {}};
      turned[j] = lattice.cartesian(rotation.apply({j == 0 ? 1.0 : 0.0, j == 1 ? 1.0 : 0.0, j == 2 ? 1.0 : 0.0}));
    }
    for (std::size_t i = 0; i < 3; ++i) {
      for (std::size_t j = i; j < 3; ++j) {
        misfit = std::max(misfit, std::abs(dot(turned[i], turned[j]) - dot(edges[i], edges[j])));
      }
    }
  }
  return misfit / (longest * longest);
}

Formula cell_contents(const Structure& structure, Task& task) {
  Formula contents;
  for (const Site& site : structure.sites) {
    Structure one = structure;
    one.sites = {site};
    contents[site.element] += site.occupancy * static_cast<double>(cell_atoms(one, settled_angstrom, task).size());
  }
  return contents;
}

double density(const Formula& contents, const CellConstants& cell) {
  constexpr double grams_per_dalton = 1.66053906660;  // in units of 1e-24
  double mass = 0;
  for (const auto& [element, count] : contents) mass += count * atomic_weight(element);
  return mass * grams_per_dalton / Lattice(cell).volume();
}

std::optional<double> formula_units(const Formula& contents, const Formula& formula) {
  double ours = 0, theirs = 0;
  for (const auto& [element, count] : formula) {
    if (element == "H") continue;
    const auto found = contents.find(element);
    ours += found == contents.end() ? 0 : found->second;
    theirs += count;
  }
  if (ours <= 0 || theirs <= 0) return std::nullopt;
  const double units = ours / theirs;
  constexpr double tolerance = 0.03;
  for (const auto& [element, count] : formula) {
    const auto found = contents.find(element);
    const double there = found == contents.end() ? 0 : found->second;
    const bool may_lack = element == "H" && there < count * units;
    if (!may_lack && std::abs(there - count * units) > tolerance * count * units + 0.02) return std::nullopt;
  }
  for (const auto& [element, count] : contents) {
    if (count > 0.02 && !formula.contains(element)) return std::nullopt;
  }
  return units;
}

std::optional<ShortestDistance> shortest_distance(const Structure& structure, bool with_hydrogen, Task& task) {
  constexpr double reach = 4;
  constexpr double same_place = 0.02;
  const Lattice lattice(structure.cell);
  const Neighbours near(lattice, reach);
  const auto atoms = cell_atoms(structure, settled_angstrom, task);
  std::optional<ShortestDistance> shortest;
  for (const Site& from : structure.sites) {
    task.check();
    if (!with_hydrogen && is_hydrogen(from)) continue;
    for (const auto& atom : atoms) {
      const Site& to = structure.sites[static_cast<std::size_t>(atom.site)];
      if (from.occupancy + to.occupancy <= 1.001 || (!with_hydrogen && is_hydrogen(to))) continue;
      near.visit(minus(atom.position, from.position), [&](const DirectVector&, double distance) {
        if (distance > same_place && (!shortest || distance < shortest->angstrom)) {
          shortest = {distance, from.label, to.label};
        }
      });
    }
  }
  return shortest;
}

std::vector<std::string> settle_positions(Structure& structure, Task& task) {
  std::vector<std::string> split;
  if (structure.operators.empty()) return split;
  const Lattice lattice(structure.cell);
  const Neighbours near(lattice, one_atom_angstrom);
  constexpr double rounding = 0.05;  // angstroms; images further apart had been meant apart
  for (Site& site : structure.sites) {
    task.check();
    Merged first = merged(site.position, structure.operators, near);
    if (first.images < 2) continue;
    const bool apart = first.moved > rounding;
    const int images = first.images / std::max(1, first.in_place);
    if (apart && site.occupancy * images <= 1.02) {
      split.push_back(site.label);
      continue;
    }
    site.position = first.position;
    // The middle may lie near further elements, step by step to a place that four of them meet in.
    constexpr int most_steps = 12;
    for (int step = 0; step < most_steps; ++step) {
      const Merged next = merged(site.position, structure.operators, near);
      if (next.images <= first.images && next.moved < 1e-9) break;
      site.position = next.position;
      first = next;
    }
  }
  return split;
}

}  // namespace zol
