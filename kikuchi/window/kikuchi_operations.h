// Public operations of the Kikuchi windows that other windows call too.
#pragma once

#include "shell/services/workbench.h"

namespace zol {

/// Draws the Kikuchi pattern of the present crystal and axis in Pattern2 and fills its band list. Sorts the reflection
/// list by RefS * RefI in place, ascending, the strongest last.
/// @throws RunFailure  no reflections, a zero axis, or a value beyond its type
void PatternDisp2(Workbench& bench);

/// Draws the line of the reflection MarkH, MarkK, MarkL in red over the pattern.
void Patterndisp4(Workbench& bench);

/// Finds the zone axis at the point TiltX, TiltY of the pattern, its reference reflection and the step of rotation.
void ZoneCalc(Workbench& bench);

/// The same for the direction at azimuth TiltPhi and latitude TiltTheta.
void ZoneCalc2(Workbench& bench);

/// Draws the map of zone axes in Zaxis; with "Show [uvw] on Kikuchi pattern" labels the pattern as well.
void Calc(Workbench& bench);

}  // namespace zol
