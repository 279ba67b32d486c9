// Handlers of Pattern, named after control and event.
#pragma once

#include "spots/pattern_form.h"

namespace zol::pattern {

void Form_Load(Workbench& bench, PatternForm& form);

// Values
void Text1_Change(Workbench& bench, PatternForm& form);  // width of the picture
void Text2_Change(Workbench& bench, PatternForm& form);  // Laue level
void Text3_Change(Workbench& bench, PatternForm& form);  // zone axis u, and so on to Text5, w
void Text4_Change(Workbench& bench, PatternForm& form);
void Text5_Change(Workbench& bench, PatternForm& form);
void Text3_KeyPress(Workbench& bench, PatternForm& form, int& key);  // Enter moves on; in Text5 it draws
void Text4_KeyPress(Workbench& bench, PatternForm& form, int& key);
void Text5_KeyPress(Workbench& bench, PatternForm& form, int& key);

// Pictures
void Command8_Click(Workbench& bench, PatternForm& form);   // "Calc"
void Command5_Click(Workbench& bench, PatternForm& form);   // the next level
void Command14_Click(Workbench& bench, PatternForm& form);  // the level before
void Command2_Click(Workbench& bench, PatternForm& form);   // "Zoom Up"
void Command3_Click(Workbench& bench, PatternForm& form);   // "Zoom Dwn"
void Command6_Click(Workbench& bench, PatternForm& form);   // "CW"
void Command9_Click(Workbench& bench, PatternForm& form);   // five times as far
void Command11_Click(Workbench& bench, PatternForm& form);  // a fifth of it
void Command7_Click(Workbench& bench, PatternForm& form);   // "ACW"
void Command10_Click(Workbench& bench, PatternForm& form);  // five times as far
void Command12_Click(Workbench& bench, PatternForm& form);  // a fifth of it
void Command4_Click(Workbench& bench, PatternForm& form);   // "UP": darker
void Command13_Click(Workbench& bench, PatternForm& form);  // "DWN": lighter
void Command1_Click(Workbench& bench, PatternForm& form);   // "close"

// Menus
void ISAVE_Click(Workbench& bench, PatternForm& form);     // "PATTERN SAVE"
void Spotsize_Click(Workbench& bench, PatternForm& form);  // "Diffraction spot size"
void Rpitch_Click(Workbench& bench, PatternForm& form);    // "Rotation angle pitch"
void Fsize_Click(Workbench& bench, PatternForm& form);     // "Font size"

/// Asks for the size of the picture. Stands in no menu.
void Imagesize(Workbench& bench, PatternForm& form);

}  // namespace zol::pattern
