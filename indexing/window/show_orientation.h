// Orientations handed to the simulation of Kikuchi patterns, and taken from it.
#pragma once

#include "indexing/orientation.h"
#include "shell/services/workbench.h"

namespace zol {

/// Axis, turn and detector go to Pattern2, which draws, over the measured picture where one is wanted there: as a click
/// on a solution of PATTERN3 does.
void show_orientation(Workbench& bench, const Rotation& crystal_from_picture);

enum class BandLook { Kinematic, Dynamical };

/// "Bands as a picture": the soft bands, or the dynamical pattern, of the present crystal in the orientation and view
/// of Pattern2 become its picture. Reports what is missing.
void draw_bands_as_picture(Workbench& bench, BandLook look);

/// The orientation that Pattern2 shows: zone axis in the pattern centre, turned by the pattern's angle.
/// @throws RunFailure  the axis is zero
[[nodiscard]] Rotation shown_orientation(const CrystalState& state);

}  // namespace zol
