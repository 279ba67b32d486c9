// Complex matrices in tiles of 16 by 16, column by column, real and imaginary parts apart: a column is one vector of
// the largest kind of processors, or some of a smaller one. All products are subtracted, so that each is there once.
#pragma once

#include <array>
#include <cstddef>
#include <span>

namespace zol {

inline constexpr std::size_t tile_side = 16;

struct alignas(64) TileColumn {
  std::array<float, tile_side> values{};
};

struct Tile {
  std::array<TileColumn, tile_side> re, im;
};

/// A part of a vector of the height of a tile.
struct TileVector {
  TileColumn re, im;
};

/// result = result - a b
void subtract_product(Tile& result, const Tile& a, const Tile& b);
/// Of a matrix whose Hermitian part is positive: no pivots are looked for.
void negative_inverse(Tile& tile);
void transpose(Tile& result, const Tile& tile);
/// result = start - sum of tiles[i] vectors[i]
void subtract_products(std::span<const Tile> tiles, const TileVector* vectors, const TileVector& start,
                       TileVector& result);
/// Real part of the trace of left* matrix right.
[[nodiscard]] double sandwich(const Tile& left, const Tile& matrix, const Tile& right);

}  // namespace zol
