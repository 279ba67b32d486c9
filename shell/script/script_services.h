// The surroundings of a program that is driven by a script: queued answers instead of dialogs, printed pages kept as
// text.
#pragma once

#include <deque>
#include <exception>
#include <iosfwd>
#include <string>
#include <vector>

#include "shell/pictures.h"
#include "shell/window_services.h"

namespace zol {

/// A dialog came up and no answer was queued.
class UnansweredQuestion : public std::exception {
 public:
  explicit UnansweredQuestion(std::string question) : question_(std::move(question)) {}
  [[nodiscard]] const char* what() const noexcept override { return question_.c_str(); }

 private:
  std::string question_;
};

class ScriptServices : public Services {
 public:  /// @param output    takes the line that stands for a message box
  /// @param pictures  makes pixels; without it there are none
  explicit ScriptServices(std::ostream& output, PictureMaker* pictures = nullptr)
      : output_(output), pictures_(pictures) {}
  /// Queues the answer to the next dialog; an empty one cancels it.
  void queue_answer(std::string answer) { answers_.push_back(std::move(answer)); }
  /// What has gone to the printer since the last call.
  [[nodiscard]] std::vector<std::string> take_printed() { return std::exchange(printed_, {}); }
  [[nodiscard]] bool ended() const { return ended_; }

  std::string ask_file(const FileQuestion& question) override;
  void set_up_printer() override {}
  std::string prompt(const std::string& text, const std::string& title) override;
  void message(const std::string& text, const std::string& title) override;
  void print_line(const std::string& line) override { printed_.push_back(line); }
  void end_document(const std::string& /*title*/) override { printed_.emplace_back("--end of document--"); }
  void print_window(Window& window) override { printed_.push_back("window " + window.caption()); }
  std::unique_ptr<Surface> make_surface(int width, int height) override;
  void export_picture(Canvas& canvas, const std::string& path) override;
  void end_program() override { ended_ = true; }

 private:
  std::string next_answer(const std::string& question);
  std::ostream& output_;
  PictureMaker* pictures_;
  std::deque<std::string> answers_;
  std::vector<std::string> printed_;
  bool ended_ = false;
};

}  // namespace zol
