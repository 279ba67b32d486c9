// Handlers of InputJCPDS.
#pragma once

#include "entry/input_jcpds_form.h"

namespace zol::input_jcpds {

void Form_Load(Workbench& bench, InputJcpdsForm& form);
void Form_Activate(Workbench& bench, InputJcpdsForm& form);
void G_KeyPress(Workbench& bench, InputJcpdsForm& form, int& key);
void Command1_Click(Workbench& bench, InputJcpdsForm& form);  // "OK"
void Command2_Click(Workbench& bench, InputJcpdsForm& form);  // "CANCEL"
void Command3_Click(Workbench& bench, InputJcpdsForm& form);  // "delete a cell"
void Command4_Click(Workbench& bench, InputJcpdsForm& form);  // "delete a row"

}  // namespace zol::input_jcpds
