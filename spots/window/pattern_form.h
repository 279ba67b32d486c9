// The window of the electron spot pattern.
#pragma once

#include "spots/window/spots_form.h"

namespace zol {

/// The picture counts 1/(2d).
struct PatternForm : SpotsForm {
  static constexpr auto window_name = "Pattern";
  static constexpr bool shows_crystal_data = true;

  explicit PatternForm(Workbench& bench) : SpotsForm(bench, window_name, "ED PATTERN", {"u=", "v=", "w="}, 8500, 2) {}

  TextBox Text2{*this, "Text2", "Level="};      // Laue level
  CommandButton Command5{*this, "Command5"};    // the next level
  CommandButton Command14{*this, "Command14"};  // the level before

  // Grey scale
  OptionButton Option1{*this, "Option1", "I"};
  OptionButton Option2{*this, "Option2", "Sqr( I )"};
  Frame Frame1{*this, "Frame1", "Frame1"};
  CommandButton Command4{*this, "Command4", "UP"};
  CommandButton Command13{*this, "Command13", "DWN"};

  MenuItem ISAVE{*this, "ISAVE", "PATTERN SAVE"};
  MenuItem Spotsize{*this, "Spotsize", "Diffraction spot size"};
  MenuItem Rpitch{*this, "Rpitch", "Rotation angle pitch"};
  MenuItem Fsize{*this, "Fsize", "Font size"};
};

}  // namespace zol
