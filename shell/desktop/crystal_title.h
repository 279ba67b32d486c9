// What the titles of windows tell of the crystal.
#pragma once

#include <QString>

namespace zol {

class Program;

/// What stands behind the caption: " - Quartz, 20 kV[*]", with the wavelength where there is no voltage; empty without
/// a crystal.
[[nodiscard]] QString crystal_title_end(Program& program);

}  // namespace zol
