// The words of a command in the boxes of a window.
#pragma once

#include <optional>

#include "core/number_text.h"
#include "shell/services/controls.h"

namespace zol {

/// As if typed; a word that was not given leaves the box as it is.
inline void set_number(TextBox& box, std::optional<double> number) {
  if (number) box.set_text(plain_text(to_single(*number)));
}

}  // namespace zol
