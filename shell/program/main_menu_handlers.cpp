#include "core/camera_file.h"
#include "shell/program/main_menu_form.h"
#include "shell/services/wiring.h"

namespace zol::main_menu {
namespace {

void Form_Load(Workbench& bench) {
  bench.state.CameraFile = bench.data.path("Camera_Parameters_New");
  read_camera_file(bench.state.CameraFile, bench.state);
}

void Command1_Click(Workbench& bench) { bench.show_window("Main1"); }

void Command2_Click(Workbench& bench) {
  bench.state.CamXShift = 0;
  bench.state.CamYShift = 0;
  bench.state.CamXYRatio = 1;
  bench.show_window("Pattern2");
}

void Command3_Click(Workbench& bench) {
  read_camera_file(bench.state.CameraFile, bench.state);
  bench.show_window("PATTERN3");
}

void Command5_Click(Workbench& bench) { bench.services.end_program(); }

void Camera_parameters_Click(Workbench& bench) { bench.show_window("CameraParameters"); }

void Show_Utility_Click(Workbench& bench) { bench.show_window("Utility"); }

}  // namespace

}  // namespace zol::main_menu

namespace zol {

/// What the user does, and what answers it.
void wire(Workbench& bench, MainMenuForm& form) {
  using namespace main_menu;
  const Wire on(bench, form);
  form.Command1.on_click = on(Command1_Click);  // the crystal
  form.Command2.on_click = on(Command2_Click);  // Kikuchi pattern
  form.Command3.on_click = on(Command3_Click);  // Kikuchi analysis
  form.Command5.on_click = on(Command5_Click);  // "Exit"
  form.Camera_parameters.on_click = on(Camera_parameters_Click);
  form.Show_Utility.on_click = on(Show_Utility_Click);
  form.on_load = on(Form_Load);
}

template void add_window<MainMenuForm>(Workbench&);

}  // namespace zol
