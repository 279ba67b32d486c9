// The window in which a measured Kikuchi pattern is indexed: so far its triple table and what other windows write to.
#pragma once

#include "analysis/triple_table.h"
#include "shell/window_services.h"
#include "shell/workbench.h"

namespace zol {

struct Pattern3Form : Window {
  static constexpr auto window_name = "PATTERN3";

  explicit Pattern3Form(Workbench& /*bench*/) : Window(window_name, "KIKUCHI PATTERN ANALYSIS") {
    fields().add("NhklWanted", NhklWanted);
    fields().add("NhklUsed", NhklUsed);
    fields().add("TripleHKL", triples.TripleHKL);
    fields().add("TripleS", triples.TripleS);
    fields().add("TripleI", triples.TripleI);
    fields().add("TripleAngle", triples.TripleAngle);
  }

  TextBox Text2{*this, "Text2", "Nhkl="};
  TextBox Text5{*this, "Text5", "Acc. Vol (kv)="};
  Label Label6{*this, "Label6"};  // title of the crystal file
  Label Label8{*this, "Label8"};  // NhklUsed
  ProgressBar ProgressBar1{*this, "ProgressBar1"};

  Single NhklWanted = 0;  ///< reflections that the user asks for
  Single NhklUsed = 0;    ///< reflections that are taken: the wanted ones extended over ties
  TripleTable triples;
};

}  // namespace zol
