// LZF, the quick packing of some HDF5 files.
#pragma once

#include <cstddef>
#include <optional>
#include <span>

namespace zol {

/// Unpacks a block. Source of the format: liblzf's description; a byte below 32 begins a run of literal bytes, another
/// one a copy of what stands before.
/// @returns the bytes written, none where the block is damaged or longer than its place
[[nodiscard]] std::optional<std::size_t> unpack_lzf(std::span<const std::byte> packed, std::span<std::byte> unpacked);

/// Makes the filter with number 32000 known to the HDF5 library, once.
void register_lzf_filter();

}  // namespace zol
