#include "shell/program/program.h"

#include <utility>

#include "shell/program/main_menu_form.h"
#include "shell/program/step_name.h"
#include "shell/program/window_list.h"

namespace zol {

const char* const program_version = ZOL_VERSION;

Program::Program(DataRoot data, Services& services)
    : data_(std::move(data)), bench_(state_, windows_, services, data_) {
  module1_.add_fields(bench_.state);
  state_fields_.add_fields(state_);
  add_windows(bench_);
}

std::shared_ptr<const Snapshot> Program::snapshot() {
  last_ =
      std::make_shared<const Snapshot>(Snapshot{state_fields_.copies(last_->state), windows_.copies(last_->windows)});
  return last_;
}

void Program::put_back(const Snapshot& snapshot) {
  windows_.put_back(snapshot.windows);
  state_fields_.put_back(snapshot.state);
  went_back_ = true;
}

std::function<void()> Program::keep() {
  return [this, kept = snapshot()] { put_back(*kept); };
}

void Program::watch(EventGate& gate) {
  gate.set_keep([this] {
    went_back_ = false;
    return keep();
  });
  gate.set_done([this](const UserEvent& event) {
    if (std::exchange(went_back_, false)) return;
    const auto before = last_;  // taken as the event began
    auto after = snapshot();
    if (same_work(*before, *after)) return;
    const auto step = step_of(event, windows_);
    history_.note(step.name, step.key, before, std::move(after));
  });
}

std::string Program::crystal_name() const {
  const Window* main1 = windows_.find("Main1");
  const auto* path = main1 == nullptr ? nullptr : dynamic_cast<const TextBox*>(main1->find("Text17"));
  if (path == nullptr) return "";
  const std::string file = path->text().substr(path->text().rfind('/') + 1);
  return file.substr(0, file.rfind('.'));
}

void Program::start() { windows_.use(MainMenuForm::window_name).show(); }

}  // namespace zol
