// What a button does in windows where a failure does not end the run.
#pragma once

#include <functional>

#include "shell/services/workbench.h"

namespace zol {

/// Runs the action. A failure of the run, or memory that does not suffice, stands in the label and is told under the
/// caption of the window; the program goes on. All else, as a user's stop, goes through.
void attempt(Services& services, const Window& window, Label& status, const std::function<void()>& action);
template <class Form>
void attempt(Workbench& bench, Form& form, const std::function<void()>& action) {
  attempt(bench.services, form, form.Status, action);
}

}  // namespace zol
