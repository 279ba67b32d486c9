// Vectors of the crystal in both spaces: the equivalent of a vector in the other space, and the angle between two.
#pragma once

#include <optional>

#include "core/crystal_state.h"
#include "core/triples.h"

namespace zol::utility {

/// h, k, l of the reciprocal vector that points along u a + v b + w c, scaled so that |h| + |k| + |l| is 1000 and then
/// rounded down, each by itself.
/// @throws RunFailure  no cell, or the vector is 0
[[nodiscard]] SingleTriple reciprocal_equivalent(const Main1State& cell, const SingleTriple& uvw);

/// u, v, w of the direct vector that points along h a* + k b* + l c*, scaled in the same way.
/// @throws RunFailure  no cell, or the vector is 0
[[nodiscard]] SingleTriple direct_equivalent(const Main1State& cell, const SingleTriple& hkl);

/// What the angle lies between.
enum class AngleOf {
  Directions,  ///< direct vectors
  Normals,     ///< reciprocal vectors
  Planes       ///< the planes of two reciprocal vectors: 180 less the angle of their normals
};

/// Angle in degrees; none when a vector has no length. It is a plain arctangent: an obtuse angle between vectors
/// is negative (less by 180), a right one is 0, or 180 between planes.
/// @throws RunFailure  the cosine of reciprocal vectors lies beyond 1
[[nodiscard]] std::optional<double> vector_angle(const Main1State& cell, AngleOf kind, const SingleTriple& first,
                                                 const SingleTriple& second);

}  // namespace zol::utility
