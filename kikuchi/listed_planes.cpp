#include "kikuchi/listed_planes.h"

#include <algorithm>
#include <cmath>

#include "core/metric_forms.h"

namespace zol {

ListedPlanes::Place place_of_plane(const CrystalState& state, const Indices<Integer>& hkl,
                                   std::optional<Single>& axis_length) {
  const SingleTriple axis{state.ZoneU, state.ZoneV, state.ZoneW};
  ListedPlanes::Place place;
  place.length = DHKL(state, hkl.h, hkl.k, hkl.l);
  if (!axis_length) axis_length = DHKLT(state, state.ZoneU, state.ZoneV, state.ZoneW);
  place.latitude_deg = latitude_deg(hkl, place.length, axis, *axis_length, "the length of the zone axis");
  return place;
}

Single bragg_angle_deg(const CrystalState& state, Single length) {
  return ArcSin(to_single(double{length} * state.WaveLength / 2));
}

ListedPlanes::ListedPlanes(const CrystalState& state)
    : state_(state), places_(static_cast<std::size_t>(state.RefCount.value()) + 1) {}

ListedPlanes::Place ListedPlanes::place(int i) {
  Place& place = places_[static_cast<std::size_t>(i)];
  if (place.length == 0) place = place_of_plane(state_, indices(i), axis_length_);
  return place;
}

Single ListedPlanes::bragg_angle_deg(int i) {
  const Single length = places_[static_cast<std::size_t>(i)].length;
  if (length != last_length_) {
    last_bragg_angle_deg_ = zol::bragg_angle_deg(state_, length);
    last_length_ = length;
  }
  return last_bragg_angle_deg_;
}

// Up to this angle the tangent rises, and its relative error is below 1e-13 where the angle's is that of a double.
constexpr double largest_deg = 89;
constexpr double margin = 1e-9;

TangentLimit::TangentLimit(double limit)
    : limit_(limit),
      surely_below_deg_(std::min(std::atan(limit) / degree * (1 - margin), largest_deg)),
      surely_not_below_deg_(std::atan(limit) / degree * (1 + margin)) {}

bool TangentLimit::above(Single angle_deg) const {
  if (angle_deg < surely_below_deg_) return true;
  if (angle_deg > surely_not_below_deg_ && angle_deg < largest_deg) return false;
  return std::tan(angle_deg * degree) < limit_;
}

}  // namespace zol
