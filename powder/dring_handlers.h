// What the controls of Dring do.
#pragma once

#include "powder/dring_form.h"

namespace zol::dring {

void Text2_Change(Workbench& bench, DringForm& form);
void Text3_Change(Workbench& bench, DringForm& form);
void Text5_Change(Workbench& bench, DringForm& form);
void Text6_Change(Workbench& bench, DringForm& form);
void Text7_Change(Workbench& bench, DringForm& form);
void Text8_Change(Workbench& bench, DringForm& form);
void Check1_Click(Workbench& bench, DringForm& form);
void Check2_Click(Workbench& bench, DringForm& form);
void Check3_Click(Workbench& bench, DringForm& form);
void Command1_Click(Workbench& bench, DringForm& form);
void Command2_Click(Workbench& bench, DringForm& form);
void Command3_Click(Workbench& bench, DringForm& form);
void Command4_Click(Workbench& bench, DringForm& form);
void Command5_Click(Workbench& bench, DringForm& form);
void Command6_Click(Workbench& bench, DringForm& form);
void Command7_Click(Workbench& bench, DringForm& form);
void Picture1_MouseDown(Workbench& bench, DringForm& form, Single x, Single y);
void Picture2_MouseDown(Workbench& bench, DringForm& form, Single x, Single y);

}  // namespace zol::dring
