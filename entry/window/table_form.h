// What the two table editors have in common: a grid of 200 numbered rows, the buffer by way of which it is typed into,
// and the buttons beside it. They differ by their columns.
#pragma once

#include <string>
#include <utility>

#include "shell/services/window_services.h"

namespace zol {

inline constexpr int table_rows = 200;

struct TableForm : Window {
  TableForm(std::string name, std::string caption, int columns)
      : Window(std::move(name), std::move(caption)), G(*this, "G", table_rows + 1, columns + 1) {
    frame_button = &Command2;
    G.buffer = &Text1;
    G.emptier = &Command3;
    G.warn_when = [this] {
      const bool at_end = G.row() >= table_rows && G.column() == G.columns() - 1;
      return std::string(at_end ? "this is the last cell: there is no next row" : "");
    };
  }

  Grid G;                         // column 0 shows the numbers of the rows
  TextBox Text1{*this, "Text1"};  // edit buffer of the current cell
  CommandButton Command1{*this, "Command1", "OK"};
  CommandButton Command2{*this, "Command2", "CANCEL"};
  CommandButton Command3{*this, "Command3", "delete a cell"};
  CommandButton Command4{*this, "Command4", "delete a row"};
};

}  // namespace zol
