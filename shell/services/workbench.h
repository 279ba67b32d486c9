// What every handler works on: the crystal, the windows, the surroundings, the folders of the data.
#pragma once

#include "core/crystal_state.h"
#include "core/data_root.h"
#include "core/task.h"
#include "shell/services/window_services.h"

namespace zol {

struct Workbench {
  Workbench(CrystalState& crystal, Windows& all_windows, Services& surroundings, const DataRoot& data_root)
      : state(crystal), windows(all_windows), services(surroundings), data(data_root), crystal_(crystal) {}

  Module1State& state;  ///< what lives on Main1 comes through main1_state
  Windows& windows;
  Services& services;
  const DataRoot& data;

  void show_window(const std::string& name) const { windows.use(name).show(); }

 private:
  friend struct Main1Form;  // touching a field that lives on it is a use of that window
  CrystalState& crystal_;
};

/// Shows the progress of a calculation in a bar.
class BarTask : public Task {
 public:
  explicit BarTask(ProgressBar& bar) : bar_(bar) {}
  void report(int done, int /*total*/) override { bar_.set_value(static_cast<Single>(done)); }
  void check() override {}

 private:
  ProgressBar& bar_;
};

}  // namespace zol
