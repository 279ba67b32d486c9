// The window of the electron spot pattern.
#pragma once

#include <cmath>

#include "shell/services/place_text.h"
#include "shell/services/window_services.h"
#include "shell/services/workbench.h"

namespace zol {

struct PatternForm : Window {
  static constexpr auto window_name = "Pattern";

  explicit PatternForm(Workbench& bench)
      : Window(window_name, "ED PATTERN"),
        CommonDialog1(*this, bench.services, "CommonDialog1"),
        Picture1(*this, bench.services, "Picture1", 8500, 8500) {
    fields().add("RotationPitch", RotationPitch);
    Picture1.describe_place = [](double x, double y) { return spacing_text(2 * std::hypot(x, y)); };
  }

  // Zone axis and Laue level
  TextBox Text3{*this, "Text3", "u="};
  TextBox Text4{*this, "Text4", "v="};
  TextBox Text5{*this, "Text5", "w="};
  TextBox Text2{*this, "Text2", "Level="};
  CommandButton Command5{*this, "Command5"};    // the next level
  CommandButton Command14{*this, "Command14"};  // the level before
  CommandButton Command8{*this, "Command8", "Calc"};

  // Width of the picture, inverse angstroms of 1/(2d)
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

  // Grey scale
  OptionButton Option1{*this, "Option1", "I"};
  OptionButton Option2{*this, "Option2", "Sqr( I )"};
  Frame Frame1{*this, "Frame1", "Frame1"};
  TextBox Text6{*this, "Text6"};  // exponent of the intensity
  CommandButton Command4{*this, "Command4", "UP"};
  CommandButton Command13{*this, "Command13", "DWN"};

  CheckBox Check3{*this, "Check3", "Index"};
  CommandButton Command1{*this, "Command1", "close"};

  MenuItem ISAVE{*this, "ISAVE", "PATTERN SAVE"};
  MenuItem Spotsize{*this, "Spotsize", "Diffraction spot size"};
  MenuItem Rpitch{*this, "Rpitch", "Rotation angle pitch"};
  MenuItem Fsize{*this, "Fsize", "Font size"};

  FileDialog CommonDialog1;
  Canvas Picture1;

  Single RotationPitch = 0;  ///< degrees
};

}  // namespace zol
