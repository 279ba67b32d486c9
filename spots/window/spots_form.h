// What the windows of the spot pattern and of the fiber texture have in common.
#pragma once

#include <array>
#include <cmath>
#include <string>
#include <utility>
#include <vector>

#include "shell/services/guards.h"
#include "shell/services/place_text.h"
#include "shell/services/window_services.h"
#include "shell/services/workbench.h"

namespace zol {

struct SpotsForm : Window {
  /// @param direction  captions of the three boxes of a direction
  /// @param width      of the square picture, twips
  /// @param per_spot   1/d of a spot over its distance from the centre
  SpotsForm(Workbench& bench, std::string name, std::string caption, const std::array<const char*, 3>& direction,
            int width, double per_spot)
      : Window(std::move(name), std::move(caption)),
        Text3(*this, "Text3", direction[0]),
        Text4(*this, "Text4", direction[1]),
        Text5(*this, "Text5", direction[2]),
        CommonDialog1(*this, bench.services, "CommonDialog1"),
        Picture1(*this, bench.services, "Picture1", width, width) {
    fields().add("RotationPitch", RotationPitch);
    Picture1.hint = "Type a direction and press Calc";
    Picture1.geometry = PictureGeometry{per_spot};
    Picture1.describe_place = [per_spot](double x, double y) { return spacing_text(per_spot * std::hypot(x, y)); };
  }

  // Zone axis or fiber direction
  TextBox Text3;
  TextBox Text4;
  TextBox Text5;
  CommandButton Command8{*this, "Command8", "Calc"};

  // Width of the picture, inverse angstroms
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

  TextBox Text6{*this, "Text6"};  // exponent of the intensity
  CheckBox Check3{*this, "Check3", "Index"};
  CommandButton Command1{*this, "Command1", "close"};

  /// Guards all that draws, and says what a drawing is made from.
  /// @param drawing  what draws besides the controls of both windows
  void declare(const Reason& reason, std::initializer_list<Control*> drawing, Origin origin) {
    warn({&Command8, &Command2, &Command3, &Command6, &Command9, &Command11, &Command7, &Command10, &Command12, &Text5},
         reason);
    warn(drawing, reason);
    origin.inputs.push_back(inputs::settings({"CamAcquisition", "PatternAngle", "SpotScale"}, {&Text6, &Check3}));
    origin.again = {&Command8};
    Picture1.made_from = std::move(origin);
  }

  FileDialog CommonDialog1;
  Canvas Picture1;

  Single RotationPitch = 0;  ///< degrees
};

}  // namespace zol
