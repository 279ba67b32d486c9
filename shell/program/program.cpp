#include "shell/program/program.h"

#include "shell/program/main_menu_form.h"
#include "shell/program/window_list.h"

namespace zol {

const char* const program_version = ZOL_VERSION;

Program::Program(DataRoot data, Services& services)
    : data_(std::move(data)), bench_(state_, windows_, services, data_) {
  module1_.add_fields(bench_.state);
  add_windows(bench_);
}

std::function<void()> Program::keep() {
  return [this, windows = windows_.copies(), state = state_] {
    windows_.put_back(windows);
    state_ = state;
  };
}

void Program::start() { windows_.use(MainMenuForm::window_name).show(); }

}  // namespace zol
