// The surroundings of a program that is driven by a script: queued answers instead of dialogs, printed pages kept as
// text.
#pragma once

#include <deque>
#include <exception>
#include <iosfwd>
#include <string>
#include <vector>

#include "shell/script/stop_signal.h"
#include "shell/services/latin1.h"
#include "shell/services/pictures.h"
#include "shell/services/window_services.h"

namespace zol {

/// An operation that cannot be read or names no control.
class ScriptError : public std::exception {
 public:
  /// @param line  where it is when that is not the line that runs
  explicit ScriptError(const std::string& message, int line = 0)
      : message_(line > 0 ? "line " + std::to_string(line) + ": " + message : message), line_(line) {}
  [[nodiscard]] const char* what() const noexcept override { return message_.c_str(); }
  [[nodiscard]] int line() const { return line_; }

 private:
  std::string message_;
  int line_;
};

/// A dialog came up and no answer was queued.
class UnansweredQuestion : public std::exception {
 public:
  explicit UnansweredQuestion(std::string question) : question_(std::move(question)) {}
  [[nodiscard]] const char* what() const noexcept override { return question_.c_str(); }

 private:
  std::string question_;
};

class ScriptServices : public Services {
 public:
  /// @param output    receives the line that represents a message box
  /// @param pictures  makes pixels; without it there are none
  explicit ScriptServices(std::ostream& output, PictureMaker* pictures = nullptr)
      : output_(output), pictures_(pictures) {}
  /// Queues the answer to the next dialog, in UTF-8 or a path; an empty one cancels it.
  /// @param line  of the script, for a message
  void queue_answer(std::string answer, int line = 0) { answers_.push_back({std::move(answer), line}); }
  /// What has gone to the printer since the last call, in UTF-8.
  [[nodiscard]] std::vector<std::string> take_printed() { return std::exchange(printed_, {}); }
  [[nodiscard]] bool ended() const { return ended_; }

  std::string ask_file(const FileQuestion& question) override;
  void set_up_printer() override {}
  std::string prompt(const std::string& text, const std::string& title) override;
  void message(const std::string& text, const std::string& title) override;
  void print_line(const std::string& line) override { printed_.push_back(utf8_of_latin1(line)); }
  void end_document(const std::string& /*title*/) override { printed_.emplace_back("--end of document--"); }
  void print_window(Window& window) override { printed_.push_back("window " + readable_utf8(window.caption())); }
  std::unique_ptr<Surface> make_surface(int width, int height) override;
  void export_picture(Canvas& canvas, const std::string& path) override;
  [[nodiscard]] bool stop_wanted() override { return stop_signal() != 0; }
  void end_program() override { ended_ = true; }

 private:
  struct Answer {
    std::string text;
    int line = 0;
  };
  Answer next_answer(const std::string& question);
  std::ostream& output_;
  PictureMaker* pictures_;
  std::deque<Answer> answers_;
  std::vector<std::string> printed_;
  bool ended_ = false;
};

}  // namespace zol
