// How much memory there really is: the system grants more than it has and stops a program that then fills it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace zol {

/// Bytes that can be filled now: what the machine has free or can free, or less where a control group sets a limit.
/// None where the system does not tell.
/// @param root  folder that stands for "/"
[[nodiscard]] std::optional<std::uint64_t> available_memory(const std::string& root = "");

/// Fails the run when so many bytes are not there; small sizes are not looked at.
/// @param array  what asks for them, with its bounds, for the message
/// @throws RunFailure  names the array, its size and what is there
void require_memory(std::string_view array, std::uint64_t bytes);

}  // namespace zol
