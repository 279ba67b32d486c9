// The lines of a Kikuchi pattern in gnomonic projection: a plane at unit distance from the crystal, normal to the zone
// axis in its centre; places are tangents of the angle from it, x right, y up.
//
// The trace of a plane h k l is a straight line at the distance tan(latitude) from the centre, on the side of its
// normal; diffracted at the Bragg angle theta it lies at tan(latitude - theta). Angles are degrees where a name says
// so.
//
// Source: the geometry of gnomonic Kikuchi maps as in Reimer & Kohl, Transmission Electron Microscopy (2008) 7.5.
#pragma once

#include <vector>

#include "core/crystal_state.h"
#include "core/list_order.h"
#include "core/task.h"
#include "core/triples.h"
#include "kikuchi/listed_planes.h"

namespace zol {

/// Bounds of the picture in gnomonic coordinates and its reach, the largest of their magnitudes.
struct GnomonicView {
  Single left = 0, right = 0, bottom = 0, top = 0;
  Single reach = 0;
};

/// From half opening, shifts and xy ratio of the camera.
[[nodiscard]] GnomonicView gnomonic_view(const Module1State& camera);

/// The list by RefS * RefI, ascending. The bound of each round is the smallest key so far rounded to 16 bits, so that
/// keys closer than 1 are not distinguished.
/// @throws RunFailure  an empty list
[[nodiscard]] ListOrder order_for_kikuchi(const CrystalState& state, Task& task);

/// Intensity that maps to full grey: the largest 2 RefS RefI of a reflection that the lattice letter allows and whose
/// line lies within twice the reach.
[[nodiscard]] Single strongest_in_view(ListedPlanes& planes, const GnomonicView& view, Task& task);

/// One line of the pattern.
struct KikuchiLine {
  Indices<Integer> hkl{};
  Single intensity = 0;     ///< 2 RefS RefI
  Single length = 0;        ///< 1/d
  Single latitude_deg = 0;  ///< of the plane normal above the plane of the pattern
  Single azimuth_deg = 0;   ///< for the list: the rotation of the pattern, in radians, is added to the degrees
  Single unit_x = 0;        ///< unit vector from the centre towards the line
  Single unit_y = 0;
  Single foot_x = 0;  ///< foot of the perpendicular from the centre
  Single foot_y = 0;
  bool operator==(const KikuchiLine&) const = default;
};

/// The lines of the strongest KikuchiRefLimit reflections, in the order of the list, without those far
/// outside the picture.
/// @param trace_only  the trace of the plane instead of the line at the Bragg angle
/// @throws RunFailure  a zero axis or reference, an index below 0, or products beyond 16 bits
[[nodiscard]] std::vector<KikuchiLine> kikuchi_lines(ListedPlanes& planes, const GnomonicView& view, bool trace_only,
                                                     Task& task);

/// The line of the reflection MarkH, MarkK, MarkL, also outside the picture.
/// @throws RunFailure  a zero axis, reference or reflection
[[nodiscard]] KikuchiLine marked_line(const CrystalState& state, bool trace_only);

}  // namespace zol
