// Handlers of Main1, named after control and event.
#pragma once

#include "reflections/main1_form.h"

namespace zol::main1 {

void Form_Load(Workbench& bench, Main1Form& form);

// Cell, space group, settings
void Text1_Change(Workbench& bench, Main1Form& form);  // a, and so on to Text6, gamma
void Text2_Change(Workbench& bench, Main1Form& form);
void Text3_Change(Workbench& bench, Main1Form& form);
void Text4_Change(Workbench& bench, Main1Form& form);
void Text5_Change(Workbench& bench, Main1Form& form);
void Text6_Change(Workbench& bench, Main1Form& form);
void Text1_LostFocus(Workbench& bench, Main1Form& form);
void Text7_Change(Workbench& bench, Main1Form& form);     // space group number
void Text7_LostFocus(Workbench& bench, Main1Form& form);  // the cell follows the crystal system
void Text15_Change(Workbench& bench, Main1Form& form);    // Dmin
void Text16_Change(Workbench& bench, Main1Form& form);    // wavelength
void Combo1_Click(Workbench& bench, Main1Form& form);     // radiation
void Combo2_Click(Workbench& bench, Main1Form& form);     // axis setting
void List3_Click(Workbench& bench, Main1Form& form);      // space groups

// Enter swallows the key and moves on
void Text1_KeyPress(Workbench& bench, Main1Form& form, int& key);
void Text2_KeyPress(Workbench& bench, Main1Form& form, int& key);
void Text3_KeyPress(Workbench& bench, Main1Form& form, int& key);
void Text4_KeyPress(Workbench& bench, Main1Form& form, int& key);
void Text5_KeyPress(Workbench& bench, Main1Form& form, int& key);
void Text6_KeyPress(Workbench& bench, Main1Form& form, int& key);
void Text18_KeyPress(Workbench& bench, Main1Form& form, int& key);
void Text19_KeyPress(Workbench& bench, Main1Form& form, int& key);

// Buttons
void Command1_Click(Workbench& bench, Main1Form& form);   // "Atomic Coordinates"
void Command2_Click(Workbench& bench, Main1Form& form);   // atoms to a file
void Command3_Click(Workbench& bench, Main1Form& form);   // atoms to the printer
void Command4_Click(Workbench& bench, Main1Form& form);   // reflections to a file
void Command5_Click(Workbench& bench, Main1Form& form);   // reflections to the printer
void Command6_Click(Workbench& bench, Main1Form& form);   // "Calc"
void Command7_Click(Workbench& bench, Main1Form& form);   // "Powder XRD Pattern"
void Command8_Click(Workbench& bench, Main1Form& form);   // "Electron Debye-ring"
void Command9_Click(Workbench& bench, Main1Form& form);   // "Single Crystal"
void Command10_Click(Workbench& bench, Main1Form& form);  // "KP CALC"
void Command11_Click(Workbench& bench, Main1Form& form);  // "Atom Distance"
void Command12_Click(Workbench& bench, Main1Form& form);  // "Fiber Pattern"
void Command13_Click(Workbench& bench, Main1Form& form);  // "KP ANALYSIS(A)"
void Command15_Click(Workbench& bench, Main1Form& form);  // "JCPDS reflections"

// Menu
void DATA_SAVE_Click(Workbench& bench, Main1Form& form);
void DATA_LOAD_Click(Workbench& bench, Main1Form& form);
void OWARI_Click(Workbench& bench, Main1Form& form);
void RefselectON_Click(Workbench& bench, Main1Form& form);
void Show_utility_Click(Workbench& bench, Main1Form& form);

}  // namespace zol::main1
