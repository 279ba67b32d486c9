// The window that the program starts with: the ways in, and the camera parameters read once.
#pragma once

#include "shell/services/window_services.h"
#include "shell/services/workbench.h"

namespace zol {

struct MainMenuForm : Window {
  static constexpr auto window_name = "MAIN_MENU";

  explicit MainMenuForm(Workbench& bench);

  Label Label2{*this, "Label2", "Crystals, diffraction, Kikuchi patterns"};
  CommandButton Command1{*this, "Command1", "New Crystal Registration or Edit Crystal Data "};
  CommandButton Command2{*this, "Command2", "Calculate Kikuchi Pattern "};
  CommandButton Command3{*this, "Command3", "Analyze Kikuchi Pattern (three lines) "};
  CommandButton Command5{*this, "Command5", "Exit"};
  Label Label1{*this, "Label1", "                                   Ver. 6.37"};
  MenuItem Camera_parameters{*this, "Camera_parameters", " Camera Parameters "};
  MenuItem Show_Utility{*this, "Show_Utility", "Utility"};
};

}  // namespace zol
