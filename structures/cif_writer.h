// A structure as a crystallographic information file that other programs read back as the same crystal.
#pragma once

#include <string>

#include "core/structure.h"

namespace zol {

/// ASCII, one block, operators always; labels unique and without blanks; coordinates and B with the digits of a Single.
/// Tags of the core dictionary 2.4.
[[nodiscard]] std::string cif_text(const Structure& structure);

}  // namespace zol
