// Handlers of InputAtom.
#pragma once

#include "entry/input_atom_form.h"

namespace zol::input_atom {

void Form_Load(Workbench& bench, InputAtomForm& form);
void Form_Activate(Workbench& bench, InputAtomForm& form);
void G_KeyPress(Workbench& bench, InputAtomForm& form, int& key);
void Command1_Click(Workbench& bench, InputAtomForm& form);  // "OK"
void Command2_Click(Workbench& bench, InputAtomForm& form);  // "CANCEL"
void Command3_Click(Workbench& bench, InputAtomForm& form);  // "delete a cell"
void Command4_Click(Workbench& bench, InputAtomForm& form);  // "delete a row"
void Import_CIF_Click(Workbench& bench, InputAtomForm& form);
void Import_MINCRYST_Click(Workbench& bench, InputAtomForm& form);

}  // namespace zol::input_atom
