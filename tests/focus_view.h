// A view that remembers where the focus was sent, the pointers of the windows, and the bars.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "shell/services/window.h"

namespace zol {

class FocusView : public WindowView {
 public:
  void window_created(Window& window) override { window.set_view(this); }
  void window_shown(Window& /*window*/) override { ++shown; }
  void window_changed(Window& window) override { pointers.push_back(window.mouse_pointer()); }
  void window_unloaded(Window& /*window*/) override {}
  void control_changed(Control& control) override {
    const auto* bar = dynamic_cast<const ProgressBar*>(&control);
    if (bar == nullptr) return;
    bars.push_back(bar->value());
    const std::pair range{bar->minimum(), bar->maximum()};
    if (ranges.empty() || ranges.back() != range) ranges.push_back(range);
  }
  void focus_wanted(Control& control) override { wanted.push_back(control.name()); }

  std::vector<std::string> wanted;  ///< names of controls
  int shown = 0;                    ///< how often a window came up
  std::vector<MousePointer> pointers;
  std::vector<Single> bars;                       ///< values
  std::vector<std::pair<Single, Single>> ranges;  ///< of bars, where they change
};

}  // namespace zol
