// Where a direction [u v w] lies around the present zone axis.
#pragma once

#include <deque>
#include <optional>

#include "core/crystal_state.h"
#include "core/task.h"

namespace zol {

/// Place of a direction: angle from the zone axis (or from the substrate normal) and azimuth, radians, including the
/// rotation of the pattern.
struct DirectionPlace {
  Single theta = 0;
  Single phi = 0;
};

/// By the cosine rule, from lengths of the direction, the axis and their difference; the azimuth likewise from the
/// cross product of both and the reference reflection OriginH..L.
/// @returns none for the axis itself, its opposite, or without a reference
/// @throws RunFailure  a zero axis or direction
[[nodiscard]] std::optional<DirectionPlace> place_of_direction(const CrystalState& state, Single u, Single v, Single w);

/// Largest indices of a sweep.
struct SweepLimits {
  int u = 1, v = 1, w = 1;
};
struct PlacedDirection {
  Single u = 0, v = 0, w = 0;
  DirectionPlace place;
};
/// All directions up to the limits that have a place, w fastest, except those with three even indices. None for a zero
/// axis.
[[nodiscard]] std::deque<PlacedDirection> places_in_sweep(const CrystalState& state, const SweepLimits& limits,
                                                          Task& task);

/// Turned by CamNormal about the x axis: the place as seen from the substrate normal.
[[nodiscard]] DirectionPlace from_substrate_normal(const CrystalState& state, const DirectionPlace& place);

/// Radius on the map, whose unit circle is the equator: sin(theta), or equidistant in theta.
[[nodiscard]] Single map_radius(Single theta, bool equidistant);

}  // namespace zol
