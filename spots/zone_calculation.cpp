#include "spots/zone_calculation.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>

#include "core/metric_forms.h"

namespace zol {
namespace {

constexpr double right_angle = program_pi / 2;
constexpr double upward_azimuth = 3.14149 / 2;  // its own constant, a digit off

SingleTriple scaled_down(const SingleTriple& v, Single length, std::string_view what) {
  const auto component = [length, what](Single x) { return to_single(divide(x, length, what)); };
  return {component(v[0]), component(v[1]), component(v[2])};
}

/// Divides all three by d when d divides them.
void reduce_by(int d, std::array<int, 3>& indices) {
  if (std::all_of(indices.begin(), indices.end(), [d](int i) { return i % d == 0; })) {
    for (int& i : indices) i /= d;
  }
}

/// Clips one index to 1000; the others are scaled by the clipped one, which leaves them as they are.
void clip(Long& first, Long& second, Long& third) {
  constexpr double most = 1000;
  if (std::abs(first.value()) <= most) return;
  const auto scaled = [](Long index, Long by) {
    return Long::floor(double(index.value()) / std::abs(by.value()) * most);
  };
  first = scaled(first, first);
  second = scaled(second, first);
  third = scaled(third, first);
}

}  // namespace

PatternAxes orientation(const Main1State& state) {
  const SingleTriple a = reciprocal_metric_times(state, as_singles({state.OriginH, state.OriginK, state.OriginL}));
  const SingleTriple zone{state.ZoneU, state.ZoneV, state.ZoneW};
  const SingleTriple cross{to_single(double{a[2]} * zone[1] - double{a[1]} * zone[2]),
                           to_single(double{a[0]} * zone[2] - double{a[2]} * zone[0]),
                           to_single(double{a[1]} * zone[0] - double{a[0]} * zone[1])};
  const SingleTriple d = reciprocal_metric_times(state, cross);
  return {scaled_down(a, DHKLT(state, a[0], a[1], a[2]), "the length of the reference reflection"),
          scaled_down(d, DHKLT(state, d[0], d[1], d[2]), "the product of zone axis and reference reflection"),
          scaled_down(zone, DHKLT(state, zone[0], zone[1], zone[2]), "the length of the zone axis")};
}

TiltAngles angles_of_point(Single x, Single y) {
  TiltAngles angles;
  angles.theta = to_single(right_angle - std::atan(std::sqrt(double{x} * x + double{y} * y)));
  if (x == 0) {
    angles.phi = to_single(y <= 0 ? -right_angle : upward_azimuth);
    return angles;
  }
  angles.phi = to_single(std::atan(double{y} / double{x}));
  if (x < 0 && y > 0) angles.phi = to_single(double{angles.phi} + program_pi);
  if (x < 0 && y < 0) angles.phi = to_single(double{angles.phi} - program_pi);
  return angles;
}

Indices<Integer> zone_axis_of(const PatternAxes& frame, const TiltAngles& direction) {
  const double theta = direction.theta;
  const double phi = direction.phi;
  const double ex = to_single(std::cos(theta) * std::cos(phi));
  const double ey = to_single(std::cos(theta) * std::sin(phi));
  const double ez = to_single(std::sin(theta));
  SingleTriple w{};
  Single largest = 0;
  for (std::size_t i = 0; i < 3; ++i) {
    w[i] = to_single(ex * frame.x[i] + ey * frame.y[i] + ez * frame.z[i]);
    largest = std::max(largest, std::abs(w[i]));
  }
  w = scaled_down(w, largest, "the largest component of the direction");

  constexpr int steps = 1000;
  std::array<int, 3> axis{};
  for (std::size_t i = 0; i < 3; ++i) axis[i] = Integer::floor(double{steps} * w[i]).value();
  for (int d = steps; d >= 2; --d) reduce_by(d, axis);
  return {axis[0], axis[1], axis[2]};
}

SingleTriple normal_plane_percent(const Main1State& cell, const Indices<Integer>& direction) {
  const auto [t1, t2, t3] = direct_metric_times(cell, direction);
  const Single sum = to_single(std::abs(double{t1}) + std::abs(double{t2}) + std::abs(double{t3}));
  const auto percent = [sum](Single t) {
    return to_single(std::floor(divide(t, sum, "the sum of the indices of the normal plane") * 100));
  };
  return {percent(t1), percent(t2), percent(t3)};
}

NewReference new_reference(const Main1State& state, const Indices<Integer>& new_axis) {
  const int u = new_axis.h.value();
  const int v = new_axis.k.value();
  const int w = new_axis.l.value();
  Long p = Long::floor(w + 0.5);
  Long q = Long::floor(w + 0.5);
  Long r = Long::floor(-(new_axis.k + new_axis.h).value() + 0.5);

  NewReference result;
  const double g1 = DHKL_Long(state, p, q, r);
  if (g1 != 0.0) {
    const double h0 = state.OriginH.value();
    const double k0 = state.OriginK.value();
    const double l0 = state.OriginL.value();
    const Long h = state.OriginH.value();
    const Long k = state.OriginK.value();
    const Long l = state.OriginL.value();
    const double g0 = DHKL_Long(state, h, k, l);
    constexpr std::string_view reference = "the length of the reference reflection";
    // Cosine between old and new reference, the old one projected into the plane normal to the new axis.
    Single c = to_single(divide(Product_Long(state, p, q, r, h, k, l) / g1, g0, reference));
    const double m = to_single(divide(divide(v * k0 + u * h0 + w * l0, g0, reference),
                                      DHKLTI(state, new_axis.h, new_axis.k, new_axis.l), "the length of the new axis"));
    c = to_single(divide(c, square_root(1.0 - m * m, "1 - cos^2 of old reference and new axis"),
                         "the part of the old reference normal to the new axis"));
    c = std::clamp(c, -1.0F, 1.0F);
    const double p0 = p.value();
    const double q0 = q.value();
    const double r0 = r.value();
    // On which side of the old reference the new one lies, seen along the old axis.
    const Single side = ProductTS(state, state.ZoneU, state.ZoneV, state.ZoneW, to_single(l0 * q0 - k0 * r0),
                                  to_single(h0 * r0 - p0 * l0), to_single(p0 * k0 - h0 * q0));
    result.turn_degrees = side <= 0 ? ArcCos(c) : -ArcCos(c);
  }
  clip(p, q, r);
  clip(q, p, r);
  clip(r, p, q);
  result.reflection = {p.value(), q.value(), r.value()};
  return result;
}

}  // namespace zol
