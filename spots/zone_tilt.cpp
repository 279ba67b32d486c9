#include "spots/zone_tilt.h"

#include <cmath>
#include <cstdlib>
#include <numeric>

#include "core/lattice.h"
#include "core/run_failure.h"
#include "spots/zone_geometry.h"

namespace zol {
namespace {

Lattice lattice_of(const Main1State& state) {
  return Lattice({state.CellA, state.CellB, state.CellC, state.CellAlpha, state.CellBeta, state.CellGamma});
}

CartesianVector unit(const CartesianVector& vector) {
  const double size = length(vector);
  if (!(size > 0)) throw RunFailure("the zone axis has no length");
  return {vector.x / size, vector.y / size, vector.z / size};
}

CartesianVector sum(double a, const CartesianVector& first, double b, const CartesianVector& second) {
  return {a * first.x + b * second.x, a * first.y + b * second.y, a * first.z + b * second.z};
}

std::array<double, 3> array_of(const CartesianVector& vector) { return {vector.x, vector.y, vector.z}; }
CartesianVector vector_of(const std::array<double, 3>& array) { return {array[0], array[1], array[2]}; }

}  // namespace

PictureFrame picture_frame(const Main1State& state) {
  const Lattice lattice = lattice_of(state);
  const CartesianVector towards = unit(lattice.cartesian(DirectVector{state.ZoneU, state.ZoneV, state.ZoneW}));
  const auto reference = reference_reflection(state.ZoneU, state.ZoneV, state.ZoneW);
  const CartesianVector along = lattice.cartesian(
      ReciprocalVector{double(reference.h.value()), double(reference.k.value()), double(reference.l.value())});
  const CartesianVector x = unit(sum(1, along, -dot(along, towards), towards));
  const CartesianVector y = cross(towards, x);
  const double angle = state.PatternAngle;
  return {array_of(sum(std::cos(angle), x, std::sin(angle), y)), array_of(sum(-std::sin(angle), x, std::cos(angle), y)),
          array_of(towards)};
}

std::array<double, 3> axis_of_tilt(const Main1State& state, const PictureFrame& frame, double tilt_right,
                                   double tilt_up) {
  constexpr int most = 4;
  constexpr double nearer = 1e-6;  // radians
  const Lattice lattice = lattice_of(state);
  const double tilt = std::hypot(tilt_right, tilt_up);
  const CartesianVector way = tilt > 0
                                  ? sum(tilt_right / tilt, vector_of(frame.right), tilt_up / tilt, vector_of(frame.up))
                                  : CartesianVector{};
  const CartesianVector wanted = sum(std::cos(tilt), vector_of(frame.towards), -std::sin(tilt), way);
  const auto away = [&wanted](const CartesianVector& axis) {
    return std::atan2(length(cross(wanted, axis)), dot(wanted, axis));
  };
  std::array<double, 3> best{state.ZoneU, state.ZoneV, state.ZoneW};
  double least = away(lattice.cartesian(DirectVector{best[0], best[1], best[2]}));
  int smallest = 0;
  for (int u = -most; u <= most; ++u) {
    for (int v = -most; v <= most; ++v) {
      for (int w = -most; w <= most; ++w) {
        if (std::gcd(std::gcd(u, v), w) != 1) continue;
        const double angle = away(lattice.cartesian(DirectVector{double(u), double(v), double(w)}));
        const int size = std::abs(u) + std::abs(v) + std::abs(w);
        const bool better = angle < least - nearer || (angle < least + nearer && size < smallest);
        if (!better) continue;
        best = {double(u), double(v), double(w)};
        least = angle;
        smallest = size;
      }
    }
  }
  return best;
}

}  // namespace zol
