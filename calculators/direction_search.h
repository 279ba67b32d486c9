// Direction of a line on a specimen from two photographs taken with different rotations of it: by the azimuths that the
// line shows, or by the ratio of its lengths. Angles in degrees, azimuths from the x axis, which is the axis of
// rotation.
#pragma once

#include <array>

#include "core/numbers.h"
#include "core/task.h"

namespace zol::utility {

/// Used in this window only: in radians, but 180 for x <= -1, and 0 for x >= 1.
[[nodiscard]] Single ArcCos(Single x);

/// An azimuth of a line, which has no head: folded into -90 to 90.
[[nodiscard]] Single folded_azimuth(Single azimuth_deg);

/// The azimuths of one line in two photographs.
struct PhotographPair {
  Single Phi1 = 0, Rotate1 = 0;  ///< apparent azimuth, folded, and rotation of the specimen about x
  Single Phi2 = 0, Rotate2 = 0;
};

/// A direction on the unrotated specimen with the azimuths that it shows in the two photographs.
struct DirectionTrial {
  Single azimuth = 0;
  Single polar = 0;  ///< angle to the line of sight, 0 to 90
  Single phi_1 = 0, phi_2 = 0;
  bool operator==(const DirectionTrial&) const = default;
};

/// What each pass found; a pass in which no trial comes within 100 degrees of the azimuths leaves zeros.
struct DirectionSearch {
  std::array<DirectionTrial, 4> passes;
  /// The fourth pass is centred on what the second one found; the third is not used.
  [[nodiscard]] const DirectionTrial& answer() const { return passes[3]; }
};

/// Searches the half sphere in steps of 10, 1, 0.1 and 0.01 degrees; the first of equal trials wins. Reports the
/// passes.
/// @throws RunFailure  a step of a pass is lost in rounding
/// @throws Cancelled   by the task
[[nodiscard]] DirectionSearch search_direction(const PhotographPair& photographs, Task& task);

/// Lengths of one line in two photographs, in any unit.
struct LengthPair {
  Single Length1 = 0, Rotate1 = 0;
  Single Length2 = 0, Rotate2 = 0;
};

/// A direction in the plane of rotation: a half plane and the angle in it.
struct PlaneDirection {
  Integer phi;  ///< 90 or -90
  Single theta = 0;
};

/// The angle whose cosines against the two rotations have the ratio of the lengths, in steps of 0.1 degrees.
/// @throws RunFailure  Length1 is 0, or the cosine against the first rotation is
[[nodiscard]] PlaneDirection direction_from_lengths(const LengthPair& lengths);

}  // namespace zol::utility
