// The menu of a curve, and the bar with the boxes that its window offers for it.
#pragma once

#include "shell/desktop/user_events.h"
#include "shell/services/window_services.h"

namespace zol {

class Desktop;

/// Makes both, for each picture of the window that offers something beside its curve, and what shows it. Before the
/// controls are tied to their widgets, some of which are made here.
void offer_curves(Window& window, QWidget& top, Desktop& desktop, UserEvents& events);

}  // namespace zol
