// Histogram and profile of a powder pattern, point by point and bin by bin: what the faster ways must agree with to the
// bit.
#pragma once

#include <cmath>

#include "core/cell_geometry.h"
#include "powder/histogram.h"
#include "powder/interference.h"
#include "powder/line_profile.h"

namespace zol {

inline double plain_interference(double cells, double t) {
  if (t == 0) return cells * cells;
  return std::sin(cells * 3.14159 * t) * std::sin(cells * 3.14159 * t) / std::sin(t * 3.14159) / std::sin(t * 3.14159);
}

inline BoundedArray<Single> plain_histogram(const CrystalState& state, const CrystalliteSize& size) {
  const auto grid = interference_grid(state, size);
  const int count = bin_count(state.Dmin).value();
  BoundedArray<Single> bins("Bins", count + 1000);
  const double widths[] = {grid.width[0], grid.width[1], grid.width[2]};
  const auto limit = [&](std::size_t axis) { return static_cast<Single>(grid.steps[axis].value() * widths[axis]); };
  const auto next = [&](Single x, std::size_t axis) { return static_cast<Single>(double{x} + widths[axis]); };
  const auto place = [&](Single x, std::size_t axis) { return std::floor(std::abs(x / widths[axis]) + 0.5); };
  const double p = size.CellsP;
  const double q = size.CellsQ;
  const double s = size.CellsR;
  for (int r = 1; r <= state.RefCount.value(); ++r) {
    for (Single x = -limit(0); x <= limit(0); x = next(x, 0)) {
      for (Single y = -limit(1); y <= limit(1); y = next(y, 1)) {
        for (Single z = -limit(2); z <= limit(2); z = next(z, 2)) {
          auto entry = static_cast<Single>(plain_interference(p, place(x, 0) * widths[0]));
          entry = static_cast<Single>(plain_interference(q, place(y, 1) * widths[1]) * entry);
          entry = static_cast<Single>(plain_interference(s, place(z, 2) * widths[2]) * entry);
          entry = static_cast<Single>(entry / p / p / q / q / s / s);
          const double length = DHKLS(state, static_cast<Single>(state.RefH(r).value() + double{x}),
                                      static_cast<Single>(state.RefK(r).value() + double{y}),
                                      static_cast<Single>(state.RefL(r).value() + double{z}));
          const int bin = static_cast<int>(std::floor(double{state.Dmin} * length * count));
          bins(bin) = static_cast<Single>(double{bins(bin)} + double{state.RefI(r)} * double{entry});
        }
      }
    }
  }
  return bins;
}

/// Gaussians and Lorentzians of full width w, added bin by bin; a share of 2 is a whole area of one.
/// @param place  where the line of a bin stands
/// @param at     where a sample lies
template <class Place, class At>
BoundedArray<Single> plain_profile(const BoundedArray<Single>& bins, Place place, At at, double gaussian,
                                   double lorentzian, double w) {
  BoundedArray<Single> profile("Profile", last_sample);
  for (int m = 0; m <= last_sample; ++m) {
    Single& sum = profile(m);
    for (int n = 1; n <= 5000; ++n) {
      if (!(bins(n) > 0)) continue;
      const double e = static_cast<Single>(double{place(static_cast<Single>(n / 5000.0))} - double{at(m)});
      sum = static_cast<Single>(gaussian * std::sqrt(0.693147) * bins(n) / w / std::sqrt(3.14159) *
                                    std::exp(-2.772588 * e * e / w / w) +
                                double{sum});
      sum = static_cast<Single>(lorentzian * bins(n) / 3.14159 / w / (1 + e * 4 * e / w / w) + double{sum});
    }
  }
  return profile;
}

}  // namespace zol
