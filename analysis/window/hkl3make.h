// Public operation of PATTERN3: the triple table of the present reflection list.
#pragma once

#include "shell/services/workbench.h"

namespace zol {

/// Sorts the reflection list by RefS * RefI and fills the triple table with its strongest reflections. With fewer than
/// three reflections nothing happens. The reordering of RefH, RefK, RefL, RefS and RefI is seen by every window.
/// @throws RunFailure  a reflection of zero length, or not enough memory
void Hkl3make(Workbench& bench);

}  // namespace zol
