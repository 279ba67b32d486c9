// The window of the X-ray powder pattern.
#pragma once

#include "powder/line_profile.h"
#include "powder/window/curve_form.h"
#include "powder/window/powder_form.h"
#include "shell/services/window_services.h"
#include "shell/services/workbench.h"

namespace zol {

struct XdForm : Window, PowderPattern {
  static constexpr auto window_name = "Xd";
  static constexpr bool shows_crystal_data = true;

  explicit XdForm(Workbench& bench);

  TextBox Text1{*this, "Text1", "2theta.min="};         // TwoThetaMin
  TextBox Text2{*this, "Text2", "2theta.max="};         // TwoThetaMax
  TextBox Text3{*this, "Text3", "half.width="};         // HalfWidth
  TextBox Text4{*this, "Text4", "Gaussian Ratio(%)="};  // GaussianRatio
  TextBox Text5{*this, "Text5"};                        // DisplayMax, taken over by Enter
  TextBox Text6{*this, "Text6", "P="};
  TextBox Text7{*this, "Text7", "Q="};
  TextBox Text8{*this, "Text8", "R="};

  CommandButton Command1{*this, "Command1", "CALC"};
  CommandButton Command2{*this, "Command2", "Clear"};
  CommandButton Command3{*this, "Command3", "Save to file"};
  CommandButton Command4{*this, "Command4", "Save Image"};
  CommandButton Command5{*this, "Command5", "Copy"};  // to the printer
  CommandButton Command6{*this, "Command6", "▲"};
  CommandButton Command7{*this, "Command7", "▼"};

  Canvas Picture1;                  // the pattern over 2-theta
  ListBox List1{*this, "List1"};    // peaks
  Label Label5{*this, "Label5"};    // read-out: 2-theta
  Label Label6{*this, "Label6"};    // d
  Label Label7{*this, "Label7"};    // intensity
  Label Label12{*this, "Label12"};  // steps of the interference grid
  ProgressBar ProgressBar1{*this, "ProgressBar1"};
  FileDialog CommonDialog1;
  CurveControls Curves;

  Single TwoThetaMin = 0, TwoThetaMax = 0;  ///< degrees
  Single GaussianRatio = 0;                 ///< per cent
  Single PeakMax = 0;                       ///< largest sample of the last calculation, what per cents refer to

  [[nodiscard]] TwoThetaRange range() const { return {TwoThetaMin, TwoThetaMax}; }
  [[nodiscard]] PseudoVoigt line() const { return {HalfWidth, GaussianRatio}; }

 private:
  void declare(const Workbench& bench);
  void offer_curve();
};

}  // namespace zol
