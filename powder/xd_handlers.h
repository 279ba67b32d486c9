// What the controls of Xd do.
#pragma once

#include "powder/xd_form.h"

namespace zol::xd {

void Text1_Change(Workbench& bench, XdForm& form);
void Text2_Change(Workbench& bench, XdForm& form);
void Text3_Change(Workbench& bench, XdForm& form);
void Text4_Change(Workbench& bench, XdForm& form);
void Text6_Change(Workbench& bench, XdForm& form);
void Text7_Change(Workbench& bench, XdForm& form);
void Text8_Change(Workbench& bench, XdForm& form);
void Text5_KeyPress(Workbench& bench, XdForm& form, int& key);
void Command1_Click(Workbench& bench, XdForm& form);
void Command2_Click(Workbench& bench, XdForm& form);
void Command3_Click(Workbench& bench, XdForm& form);
void Command4_Click(Workbench& bench, XdForm& form);
void Command5_Click(Workbench& bench, XdForm& form);
void Command6_Click(Workbench& bench, XdForm& form);
void Command7_Click(Workbench& bench, XdForm& form);
void Picture1_MouseDown(Workbench& bench, XdForm& form, Single x, Single y);

}  // namespace zol::xd
