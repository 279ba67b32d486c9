// A voltage typed into one of the Kikuchi windows.
#pragma once

#include <string>

#include "shell/services/workbench.h"

namespace zol {

/// Sets the voltage of the electrons from the text of a box, in kV; a positive one goes to the boxes of the other
/// windows, switches to electrons, and sets the non-relativistic wavelength sqrt(150 / V) and a mass ratio of 1.
void set_electron_voltage(Workbench& bench, const std::string& text);

}  // namespace zol
