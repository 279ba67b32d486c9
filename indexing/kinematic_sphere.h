// The bands of a crystal drawn once on the sphere of directions, so that any picture of them is a look-up.
//
// Each reflection is a soft strip of twice its Bragg angle about its plane, brighter inside, darker at its edges; any
// other brightness can be given as a function. The sphere is kept in stereographic projection from the pole -z, a
// little beyond the equator, so that every direction of either half finds its neighbours. Where it is not its own image
// by inversion, that image follows as a second grid.
#pragma once

#include <functional>
#include <vector>

#include "indexing/reflectors.h"

namespace zol {

struct StripShape {
  double softness = 0.2;      ///< width of the slope at the edge, in Bragg angles
  double edge_depth = 1.6;    ///< of the dark line outside the edge, as a share of the strip's brightness
  double edge_width = 0.25;   ///< of that line, in Bragg angles
  double weight_power = 0.7;  ///< of the square of the structure factor
};

class KinematicSphere {
 public:
  /// @param reflectors  families whose strip is too faint to matter are left out
  /// @param size        points of the grid along a diameter
  KinematicSphere(const ReflectorSet& reflectors, int size, const StripShape& shape, Task& task);

  /// @param brightness  in a unit direction
  /// @param inversion   whether it is the same in opposite directions
  KinematicSphere(const std::function<double(const Vector3&)>& brightness, int size, bool inversion, Task& task);

  [[nodiscard]] int size() const { return size_; }
  [[nodiscard]] float scale() const { return scale_; }    ///< grid points per unit of the projection
  [[nodiscard]] float middle() const { return middle_; }  ///< grid coordinate of the pole
  [[nodiscard]] const std::vector<float>& values() const { return values_; }
  /// Whether it holds all greys of a pattern, not its bands alone.
  [[nodiscard]] bool continuous() const { return continuous_; }
  /// From a place of the first grid to that of the opposite direction; 0 where both are the same.
  [[nodiscard]] int opposite() const { return opposite_; }
  /// Brightness in a direction of the crystal's frame, of any length but 0; mean 0 over the sphere.
  [[nodiscard]] float at(const Vector3& direction) const;

 private:
  int size_;
  float scale_, middle_;
  int opposite_ = 0;
  bool continuous_ = false;
  std::vector<float> values_;  ///< row by row, x fastest
};

}  // namespace zol
