// All windows of the program.
#pragma once

namespace zol {

struct Workbench;

/// Makes every window known. None is created by that.
void add_windows(Workbench& bench);

}  // namespace zol
