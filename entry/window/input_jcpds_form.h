// The table in which observed powder reflections are entered in place of atoms.
#pragma once

#include "entry/window/table_form.h"
#include "shell/services/workbench.h"

namespace zol {

/// Columns: intensity, h, k, l.
struct InputJcpdsForm : TableForm {
  static constexpr auto window_name = "InputJCPDS";
  static constexpr bool shows_crystal_data = true;

  explicit InputJcpdsForm(Workbench& /*bench*/) : TableForm(window_name, "JCPDS input", 4) {}
};

}  // namespace zol
