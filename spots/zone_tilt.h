// Tilting a crystal from zone axis to zone axis: a spot pattern has spots only where the beam runs along one of small
// indices, so a tilt goes from one to the next.
//
// Angles are radians, x right and y up in the picture. The frame is that of spot_pattern.h.
#pragma once

#include <array>

#include "core/crystal_state.h"

namespace zol {

/// The picture's frame in the lattice, as it is when a drag begins.
struct PictureFrame {
  std::array<double, 3> right{}, up{}, towards{};  ///< Cartesian unit vectors; towards the viewer: the zone axis
};
/// @throws RunFailure  no cell, or a zone axis of length 0
[[nodiscard]] PictureFrame picture_frame(const Main1State& state);

/// The zone axis nearest to what comes to the centre when the crystal is tilted as by a hand on its front: a tilt to
/// the right brings there what lay at the left. The indices are up to 4; the one of two equally near that has the
/// smaller ones; the present axis, as it is, where that is the nearest.
/// @throws RunFailure  no cell
[[nodiscard]] std::array<double, 3> axis_of_tilt(const Main1State& state, const PictureFrame& frame, double tilt_right,
                                                 double tilt_up);

}  // namespace zol
