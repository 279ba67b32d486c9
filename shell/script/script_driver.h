// Drives the program by a text of operations, one a line, instead of a mouse and a keyboard.
//
// The script and what it prints are UTF-8, the texts of the program Latin-1; names of files go through as they are.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "shell/program/program.h"
#include "shell/script/script_services.h"
#include "shell/services/event_gate.h"

namespace zol {

class ScriptDriver {
 public:
  ScriptDriver(Program& program, ScriptServices& services, std::ostream& output);

  /// Runs the operations to the end of the text or of the program.
  /// @throws ScriptError  with the line number
  /// @throws RunFailure  from the program, or the script breaks off while it is read
  /// @throws UnansweredQuestion  from the program
  /// @throws ScriptStopped  the surroundings want an end
  void run(std::istream& script);

 private:
  using Words = std::vector<std::string>;
  void execute(const Words& words);
  struct Operation;
  static const std::vector<Operation>& operations();

  Window& window(const std::string& name);
  template <class Kind>
  Kind& control(const std::string& name);
  Control& any_control(const std::string& name);
  void type(const Words& words);
  void click(const Words& words);
  void select(const Words& words);
  void choose(const Words& words);
  void print(const Words& words);
  void print_value(const std::string& owner, const NamedValues& values, const std::string& name);
  void print_table(const Words& words);
  void call(const Words& words);
  void print_pages();
  void go_in_history(std::shared_ptr<const Snapshot> (History::*go)(), const std::string& (History::*name)() const,
                     const std::string& word);

  Program& program_;
  ScriptServices& services_;
  std::ostream& output_;
  int line_ = 0;                // that runs, from 1
  std::exception_ptr stopped_;  ///< what has ended the event of an operation
  EventGate gate_;
  std::shared_ptr<const Snapshot> kept_;  ///< by the operation "snapshot", from which on steps can be undone
};

}  // namespace zol
