// Names of what the user did, as the menu of undo shows them.
#pragma once

#include <string>

#include "shell/services/event_gate.h"
#include "shell/services/window_services.h"

namespace zol {

struct StepName {
  std::string name;   ///< as "a= 4.05", "OK", "DATA_LOAD NaCl.cry"
  std::string key;    ///< of the box that was typed into; empty for any other event
  bool ends = false;  ///< what follows is another step, also with the same key
};

/// By the first operation of a script that repeats the event, and what its control holds after it.
[[nodiscard]] StepName step_of(const UserEvent& event, const Windows& windows);

}  // namespace zol
