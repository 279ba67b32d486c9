#include "analysis/zone_azimuth.h"

#include <cmath>

#include "core/metric_forms.h"
#include "spots/zone_geometry.h"

namespace zol {

Single zone_azimuth(const Main1State& cell, const Indices<Integer>& plane, const SingleTriple& direction) {
  const auto [h, k, l] = plane;
  const auto [u, v, w] = direction;
  const auto reference = plane_in_zone<Integer>(u, v, w);
  const auto& [p, q, r] = reference;
  const Single length = DHKL(cell, h, k, l);
  const Single reference_length = DHKL(cell, p, q, r);
  const Single latitude = latitude_deg(cell, plane, length, direction, "the length of a direction");
  const Single projected =
      to_single(divide(divide(Product(cell, h, k, l, p, q, r), length, "the length of a reflection"), reference_length,
                       "the length of the reference vector of a direction"));
  const Single cosine =
      to_single(divide(projected, std::cos(double{latitude} * degree), "the cosine of a plane's latitude"));

  const auto [across_u, across_v, across_w] = as_singles(cross_vector(plane, reference));
  const Single side = ProductTS(cell, u, v, w, across_u, across_v, across_w);
  return side <= 0 ? ArcCos(cosine) : to_single(-double{ArcCos(cosine)});
}

}  // namespace zol
