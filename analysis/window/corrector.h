// Straightens a picture whose rows are shifted against one another.
#pragma once

#include <string>
#include <vector>

#include "core/task.h"
#include "shell/services/canvas.h"

namespace zol {

inline constexpr int corrector_rows = 512;

/// Shifts of the rows, in file order. Records of two whole numbers, of which the first does not count.
/// @throws RunFailure  the file is missing or short, or a shift is not 0 to 511
[[nodiscard]] std::vector<int> read_corrector(const std::string& path);

/// Moves each row of the image to the left by its shift; what comes free at its end is grey. Progress goes by rows.
void shift_rows(Surface& image, const std::vector<int>& shifts, Task& task);

}  // namespace zol
