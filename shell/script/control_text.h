// What a script prints of a control, in UTF-8.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "shell/services/window_services.h"

namespace zol {

/// The drawing list of a picture, one primitive a line: coordinates in user units with 7 significant digits, colours as
/// RRGGBB.
[[nodiscard]] std::vector<std::string> drawing_text(const Canvas& canvas);

/// The contents of a control, one line or more by its kind; the caption of what has no contents.
void print_control(Control& shown, std::ostream& output);

}  // namespace zol
