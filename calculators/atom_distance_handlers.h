// Handlers of AtomDistance.
#pragma once

#include "calculators/atom_distance_form.h"

namespace zol::atom_distance {

void Text1_Change(Workbench& bench, AtomDistanceForm& form);
void Text1_KeyPress(Workbench& bench, AtomDistanceForm& form, int& key);  // Enter calculates
void Command1_Click(Workbench& bench, AtomDistanceForm& form);            // "Calc"

}  // namespace zol::atom_distance
