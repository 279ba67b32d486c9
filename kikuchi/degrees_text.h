// Angles of the list of bands as text: thousands are written with each picture of a drag.
#pragma once

#include <string>

namespace zol {

/// As Format with "##0.0" has it, several times as quick where no half is near.
[[nodiscard]] std::string one_place(double degrees);

}  // namespace zol
