#include "kikuchi/kikuchi_pattern.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "core/cell_geometry.h"
#include "core/run_failure.h"
#include "reflections/reflection_list.h"
#include "spots/zone_geometry.h"

namespace zol {
namespace {

constexpr int between_checks = 64;  // reflections, of a microsecond each

double tangent(double angle_deg) { return std::tan(angle_deg * degree); }

/// What all lines of a pattern share: azimuths count from the reference reflection, the pattern is turned by
/// PatternAngle.
struct PatternFrame {
  explicit PatternFrame(const CrystalState& state)
      : reference{state.OriginH, state.OriginK, state.OriginL},
        cosine(std::cos(double{state.PatternAngle})),
        sine(std::sin(double{state.PatternAngle})) {}
  Indices<Integer> reference;
  std::optional<Single> reference_length;  ///< where it has been asked for
  double cosine, sine;
};

/// Unit vector from the centre towards the line, from the cosine of the angle to the reference reflection within the
/// plane of the pattern and the side on which the reflection lies, turned by PatternAngle.
void set_direction(const CrystalState& state, const ListedPlanes::Place& place, PatternFrame& frame, bool clip,
                   KikuchiLine& line) {
  const auto& reference = frame.reference;
  const auto& [h, k, l] = line.hkl;
  if (!frame.reference_length) frame.reference_length = DHKL(state, reference.h, reference.k, reference.l);
  double cosine = to_single(divide(divide(divide(Product(state, h, k, l, reference.h, reference.k, reference.l),
                                                 place.length, "the length of a reflection"),
                                          *frame.reference_length, "the length of the reference reflection"),
                                   std::cos(double{place.latitude_deg} * degree), "the cosine of a latitude"));
  if (clip) cosine = std::clamp(cosine, -1.0, 1.0);
  const auto [u, v, w] = as_singles(cross_vector(line.hkl, reference));
  const Single side = ProductTS(state, state.ZoneU, state.ZoneV, state.ZoneW, u, v, w);
  const double sign = side <= 0 ? 1.0 : -1.0;
  const double sine = to_single(sign * std::sqrt(std::abs(1.0 - cosine * cosine)));
  line.unit_x = to_single(-(cosine * frame.cosine - sine * frame.sine));
  line.unit_y = to_single(-(cosine * frame.sine + sine * frame.cosine));
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

Single strongest_in_view(ListedPlanes& planes, const GnomonicView& view, Task& task) {
  const CrystalState& state = planes.state();
  const char letter = state.LatticeLetter.empty() ? 'P' : state.LatticeLetter.front();
  const TangentLimit limit(2.0 * view.reach);
  Single strongest = 0;
  for (int i = 1; i <= state.RefCount.value(); ++i) {
    if ((i - 1) % between_checks == 0) task.check();
    const auto hkl = planes.indices(i);
    if (!centring_allows(letter, hkl.h.value(), hkl.k.value(), hkl.l.value()) || is_zero(hkl)) continue;
    const auto place = planes.place(i);
    if (!limit.above(std::abs(place.latitude_deg))) continue;
    const Single intensity = pattern_intensity(state, i);
    constexpr double angle_exists = 0.99;
    const bool is_certain = double{place.length} * state.WaveLength / 2 < angle_exists;  // else it may fail
    if (is_certain && intensity <= strongest) continue;
    if (limit.above(planes.bragg_angle_deg(i)) && intensity > strongest) strongest = intensity;
  }
  return strongest;
}

std::vector<KikuchiLine> kikuchi_lines(ListedPlanes& planes, const GnomonicView& view, bool trace_only, Task& task) {
  const CrystalState& state = planes.state();
  std::vector<KikuchiLine> lines;
  lines.reserve(static_cast<std::size_t>(std::max(0, std::min(state.KikuchiRefLimit, state.RefCount).value())));
  PatternFrame frame(state);
  const TangentLimit latitudes(2.0 * view.reach);
  const TangentLimit bragg_angles(view.reach);
  const int first = (state.RefCount - state.KikuchiRefLimit + 1).value();
  for (int i = first; i <= state.RefCount.value(); ++i) {
    if ((i - first) % between_checks == 0) {
      task.report(i - first, state.RefCount.value() - first);
      task.check();
    }
    KikuchiLine line;
    line.hkl = planes.indices(i);
    if (is_zero(line.hkl)) continue;
    const auto place = planes.place(i);
    if (!latitudes.above(std::abs(place.latitude_deg))) continue;
    line.intensity = pattern_intensity(state, i);
    line.length = place.length;
    line.latitude_deg = place.latitude_deg;
    set_direction(state, place, frame, true, line);
    line.azimuth_deg = list_azimuth(state, line);
    const Single theta_deg = planes.bragg_angle_deg(i);
    if (!bragg_angles.above(theta_deg)) continue;
    set_foot(theta_deg, trace_only, line);
    lines.push_back(line);
  }
  return lines;
}

KikuchiLine marked_line(const CrystalState& state, bool trace_only) {
  KikuchiLine line;
  line.hkl = {state.MarkH, state.MarkK, state.MarkL};
  std::optional<Single> axis_length;
  const auto place = place_of_plane(state, line.hkl, axis_length);
  line.length = place.length;
  line.latitude_deg = place.latitude_deg;
  PatternFrame frame(state);
  set_direction(state, place, frame, false, line);
  set_foot(bragg_angle_deg(state, place.length), trace_only, line);
  return line;
}

}  // namespace zol
