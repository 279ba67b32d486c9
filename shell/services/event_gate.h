// The one place where events enter the program, whatever brings them: windows on a screen or the lines of a script.
//
// One event runs at a time. What comes in while one runs (from the loop of a dialog, from a repaint during a long
// handler) waits until it is over and runs then, in order. No exception leaves the gate. An event that is stopped by
// Cancelled is no failure: all is put back as it was before, and the program goes on.
#pragma once

#include <deque>
#include <exception>
#include <functional>
#include <initializer_list>
#include <string>

namespace zol {

struct UserEvent {
  std::string name;                         ///< as "click Main1.Command6"
  std::string script;                       ///< operations that repeat it, a line each; empty where none does
  std::function<void()> run;                ///< what it sets off
  std::function<bool()> still_wanted = {};  ///< asked when its turn has come; none: always
  bool stoppable = true;                    ///< else it is always short, and nothing is kept to be put back
  std::string step = {};                    ///< its name as a step of the history; empty: from the script
  std::string window = {};                  ///< that it comes from; empty where it comes from none
  std::string joins = {};                   ///< events of one such name that follow each other are one step
};

/// A line of a script from its words in UTF-8, quoted where they need it.
[[nodiscard]] std::string script_line(std::initializer_list<std::string> words);

/// An event that one operation of a script repeats.
[[nodiscard]] UserEvent operation(std::initializer_list<std::string> words, std::function<void()> run);

/// What the user is told of an exception of any type.
[[nodiscard]] std::string failure_text(const std::exception_ptr& failure);

class EventGate {
 public:
  /// @param settle  what follows each event; its failures count as those of the event
  /// @param failed  tells a failure and ends the program; it is called once at most
  EventGate(std::function<void()> settle, std::function<void(const std::exception_ptr&)> failed)
      : settle_(std::move(settle)), failed_(std::move(failed)) {}

  /// Runs an event, and then those that came in meanwhile. Behind the end of the program nothing runs.
  void enter(UserEvent event);
  /// Runs what is no event, as a repaint; its failure ends the program as well.
  void guard(const std::function<void()>& action) noexcept;
  /// A failure outside any event, or past it. The first one counts.
  void fail(const std::exception_ptr& failure) noexcept;
  /// The program has ended: no further event comes in.
  void end() noexcept { ended_ = true; }
  [[nodiscard]] bool ended() const noexcept { return ended_; }

  /// Asked before each event that can be stopped. It keeps all that an event may change; its answer puts that back.
  void set_keep(std::function<std::function<void()>()> keep) { keep_ = std::move(keep); }
  /// Told of each event that could be stopped and has run through, when all is settled.
  void set_done(std::function<void(const UserEvent&)> done) { done_ = std::move(done); }
  /// Told of each event before it runs.
  void set_journal(std::function<void(const UserEvent&)> journal) { journal_ = std::move(journal); }
  /// Told of each event as it begins, and when its handlers are over, however they ended: whether it was stopped.
  void set_follow(std::function<void(const UserEvent&)> begun, std::function<void(bool stopped)> over) {
    begun_ = std::move(begun);
    over_ = std::move(over);
  }

 private:
  void run(const UserEvent& event);
  void run_or_put_back(const UserEvent& event);
  [[nodiscard]] bool run_unless_stopped(const UserEvent& event);

  std::function<void()> settle_;
  std::function<void(const std::exception_ptr&)> failed_;
  std::function<std::function<void()>()> keep_;
  std::function<void(const UserEvent&)> journal_;
  std::function<void(const UserEvent&)> done_;
  std::function<void(const UserEvent&)> begun_;
  std::function<void(bool)> over_;
  std::deque<UserEvent> waiting_;
  bool running_ = false;
  bool ended_ = false;
};

}  // namespace zol
