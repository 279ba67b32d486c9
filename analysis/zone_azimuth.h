// Azimuths of planes around a direction, counted from a reference vector at right angles to it: how the bands of a
// pattern follow each other.
#pragma once

#include "core/crystal_state.h"
#include "core/triples.h"

namespace zol {

/// Azimuth of the normal of a plane around the direction, degrees, -180 to 180.
/// @throws RunFailure  a vector of length 0 (the reference vector has none for [n -n 0]), or a cross product beyond 16
/// bits
[[nodiscard]] Single zone_azimuth(const Main1State& cell, const Indices<Integer>& plane, const SingleTriple& direction);

}  // namespace zol
