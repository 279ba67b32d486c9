// The window of bonds, their angles and coordination numbers.
#pragma once

#include "shell/services/guards.h"
#include "shell/services/list_columns.h"
#include "shell/services/window_services.h"
#include "shell/services/workbench.h"

namespace zol {

struct BondsForm : Window {
  static constexpr auto window_name = "Bonds";
  static constexpr bool shows_crystal_data = true;

  explicit BondsForm(Workbench& bench);

  TextBox Limit{*this, "Limit", "Bonds up to (A):"};  // empty: to the first gap
  TextBox Gap{*this, "Gap", "First gap (%):"};
  CommandButton Calc{*this, "Calc", "Calc"};
  Label SitesHeading{*this, "SitesHeading", "atom    elem.    CN  shortest      mean   longest      next"};
  ListBox Sites{*this, "Sites"};
  Label BondsHeading{*this, "BondsHeading", "atom 1  elem. atom 2  elem.   distance         x         y         z"};
  ListBox BondList{*this, "BondList"};
  Label AnglesHeading{*this, "AnglesHeading", "atom 1  centre  atom 2      angle       d 1       d 2"};
  ListBox Angles{*this, "Angles"};
  Label Status{*this, "Status"};  // how many there are, or why there are none

 private:
  void declare_tables();
};

}  // namespace zol
