#include "core/lattice.h"

#include <cmath>
#include <numbers>
#include <string>

#include "core/number_text.h"
#include "core/run_failure.h"

namespace zol {
namespace {

constexpr double radian = std::numbers::pi / 180.0;  // radians in a degree, to all digits

CartesianVector sum(double s, const CartesianVector& a, double t, const CartesianVector& b, double u,
                    const CartesianVector& c) {
  return {s * a.x + t * b.x + u * c.x, s * a.y + t * b.y + u * c.y, s * a.z + t * b.z + u * c.z};
}

CartesianVector scaled(const CartesianVector& vector, double factor) {
  return {vector.x * factor, vector.y * factor, vector.z * factor};
}

std::string shown(double value) { return std::isfinite(value) ? plain_text(value) : "not a finite number"; }

void check_edge(double length, const char* name) {
  if (length > 0.0 && std::isfinite(length)) return;
  throw RunFailure(std::string("the cell edge ") + name + " is " + shown(length) + " angstroms, must be above 0");
}

void check_angle(double angle, const char* name) {
  if (angle > 0.0 && angle < 180.0) return;
  throw RunFailure(std::string("the cell angle ") + name + " is " + shown(angle) +
                   " degrees, must be above 0 and below 180");
}

/// Cosine of an angle in degrees; that of a right angle is 0, not 6e-17.
double cos_deg(double angle) { return angle == 90.0 ? 0.0 : std::cos(angle * radian); }

}  // namespace

double dot(const CartesianVector& a, const CartesianVector& b) { return a.x * b.x + a.y * b.y + a.z * b.z; }

CartesianVector cross(const CartesianVector& a, const CartesianVector& b) {
  return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

double length(const CartesianVector& vector) { return std::hypot(vector.x, vector.y, vector.z); }

double angle_deg(const CartesianVector& a, const CartesianVector& b) {
  return std::atan2(length(cross(a, b)), dot(a, b)) / radian;
}

Lattice::Lattice(const CellConstants& cell) : cell_(cell) {
  check_edge(cell.a, "a");
  check_edge(cell.b, "b");
  check_edge(cell.c, "c");
  check_angle(cell.alpha, "alpha");
  check_angle(cell.beta, "beta");
  check_angle(cell.gamma, "gamma");
  const double cos_alpha = cos_deg(cell.alpha);
  const double cos_beta = cos_deg(cell.beta);
  const double cos_gamma = cos_deg(cell.gamma);
  const double sin_gamma = cell.gamma == 90.0 ? 1.0 : std::sin(cell.gamma * radian);
  const double square = 1.0 - cos_alpha * cos_alpha - cos_beta * cos_beta - cos_gamma * cos_gamma +
                        2.0 * cos_alpha * cos_beta * cos_gamma;  // (V / abc)^2
  constexpr double least_square = 1e-12;                         // far above rounding, far below any crystal's
  if (!(square > least_square)) throw RunFailure("the cell angles span no volume: no such cell exists");

  const double c_y = (cos_alpha - cos_beta * cos_gamma) / sin_gamma;
  edges_ = {CartesianVector{cell.a, 0, 0}, CartesianVector{cell.b * cos_gamma, cell.b * sin_gamma, 0},
            CartesianVector{cell.c * cos_beta, cell.c * c_y, cell.c * std::sqrt(square) / sin_gamma}};
  const double volume = this->volume();
  if (!(volume > 0.0) || !std::isfinite(volume)) throw RunFailure("the cell edges give a volume beyond all numbers");
  reciprocal_ = {scaled(cross(edges_[1], edges_[2]), 1.0 / volume), scaled(cross(edges_[2], edges_[0]), 1.0 / volume),
                 scaled(cross(edges_[0], edges_[1]), 1.0 / volume)};
}

double Lattice::volume() const { return dot(edges_[0], cross(edges_[1], edges_[2])); }

CellConstants Lattice::reciprocal_cell() const {
  return {length(reciprocal_[0]),
          length(reciprocal_[1]),
          length(reciprocal_[2]),
          angle_deg(reciprocal_[1], reciprocal_[2]),
          angle_deg(reciprocal_[2], reciprocal_[0]),
          angle_deg(reciprocal_[0], reciprocal_[1])};
}

CartesianVector Lattice::cartesian(const DirectVector& vector) const {
  return sum(vector.u, edges_[0], vector.v, edges_[1], vector.w, edges_[2]);
}

CartesianVector Lattice::cartesian(const ReciprocalVector& vector) const {
  return sum(vector.h, reciprocal_[0], vector.k, reciprocal_[1], vector.l, reciprocal_[2]);
}

DirectVector Lattice::direct(const CartesianVector& vector) const {
  return {dot(vector, reciprocal_[0]), dot(vector, reciprocal_[1]), dot(vector, reciprocal_[2])};
}

ReciprocalVector Lattice::reciprocal(const CartesianVector& vector) const {
  return {dot(vector, edges_[0]), dot(vector, edges_[1]), dot(vector, edges_[2])};
}

double Lattice::spacing(const ReciprocalVector& hkl) const {
  const double reciprocal_length = length(cartesian(hkl));
  if (!(reciprocal_length > 0.0)) throw RunFailure("a plane without indices has no spacing");
  return 1.0 / reciprocal_length;
}

}  // namespace zol
