// The bytes of a file. All readers of the program go through here, so that none of them hangs on a pipe or fills the
// memory from a device.
#pragma once

#include <cstddef>
#include <string>

namespace zol {

/// The largest text file that is taken. A structure file with its measured intensities has some 50 MB.
inline constexpr std::size_t most_text_bytes = std::size_t{64} << 20;

/// Bytes of a whole regular file.
/// @throws RunFailure  the file is missing, no regular file, larger than most_bytes, or can't be read; the message
/// names
///                     the path
[[nodiscard]] std::string read_file(const std::string& path, std::size_t most_bytes = most_text_bytes);

}  // namespace zol
