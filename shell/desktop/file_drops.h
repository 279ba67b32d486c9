// Files dropped on a window.
#pragma once

#include "shell/desktop/user_events.h"

namespace zol {

/// Lets a window take what it declares as its file drops: the file answers the dialog of the menu item, as if the user
/// had chosen the item and then the file.
void accept_file_drops(Window& window, QWidget& widget, UserEvents& events);

}  // namespace zol
