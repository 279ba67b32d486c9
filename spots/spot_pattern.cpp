#include "spots/spot_pattern.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "core/cell_geometry.h"
#include "core/run_failure.h"
#include "reflections/reflection_list.h"

namespace zol {
namespace {

/// A little above 1, so that the root lives for spots on the reference line, whose cosine comes out above 1 at times.
constexpr double cosine_limit = 1.0001;
constexpr double level_tolerance = 0.0001;

/// What all spots of a picture are measured against.
struct ZoneFrame {
  double u, v, w;
  double level;
  Indices<Integer> reference;  ///< along +x of the unrotated pattern
  double reference_length;
  double cos_rotation, sin_rotation;
  double half_width;
};

ZoneFrame zone_frame(const CrystalState& state) {
  ZoneFrame frame{};
  frame.u = state.ZoneU;
  frame.v = state.ZoneV;
  frame.w = state.ZoneW;
  frame.level = state.Level.value();
  frame.reference = reference_reflection(frame.u, frame.v, frame.w);
  frame.reference_length = DHKL(state, frame.reference.h, frame.reference.k, frame.reference.l);
  frame.cos_rotation = std::cos(double{state.PatternAngle});
  frame.sin_rotation = std::sin(double{state.PatternAngle});
  frame.half_width = state.CamAcquisition;
  return frame;
}

/// Reach of one index: the edge of the picture along its reciprocal axis. Spots in the corners may need more.
int index_limit(double half_width, Single reciprocal_edge, std::string_view edge_name) {
  return Integer::floor(divide(2.0 * half_width, reciprocal_edge, edge_name)).value();
}

bool on_level(const ZoneFrame& frame, int h, int k, int l) {
  return std::abs(k * frame.v + h * frame.u + l * frame.w - frame.level) < level_tolerance;
}

struct Range {
  int first, last;
};

/// The l that can lie on the level, with one to spare at each end against rounding. Spares the run through all of them.
Range level_range(const ZoneFrame& frame, int h, int k, int limit) {
  if (frame.w == 0.0) return {-limit, limit};
  const double centre = (frame.level - (k * frame.v + h * frame.u)) / frame.w;
  const double reach = level_tolerance / std::abs(frame.w) + 1.0;
  if (!std::isfinite(centre) || !std::isfinite(reach)) return {-limit, limit};
  const double bound = limit + 1.0;
  return {std::max(-limit, static_cast<int>(std::clamp(std::floor(centre - reach), -bound, bound))),
          std::min(limit, static_cast<int>(std::clamp(std::ceil(centre + reach), -bound, bound)))};
}

/// Position of a spot in the picture; none outside it. @param r  length of the zone axis
std::optional<DiffractionSpot> spot_in_picture(const CrystalState& state, const ZoneFrame& frame, double r,
                                               const Indices<Integer>& hkl) {
  const auto& [h, k, l] = hkl;
  const auto& reference = frame.reference;
  const double g = DHKL(state, h, k, l);
  const Single layer_cosine =
      to_single(divide(divide(frame.level, g, "the length of a reflection"), r, "the length of the zone axis"));
  // Latitude above the zero layer, radians. ArcCos(0) lies just above a right angle, so that 0 gives -5e-6.
  const double z = to_single(program_pi / 2.0 - double{ArcCos(layer_cosine)} * degree);
  const double cos_z = std::cos(z);
  double c = to_single(
      divide(divide(Product(state, h, k, l, reference.h, reference.k, reference.l), g, "the length of a reflection"),
             frame.reference_length, "the length of the reference reflection"));
  if (std::abs(cos_z) > 0.01) c = to_single(c / cos_z);

  const auto normal = cross_vector(hkl, reference);
  const double side = normal.k.value() * frame.v + normal.h.value() * frame.u + normal.l.value() * frame.w;
  const double sign = side < 0.0 ? 1.0 : -1.0;
  const double s = to_single(sign * square_root(cosine_limit - c * c, "1.0001 - cos^2 of a spot's azimuth"));

  DiffractionSpot spot{h, k, l};
  spot.x = to_single((frame.cos_rotation * c + frame.sin_rotation * s) * g * cos_z / 2.0);
  spot.y = to_single((-c * frame.sin_rotation + frame.cos_rotation * s) * g * cos_z / 2.0);
  if (!(std::abs(spot.x) < frame.half_width && std::abs(spot.y) < frame.half_width)) return std::nullopt;
  return spot;
}

}  // namespace

void visit_reflections_on_level(const CrystalState& state, const std::function<void(const Indices<Integer>&)>& visit,
                                Task& task) {
  const ZoneFrame frame = zone_frame(state);
  const int h_limit = index_limit(frame.half_width, state.AStar, "a*");
  const int k_limit = index_limit(frame.half_width, state.BStar, "b*");
  const int l_limit = index_limit(frame.half_width, state.CStar, "c*");
  const char letter = state.LatticeLetter.empty() ? 'P' : state.LatticeLetter.front();
  for (int h = -h_limit; h <= h_limit; ++h) {
    task.report(h + h_limit, 2 * h_limit);
    task.check();
    for (int k = -k_limit; k <= k_limit; ++k) {
      if (frame.w == 0.0 && !on_level(frame, h, k, 0)) continue;  // then l does not count
      task.check();
      const Range range = level_range(frame, h, k, l_limit);
      for (int l = range.first; l <= range.last; ++l) {
        if (!on_level(frame, h, k, l) || (h == 0 && k == 0 && l == 0)) continue;
        if (centring_allows(letter, h, k, l)) visit({h, k, l});
      }
    }
  }
}

namespace {

/// 0 where it cannot be worked out: that fails later, for a spot.
double length_of_axis(const CrystalState& state) {
  try {
    return DHKLT(state, state.ZoneU, state.ZoneV, state.ZoneW);
  } catch (const RunFailure&) {
    return 0;
  }
}

/// Places of the level in the box of indices, and the spots in the picture by the area that one of them has.
Effort effort_of_spots(const CrystalState& state, const ZoneFrame& frame) {
  const double axis_length = length_of_axis(state);
  const auto places = [&](Single edge, std::string_view name) {
    return 2.0 * index_limit(frame.half_width, edge, name) + 1;
  };
  const double pairs = places(state.AStar, "a*") * places(state.BStar, "b*");
  const double width = 4 * frame.half_width;
  const double spots = axis_length > 0 ? width * width * double{state.CellVolume} / axis_length : 0;
  constexpr double of_pair = 1.2e-8;
  constexpr double of_spot = 1e-6;
  constexpr double of_atom = 1e-8;
  constexpr double bytes_of_spot = 120;
  return {pairs * of_pair + spots * (of_spot + of_atom * state.NCell.value()), spots * bytes_of_spot};
}

}  // namespace

SpotPattern diffraction_spots(const CrystalState& state, const Radiation& radiation, Task& task) {
  const ZoneFrame frame = zone_frame(state);
  const ScatteringCell atoms(state, radiation);
  task.expect(effort_of_spots(state, frame));
  SpotPattern pattern;
  std::optional<double> axis_length;  // worked out for the first spot: it may fail
  const auto visit = [&](const Indices<Integer>& hkl) {
    task.check();
    if (!axis_length) axis_length = DHKLT(state, state.ZoneU, state.ZoneV, state.ZoneW);
    auto spot = spot_in_picture(state, frame, *axis_length, hkl);
    if (!spot) return;
    (void)state.RefH(0);  // without a list there is no place for a spot
    pattern.last_s = to_single(double{DHKL(state, hkl.h, hkl.k, hkl.l)} / 2.0);
    pattern.last_f = atoms.StructureFactor(hkl.h, hkl.k, hkl.l, pattern.last_s);
    const double a = pattern.last_f.a;
    const double b = pattern.last_f.b;
    spot->intensity = to_single(a * a + b * b);
    pattern.spots.push_back(*spot);
  };
  visit_reflections_on_level(state, visit, task);
  pattern.scatter_missing = !pattern.spots.empty() && atoms.scatter_missing();
  return pattern;
}

void leave_last_spot(const SpotPattern& pattern, CrystalState& state) {
  if (pattern.spots.empty()) return;
  const DiffractionSpot& last = pattern.spots.back();
  state.RefH(0) = last.h;
  state.RefK(0) = last.k;
  state.RefL(0) = last.l;
  state.RefS(0) = pattern.last_s;
  state.RefA(0) = pattern.last_f.a;
  state.RefB(0) = pattern.last_f.b;
  if (pattern.scatter_missing) state.ScatterMissing = 1;
}

Single strongest_intensity(const std::vector<DiffractionSpot>& spots) {
  Single strongest = 0;
  for (const auto& spot : spots) strongest = std::max(strongest, spot.intensity);
  return strongest;
}

int spot_grey(Single intensity, Single black_intensity, const GreyScale& scale) {
  const double grey = 255.0 - std::floor(darkness(intensity, black_intensity, scale) * 255.0);
  return static_cast<int>(std::clamp(grey, 0.0, 255.0));
}

}  // namespace zol
