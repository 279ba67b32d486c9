// Public operations of Xd, the window of the X-ray powder pattern.
#pragma once

#include "shell/services/workbench.h"

namespace zol {

/// Shows the window and calculates the pattern of the list with the settings that every opening starts from.
void open_xd(Workbench& bench);

/// Calculates the pattern from the list as it is and draws it over what is there; fills the peak list.
/// @throws RunFailure  a division by 0, an overflow or a bin out of range; see the functions it is made of
void XDCalc(Workbench& bench);

}  // namespace zol
