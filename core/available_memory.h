// How much memory there really is: the system grants more than it has and stops a program that then fills it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace zol {

/// Bytes that can be filled now: what the machine has free or can free, or less where a control group sets a limit.
/// None when the system does not report it.
/// @param root  folder that stands for "/"
[[nodiscard]] std::optional<std::uint64_t> available_memory(const std::string& root = "");

/// Fails the run when fewer bytes than that are available; small sizes are not checked.
/// @param array  the array that needs them, with its bounds, for the message
/// @throws RunFailure  names the array, its size and the memory available
void require_memory(std::string_view array, std::uint64_t bytes);

}  // namespace zol
