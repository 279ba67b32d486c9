// A script whose work stays small, whatever stands in it. The program itself has no such bounds: who asks for a list
// down to 0.01 angstrom waits for it.
#pragma once

#include <string>

namespace zol::fuzz {

/// The longest script: further lines are dropped.
inline constexpr int most_operations = 80;

/// Puts the numbers of boxes that rule the amount of work within bounds and takes folders off the names of files.
[[nodiscard]] std::string bounded_script(const std::string& script);

}  // namespace zol::fuzz
