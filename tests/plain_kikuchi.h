// The grey scale and the lines of a Kikuchi pattern, each angle and each tangent worked out where it stands: what the
// quicker way must agree with, to the bit.
#pragma once

#include <algorithm>
#include <cmath>
#include <optional>
#include <vector>

#include "core/cell_geometry.h"
#include "kikuchi/kikuchi_pattern.h"
#include "reflections/reflection_list.h"
#include "spots/zone_geometry.h"

namespace zol {

inline double plain_tangent(double angle_deg) { return std::tan(angle_deg * degree); }

inline Single plain_latitude(const CrystalState& state, int i) {
  const double product = state.RefH(i).value() * double{state.ZoneU} + state.RefK(i).value() * double{state.ZoneV} +
                         state.RefL(i).value() * double{state.ZoneW};
  const double length = DHKL(state, state.RefH(i), state.RefK(i), state.RefL(i));
  const Single axis = DHKLT(state, state.ZoneU, state.ZoneV, state.ZoneW);
  return to_single(90.0 - double{ArcCos(to_single(product / length / axis))});
}

inline Single plain_theta(const CrystalState& state, int i) {
  const double length = DHKL(state, state.RefH(i), state.RefK(i), state.RefL(i));
  return ArcSin(to_single(length * state.WaveLength / 2));
}

/// Of a primitive lattice.
inline Single plain_strongest(const CrystalState& state, const GnomonicView& view) {
  Single strongest = 0;
  for (int i = 1; i <= state.RefCount.value(); ++i) {
    const Single intensity = to_single(2.0 * state.RefS(i) * state.RefI(i));
    if (plain_tangent(std::abs(plain_latitude(state, i))) < 2.0 * view.reach &&
        plain_tangent(plain_theta(state, i)) < 2.0 * view.reach) {
      strongest = std::max(strongest, intensity);
    }
  }
  return strongest;
}

inline std::optional<KikuchiLine> plain_line(const CrystalState& state, const GnomonicView& view, bool trace_only,
                                             int i) {
  const Indices<Integer> origin{state.OriginH, state.OriginK, state.OriginL};
  KikuchiLine line;
  line.hkl = {state.RefH(i), state.RefK(i), state.RefL(i)};
  const auto& [h, k, l] = line.hkl;
  line.intensity = to_single(2.0 * state.RefS(i) * state.RefI(i));
  line.length = DHKL(state, h, k, l);
  line.latitude_deg = plain_latitude(state, i);
  const Single theta = plain_theta(state, i);
  if (!(plain_tangent(std::abs(line.latitude_deg)) < 2.0 * view.reach) || !(plain_tangent(theta) < view.reach)) {
    return std::nullopt;
  }
  const double product = Product(state, h, k, l, origin.h, origin.k, origin.l);
  const double c = std::clamp<double>(to_single(product / line.length / DHKL(state, origin.h, origin.k, origin.l) /
                                                std::cos(double{line.latitude_deg} * degree)),
                                      -1, 1);
  const auto [u, v, w] = as_singles(cross_vector(line.hkl, origin));
  const double sign = ProductTS(state, state.ZoneU, state.ZoneV, state.ZoneW, u, v, w) <= 0 ? 1 : -1;
  const double s = to_single(sign * std::sqrt(std::abs(1 - c * c)));
  const double turn = state.PatternAngle;
  line.unit_x = to_single(-(c * std::cos(turn) - s * std::sin(turn)));
  line.unit_y = to_single(-(c * std::sin(turn) + s * std::cos(turn)));
  line.azimuth_deg = ArcCos(line.unit_x);
  if (line.unit_y < 0) line.azimuth_deg = to_single(360.0 - line.azimuth_deg);
  line.azimuth_deg = to_single(double{line.azimuth_deg} + state.PatternAngle);
  if (line.azimuth_deg < 0) line.azimuth_deg = to_single(double{line.azimuth_deg} + 360.0);
  if (line.azimuth_deg > 360) line.azimuth_deg = to_single(double{line.azimuth_deg} - 360.0);
  const double distance = plain_tangent(double{line.latitude_deg} - (trace_only ? 0.0 : double{theta}));
  line.foot_x = to_single(distance * line.unit_x);
  line.foot_y = to_single(distance * line.unit_y);
  return line;
}

inline std::vector<KikuchiLine> plain_lines(const CrystalState& state, const GnomonicView& view, bool trace_only) {
  std::vector<KikuchiLine> lines;
  for (int i = 1; i <= state.RefCount.value(); ++i) {
    if (const auto line = plain_line(state, view, trace_only, i)) lines.push_back(*line);
  }
  return lines;
}

}  // namespace zol
