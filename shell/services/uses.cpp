#include "shell/services/uses.h"

#include <algorithm>

#include "core/run_failure.h"
#include "shell/services/event_gate.h"
#include "shell/services/window.h"

namespace zol {
namespace {

void click(Window& window, const MenuItem& item, const std::string& file) {
  if (file.empty()) return item.click();
  const auto drop = std::find_if(window.file_drops.begin(), window.file_drops.end(),
                                 [&item](const FileDrop& taken) { return taken.item == &item; });
  if (drop == window.file_drops.end()) throw RunFailure(item.path() + " takes no file");
  drop->dialog->answering(file, [&item] { item.click(); });
}

}  // namespace

void use_controls(Windows& windows, const std::vector<Use>& uses) {
  for (const Use& use : uses) {
    const std::size_t dot = use.control.find('.');
    Window& window = windows.use(use.control.substr(0, dot));
    Control* control = window.find(use.control.substr(dot + 1));
    if (const auto* item = dynamic_cast<MenuItem*>(control)) {
      click(window, *item, use.file);
    } else if (const auto* button = dynamic_cast<CommandButton*>(control)) {
      button->click();
    } else if (auto* box = dynamic_cast<TextBox*>(control)) {
      box->set_text(use.text);
    } else {
      throw RunFailure("there is no " + use.control + " to be used");
    }
  }
}

std::string script_of(const std::vector<Use>& uses) {
  std::string lines;
  for (const Use& use : uses) {
    if (!lines.empty()) lines += '\n';
    if (!use.file.empty()) lines += script_line({"answer", use.file}) + '\n';
    lines += use.text.empty() ? script_line({"click", use.control}) : script_line({"set", use.control, use.text});
  }
  return lines;
}

}  // namespace zol
