#include "dynamics/direction_grid.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <numbers>

namespace zol {
namespace {

using std::numbers::pi;
constexpr double nearly = 0.01;  // of an element of an operation: far above rounding, far below 30 degrees

bool near(double a, double b) { return std::abs(a - b) < nearly; }

/// e3 stays or is reversed.
bool keeps_axis(const Eigen::Matrix3d& operation) { return near(std::abs(operation(2, 2)), 1); }

/// The turn of e1 in the plane, in steps of 60 degrees.
double sixths(const Eigen::Matrix3d& operation) { return std::atan2(operation(1, 0), operation(0, 0)) / (pi / 3); }

/// Weights of four neighbours for a place between the middle two, 0 to 1 from the second, or beyond them.
std::array<double, 4> cubic_weights(double t) {
  return {-t * (t - 1) * (t - 2) / 6, (t + 1) * (t - 1) * (t - 2) / 2, -(t + 1) * t * (t - 2) / 2,
          (t + 1) * t * (t - 1) / 6};
}

}  // namespace

std::array<double, 2> lambert_square(const GridDirection& direction) {
  const auto& [x, y, z] = direction;
  const double radius = std::sqrt(std::max(0.0, 1 - std::abs(z)));
  if (radius == 0) return {0, 0};
  const bool wide = std::abs(x) >= std::abs(y);
  const double larger = std::copysign(radius, wide ? x : y);
  const double smaller = larger * 4 / pi * std::atan(wide ? y / x : x / y);
  return wide ? std::array{larger, smaller} : std::array{smaller, larger};
}

GridDirection from_lambert_square(double x, double y, bool south) {
  const bool wide = std::abs(x) >= std::abs(y);
  const double larger = wide ? x : y;
  const double square = larger * larger;
  if (square == 0) return {0, 0, south ? -1.0 : 1.0};
  const double turn = pi / 4 * (wide ? y / x : x / y);
  const double radius = larger * std::sqrt(2 - square);
  const double along = radius * std::cos(turn);
  const double across = radius * std::sin(turn);
  const double z = south ? square - 1 : 1 - square;
  return wide ? GridDirection{along, across, z} : GridDirection{across, along, z};
}

std::size_t SquareGrid::count() const {
  const auto n = static_cast<std::size_t>(side());
  return 2 * n * n;
}

GridDirection SquareGrid::direction(std::size_t index) const {
  const auto n = static_cast<std::size_t>(side());
  const auto at = [this](std::size_t i) { return (static_cast<double>(i) - half_) / half_; };
  const std::size_t inside = index % (n * n);
  return from_lambert_square(at(inside % n), at(inside / n), index >= n * n);
}

bool SquareGrid::keeps(const Eigen::Matrix3d& operation) {
  return keeps_axis(operation) && (near(std::abs(operation(0, 0)), 1) || near(std::abs(operation(0, 1)), 1));
}

std::size_t SquareGrid::image(const Eigen::Matrix3d& operation, std::size_t index) const {
  const auto n = static_cast<std::size_t>(side());
  const auto element = [&operation](int i, int j) { return static_cast<int>(std::lround(operation(i, j))); };
  const std::size_t inside = index % (n * n);
  const int x = static_cast<int>(inside % n) - half_;
  const int y = static_cast<int>(inside / n) - half_;
  const int to_x = element(0, 0) * x + element(0, 1) * y;
  const int to_y = element(1, 0) * x + element(1, 1) * y;
  bool south = index >= n * n;
  if (element(2, 2) < 0) south = !south;
  if (std::max(std::abs(x), std::abs(y)) == half_) south = false;
  return (south ? n * n : 0) + static_cast<std::size_t>(to_y + half_) * n + static_cast<std::size_t>(to_x + half_);
}

RingGrid::Place RingGrid::place(std::size_t index) const {
  Place place;
  place.south = index >= of_half();
  const std::size_t inside = index % of_half();
  if (inside == 0) return place;
  // The first of ring i is 1 + 3 i (i - 1).
  place.ring = static_cast<int>((1 + std::sqrt(1 + 4 * static_cast<double>(inside - 1) / 3)) / 2);
  const auto first = [](int ring) {
    return 1 + 3 * static_cast<std::size_t>(ring) * static_cast<std::size_t>(ring - 1);
  };
  if (inside < first(place.ring)) --place.ring;
  if (inside >= first(place.ring + 1)) ++place.ring;
  place.along = static_cast<int>(inside - first(place.ring));
  return place;
}

std::size_t RingGrid::index(const Place& place) const {
  const auto ring = static_cast<std::size_t>(place.ring);
  const bool south = place.south && place.ring < rings_;
  return (south ? of_half() : 0) + (ring == 0 ? 0 : 1 + 3 * ring * (ring - 1) + static_cast<std::size_t>(place.along));
}

GridDirection RingGrid::direction(std::size_t index) const {
  const Place at = place(index);
  const double part = static_cast<double>(at.ring) / rings_;
  const double z = 1 - part * part;
  const double radius = std::sqrt(std::max(0.0, 1 - z * z));
  const double turn = at.ring == 0 ? 0 : pi / 3 * at.along / at.ring;
  return {radius * std::cos(turn), radius * std::sin(turn), at.south ? -z : z};
}

bool RingGrid::keeps(const Eigen::Matrix3d& operation) {
  const double steps = sixths(operation);
  constexpr double step_tolerance = 0.02;
  return keeps_axis(operation) && std::abs(steps - std::round(steps)) < step_tolerance;
}

std::size_t RingGrid::image(const Eigen::Matrix3d& operation, std::size_t index) const {
  Place at = place(index);
  const int steps = static_cast<int>(std::lround(sixths(operation)));
  const bool mirrored = operation(0, 0) * operation(1, 1) - operation(0, 1) * operation(1, 0) < 0;
  if (operation(2, 2) < 0) at.south = !at.south;
  if (at.ring > 0) {
    const int round = 6 * at.ring;
    const int along = (mirrored ? -at.along : at.along) + steps * at.ring;
    at.along = (along % round + round) % round;
  }
  return this->index(at);
}

/// On one ring, by its own points. A ring below 0 is the one opposite.
double RingGrid::along_ring(const std::vector<float>& values, bool south, int ring, double turn) const {
  if (ring < 0) return along_ring(values, south, -ring, turn + pi);
  if (ring == 0) return static_cast<double>(values[index({south, 0, 0})]);
  const int round = 6 * ring;
  const double at = turn / (pi / 3) * ring;
  const double below = std::floor(at);
  const auto weights = cubic_weights(at - below);
  double sum = 0;
  for (int i = 0; i < 4; ++i) {
    const int along = ((static_cast<int>(below) - 1 + i) % round + round) % round;
    sum += weights[static_cast<std::size_t>(i)] * static_cast<double>(values[index({south, ring, along})]);
  }
  return sum;
}

double RingGrid::read(const std::vector<float>& values, const GridDirection& direction) const {
  const auto& [x, y, z] = direction;
  const double at = std::sqrt(std::max(0.0, 1 - std::abs(z))) * rings_;
  const int below = std::clamp(static_cast<int>(at), 0, rings_ - 2);
  const auto weights = cubic_weights(at - below);
  const double turn = std::atan2(y, x);
  double sum = 0;
  for (int i = 0; i < 4; ++i) {
    sum += weights[static_cast<std::size_t>(i)] * along_ring(values, z < 0, below - 1 + i, turn);
  }
  return sum;
}

}  // namespace zol
