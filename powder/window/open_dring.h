// Public operations of Dring, the window of the electron Debye rings.
#pragma once

#include "shell/services/workbench.h"

namespace zol {

/// Shows the window and calculates the rings of the list with the settings that every opening starts from.
void open_dring(Workbench& bench);

/// Calculates the radial profile from the list as it is, draws it and the rings, fills the peak list.
/// @throws RunFailure  a division by 0, an overflow or a bin out of range; see the functions it is made of
void DRCalc(Workbench& bench);

}  // namespace zol
