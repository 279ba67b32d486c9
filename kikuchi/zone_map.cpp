#include "kikuchi/zone_map.h"

#include <algorithm>
#include <cmath>

#include "core/cell_geometry.h"

namespace zol {
namespace {

/// Angle between two sides of a triangle, radians, from the three lengths.
Single angle_between(double side_1, double side_2, double opposite, std::string_view what) {
  const Single cosine = to_single(
      divide(divide((side_1 * side_1 + side_2 * side_2 - opposite * opposite) / 2, side_1, what), side_2, what));
  return to_single(ArcCos(cosine) * degree);
}

}  // namespace

std::optional<DirectionPlace> place_of_direction(const CrystalState& state, Single u, Single v, Single w) {
  const double zone_u = state.ZoneU;
  const double zone_v = state.ZoneV;
  const double zone_w = state.ZoneW;
  const double origin_h = state.OriginH.value();
  const double origin_k = state.OriginK.value();
  const double origin_l = state.OriginL.value();

  DirectionPlace place;
  place.theta = angle_between(DHKLT(state, state.ZoneU, state.ZoneV, state.ZoneW), DHKLT(state, u, v, w),
                              DHKLT(state, to_single(u - zone_u), to_single(v - zone_v), to_single(w - zone_w)),
                              "the length of the zone axis or of a direction");

  // The plane of axis and direction as a reciprocal vector, and its angle from the reference reflection.
  const double q1 = to_single(v * zone_w - w * zone_v);
  const double q2 = to_single(w * zone_u - u * zone_w);
  const double q3 = to_single(u * zone_v - v * zone_u);
  const Single plane = DHKLS(state, to_single(q1), to_single(q2), to_single(q3));
  const Single reference = DHKLS(state, to_single(origin_h), to_single(origin_k), to_single(origin_l));
  if (plane == 0 || reference == 0) return std::nullopt;
  const Single difference = DHKLS(state, to_single(q1 - origin_h), to_single(q2 - origin_k), to_single(q3 - origin_l));
  place.phi = angle_between(plane, reference, difference, "the length of a plane");
  if (difference >= double{plane} + double{reference} - 0.0001) place.phi = to_single(program_pi);

  const double t1 = to_single(origin_l * q2 - origin_k * q3);
  const double t2 = to_single(origin_h * q3 - origin_l * q1);
  const double t3 = to_single(origin_k * q1 - origin_h * q2);
  if (t1 * zone_u + t2 * zone_v + t3 * zone_w >= 0) place.phi = -place.phi;
  place.phi = to_single(program_pi / 2 + place.phi + state.PatternAngle);
  return place;
}

std::deque<PlacedDirection> places_in_sweep(const CrystalState& state, const SweepLimits& limits, Task& task) {
  const auto span = [](int limit) { return 2.0 * std::max(limit, 0) + 1; };
  const double directions = span(limits.u) * span(limits.v) * span(limits.w);
  constexpr double of_direction = 1.5e-6;     // with what is drawn of it
  constexpr double bytes_of_direction = 300;  // of that
  task.expect({directions * of_direction, directions * bytes_of_direction});
  std::deque<PlacedDirection> placed;  // millions of them: none is moved
  const auto visit = [&](Single u, Single v, Single w) {
    task.check();
    if (DHKLT(state, state.ZoneU, state.ZoneV, state.ZoneW) == 0 || DHKLT(state, u, v, w) == 0) return;
    if (const auto place = place_of_direction(state, u, v, w)) placed.push_back({u, v, w, *place});
  };
  for (int u = -limits.u; u <= limits.u; ++u) {
    task.report(u + limits.u, 2 * limits.u);
    for (int v = -limits.v; v <= limits.v; ++v) {
      for (int w = -limits.w; w <= limits.w; ++w) {
        if (u % 2 == 0 && v % 2 == 0 && w % 2 == 0) continue;
        visit(static_cast<Single>(u), static_cast<Single>(v), static_cast<Single>(w));
      }
    }
  }
  return placed;
}

DirectionPlace from_substrate_normal(const CrystalState& state, const DirectionPlace& place) {
  const double tilt = to_single(double{state.CamNormal} * degree);
  const double a = to_single(std::cos(double{place.theta}));
  const double b = to_single(std::sin(double{place.theta}) * std::cos(double{place.phi}));
  const double c = to_single(std::sin(double{place.theta}) * std::sin(double{place.phi}));
  const Single p = to_single(c * std::sin(tilt) + a * std::cos(tilt));
  const Single q = to_single(-a * std::sin(tilt) + c * std::cos(tilt));
  DirectionPlace turned;
  turned.theta = to_single(ArcCos(p) * degree);
  const double sine = std::sin(double{turned.theta});
  if (sine != 0.0) turned.phi = to_single(ArcCos(to_single(b / sine)) * degree);
  if (q < 0) turned.phi = to_single(program_two_pi - turned.phi);
  return turned;
}

Single map_radius(Single theta, bool equidistant) {
  constexpr double quarter = 1.5708;
  if (!equidistant) return to_single(std::sin(double{theta}));
  return to_single((theta > quarter ? program_pi - theta : double{theta}) / quarter);
}

}  // namespace zol
