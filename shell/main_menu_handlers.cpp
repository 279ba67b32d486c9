#include "shell/main_menu_handlers.h"

#include "core/camera_file.h"

namespace zol::main_menu {

void Form_Load(Workbench& bench, MainMenuForm& /*form*/) {
  bench.state.CameraFile = bench.data.path("Camera_Parameters_New");
  read_camera_file(bench.state.CameraFile, bench.state);
}

void Command1_Click(Workbench& bench, MainMenuForm& /*form*/) { bench.show_window("Main1"); }

void Command2_Click(Workbench& bench, MainMenuForm& /*form*/) {
  bench.state.CamXShift = 0;
  bench.state.CamYShift = 0;
  bench.state.CamXYRatio = 1;
  bench.show_window("Pattern2");
}

void Command3_Click(Workbench& bench, MainMenuForm& /*form*/) {
  read_camera_file(bench.state.CameraFile, bench.state);
  bench.show_window("PATTERN3");
}

void Command5_Click(Workbench& bench, MainMenuForm& /*form*/) { bench.services.end_program(); }

void Camera_parameters_Click(Workbench& bench, MainMenuForm& /*form*/) { bench.show_window("CameraParameters"); }

void Show_Utility_Click(Workbench& bench, MainMenuForm& /*form*/) { bench.show_window("Utility"); }

}  // namespace zol::main_menu
