// The editor of the camera parameters and of their file.
#pragma once

#include "shell/services/window_services.h"
#include "shell/services/workbench.h"

namespace zol {

struct CameraParametersForm : Window {
  static constexpr auto window_name = "CameraParameters";

  explicit CameraParametersForm(Workbench& bench)
      : Window(window_name, "Camera Parameters"), CommonDialog1(*this, bench.services, "CommonDialog1") {}

  TextBox Text1{*this, "Text1", "Acquisition angle (deg.) ="};
  TextBox Text2{*this, "Text2", "X-shift (deg.) ="};
  TextBox Text3{*this, "Text3", "Y-shift (deg.) ="};
  TextBox Text5{*this, "Text5", "Detector area (mm) ="};
  TextBox Text6{*this, "Text6", "XY-ratio = "};
  TextBox Text7{*this, "Text7", "Substrate normal (deg.) ="};
  CommandButton Command1{*this, "Command1", "Load"};
  CommandButton Command2{*this, "Command2", "Save"};
  CommandButton Command3{*this, "Command3", "Close"};

  FileDialog CommonDialog1;
};

}  // namespace zol
