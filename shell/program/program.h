// The whole program apart from what shows it: it owns the state and the windows and ties events to handlers.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "core/crystal_state.h"
#include "core/data_root.h"
#include "shell/program/history.h"
#include "shell/program/snapshot_file.h"
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

  /// Opens MAIN_MENU, as the start of the program. @throws RunFailure  the camera file cannot be read
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
  /// Told of each event that was watched, when it is over, and of each snapshot that was put back.
  void set_changed(std::function<void(const std::shared_ptr<const Snapshot>&)> changed) {
    changed_ = std::move(changed);
  }

  /// The name of its file without folder and ending; empty where it has none.
  [[nodiscard]] std::string crystal_name() const;
  /// As "20 kV" or "1.542 Å"; empty without either.
  [[nodiscard]] std::string radiation() const;
  /// Whether there is something of a crystal: a constant of the cell, an atom, an observed reflection.
  [[nodiscard]] bool holds_crystal() const;
  /// Whether there is a crystal, and its file would hold another one than that which was loaded or saved last.
  [[nodiscard]] bool crystal_unsaved() const;

  /// A snapshot with what is said of it.
  [[nodiscard]] KeptWork kept_work(std::shared_ptr<const Snapshot> snapshot) const;
  /// @throws RunFailure  see snapshot_file.h; nothing has changed then
  [[nodiscard]] KeptWork read_work(std::string_view bytes);
  /// Brings the work of an earlier run back. In an event that is watched it is a step, and can be undone.
  void restore(const KeptWork& work);

  /// All fields of the crystal state.
  [[nodiscard]] const NamedValues& state_fields() const { return state_fields_; }
  /// The arrays and scalars that belong to no window.
  [[nodiscard]] const NamedValues& module1() const { return module1_; }

 private:
  void tell_change() const;

  DataRoot data_;
  CrystalState state_;
  Windows windows_;
  NamedValues module1_;
  NamedValues state_fields_;
  History history_;
  bool went_back_ = false;  ///< in the present event, which then is not a step
  std::function<void(const std::shared_ptr<const Snapshot>&)> changed_;
  std::shared_ptr<const Snapshot> began_;  ///< as the present event began
  std::shared_ptr<const Snapshot> last_ = std::make_shared<const Snapshot>();
  Workbench bench_;
};

}  // namespace zol
