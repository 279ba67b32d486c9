// The one way in which a run fails. Checked helpers, file readers and services throw it; it is caught in one place,
// where an event enters the program, shown to the user, and ends the program.
#pragma once

#include <exception>
#include <string>

namespace zol {

/// Carries a message for the user: what failed, with file, line, box or array, and what was expected. Each event that
/// it passes on its way out adds what was being done.
class RunFailure : public std::exception {
 public:
  explicit RunFailure(std::string message) : message_(std::move(message)) {}

  /// Adds what was being done, for instance "Main1.Text7 changed"; shown as "while ...", innermost event first.
  void add_context(const std::string& event) { message_ += ", while " + event; }

  [[nodiscard]] const std::string& message() const noexcept { return message_; }
  [[nodiscard]] const char* what() const noexcept override { return message_.c_str(); }

 private:
  std::string message_;
};

}  // namespace zol
