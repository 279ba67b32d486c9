// The whole program apart from what shows it: it owns the state and the windows and ties events to handlers.
#pragma once

#include <functional>
#include <string>

#include "core/crystal_state.h"
#include "core/data_root.h"
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
  /// Copies windows and state. @returns what makes them as they are now
  [[nodiscard]] std::function<void()> keep();

  /// The arrays and scalars that belong to no window.
  [[nodiscard]] const NamedValues& module1() const { return module1_; }

 private:
  DataRoot data_;
  CrystalState state_;
  Windows windows_;
  NamedValues module1_;
  Workbench bench_;
};

}  // namespace zol
