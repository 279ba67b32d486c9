// The table in which the atom sites of the crystal are entered. It edits a copy; "OK" takes it over.
#pragma once

#include "entry/window/table_form.h"
#include "shell/services/guards.h"
#include "shell/services/workbench.h"

namespace zol {

/// Columns: site name, element, occupancy, x, y, z, B.
struct InputAtomForm : TableForm {
  static constexpr auto window_name = "InputAtom";
  static constexpr bool shows_crystal_data = true;

  explicit InputAtomForm(Workbench& bench)
      : TableForm(window_name, "Atomic Coodinates", 7), CommonDialog1(*this, bench.services, "CommonDialog1") {
    Command1.warn_when = [&bench] {
      return guard::when(bench.seen().SGFile.empty(), "no space group has been chosen");
    };
  }

  TextBox Text2{*this, "Text2", "origin shift ="};  // in x; the caption is for all three
  TextBox Text3{*this, "Text3"};                    // in y
  TextBox Text4{*this, "Text4"};                    // in z
  MenuItem Import_MINCRYST{*this, "Import_MINCRYST", "MINCRYST", "Import"};
  MenuItem Import_CIF{*this, "Import_CIF", "CIF", "Import"};

  FileDialog CommonDialog1;
};

}  // namespace zol
