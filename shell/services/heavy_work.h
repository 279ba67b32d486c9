// Work that the user is asked about before it begins.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "core/task.h"

namespace zol {

/// More than a minute, or more than a quarter of the memory.
/// @param free_bytes  that can be filled now; none where nobody knows
[[nodiscard]] bool is_heavy(const Effort& effort, std::optional<std::uint64_t> free_bytes);

/// "This would take about 4 minutes and 300 MB. Do it all the same?"
[[nodiscard]] std::string effort_question(const Effort& effort);

}  // namespace zol
