// Public operations of Main1 that draw in the windows Pattern and FiberTexture.
#pragma once

#include "shell/services/workbench.h"

namespace zol {

/// Draws the spot pattern of the present crystal, zone axis and level in Pattern. With DisplayScale 0 the strongest
/// spot becomes black; otherwise the grey scale of the last picture stays.
/// @throws RunFailure  zero zone axis, no intensity in any spot, indices beyond 16 bits
void PatternDisp(Workbench& bench);

/// Sorts the reflection list by intensity, for every window, and draws its fiber texture in FiberTexture.
/// @throws RunFailure  zero fiber direction, fewer than two reflections
void PatternDisp3(Workbench& bench);

}  // namespace zol
