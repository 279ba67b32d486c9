// Handlers of Utility, named after control and event.
#pragma once

#include "calculators/utility_form.h"

namespace zol::utility {

void Form_Load(Workbench& bench, UtilityForm& form);

// Direction by azimuths: the numbers go into their fields, Enter moves on and ends in the calculation
void Text1_Change(Workbench& bench, UtilityForm& form);
void Text2_Change(Workbench& bench, UtilityForm& form);
void Text3_Change(Workbench& bench, UtilityForm& form);
void Text4_Change(Workbench& bench, UtilityForm& form);
void Text1_KeyPress(Workbench& bench, UtilityForm& form, int& key);
void Text2_KeyPress(Workbench& bench, UtilityForm& form, int& key);
void Text3_KeyPress(Workbench& bench, UtilityForm& form, int& key);
void Text4_KeyPress(Workbench& bench, UtilityForm& form, int& key);
void Command1_Click(Workbench& bench, UtilityForm& form);

// Direction by lengths: the boxes are read at "Calc." alone
void Text9_KeyPress(Workbench& bench, UtilityForm& form, int& key);
void Text8_KeyPress(Workbench& bench, UtilityForm& form, int& key);
void Text7_KeyPress(Workbench& bench, UtilityForm& form, int& key);
void Text6_KeyPress(Workbench& bench, UtilityForm& form, int& key);
void Command3_Click(Workbench& bench, UtilityForm& form);

// Inverse matrix: read at "Calc" alone
void Text5_KeyPress(UtilityForm& form, int index, int& key);
void Command2_Click(Workbench& bench, UtilityForm& form);

// Equivalent vector
void Text10_Change(Workbench& bench, UtilityForm& form);  // u, and so on to Text15, l
void Text11_Change(Workbench& bench, UtilityForm& form);
void Text12_Change(Workbench& bench, UtilityForm& form);
void Text13_Change(Workbench& bench, UtilityForm& form);
void Text14_Change(Workbench& bench, UtilityForm& form);
void Text15_Change(Workbench& bench, UtilityForm& form);
void Text10_KeyPress(Workbench& bench, UtilityForm& form, int& key);
void Text11_KeyPress(Workbench& bench, UtilityForm& form, int& key);
void Text12_KeyPress(Workbench& bench, UtilityForm& form, int& key);
void Text13_KeyPress(Workbench& bench, UtilityForm& form, int& key);
void Text14_KeyPress(Workbench& bench, UtilityForm& form, int& key);
void Text15_KeyPress(Workbench& bench, UtilityForm& form, int& key);
void Command4_Click(Workbench& bench, UtilityForm& form);  // h, k, l from u, v, w
void Command5_Click(Workbench& bench, UtilityForm& form);  // u, v, w from h, k, l

// Angle between two vectors: any change shows it anew
void Option1_Click(Workbench& bench, UtilityForm& form);
void Option2_Click(Workbench& bench, UtilityForm& form);
void Option3_Click(Workbench& bench, UtilityForm& form);
void Text46_Change(Workbench& bench, UtilityForm& form);  // first vector, Text46 to Text48
void Text47_Change(Workbench& bench, UtilityForm& form);
void Text48_Change(Workbench& bench, UtilityForm& form);
void Text49_Change(Workbench& bench, UtilityForm& form);  // second vector, Text49 to Text51
void Text50_Change(Workbench& bench, UtilityForm& form);
void Text51_Change(Workbench& bench, UtilityForm& form);
void Text46_KeyPress(Workbench& bench, UtilityForm& form, int& key);
void Text47_KeyPress(Workbench& bench, UtilityForm& form, int& key);
void Text48_KeyPress(Workbench& bench, UtilityForm& form, int& key);
void Text49_KeyPress(Workbench& bench, UtilityForm& form, int& key);
void Text50_KeyPress(Workbench& bench, UtilityForm& form, int& key);
void Text51_KeyPress(Workbench& bench, UtilityForm& form, int& key);

}  // namespace zol::utility
