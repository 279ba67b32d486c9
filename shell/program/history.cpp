#include "shell/program/history.h"

#include <utility>

namespace zol {
namespace {

const std::string none;

}  // namespace

void History::note(const StepName& step, std::shared_ptr<const Snapshot> before,
                   std::shared_ptr<const Snapshot> after) {
  const bool goes_on = !step.key.empty() && done_ > 0 && done_ == steps_.size() && steps_.back().key == step.key;
  if (goes_on) {
    steps_.back().name = step.name;
    steps_.back().after = std::move(after);
  } else {
    steps_.resize(done_);
    steps_.push_back({step.name, step.key, std::move(before), std::move(after)});
    if (steps_.size() > most_steps) steps_.pop_front();
    done_ = steps_.size();
  }
  if (step.ends) steps_.back().key.clear();
}

const std::string& History::undo_name() const { return done_ > 0 ? steps_[done_ - 1].name : none; }

const std::string& History::redo_name() const { return done_ < steps_.size() ? steps_[done_].name : none; }

std::shared_ptr<const Snapshot> History::undo() {
  if (done_ == 0) return nullptr;
  return steps_[--done_].before;
}

std::shared_ptr<const Snapshot> History::redo() {
  if (done_ == steps_.size()) return nullptr;
  return steps_[done_++].after;
}

}  // namespace zol
