#include "scans/tile_reader.h"

#include <algorithm>
#include <utility>

namespace zol {

void TileReader::reduce(std::span<const float> pattern, std::span<float> reduced) const {
  const int last = gathering_.picture_height - 1;
  const auto row_at = [&](int y) {
    const int from = flip_ ? y : last - y;
    return pattern.data() + static_cast<std::ptrdiff_t>(from) * gathering_.picture_width;
  };
  for (int y = 0; y < gathering_.height; ++y) {
    gathering_.gather(y, row_at, reduced.data() + static_cast<std::ptrdiff_t>(y) * gathering_.width);
  }
}

void TileReader::read(const MapTile& tile, int margin, PatternBlock& block, PatternTile& into) {
  into.columns = tile.columns + 2 * margin;
  into.rows = tile.rows + 2 * margin;
  into.pixels = gathering_.pixels();
  const std::size_t places = into.place(0, into.rows);
  into.values.resize(places * into.pixels);
  into.present.assign(places, 0);
  for (int row = 0; row < into.rows; ++row) {
    const int map_row = tile.row - margin + row;
    const int first = std::max(0, tile.column - margin);
    const int last = std::min(grid_.columns - 1, tile.column + tile.columns + margin - 1);
    const auto begin = grid_.point(first, map_row);
    if (!begin) continue;
    const int end = grid_.point(last, map_row) ? last : last - 1;
    if (end < first) continue;
    read_run(*begin, static_cast<std::size_t>(end - first) + 1, into.place(first - (tile.column - margin), row), block,
             into);
  }
}

/// In pieces, since whole patterns are large.
void TileReader::read_run(std::size_t first, std::size_t count, std::size_t to, PatternBlock& block,
                          PatternTile& into) {
  constexpr std::size_t most_values = std::size_t{1} << 20U;
  const std::size_t at_once = std::max<std::size_t>(1, most_values / std::max<std::size_t>(1, scan_.header().pixels()));
  for (std::size_t done = 0; done < count; done += at_once) {
    const std::size_t piece = std::min(at_once, count - done);
    {
      const std::lock_guard lock(reading_);
      scan_.read(first + done, piece, block);
    }
    for (std::size_t i = 0; i < piece; ++i) {
      const std::size_t place = to + done + i;
      into.present[place] = block.present[i];
      reduce(std::as_const(block).pattern(i), std::span(into.values).subspan(place * into.pixels, into.pixels));
    }
  }
}

}  // namespace zol
