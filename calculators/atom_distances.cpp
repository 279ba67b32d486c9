#include "calculators/atom_distances.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "core/number_text.h"

namespace zol {
namespace {

constexpr Single same_place = 0.01F;

Single length(const DistanceCell& cell, double x, double y, double z) {
  const double a = cell.CellA;
  const double b = cell.CellB;
  const double c = cell.CellC;
  const double s = to_single(y * z * b * c * double{cell.CosAlpha} + x * y * a * b * double{cell.CosGamma} +
                             x * z * c * a * double{cell.CosBeta});
  return to_single(
      square_root(s + s + (y * y * b * b + x * x * a * a + z * z * c * c), "the squared distance of two atoms"));
}

/// Six blanks and a name, cut at its left to a width; short names stay short.
std::string name_field(std::string_view name, std::string_view pattern, std::size_t width) {
  const std::string text = "      " + Format(name, pattern);
  return text.size() > width ? text.substr(text.size() - width) : text;
}

std::vector<AtomDistance> distances_from(const Module1State& crystal, const DistanceCell& cell, int site, Single limit,
                                         Task& task) {
  const double x = crystal.AtomPos(site, 1);
  const double y = crystal.AtomPos(site, 2);
  const double z = crystal.AtomPos(site, 3);
  std::vector<AtomDistance> found;
  for (int p = -1; p <= 1; ++p) {
    for (int q = -1; q <= 1; ++q) {
      for (int r = -1; r <= 1; ++r) {
        task.check();
        for (int j = 1; j <= crystal.NCell.value(); ++j) {
          const Single dx = to_single(p + double{crystal.UCPos(j, 1)} - x);
          const Single dy = to_single(q + double{crystal.UCPos(j, 2)} - y);
          const Single dz = to_single(r + double{crystal.UCPos(j, 3)} - z);
          const Single distance = length(cell, dx, dy, dz);
          if (distance > same_place && distance <= limit) found.push_back({j, distance});
        }
      }
    }
  }
  return found;
}

/// All pairs within the cells around; those within the limit by the share of its sphere in their volume.
Effort effort_of_distances(const Module1State& crystal, const DistanceCell& cell, Single limit) {
  constexpr double cells = 27;
  constexpr double of_pair = 6e-9;
  constexpr double of_line = 1e-6;
  constexpr double bytes_of_line = 120;
  const double pairs = cells * crystal.NAtom.value() * crystal.NCell.value();
  const double cosines = double{cell.CosAlpha} * double{cell.CosAlpha} + double{cell.CosBeta} * double{cell.CosBeta} +
                         double{cell.CosGamma} * double{cell.CosGamma};
  const double oblique = 1 - cosines + 2 * double{cell.CosAlpha} * double{cell.CosBeta} * double{cell.CosGamma};
  const double volume =
      double{cell.CellA} * double{cell.CellB} * double{cell.CellC} * std::sqrt(std::max(0.0, oblique));
  const double sphere = 4.0 / 3.0 * std::numbers::pi * std::pow(std::max(0.0, double{limit}), 3);
  const double lines = pairs * (sphere < cells * volume ? sphere / (cells * volume) : 1.0);
  return {pairs * of_pair + lines * of_line, lines * bytes_of_line};
}

}  // namespace

DistanceCell distance_cell(const Main1State& state) {
  return {state.CellA, state.CellB, state.CellC, state.CosAlpha, state.CosBeta, state.CosGamma};
}

std::vector<std::vector<AtomDistance>> atom_distances(const Module1State& crystal, const DistanceCell& cell,
                                                      Single limit, Task& task) {
  std::vector<std::vector<AtomDistance>> of_sites;
  const int sites = crystal.NAtom.value();
  task.expect(effort_of_distances(crystal, cell, limit));
  for (int site = 1; site <= sites; ++site) {
    of_sites.push_back(distances_from(crystal, cell, site, limit, task));
    task.report(site, sites);
  }
  return of_sites;
}

std::string distance_line(const Module1State& crystal, int site, const AtomDistance& distance) {
  const int j = distance.cell_atom;
  return name_field(crystal.AtomLabel(site), "&&&&&&", 7) + name_field(crystal.AtomElement(site), "(&&&&&&) -", 12) +
         name_field(crystal.UCLabel(j), "&&&&&&", 7) + name_field(crystal.UCElement(j), "(&&&&&&)   ", 12) +
         Format(distance.distance, "##0.0000");
}

}  // namespace zol
