#include "shell/services/event_gate.h"

#include <new>

#include "core/run_failure.h"
#include "core/task.h"

namespace zol {
namespace {

/// Sets a flag as long as it lives.
class Raised {
 public:
  explicit Raised(bool& flag) : flag_(flag) { flag_ = true; }
  Raised(const Raised&) = delete;
  Raised& operator=(const Raised&) = delete;
  ~Raised() { flag_ = false; }

 private:
  bool& flag_;
};

/// A word as a script has it: in quotes, with backslashes, unless it stands for itself.
std::string script_word(const std::string& word) {
  if (!word.empty() && word.find_first_of(" \t\r\n\b\"\\#") == std::string::npos) return word;
  constexpr std::string_view special = "\"\\\n\r\t\b";
  constexpr std::string_view letters = "\"\\nrtb";
  std::string quoted = "\"";
  for (const char c : word) {
    const std::size_t place = special.find(c);
    if (place != std::string_view::npos) quoted += '\\';
    quoted += place == std::string_view::npos ? c : letters[place];
  }
  return quoted + '"';
}

}  // namespace

std::string script_line(std::initializer_list<std::string> words) {
  std::string line;
  for (const auto& word : words) line += (line.empty() ? "" : " ") + script_word(word);
  return line;
}

UserEvent operation(std::initializer_list<std::string> words, std::function<void()> run) {
  const std::string line = script_line(words);
  return {line, line, std::move(run)};
}

std::string failure_text(const std::exception_ptr& failure) {
  try {
    std::rethrow_exception(failure);
  } catch (const RunFailure& known) {
    return known.message();
  } catch (const std::bad_alloc&) {
    return "not enough memory";
  } catch (const std::exception& other) {
    return std::string("the program is at fault: ") + other.what();
  } catch (...) {
    return "the program is at fault, it does not say how";
  }
}

void EventGate::enter(UserEvent event) {
  if (ended_) return;
  waiting_.push_back(std::move(event));
  if (running_) return;
  const Raised running(running_);
  while (!ended_ && !waiting_.empty()) {
    const UserEvent next = std::move(waiting_.front());
    waiting_.pop_front();
    run(next);
  }
  waiting_.clear();
}

void EventGate::run(const UserEvent& event) {
  guard([this, &event] {
    if (event.still_wanted && !event.still_wanted()) return;
    if (journal_) journal_(event);
    run_or_put_back(event);
    if (!ended_) settle_();
    if (!ended_ && done_ && event.stoppable) done_(event);
  });
}

bool EventGate::run_unless_stopped(const UserEvent& event) {
  struct Follow {
    explicit Follow(const std::function<void(bool)>& told) : over(told) {}
    Follow(const Follow&) = delete;
    Follow& operator=(const Follow&) = delete;
    ~Follow() {
      if (over) over(stopped);
    }
    const std::function<void(bool)>& over;
    bool stopped = false;
  } follow(over_);
  if (begun_) begun_(event);
  try {
    event.run();
  } catch (const Cancelled&) {
    follow.stopped = true;
  }
  return !follow.stopped;
}

void EventGate::run_or_put_back(const UserEvent& event) {
  std::function<void()> put_back;
  if (keep_ && event.stoppable) put_back = keep_();
  if (!run_unless_stopped(event) && put_back) put_back();
}

void EventGate::guard(const std::function<void()>& action) noexcept {
  try {
    action();
  } catch (...) {
    fail(std::current_exception());
  }
}

void EventGate::fail(const std::exception_ptr& failure) noexcept {
  if (ended_) return;
  ended_ = true;
  try {
    failed_(failure);
  } catch (...) {  // nothing is left to tell it with
  }
}

}  // namespace zol
