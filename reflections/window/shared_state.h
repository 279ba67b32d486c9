// What windows share without a box of their own for it, as one line.
#pragma once

#include <initializer_list>
#include <string>

#include "shell/services/workbench.h"

namespace zol {

enum class Shared { Radiation, HalfWidthDegrees, HalfWidthInverse, Shifts, Axis, Turn, Order };

/// As "20 kV, 0.0859 Å; half width 30°; axis [1 1 0]; turn 5°"; empty before there is any crystal window.
[[nodiscard]] std::string shared_state_line(Workbench& bench, std::initializer_list<Shared> parts);

}  // namespace zol
