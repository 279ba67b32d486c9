// Index triples that belong to a zone axis [u v w]: the reflection from which azimuths are counted, and the vector at
// right angles to two reflections, which gives the side of it that a reflection lies on. Bare indices, no metric.
#pragma once

#include "core/triples.h"

namespace zol {

/// The reflection (w, w, -u-v), floors of the components + 0.5. It lies in the zone of any whole [u v w], since
/// w u + w v - (u + v) w = 0, and is not reduced. (0, 0, 0) for [n -n 0].
/// @throws RunFailure  a component does not fit the integer type
template <class Whole>
[[nodiscard]] Indices<Whole> plane_in_zone(double u, double v, double w) {
  return {Whole::floor(w + 0.5), Whole::floor(w + 0.5), Whole::floor(-u - v + 0.5)};
}

/// The reflection that marks azimuth zero of a pattern: (w, w, -u-v), and (0, 0, 1) when w is 0.
[[nodiscard]] inline Indices<Integer> reference_reflection(double u, double v, double w) {
  if (w == 0.0) return {0, 0, 1};
  return plane_in_zone<Integer>(u, v, w);
}

/// Vector product a x b of two reflections: the direction [u v w] of their common zone, with its sense.
/// @throws RunFailure  a product or difference does not fit the integer type
template <class Whole>
[[nodiscard]] Indices<Whole> cross_vector(const Indices<Whole>& a, const Indices<Whole>& b) {
  return {a.k * b.l - b.k * a.l, b.h * a.l - a.h * b.l, a.h * b.k - b.h * a.k};
}

}  // namespace zol
