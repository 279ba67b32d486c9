// The importers in the menu of Main1: each replaces cell, space group and atoms.
#pragma once

#include "reflections/window/main1_form.h"

namespace zol::main1 {

void ImportfromCIF_Click(Workbench& bench, Main1Form& form);
void ImportFromICSD_Click(Workbench& bench, Main1Form& form);

}  // namespace zol::main1
