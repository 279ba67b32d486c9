// Handlers of MAIN_MENU.
#pragma once

#include "shell/main_menu_form.h"

namespace zol::main_menu {

void Form_Load(Workbench& bench, MainMenuForm& form);
void Command1_Click(Workbench& bench, MainMenuForm& form);  // the crystal
void Command2_Click(Workbench& bench, MainMenuForm& form);  // Kikuchi pattern
void Command3_Click(Workbench& bench, MainMenuForm& form);  // Kikuchi analysis
void Command5_Click(Workbench& bench, MainMenuForm& form);  // "Exit"
void Camera_parameters_Click(Workbench& bench, MainMenuForm& form);
void Show_Utility_Click(Workbench& bench, MainMenuForm& form);

}  // namespace zol::main_menu
