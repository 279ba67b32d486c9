#include "shell/script/script_services.h"

#include <ostream>

#include "core/run_failure.h"

namespace zol {

ScriptServices::Answer ScriptServices::next_answer(const std::string& question) {
  if (answers_.empty()) throw UnansweredQuestion(question);
  Answer answer = std::move(answers_.front());
  answers_.pop_front();
  return answer;
}

std::string ScriptServices::ask_file(const FileQuestion& question) {
  return next_answer(question.save ? "the name of a file to save" : "the name of a file to open").text;
}

std::string ScriptServices::prompt(const std::string& text, const std::string& title) {
  const Answer answer = next_answer(text + " (" + title + ")");
  Latin1 typed = latin1_of_utf8(answer.text);
  if (!typed.refused.empty()) throw ScriptError(typed.refused, answer.line);
  return std::move(typed.text);
}

void ScriptServices::message(const std::string& text, const std::string& title) {
  output_ << "message \"" << readable_utf8(text) << "\" \"" << readable_utf8(title) << "\"\n";
}

std::unique_ptr<Surface> ScriptServices::make_surface(int width, int height) {
  return pictures_ == nullptr ? nullptr : pictures_->make_surface(width, height);
}

void ScriptServices::export_picture(Canvas& canvas, const std::string& path) {
  if (pictures_ == nullptr) throw RunFailure("cannot export to " + path + ": there are no pixel images here");
  pictures_->export_picture(canvas, path);
}

}  // namespace zol
