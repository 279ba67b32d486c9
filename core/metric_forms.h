// Forms of the metric of a cell, each with its own order of terms: the last bit of the results depends on it.
// Direct components go with the direct axes, reciprocal ones with the reciprocal axes.
#pragma once

#include <string_view>

#include "core/cell_geometry.h"
#include "core/triples.h"

namespace zol {

/// G* v, the components of h a* + k b* + l c* along a, b, c (inverse square angstroms).
[[nodiscard]] inline SingleTriple reciprocal_metric_times(const Main1State& cell, const SingleTriple& indices) {
  const auto [a, b, c, cos_alpha, cos_beta, cos_gamma] = reciprocal_axes(cell);
  const auto [h, k, l] = indices;
  return {to_single(a * h * a + a * k * b * cos_gamma + c * l * a * cos_beta),
          to_single(a * h * b * cos_gamma + b * k * b + b * l * c * cos_alpha),
          to_single(c * h * a * cos_beta + b * k * c * cos_alpha + c * l * c)};
}

/// G v, the components of u a + v b + w c along a*, b*, c* (square angstroms): the indices of the plane normal to it.
[[nodiscard]] inline SingleTriple direct_metric_times(const Main1State& cell, const Indices<Integer>& direction) {
  const double u = direction.h.value();
  const double v = direction.k.value();
  const double w = direction.l.value();
  const auto [a, b, c, cos_alpha, cos_beta, cos_gamma] = direct_axes(cell);
  return {to_single(v * a * b * cos_gamma + u * a * a + w * a * c * cos_beta),
          to_single(u * b * a * cos_gamma + v * b * b + w * b * c * cos_alpha),
          to_single(u * c * a * cos_beta + v * c * b * cos_alpha + w * c * c)};
}

/// Angle of a reciprocal vector above the plane at right angles to a direction, degrees.
/// @param length  of the reciprocal vector, inverse angstroms
/// @param what    names the length of the direction in the message
/// @throws RunFailure  one of them has no length
[[nodiscard]] inline Single latitude_deg(const Indices<Integer>& hkl, Single length, const SingleTriple& direction,
                                         Single direction_length, std::string_view what) {
  const auto& [u, v, w] = direction;
  const double product = hkl.h.value() * double{u} + hkl.k.value() * double{v} + hkl.l.value() * double{w};
  const Single cosine =
      to_single(divide(divide(product, length, "the length of a reflection"), direction_length, what));
  return to_single(90.0 - double{ArcCos(cosine)});
}
/// With the length of the direction in this cell.
[[nodiscard]] inline Single latitude_deg(const Main1State& cell, const Indices<Integer>& hkl, Single length,
                                         const SingleTriple& direction, std::string_view what) {
  const auto& [u, v, w] = direction;
  return latitude_deg(hkl, length, direction, DHKLT(cell, u, v, w), what);
}

}  // namespace zol
