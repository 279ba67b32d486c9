// Files compressed by gzip.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace zol {

[[nodiscard]] bool is_gzip(std::string_view bytes);

/// @throws RunFailure  it is broken, cut short, or unpacks to more than most_bytes
[[nodiscard]] std::string gunzip(std::string_view bytes, std::size_t most_bytes);

}  // namespace zol
