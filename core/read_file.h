// The bytes of a file. All readers of the program go through here, so that none of them waits for a pipe or fills
// the memory from a device.
#pragma once

#include <cstddef>
#include <string>

#include "core/task.h"

namespace zol {

/// The largest text file that is read. A structure file with its measured intensities has some 50 MB.
inline constexpr std::size_t most_text_bytes = std::size_t{64} << 20;

/// Bytes of a whole regular file.
/// @throws RunFailure  the file is missing, not a regular file, larger than most_bytes, or unreadable; the message
///                     names the path
[[nodiscard]] std::string read_file(const std::string& path, std::size_t most_bytes = most_text_bytes);
/// The same while the task is asked whether to go on: a large file or a slow disk takes its time.
[[nodiscard]] std::string read_file(const std::string& path, Task& task);

/// The first bytes of a file, all of a shorter one. @throws RunFailure  as read_file
[[nodiscard]] std::string read_beginning(const std::string& path, std::size_t bytes);

}  // namespace zol
