// Structure files of any kind into and out of the main window.
#pragma once

#include "reflections/window/main1_form.h"
#include "shell/services/workbench.h"

namespace zol {

/// Asks for a file, reads it, shows the crystal in the main window, expands the cell and computes the list. Whatever is
/// wrong with the file ends in a message, with crystal and windows as they were.
void ImportStructure_Click(Workbench& bench, Main1Form& form);

/// Asks for a name and writes the crystal as a crystallographic information file.
void ExportStructure_Click(Workbench& bench, Main1Form& form);

}  // namespace zol
