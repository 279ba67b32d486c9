// Which bands of a pattern a test picks, and where its solution stands in the list.
#pragma once

#include <cmath>
#include <numbers>
#include <vector>

#include "analysis/window/hkl3make.h"
#include "analysis/window/pattern3_form.h"
#include "tests/projected_pattern.h"

namespace zol {

/// Three planes of the table whose bands cross the picture well apart from its centre and from each other.
class BandChoice {
 public:
  BandChoice(const CrystalState& state, int count, const ProjectedPattern& pattern) : pattern_(pattern) {
    for (int i = 1; i <= count; ++i) {
      const Vector hkl{1.0 * state.RefH(i).value(), 1.0 * state.RefK(i).value(), 1.0 * state.RefL(i).value()};
      const double latitude = pattern.latitude_deg(hkl);
      const double theta = std::asin(double{state.WaveLength} * state.RefS(i)) * 180 / std::numbers::pi;
      if (latitude < 4 || latitude > 26 || latitude < 1.5 * theta) continue;
      if (!pattern.line(hkl) || !pattern.line(hkl, theta) || !pattern.line(hkl, -theta)) continue;
      if (fits(hkl)) {
        planes.push_back(hkl);
        thetas.push_back(theta);
      }
      if (planes.size() == 3) return;
    }
  }
  std::vector<Vector> planes;
  std::vector<double> thetas;

 private:
  [[nodiscard]] bool fits(const Vector& hkl) const {
    for (const auto& other : planes) {
      const double turn = std::abs(std::remainder(pattern_.azimuth_deg(hkl) - pattern_.azimuth_deg(other), 360));
      if (turn < 25 || turn > 155) return false;
    }
    return planes.size() < 2 || std::abs(dot(hkl, cross(planes[0], planes[1]))) > 0.5;
  }
  const ProjectedPattern& pattern_;
};

/// Number of the solution with these planes; 0 when there is none.
inline int solution_with(const Pattern3Form& form, const std::vector<Vector>& planes) {
  for (int n = 1; n <= form.solutions.SolutionCount.value(); ++n) {
    const auto found = row_planes(form.triples, form.solutions.SolutionTriple(n).value());
    bool same = true;
    for (std::size_t i = 0; i < 3; ++i) {
      const auto& [h, k, l] = planes[i];
      same = same && found[i] == Indices<Integer>{static_cast<int>(h), static_cast<int>(k), static_cast<int>(l)};
    }
    if (same) return n;
  }
  return 0;
}

}  // namespace zol
