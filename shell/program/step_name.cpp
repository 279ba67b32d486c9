#include "shell/program/step_name.h"

#include <algorithm>
#include <string_view>
#include <vector>

#include "core/trimmed.h"

namespace zol {
namespace {

std::vector<std::string> first_words(const std::string& script) {
  std::vector<std::string> words(1);
  for (const char c : script.substr(0, script.find('\n'))) {
    if (c == ' ') {
      words.emplace_back();
    } else {
      words.back() += c;
    }
  }
  return words;
}

/// Its caption, or its name where it has none.
std::string caption_of(const Control& control) {
  const auto caption = trimmed(control.caption(), " ");
  return caption.empty() ? control.path() : std::string(caption);
}

}  // namespace

StepName step_of(const UserEvent& event, const Windows& windows) {
  if (!event.step.empty()) return {event.step, event.joins};
  const auto words = first_words(event.script);
  if (words.size() < 2) return {event.name, ""};
  const std::size_t dot = words[1].find('.');
  const Window* window = windows.find(words[1].substr(0, dot));
  const Control* control =
      window == nullptr || dot == std::string::npos ? nullptr : window->find(words[1].substr(dot + 1));
  if (control == nullptr) return {event.name, ""};
  const std::string caption = caption_of(*control);
  const bool takes_in = event.script.find("\\r") != std::string::npos;  // Enter
  if (const auto* box = dynamic_cast<const TextBox*>(control)) {
    return {caption + (caption.ends_with('=') || caption.ends_with(':') ? " " : " = ") + box->text(), box->path(),
            words[0] == "leave" || takes_in};
  }
  if (dynamic_cast<const Grid*>(control) != nullptr) {
    return {"table of " + window->caption(), control->path(), takes_in};
  }
  if (const auto* list = dynamic_cast<const ListBox*>(control)) {
    const int line = list->list_index();
    return {line < 0 ? caption : "line " + std::to_string(line + 1) + " of " + caption, ""};
  }
  return {caption, ""};
}

}  // namespace zol
