// Directions that a pattern is computed for, of equal density over the sphere, and how symmetry maps them on each
// other.
//
// SquareGrid is Rosca's equal-area map of each half of the sphere on a square, e3 in the middle, the equator as its
// edge: operations of tetragonal axes map it on itself, to the point. RingGrid has rings of 6, 12, 18, ... directions
// about e3, which those of trigonal and hexagonal axes map on themselves.
// Source: Rosca, Astron. Astrophys. 520 (2010) A63; Callahan & De Graef, Microsc. Microanal. 19 (2013) 1255.
#pragma once

#include <Eigen/Core>
#include <array>
#include <optional>
#include <vector>

namespace zol {

using GridDirection = std::array<double, 3>;

/// Square coordinates -1 to 1 of the half that the direction lies in. @param direction  a unit vector
[[nodiscard]] std::array<double, 2> lambert_square(const GridDirection& direction);
[[nodiscard]] GridDirection from_lambert_square(double x, double y, bool south);

/// Both halves, north first; row y, column x. What lies on the equator stands in both.
class SquareGrid {
 public:
  /// @param side  points along a side, odd
  explicit SquareGrid(int side) : half_((side - 1) / 2) {}
  [[nodiscard]] int side() const { return 2 * half_ + 1; }
  [[nodiscard]] std::size_t count() const;
  [[nodiscard]] GridDirection direction(std::size_t index) const;
  /// Whether an operation on directions maps grid points on grid points.
  [[nodiscard]] static bool keeps(const Eigen::Matrix3d& operation);
  /// Where such an operation takes a point; that of the north for the equator.
  [[nodiscard]] std::size_t image(const Eigen::Matrix3d& operation, std::size_t index) const;

 private:
  int half_;
};

/// Both halves, north first; from e3 outward.
class RingGrid {
 public:
  explicit RingGrid(int rings) : rings_(rings) {}
  [[nodiscard]] std::size_t count() const { return 2 * of_half(); }
  [[nodiscard]] GridDirection direction(std::size_t index) const;
  [[nodiscard]] static bool keeps(const Eigen::Matrix3d& operation);
  [[nodiscard]] std::size_t image(const Eigen::Matrix3d& operation, std::size_t index) const;
  /// Between the points, by cubic polynomials along and across rings. @param values  of each point
  [[nodiscard]] double read(const std::vector<float>& values, const GridDirection& direction) const;

 private:
  struct Place {
    bool south = false;
    int ring = 0, along = 0;  ///< along: 0 to 6 ring - 1, from e1
  };
  [[nodiscard]] std::size_t of_half() const {
    return 1 + 3 * static_cast<std::size_t>(rings_) * static_cast<std::size_t>(rings_ + 1);
  }
  [[nodiscard]] Place place(std::size_t index) const;
  [[nodiscard]] std::size_t index(const Place& place) const;
  [[nodiscard]] double along_ring(const std::vector<float>& values, bool south, int ring, double turn) const;

  int rings_;
};

/// One direction of each orbit of the operations, and which of them stands for each point.
struct Orbits {
  std::vector<std::size_t> representatives;
  std::vector<std::size_t> orbit;  ///< of each point
};

template <class Grid>
Orbits orbits_of(const Grid& grid, const std::vector<Eigen::Matrix3d>& operations) {
  std::vector<Eigen::Matrix3d> kept;
  for (const auto& operation : operations) {
    if (Grid::keeps(operation)) kept.push_back(operation);
  }
  Orbits orbits;
  const auto none = static_cast<std::size_t>(-1);
  orbits.orbit.assign(grid.count(), none);
  for (std::size_t i = 0; i < grid.count(); ++i) {
    // The identity takes a point of the equator to that of the north.
    const std::size_t own = grid.image(kept.front(), i);
    if (orbits.orbit[own] == none) {
      for (const auto& operation : kept) orbits.orbit[grid.image(operation, i)] = orbits.representatives.size();
      orbits.representatives.push_back(i);
    }
    orbits.orbit[i] = orbits.orbit[own];
  }
  return orbits;
}

}  // namespace zol
