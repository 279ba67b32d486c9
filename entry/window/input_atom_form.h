// The table in which the atom sites of the crystal are entered. It edits a copy; "OK" takes it over.
#pragma once

#include "entry/window/table_form.h"
#include "shell/services/window_services.h"
#include "shell/services/workbench.h"

namespace zol {

struct InputAtomForm : Window {
  static constexpr auto window_name = "InputAtom";

  explicit InputAtomForm(Workbench& bench) : Window(window_name, "Atomic Coodinates"), CommonDialog1(bench.services) {
    frame_button = &Command2;
  }

  Grid G{*this, "G", table_rows + 1, 8};            // site name, element, occupancy, x, y, z, B
  TextBox Text1{*this, "Text1"};                    // edit buffer of the current cell
  TextBox Text2{*this, "Text2", "origin shift ="};  // in x; the caption stands for all three
  TextBox Text3{*this, "Text3"};                    // in y
  TextBox Text4{*this, "Text4"};                    // in z
  CommandButton Command1{*this, "Command1", "OK"};
  CommandButton Command2{*this, "Command2", "CANCEL"};
  CommandButton Command3{*this, "Command3", "delete a cell"};
  CommandButton Command4{*this, "Command4", "delete a row"};
  MenuItem Import_MINCRYST{*this, "Import_MINCRYST", "MINCRYST", "Import"};
  MenuItem Import_CIF{*this, "Import_CIF", "CIF", "Import"};

  FileDialog CommonDialog1;
};

}  // namespace zol
