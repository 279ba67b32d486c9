#include "dynamics/tiles.h"

#include "indexing/vector_clones.h"

namespace zol {
namespace {

// A column; the compiler breaks it into vectors of the processor.
typedef float Lanes __attribute__((vector_size(64), may_alias));  // NOLINT(modernize-use-using): attributes

constexpr Lanes none{};

}  // namespace

// Four columns at a time keep eight sums in registers.
ZOL_VECTOR_CLONES void subtract_product(Tile& result, const Tile& a, const Tile& b) {
  const auto* a_re = reinterpret_cast<const Lanes*>(a.re.data());
  const auto* a_im = reinterpret_cast<const Lanes*>(a.im.data());
  auto* out_re = reinterpret_cast<Lanes*>(result.re.data());
  auto* out_im = reinterpret_cast<Lanes*>(result.im.data());
  const auto* b_re = reinterpret_cast<const float*>(b.re.data());
  const auto* b_im = reinterpret_cast<const float*>(b.im.data());
  for (std::size_t j = 0; j < tile_side; j += 4) {
    Lanes re0 = out_re[j], re1 = out_re[j + 1], re2 = out_re[j + 2], re3 = out_re[j + 3];
    Lanes im0 = out_im[j], im1 = out_im[j + 1], im2 = out_im[j + 2], im3 = out_im[j + 3];
    for (std::size_t k = 0; k < tile_side; ++k) {
      const Lanes ar = a_re[k];
      const Lanes ai = a_im[k];
      const std::size_t at = j * tile_side + k;
      re0 = re0 - ar * b_re[at] + ai * b_im[at];
      im0 = im0 - ar * b_im[at] - ai * b_re[at];
      re1 = re1 - ar * b_re[at + 16] + ai * b_im[at + 16];
      im1 = im1 - ar * b_im[at + 16] - ai * b_re[at + 16];
      re2 = re2 - ar * b_re[at + 32] + ai * b_im[at + 32];
      im2 = im2 - ar * b_im[at + 32] - ai * b_re[at + 32];
      re3 = re3 - ar * b_re[at + 48] + ai * b_im[at + 48];
      im3 = im3 - ar * b_im[at + 48] - ai * b_re[at + 48];
    }
    out_re[j] = re0, out_re[j + 1] = re1, out_re[j + 2] = re2, out_re[j + 3] = re3;
    out_im[j] = im0, out_im[j + 1] = im1, out_im[j + 2] = im2, out_im[j + 3] = im3;
  }
}

// Gauss and Jordan's steps. The row of the pivot is made by the same product as the others: with the pivot less 1 in
// its place of the column, so that no single number has to be written into a vector.
ZOL_VECTOR_CLONES void negative_inverse(Tile& tile) {
  auto* re = reinterpret_cast<Lanes*>(tile.re.data());
  auto* im = reinterpret_cast<Lanes*>(tile.im.data());
  for (std::size_t k = 0; k < tile_side; ++k) {
    const float pivot_re = tile.re[k].values[k];
    const float pivot_im = tile.im[k].values[k];
    const float square = pivot_re * pivot_re + pivot_im * pivot_im;
    const float p_re = pivot_re / square;
    const float p_im = -pivot_im / square;
    TileColumn column = tile.re[k];
    column.values[k] = pivot_re - 1;
    const Lanes v_re = *reinterpret_cast<const Lanes*>(column.values.data());
    const Lanes v_im = im[k];
    for (std::size_t j = 0; j < tile_side; ++j) {
      if (j == k) continue;
      const float c_re = tile.re[j].values[k];
      const float c_im = tile.im[j].values[k];
      const float t_re = c_re * p_re - c_im * p_im;
      const float t_im = c_re * p_im + c_im * p_re;
      re[j] = re[j] - v_re * t_re + v_im * t_im;
      im[j] = im[j] - v_re * t_im - v_im * t_re;
    }
    TileColumn last_re = tile.re[k];
    TileColumn last_im = tile.im[k];
    last_re.values[k] = -1;
    last_im.values[k] = 0;
    const Lanes w_re = *reinterpret_cast<const Lanes*>(last_re.values.data());
    const Lanes w_im = *reinterpret_cast<const Lanes*>(last_im.values.data());
    re[k] = w_im * p_im - w_re * p_re;
    im[k] = -(w_re * p_im) - w_im * p_re;
  }
  for (std::size_t j = 0; j < tile_side; ++j) {
    re[j] = -re[j];
    im[j] = -im[j];
  }
}

ZOL_VECTOR_CLONES void transpose(Tile& result, const Tile& tile) {
  for (std::size_t i = 0; i < tile_side; ++i) {
    for (std::size_t j = 0; j < tile_side; ++j) {
      result.re[i].values[j] = tile.re[j].values[i];
      result.im[i].values[j] = tile.im[j].values[i];
    }
  }
}

// Each product has a sum of its own: none waits for another.
ZOL_VECTOR_CLONES void subtract_products(std::span<const Tile> tiles, const TileVector* vectors,
                                         const TileVector& start, TileVector& result) {
  Lanes re0 = *reinterpret_cast<const Lanes*>(&start.re), im0 = *reinterpret_cast<const Lanes*>(&start.im);
  Lanes re1 = none, im1 = none, re2 = none, im2 = none, re3 = none, im3 = none;
  for (std::size_t t = 0; t < tiles.size(); ++t) {
    const auto* tile_re = reinterpret_cast<const Lanes*>(tiles[t].re.data());
    const auto* tile_im = reinterpret_cast<const Lanes*>(tiles[t].im.data());
    const float* x_re = vectors[t].re.values.data();
    const float* x_im = vectors[t].im.values.data();
    for (std::size_t k = 0; k < tile_side; k += 2) {
      re0 = re0 - tile_re[k] * x_re[k];
      im0 = im0 - tile_re[k] * x_im[k];
      re1 = re1 + tile_im[k] * x_im[k];
      im1 = im1 - tile_im[k] * x_re[k];
      re2 = re2 - tile_re[k + 1] * x_re[k + 1];
      im2 = im2 - tile_re[k + 1] * x_im[k + 1];
      re3 = re3 + tile_im[k + 1] * x_im[k + 1];
      im3 = im3 - tile_im[k + 1] * x_re[k + 1];
    }
  }
  *reinterpret_cast<Lanes*>(&result.re) = (re0 + re1) + (re2 + re3);
  *reinterpret_cast<Lanes*>(&result.im) = (im0 + im1) + (im2 + im3);
}

ZOL_VECTOR_CLONES double sandwich(const Tile& left, const Tile& matrix, const Tile& right) {
  const auto* left_re = reinterpret_cast<const Lanes*>(left.re.data());
  const auto* left_im = reinterpret_cast<const Lanes*>(left.im.data());
  Tile product{};
  subtract_product(product, matrix, right);
  const auto* p_re = reinterpret_cast<const Lanes*>(product.re.data());
  const auto* p_im = reinterpret_cast<const Lanes*>(product.im.data());
  Lanes sum = none;
  for (std::size_t j = 0; j < tile_side; ++j) sum = sum - left_re[j] * p_re[j] - left_im[j] * p_im[j];
  double total = 0;
  for (std::size_t i = 0; i < tile_side; ++i) total += static_cast<double>(sum[i]);
  return total;
}

}  // namespace zol
