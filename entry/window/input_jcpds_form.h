// The table in which observed powder reflections are entered in place of atoms.
#pragma once

#include "entry/window/table_form.h"
#include "shell/services/window_services.h"
#include "shell/services/workbench.h"

namespace zol {

struct InputJcpdsForm : Window {
  static constexpr auto window_name = "InputJCPDS";

  explicit InputJcpdsForm(Workbench& /*bench*/) : Window(window_name, "JCPDS input") { frame_button = &Command2; }

  Grid G{*this, "G", table_rows + 1, 5};  // intensity, h, k, l
  TextBox Text1{*this, "Text1"};          // edit buffer of the current cell
  CommandButton Command1{*this, "Command1", "OK"};
  CommandButton Command2{*this, "Command2", "CANCEL"};
  CommandButton Command3{*this, "Command3", "delete a cell"};
  CommandButton Command4{*this, "Command4", "delete a row"};
};

}  // namespace zol
