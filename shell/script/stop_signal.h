// SIGINT and SIGTERM end a script between two steps of a calculation or between two operations: the output so far is
// written, files are whole.
#pragma once

#include <exception>

namespace zol {

/// The script has been stopped by a signal.
class ScriptStopped : public std::exception {
 public:
  [[nodiscard]] const char* what() const noexcept override { return "the script was stopped by a signal"; }
};

/// From now on the signals are taken, unless they have been ignored; one more, two seconds later, ends the process.
void take_stop_signals();

/// The signal that has come; 0: none.
[[nodiscard]] int stop_signal() noexcept;

/// As long as it lives nothing runs and nothing is left to be written: a signal ends the process at once, since reading
/// may wait for ever.
class Waits {
 public:
  Waits() noexcept;
  Waits(const Waits&) = delete;
  Waits& operator=(const Waits&) = delete;
  ~Waits();
};

}  // namespace zol
