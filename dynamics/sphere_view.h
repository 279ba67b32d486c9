// The sphere of directions as pictures show it, there and back.
//
// Directions are those of the crystal's frame, e1 along a and e3 along c*. In the flat projections e1 points to the
// right and e2 upward; the southern half is looked at through the sphere, so that what lies under a place of the north
// stands at the same place. The turned sphere is seen from outside, as a globe.
#pragma once

#include <array>
#include <optional>
#include <vector>

#include "dynamics/master_pattern.h"
#include "indexing/orientation.h"

namespace zol {

enum class SphereProjection { Stereographic, Lambert, Globe };

/// What of the sphere is shown. Pictures reach from -1 to 1, x to the right and y upward.
struct SphereView {
  SphereProjection projection = SphereProjection::Stereographic;
  bool south = false;                     ///< of the flat ones
  Rotation globe = Rotation::Identity();  ///< rows: right, up, towards the eye, in the crystal's frame

  /// None where the direction lies on the half that is not seen; its edge is. @param direction  of any length but 0
  [[nodiscard]] std::optional<std::array<double, 2>> place(const Vector3& direction) const;
  /// A unit vector; none beyond the edge of the picture.
  [[nodiscard]] std::optional<Vector3> direction(double x, double y) const;
  /// In the middle of the picture.
  [[nodiscard]] Vector3 middle() const;
};

/// A globe with a direction in the middle, c* upward (b at c* itself, as far as it stands on a), turned anticlockwise.
/// @param middle  of any length but 0
[[nodiscard]] Rotation globe_about(const Vector3& middle, double turn_deg);
/// The turn of a globe that has this direction, nearly, in its middle: -180 to 180.
[[nodiscard]] double globe_turn_deg(const Rotation& globe, const Vector3& middle);
/// A globe that was taken at one place of its picture and drawn to another. Places beyond its edge count as the edge.
[[nodiscard]] Rotation dragged_globe(const Rotation& globe, const std::array<double, 2>& from,
                                     const std::array<double, 2>& to);
/// The same turned about the eye by the angle between the places as seen from the middle.
[[nodiscard]] Rotation spun_globe(const Rotation& globe, const std::array<double, 2>& from,
                                  const std::array<double, 2>& to);

/// Brightness of the pattern from 0 to 1, row by row from the top; below 0 beyond the edge. The darkest and the
/// brightest thousandth of the whole pattern are cut off.
/// @param pixels  along a side of the picture
/// @param reach   half width of the picture, 1 and above
[[nodiscard]] std::vector<double> draw_sphere(const MasterPattern& master, const SphereView& view, int pixels,
                                              double reach, Task& task);

}  // namespace zol
