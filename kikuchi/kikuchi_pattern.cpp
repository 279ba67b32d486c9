#include "kikuchi/kikuchi_pattern.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "core/metric_forms.h"
#include "core/run_failure.h"
#include "reflections/reflection_list.h"
#include "spots/zone_geometry.h"

namespace zol {
namespace {

double tangent(double angle_deg) { return std::tan(angle_deg * degree); }

/// What a line needs of a reflection before its place is worked out.
struct Inclination {
  Single length = 0;  ///< 1/d
  Single latitude_deg = 0;
};

/// Angle of the reciprocal vector above the plane normal to the axis.
Inclination inclination(const CrystalState& state, const Indices<Integer>& hkl) {
  Inclination result;
  result.length = DHKL(state, hkl.h, hkl.k, hkl.l);
  result.latitude_deg =
      latitude_deg(state, hkl, result.length, {state.ZoneU, state.ZoneV, state.ZoneW}, "the length of the zone axis");
  return result;
}

/// Bragg angle in degrees.
Single bragg_angle(const CrystalState& state, Single length) {
  return ArcSin(to_single(double{length} * state.WaveLength / 2));
}

/// Of the pattern, by PatternAngle.
struct Rotation {
  explicit Rotation(double angle) : cosine(std::cos(angle)), sine(std::sin(angle)) {}
  double cosine, sine;
};

/// Unit vector from the centre towards the line, from the cosine of the angle to the reference reflection within the
/// plane of the pattern and the side on which the reflection lies, turned by PatternAngle.
void set_direction(const CrystalState& state, const Inclination& place, const Rotation& rotation, bool clip,
                   KikuchiLine& line) {
  const Indices<Integer> reference{state.OriginH, state.OriginK, state.OriginL};
  const auto& [h, k, l] = line.hkl;
  const double reference_length = DHKL(state, reference.h, reference.k, reference.l);
  double cosine = to_single(divide(divide(divide(Product(state, h, k, l, reference.h, reference.k, reference.l),
                                                 place.length, "the length of a reflection"),
                                          reference_length, "the length of the reference reflection"),
                                   std::cos(double{place.latitude_deg} * degree), "the cosine of a latitude"));
  if (clip) cosine = std::clamp(cosine, -1.0, 1.0);
  const auto [u, v, w] = as_singles(cross_vector(line.hkl, reference));
  const Single side = ProductTS(state, state.ZoneU, state.ZoneV, state.ZoneW, u, v, w);
  const double sign = side <= 0 ? 1.0 : -1.0;
  const double sine = to_single(sign * std::sqrt(std::abs(1.0 - cosine * cosine)));
  line.unit_x = to_single(-(cosine * rotation.cosine - sine * rotation.sine));
  line.unit_y = to_single(-(cosine * rotation.sine + sine * rotation.cosine));
}

Single list_azimuth(const CrystalState& state, const KikuchiLine& line) {
  Single azimuth = ArcCos(line.unit_x);
  if (line.unit_y < 0) azimuth = to_single(360.0 - azimuth);
  azimuth = to_single(double{azimuth} + state.PatternAngle);
  if (azimuth < 0) azimuth = to_single(double{azimuth} + 360.0);
  if (azimuth > 360) azimuth = to_single(double{azimuth} - 360.0);
  return azimuth;
}

void set_foot(Single theta_deg, bool trace_only, KikuchiLine& line) {
  const double distance =
      trace_only ? tangent(line.latitude_deg) : tangent(double{line.latitude_deg} - double{theta_deg});
  line.foot_x = to_single(distance * line.unit_x);
  line.foot_y = to_single(distance * line.unit_y);
}

Indices<Integer> reflection(const CrystalState& state, int i) { return {state.RefH(i), state.RefK(i), state.RefL(i)}; }

bool is_zero(const Indices<Integer>& hkl) { return hkl == Indices<Integer>{}; }

/// What a walk along the keys ends at when it takes each key below a bound, starting from 10000, and makes that key,
/// rounded to 16 bits, the new bound. The bound comes down to the rounded smallest key: the last key below it was taken
/// last, or, with none below it, the first key that rounds to it.
std::optional<int> last_under_rounded_bound(const TournamentTree& left) {
  constexpr int first_bound = 10000;
  const double smallest = left.smallest();
  if (!(smallest < first_bound)) return std::nullopt;
  const int bound = Integer::rounded(smallest).value();
  if (const auto last = left.last_below(bound)) return last;
  const double half_above = bound + 0.5;
  const bool half_rounds_down = bound % 2 == 0;
  return left.first_not_above(half_rounds_down ? half_above : std::nextafter(half_above, 0.0));
}

Single pattern_intensity(const CrystalState& state, int i) { return to_single(2.0 * state.RefS(i) * state.RefI(i)); }

}  // namespace

GnomonicView gnomonic_view(const Module1State& camera) {
  const double opening = tangent(camera.CamAcquisition);
  const double negative_opening = tangent(-double{camera.CamAcquisition});
  const double shift_x = tangent(camera.CamXShift);
  const double shift_y = tangent(camera.CamYShift);
  GnomonicView view;
  view.left = to_single(negative_opening - shift_x);
  view.right = to_single(opening - shift_x);
  view.bottom = to_single((negative_opening - shift_y) * camera.CamXYRatio);
  view.top = to_single((opening - shift_y) * camera.CamXYRatio);
  view.reach = std::max({std::abs(view.left), std::abs(view.right), std::abs(view.bottom), std::abs(view.top)});
  return view;
}

ListOrder order_for_kikuchi(const CrystalState& state, Task& task) {
  const int count = state.RefCount.value();
  if (count == 0) throw RunFailure("index 1 of the reflection list, which is empty (\"Calc\" makes it)");
  std::vector<double> keys;
  keys.reserve(static_cast<std::size_t>(count) + 1);
  for (int i = 0; i <= count; ++i) {
    task.check();
    keys.push_back(double{state.RefS(i)} * double{state.RefI(i)});
  }
  return {exchange_order(keys, 1, last_under_rounded_bound, false, task)};
}

Single strongest_in_view(const CrystalState& state, const GnomonicView& view, Task& task) {
  const char letter = state.LatticeLetter.empty() ? 'P' : state.LatticeLetter.front();
  const double limit = 2.0 * view.reach;
  Single strongest = 0;
  for (int i = 1; i <= state.RefCount.value(); ++i) {
    task.check();
    const auto hkl = reflection(state, i);
    if (!centring_allows(letter, hkl.h.value(), hkl.k.value(), hkl.l.value()) || is_zero(hkl)) continue;
    const auto place = inclination(state, hkl);
    if (!(tangent(std::abs(place.latitude_deg)) < limit)) continue;
    const Single intensity = pattern_intensity(state, i);
    constexpr double angle_exists = 0.99;
    const bool is_certain = double{place.length} * state.WaveLength / 2 < angle_exists;  // else it may fail
    if (is_certain && intensity <= strongest) continue;
    if (tangent(bragg_angle(state, place.length)) < limit && intensity > strongest) strongest = intensity;
  }
  return strongest;
}

std::vector<KikuchiLine> kikuchi_lines(const CrystalState& state, const GnomonicView& view, bool trace_only,
                                       Task& task) {
  std::vector<KikuchiLine> lines;
  const Rotation rotation(state.PatternAngle);
  const int first = (state.RefCount - state.KikuchiRefLimit + 1).value();
  for (int i = first; i <= state.RefCount.value(); ++i) {
    task.report(i - first, state.RefCount.value() - first);
    task.check();
    KikuchiLine line;
    line.hkl = reflection(state, i);
    if (is_zero(line.hkl)) continue;
    const auto place = inclination(state, line.hkl);
    if (!(tangent(std::abs(place.latitude_deg)) < 2.0 * view.reach)) continue;
    line.intensity = pattern_intensity(state, i);
    line.latitude_deg = place.latitude_deg;
    set_direction(state, place, rotation, true, line);
    line.azimuth_deg = list_azimuth(state, line);
    const Single theta_deg = bragg_angle(state, place.length);
    if (!(tangent(theta_deg) < view.reach)) continue;
    set_foot(theta_deg, trace_only, line);
    lines.push_back(line);
  }
  return lines;
}

KikuchiLine marked_line(const CrystalState& state, bool trace_only) {
  KikuchiLine line;
  line.hkl = {state.MarkH, state.MarkK, state.MarkL};
  const auto place = inclination(state, line.hkl);
  line.latitude_deg = place.latitude_deg;
  set_direction(state, place, Rotation(state.PatternAngle), false, line);
  set_foot(bragg_angle(state, place.length), trace_only, line);
  return line;
}

}  // namespace zol
