#include "calculators/vector_calculations.h"

#include <cmath>

#include "core/cell_geometry.h"

namespace zol::utility {
namespace {

/// The metric times the vector gives its components in the other space.
SingleTriple equivalent(const Axes& axes, const SingleTriple& vector) {
  const auto& [a, b, c, cos_alpha, cos_beta, cos_gamma] = axes;
  const double x = vector[0];
  const double y = vector[1];
  const double z = vector[2];
  const double h = to_single(a * a * x + a * b * cos_gamma * y + a * c * cos_beta * z);
  const double k = to_single(b * b * y + a * b * cos_gamma * x + b * c * cos_alpha * z);
  const double l = to_single(c * c * z + a * c * cos_beta * x + b * c * cos_alpha * y);
  const double sum = to_single(std::abs(h) + std::abs(k) + std::abs(l));
  const auto scaled = [sum](double component) {
    return to_single(std::floor(
        divide(component * 1000.0, sum, "the sum of the components of the equivalent vector (no cell or no vector)")));
  };
  return {scaled(h), scaled(k), scaled(l)};
}

}  // namespace

SingleTriple reciprocal_equivalent(const Main1State& cell, const SingleTriple& uvw) {
  return equivalent(direct_axes(cell), uvw);
}

SingleTriple direct_equivalent(const Main1State& cell, const SingleTriple& hkl) {
  return equivalent(reciprocal_axes(cell), hkl);
}

std::optional<double> vector_angle(const Main1State& cell, AngleOf kind, const SingleTriple& first,
                                   const SingleTriple& second) {
  const auto length = [&cell, kind](double x, double y, double z) {
    const auto metric = kind == AngleOf::Directions ? DHKLT : DHKLS;
    return double{metric(cell, to_single(x), to_single(y), to_single(z))};
  };
  const double length_1 = length(first[0], first[1], first[2]);
  const double length_2 = length(second[0], second[1], second[2]);
  const double length_3 = length(double{first[0]} - double{second[0]}, double{first[1]} - double{second[1]},
                                 double{first[2]} - double{second[2]});
  if (to_single(length_2 * length_1) == 0) return std::nullopt;

  const double cosine =
      to_single((length_2 * length_2 + length_1 * length_1 - length_3 * length_3) / 2.0 / length_1 / length_2);
  if (cosine == 0) return kind == AngleOf::Planes ? 180.0 : 0.0;
  if (kind == AngleOf::Directions && std::abs(cosine) >= 1) return 0.0;
  const double sine = square_root(1.0 - cosine * cosine, "1 - cos^2 of the angle between two reciprocal vectors");
  const double angle = std::atan(sine / cosine) / degree;
  return kind == AngleOf::Planes ? 180.0 - angle : angle;
}

}  // namespace zol::utility
