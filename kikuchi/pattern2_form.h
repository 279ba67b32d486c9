// The window of the simulated Kikuchi pattern: so far what other windows write to.
#pragma once

#include "shell/window_services.h"
#include "shell/workbench.h"

namespace zol {

struct Pattern2Form : Window {
  static constexpr auto window_name = "Pattern2";

  explicit Pattern2Form(Workbench& /*bench*/) : Window(window_name, "KIKUCHI PATTERN") {}

  TextBox Text14{*this, "Text14", "X-shift(deg)="};
  TextBox Text15{*this, "Text15", "Y-shift(deg)="};
  TextBox Text21{*this, "Text21", "Acc. Vol (kv)="};
  Label Label18{*this, "Label18"};  // title of the crystal file
  OptionButton Option1{*this, "Option1"};
  CheckBox Check2{*this, "Check2"};
  CheckBox Check4{*this, "Check4"};
};

}  // namespace zol
