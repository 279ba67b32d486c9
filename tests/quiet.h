// For calculations that nobody watches.
#pragma once

#include "core/task.h"

namespace zol {

inline QuietTask quiet;

}  // namespace zol
