// Handlers of Zaxis.
#pragma once

#include "kikuchi/zaxis_form.h"

namespace zol::zaxis {

void Form_Load(Workbench& bench, ZaxisForm& form);
void redraw(Workbench& bench, ZaxisForm& form);            // limits, checks and options: the map is drawn anew
void direction_Change(Workbench& bench, ZaxisForm& form);  // Text4 to Text6: the direction to look up
void Text4_KeyPress(Workbench& bench, ZaxisForm& form, int& key);
void Text5_KeyPress(Workbench& bench, ZaxisForm& form, int& key);
void Text6_KeyPress(Workbench& bench, ZaxisForm& form, int& key);
void Command1_Click(Workbench& bench, ZaxisForm& form);  // "PLOT"
void Command2_Click(Workbench& bench, ZaxisForm& form);  // "Zoom Up"
void Command3_Click(Workbench& bench, ZaxisForm& form);  // "Zoom Dwn"
void SaveMap_Click(Workbench& bench, ZaxisForm& form);

}  // namespace zol::zaxis
