// The window of the electron Debye rings.
#pragma once

#include "powder/window/curve_form.h"
#include "powder/window/powder_form.h"
#include "shell/services/window_services.h"
#include "shell/services/workbench.h"

namespace zol {

struct DringForm : Window, PowderPattern {
  static constexpr auto window_name = "Dring";
  static constexpr bool shows_crystal_data = true;

  explicit DringForm(Workbench& bench);

  TextBox Text2{*this, "Text2", "d*-max(A-1)="};  // DStarMax
  TextBox Text3{*this, "Text3", "half.width ="};  // HalfWidth
  TextBox Text5{*this, "Text5"};                  // DisplayMax
  TextBox Text6{*this, "Text6", "P="};
  TextBox Text7{*this, "Text7", "Q="};
  TextBox Text8{*this, "Text8", "R="};
  CheckBox Check1{*this, "Check1", "Sqr( I )"};
  CheckBox Check2{*this, "Check2", "Center Origin"};
  CheckBox Check3{*this, "Check3", "Color Inverse"};

  CommandButton Command1{*this, "Command1", "CALC"};
  CommandButton Command2{*this, "Command2", "Clear"};
  CommandButton Command3{*this, "Command3", "SAVE IMAGE"};
  CommandButton Command4{*this, "Command4", "save to file"};
  CommandButton Command5{*this, "Command5", "copy"};  // to the printer
  CommandButton Command6{*this, "Command6", "I-up"};
  CommandButton Command7{*this, "Command7", "I-dwn"};

  Canvas Picture1;                // radial profile over 1/d
  Canvas Picture2;                // rings
  ListBox List1{*this, "List1"};  // peaks
  Label Label4{*this, "Label4"};  // read-out of the profile: d
  Label Label5{*this, "Label5"};  // intensity
  Label Label1{*this, "Label1"};  // read-out of the rings: d
  Label Label6{*this, "Label6"};  // steps of the interference grid
  ProgressBar ProgressBar1{*this, "ProgressBar1"};
  FileDialog CommonDialog1;
  CurveControls Curves;

  Single DStarMax = 0;  ///< end of the profile, radius of the ring picture, 1/angstrom

 private:
  void declare(const Workbench& bench);
  void offer_curve();
};

}  // namespace zol
