// The window of the electron pattern of a fiber texture.
#pragma once

#include <cmath>

#include "shell/services/place_text.h"
#include "shell/services/window_services.h"
#include "shell/services/workbench.h"

namespace zol {

struct FiberTextureForm : Window {
  static constexpr auto window_name = "FiberTexture";

  explicit FiberTextureForm(Workbench& bench)
      : Window(window_name, "Fiber Texture Pattern"),
        CommonDialog1(*this, bench.services, "CommonDialog1"),
        Picture1(*this, bench.services, "Picture1", 5760, 5760) {
    fields().add("RotationPitch", RotationPitch);
    Picture1.describe_place = [](double x, double y) { return spacing_text(std::hypot(x, y)); };
  }

  // Fiber direction
  TextBox Text3{*this, "Text3", "H="};
  TextBox Text4{*this, "Text4", "K="};
  TextBox Text5{*this, "Text5", "L="};
  TextBox Text2{*this, "Text2", "Dispersion (degree)="};
  CommandButton Command8{*this, "Command8", "Calc"};

  // Width of the picture, inverse angstroms of 1/d
  TextBox Text1{*this, "Text1", "area(A-1)="};
  CommandButton Command2{*this, "Command2", "Zoom Up"};
  CommandButton Command3{*this, "Command3", "Zoom Dwn"};

  // Rotation by RotationPitch, by five times and by a fifth of it
  CommandButton Command6{*this, "Command6", "CW"};
  CommandButton Command9{*this, "Command9"};
  CommandButton Command11{*this, "Command11"};
  CommandButton Command7{*this, "Command7", "ACW"};
  CommandButton Command10{*this, "Command10"};
  CommandButton Command12{*this, "Command12"};

  TextBox Text6{*this, "Text6"};  // exponent, in the frame "Intensity"
  CheckBox Check3{*this, "Check3", "Index"};
  CommandButton Command5{*this, "Command5", "Copy"};
  CommandButton Command1{*this, "Command1", "close"};

  MenuItem Isave{*this, "Isave", "Pattern Save"};
  MenuItem Fsize{*this, "Fsize", "Font size"};
  MenuItem Rpitch{*this, "Rpitch", "Rotation Angle Pitch"};
  MenuItem Imagesize{*this, "Imagesize", "Image Size"};
  MenuItem Spotsize{*this, "Spotsize", "Diffraction Size"};

  FileDialog CommonDialog1;
  Canvas Picture1;

  Single RotationPitch = 0;  ///< degrees
};

}  // namespace zol
