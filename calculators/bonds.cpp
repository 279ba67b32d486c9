#include "calculators/bonds.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "core/number_text.h"
#include "core/run_failure.h"

namespace zol {
namespace {

constexpr double coincident = 0.01;  // angstroms

/// The hydrogen molecule, the shortest bond, has 0.74 angstroms.
bool share_a_place(const BondAtom& site, const BondAtom& atom, double distance) {
  constexpr double shortest_bond = 0.7;
  constexpr double full = 1.001;
  return distance < shortest_bond && site.occupancy + atom.occupancy <= full;
}

class Neighbours {
 public:
  Neighbours(const BondedCrystal& crystal, Task& task)
      : crystal_(crystal), task_(task), lattice_(crystal.cell), reciprocal_(lattice_.reciprocal_cell()) {}

  /// All atoms up to a distance, rising in it.
  [[nodiscard]] std::vector<Bond> within(const BondAtom& site, double limit) const {
    std::vector<Bond> found;
    for (std::size_t i = 0; i < crystal_.atoms.size(); ++i) add_images(site, static_cast<int>(i), limit, found);
    std::stable_sort(found.begin(), found.end(), [](const Bond& a, const Bond& b) { return a.distance < b.distance; });
    return found;
  }

 private:
  /// Planes of whole u lie 1/a* apart, so that |u| is a* times the limit at most; the same for v and w.
  void add_images(const BondAtom& site, int number, double limit, std::vector<Bond>& found) const {
    const BondAtom& atom = crystal_.atoms[static_cast<std::size_t>(number)];
    const DirectVector apart{atom.position.u - site.position.u, atom.position.v - site.position.v,
                             atom.position.w - site.position.w};
    const auto first = [limit](double from, double edge) { return std::ceil(-limit * edge - from); };
    const auto last = [limit](double from, double edge) { return std::floor(limit * edge - from); };
    check_cells(limit);
    for (double p = first(apart.u, reciprocal_.a); p <= last(apart.u, reciprocal_.a); ++p) {
      for (double q = first(apart.v, reciprocal_.b); q <= last(apart.v, reciprocal_.b); ++q) {
        task_.check();
        for (double r = first(apart.w, reciprocal_.c); r <= last(apart.w, reciprocal_.c); ++r) {
          const CartesianVector along = lattice_.cartesian(DirectVector{apart.u + p, apart.v + q, apart.w + r});
          const double distance = length(along);
          if (distance < coincident || distance > limit || share_a_place(site, atom, distance)) continue;
          found.push_back({number, distance, {atom.position.u + p, atom.position.v + q, atom.position.w + r}, along});
        }
      }
    }
  }

  /// A cell that is far too small, such as one with a mistyped edge, has more neighbours than anyone can wait for.
  void check_cells(double limit) const {
    constexpr double most_cells = 2e5;
    const auto along = [limit](double edge) { return 1 + 2 * limit * edge; };
    if (along(reciprocal_.a) * along(reciprocal_.b) * along(reciprocal_.c) <= most_cells) return;
    throw RunFailure("the cell is too small: more than " + plain_text(most_cells) + " cells lie within " +
                     plain_text(limit) + " angstroms of an atom; expected are fewer");
  }

  const BondedCrystal& crystal_;
  Task& task_;
  Lattice lattice_;
  CellConstants reciprocal_;
};

/// The first atom behind a gap; the number of atoms where there is none.
std::size_t end_of_shell(const std::vector<Bond>& around, double gap) {
  for (std::size_t i = 1; i < around.size(); ++i) {
    if (around[i].distance > around[i - 1].distance * (1 + gap)) return i;
  }
  return around.size();
}

/// Looks farther and farther until the gap is met.
Coordination up_to_gap(const Neighbours& neighbours, const BondAtom& site, double gap) {
  constexpr double nearest_look = 3;
  constexpr double farthest_look = 12;
  Coordination found;
  for (double limit = nearest_look;; limit *= 2) {
    found.bonds = neighbours.within(site, limit);
    const std::size_t end = end_of_shell(found.bonds, gap);
    if (end < found.bonds.size()) {
      found.next = found.bonds[end].distance;
      found.bonds.resize(end);
      return found;
    }
    if (limit >= farthest_look) return found;
  }
}

Coordination up_to_limit(const Neighbours& neighbours, const BondAtom& site, double limit) {
  constexpr double look_beyond = 1.5;  // for the next one, where it is near
  Coordination found;
  found.bonds = neighbours.within(site, limit * look_beyond);
  const auto end =
      std::find_if(found.bonds.begin(), found.bonds.end(), [limit](const Bond& bond) { return bond.distance > limit; });
  if (end != found.bonds.end()) found.next = end->distance;
  found.bonds.erase(end, found.bonds.end());
  return found;
}

/// Pairs that are looked at, and bonds that are kept, by the share of the sphere in the cell.
Effort effort_of(const BondedCrystal& crystal, const BondSettings& settings) {
  constexpr double usual = 6;
  constexpr double of_pair = 4e-8;
  constexpr double bytes_of_bond = 400;
  const double radius = settings.limit > 0 ? 1.5 * settings.limit : usual;
  const double sphere = 4.0 / 3.0 * std::numbers::pi * radius * radius * radius;
  const double pairs = static_cast<double>(crystal.sites.size() * crystal.atoms.size()) *
                       (1 + 8 * sphere / Lattice(crystal.cell).volume());
  return {pairs * of_pair, settings.limit > 0 ? pairs / 8 * bytes_of_bond : 0};
}

std::string length_field(double angstroms) {
  constexpr std::size_t width = 10;
  return right_field(angstroms > 0 ? Format(angstroms, "0.0000") : "", width);
}

std::string name_fields(const BondAtom& atom) { return left_field(atom.label, 8) + left_field(atom.element, 6); }

const BondAtom& at_end_of(const BondedCrystal& crystal, const Bond& bond) {
  return crystal.atoms[static_cast<std::size_t>(bond.atom)];
}

}  // namespace

BondedCrystal bonded_crystal(const CrystalState& state) {
  BondedCrystal crystal;
  crystal.cell = {state.CellA, state.CellB, state.CellC, state.CellAlpha, state.CellBeta, state.CellGamma};
  for (int i = 1; i <= state.NAtom.value(); ++i) {
    crystal.sites.push_back({state.AtomLabel(i),
                             state.AtomElement(i),
                             state.AtomOcc(i),
                             {state.AtomPos(i, 1), state.AtomPos(i, 2), state.AtomPos(i, 3)}});
  }
  for (int m = 1; m <= state.NCell.value(); ++m) {
    crystal.atoms.push_back({state.UCLabel(m),
                             state.UCElement(m),
                             state.UCOcc(m),
                             {state.UCPos(m, 1), state.UCPos(m, 2), state.UCPos(m, 3)}});
  }
  return crystal;
}

std::vector<Coordination> coordinations(const BondedCrystal& crystal, const BondSettings& settings, Task& task) {
  task.expect(effort_of(crystal, settings));
  const Neighbours neighbours(crystal, task);
  std::vector<Coordination> of_sites;
  for (const BondAtom& site : crystal.sites) {
    of_sites.push_back(settings.limit > 0 ? up_to_limit(neighbours, site, settings.limit)
                                          : up_to_gap(neighbours, site, settings.gap));
    task.report(static_cast<int>(of_sites.size()), static_cast<int>(crystal.sites.size()));
  }
  return of_sites;
}

std::vector<BondAngle> bond_angles(const Coordination& site) {
  std::vector<BondAngle> angles;
  const int count = static_cast<int>(site.bonds.size());
  for (int i = 0; i < count; ++i) {
    for (int j = i + 1; j < count; ++j) {
      const auto& first = site.bonds[static_cast<std::size_t>(i)].along;
      angles.push_back({i, j, angle_deg(first, site.bonds[static_cast<std::size_t>(j)].along)});
    }
  }
  return angles;
}

std::string coordination_line(const BondAtom& site, const Coordination& found) {
  double sum = 0;
  for (const Bond& bond : found.bonds) sum += bond.distance;
  const bool any = !found.bonds.empty();
  return name_fields(site) + right_field(std::to_string(found.bonds.size()), 5) +
         length_field(any ? found.bonds.front().distance : 0) +
         length_field(any ? sum / static_cast<double>(found.bonds.size()) : 0) +
         length_field(any ? found.bonds.back().distance : 0) + length_field(found.next);
}

std::string bond_line(const BondedCrystal& crystal, const BondAtom& site, const Bond& bond) {
  std::string line = name_fields(site) + name_fields(at_end_of(crystal, bond)) + length_field(bond.distance);
  for (const double x : {bond.position.u, bond.position.v, bond.position.w}) {
    constexpr double shown = 5e-6;  // what is nearer to 0 has no sign
    line += right_field(Format(std::abs(x) < shown ? 0 : x, "0.00000"), 10);
  }
  return line;
}

std::string angle_line(const BondedCrystal& crystal, const BondAtom& site, const Coordination& found,
                       const BondAngle& angle) {
  const Bond& first = found.bonds[static_cast<std::size_t>(angle.first)];
  const Bond& second = found.bonds[static_cast<std::size_t>(angle.second)];
  return left_field(at_end_of(crystal, first).label, 8) + left_field(site.label, 8) +
         left_field(at_end_of(crystal, second).label, 8) + right_field(Format(angle.degrees, "0.000"), 9) +
         length_field(first.distance) + length_field(second.distance);
}

}  // namespace zol
