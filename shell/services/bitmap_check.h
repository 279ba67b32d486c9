// Is a bitmap file whole? A decoder that stops early leaves pixels that show what the memory held before.
#pragma once

#include <string>
#include <string_view>

namespace zol {

inline constexpr std::size_t most_picture_pixels = std::size_t{8192} * 8192;  // 256 MB at 4 bytes each
inline constexpr int most_picture_side = 32767;
inline constexpr auto possible_picture_sizes = "a side has 1 to 32767, and 8192 x 8192 in all are possible";

/// Holds for bitmaps (BMP) of 1 to 32 bits a pixel, plain, with bit fields or run-length encoded, that have all of
/// their pixels.
/// @param path  names the file in messages
/// @throws RunFailure  another kind of file, an impossible header, or pixels that are missing: which
/// Source: the layout as in "Bitmap Storage" of Microsoft's documentation of Windows GDI.
void check_bitmap(const std::string& path, std::string_view bytes);

}  // namespace zol
