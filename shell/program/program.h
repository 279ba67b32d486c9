// The whole program apart from what shows it: it owns the state and the windows and ties events to handlers.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "core/crystal_state.h"
#include "core/data_root.h"
#include "shell/program/history.h"
#include "shell/services/event_gate.h"
#include "shell/services/window_services.h"
#include "shell/services/workbench.h"

namespace zol {

extern const char* const program_version;  ///< as "6.37"

class Program {
 public:
  Program(DataRoot data, Services& services);
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  /// Opens MAIN_MENU, as the start of the program. @throws RunFailure  the camera file can't be read
  void start();

  [[nodiscard]] Windows& windows() { return windows_; }
  [[nodiscard]] CrystalState& state() { return state_; }
  [[nodiscard]] Workbench& bench() { return bench_; }
  /// All of windows and state, shared with the snapshot before as far as nothing has changed.
  [[nodiscard]] std::shared_ptr<const Snapshot> snapshot();
  /// Makes windows and state what they were. No handler runs.
  void put_back(const Snapshot& snapshot);
  /// Takes a snapshot. @returns what makes everything as it is now
  [[nodiscard]] std::function<void()> keep();

  /// What the gate's events have done; filled by watch.
  [[nodiscard]] History& history() { return history_; }
  /// From now on each event that comes through the gate and changes something is a step of the history, and one that is
  /// stopped is put back.
  void watch(EventGate& gate);

  /// The name of its file without folder and ending; empty where it has none.
  [[nodiscard]] std::string crystal_name() const;
  /// All fields of the crystal state.
  [[nodiscard]] const NamedValues& state_fields() const { return state_fields_; }
  /// The arrays and scalars that belong to no window.
  [[nodiscard]] const NamedValues& module1() const { return module1_; }

 private:
  DataRoot data_;
  CrystalState state_;
  Windows windows_;
  NamedValues module1_;
  NamedValues state_fields_;
  History history_;
  bool went_back_ = false;  ///< in the present event, which then is no step
  std::shared_ptr<const Snapshot> last_ = std::make_shared<const Snapshot>();
  Workbench bench_;
};

}  // namespace zol
