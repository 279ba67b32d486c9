// Tilting the crystal so that a direction of the present pattern comes to its centre: the new zone axis, the reflection
// that marks azimuth zero with it, and the turn that keeps the old mark in place.
//
// The pattern frame has X along the reference reflection (projected into the plane of the pattern), Z along the zone
// axis and Y at right angles to both. Angles are radians, except where a name says degrees.
#pragma once

#include <optional>

#include "core/crystal_state.h"
#include "core/triples.h"

namespace zol {

/// Unit vectors X, Y, Z of the pattern frame in components of the direct lattice.
struct PatternAxes {
  SingleTriple x{}, y{}, z{};
};

/// From the zone axis ZoneU..W and the reference reflection OriginH..L:
/// X = G* h0 / |..|, Y = G* (zone x G* h0) / |..| with the product taken on bare numbers, Z = zone / |zone|.
/// @throws RunFailure  a zero axis or reference
[[nodiscard]] PatternAxes orientation(const Main1State& state);

/// A direction in the pattern frame: azimuth from X towards Y, latitude above the XY plane.
struct TiltAngles {
  Single theta = 0;  ///< latitude; a right angle is the present centre
  Single phi = 0;    ///< azimuth
};

/// Direction of a point of the gnomonic plane (tangents of the angle from the centre), the azimuth still includes the
/// rotation of the pattern. On the y axis upward the azimuth is 3.14149/2; for x < 0, y = 0 it is 0.
[[nodiscard]] TiltAngles angles_of_point(Single x, Single y);

/// Whole zone axis nearest below a direction: its largest component is 1000, floors, then reduced by common divisors
/// from 1000 down to 2, once each.
/// @throws RunFailure  a zero direction
[[nodiscard]] Indices<Integer> zone_axis_of(const PatternAxes& frame, const TiltAngles& direction);

/// Indices of the plane whose normal is the direction [u v w], in percent of the sum of their magnitudes, rounded down.
/// @throws RunFailure  a zero direction
[[nodiscard]] SingleTriple normal_plane_percent(const Main1State& cell, const Indices<Integer>& direction);

/// Reference reflection and turn that belong to a new zone axis.
struct NewReference {
  Indices<Integer> reflection{};       ///< its reference reflection, each index clipped to 1000 by itself
  std::optional<Single> turn_degrees;  ///< turn of the pattern that keeps the old reference; none for a zero reference
};

/// @throws RunFailure  the new axis lies along the old reference, or an index beyond 16 bits
[[nodiscard]] NewReference new_reference(const Main1State& state, const Indices<Integer>& new_axis);

}  // namespace zol
