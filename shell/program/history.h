// What the user did, step by step, to be undone and done again.
#pragma once

#include <cstddef>
#include <deque>
#include <memory>
#include <string>

#include "shell/program/snapshot.h"
#include "shell/program/step_name.h"

namespace zol {

class History {
 public:
  static constexpr std::size_t most_steps = 200;

  /// Notes an event that has changed something; steps that were undone are forgotten. Events with the same key that
  /// follow each other, the keys typed into one box, are one step.
  void note(const StepName& step, std::shared_ptr<const Snapshot> before, std::shared_ptr<const Snapshot> after);

  /// Name of the step that would be undone or done again; empty where there is none.
  [[nodiscard]] const std::string& undo_name() const;
  [[nodiscard]] const std::string& redo_name() const;

  /// Goes one step back or forth. @returns what is to be put back; a null pointer where there is no step
  [[nodiscard]] std::shared_ptr<const Snapshot> undo();
  [[nodiscard]] std::shared_ptr<const Snapshot> redo();

 private:
  struct Step {
    std::string name, key;
    std::shared_ptr<const Snapshot> before, after;
  };
  std::deque<Step> steps_;
  std::size_t done_ = 0;  ///< steps that are in force
};

}  // namespace zol
