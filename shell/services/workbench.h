// What every handler works on: the crystal, the windows, the surroundings, the folders of the data.
#pragma once

#include <string>

#include "core/crystal_state.h"
#include "core/data_root.h"
#include "core/task.h"
#include "shell/services/window_services.h"

namespace zol {

struct Workbench {
  Workbench(CrystalState& crystal, Windows& all_windows, Services& surroundings, const DataRoot& data_root)
      : state(crystal), windows(all_windows), services(surroundings), data(data_root), crystal_(crystal) {}

  Module1State& state;  ///< what lives on Main1 comes through main1_state
  /// All of the state for what only looks on, as a guard does: that is no use of Main1.
  [[nodiscard]] const CrystalState& seen() const { return crystal_; }
  Windows& windows;
  Services& services;
  const DataRoot& data;
  std::string saved_crystal;  ///< text of the crystal file that was last loaded or saved

  void show_window(const std::string& name) const { windows.use(name).show(); }

 private:
  friend struct Main1Form;  // touching a field that lives on it is a use of that window
  CrystalState& crystal_;
};

/// A calculation that the user can stop and that shows its progress where there is a bar for it.
class WindowTask : public Task {
 public:
  explicit WindowTask(Services& services) : services_(services), depth_(++services.tasks_) {}
  WindowTask(Services& services, ProgressBar& bar) : WindowTask(services) { bar_ = &bar; }
  ~WindowTask() override { --services_.tasks_; }
  void report(int done, int total) override {
    if (bar_ != nullptr) bar_->set_value(static_cast<Single>(done));
    if (depth_ == 1) services_.work_reported(done, total);  // what it calls is a part of it
  }
  void check() override {
    if (services_.stop_wanted()) throw Cancelled();
  }
  void expect(const Effort& effort) override {
    if (!services_.confirm_work(effort)) throw Cancelled();
  }

 private:
  Services& services_;
  ProgressBar* bar_ = nullptr;
  int depth_;
};

}  // namespace zol
