// What the titles of windows say of the crystal.
#pragma once

#include <QString>

namespace zol {

class Program;

/// What follows the caption: " - Quartz, 20 kV[*]", with the wavelength where there is no voltage; empty without
/// a crystal.
[[nodiscard]] QString crystal_title_end(Program& program);

}  // namespace zol
