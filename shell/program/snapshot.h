// All that a user could miss, as one value: the crystal and what the windows hold. Snapshots taken one after the other
// share what has not changed between them, so that one after each event costs little.
#pragma once

#include <memory>

#include "shell/services/window_services.h"

namespace zol {

struct Snapshot {
  NamedValues::Copies state;
  Windows::Copies windows;
};

/// Whether a user would see a difference: not by pointers, or by which windows are open or in front.
[[nodiscard]] bool same_work(const Snapshot& a, const Snapshot& b);
/// Whether no window that is in both has changed.
[[nodiscard]] bool same_windows(const Snapshot& a, const Snapshot& b);
/// Whether the same windows exist and are on the screen.
[[nodiscard]] bool same_screen(const Snapshot& a, const Snapshot& b);

}  // namespace zol
