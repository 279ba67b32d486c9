#include "dynamics/depth_solver.h"

#include <algorithm>
#include <cmath>
#include <complex>
#include <vector>

#include "dynamics/tiles.h"
#include "indexing/vector_clones.h"

namespace zol {
namespace {

/// One tile of M and of S from the table of pairs.
ZOL_VECTOR_CLONES void fill_tile(const PairTerm* pairs, const int* rows, const int* columns, Tile& matrix,
                                 Tile& sources) {
  for (std::size_t j = 0; j < tile_side; ++j) {
    const PairTerm* column = pairs - columns[j];
    float* re = matrix.re[j].values.data();
    float* im = matrix.im[j].values.data();
    float* source_re = sources.re[j].values.data();
    float* source_im = sources.im[j].values.data();
    for (std::size_t i = 0; i < tile_side; ++i) {
      const PairTerm& term = column[rows[i]];
      re[i] = term.re;
      im[i] = term.im;
      source_re[i] = term.source_re;
      source_im[i] = term.source_im;
    }
  }
}

}  // namespace

struct DepthSolver::Storage {
  std::vector<int> offsets;
  std::vector<Tile> matrix, sources, depth;  // the last: 16 coefficients of the depth for 16 beams each
  std::vector<TileVector> x, y;
  std::size_t blocks = 0;

  [[nodiscard]] Tile& at(std::size_t row, std::size_t column) { return matrix[row * blocks + column]; }
  void assemble(const CoupledBeams& beams, float shift);
  void clear_padding(std::size_t count);
  void fold_weak(const CoupledBeams& beams);
  void factorise(bool symmetric);
  void solve(const std::vector<TileVector>& right);
  [[nodiscard]] double summed_yield() const;
};

void DepthSolver::Storage::assemble(const CoupledBeams& beams, float shift) {
  const std::size_t count = beams.offsets.size();
  blocks = (count + tile_side - 1) / tile_side;
  offsets.assign(blocks * tile_side, beams.offsets.front());
  std::copy(beams.offsets.begin(), beams.offsets.end(), offsets.begin());
  matrix.resize(blocks * blocks);
  sources.resize(blocks * blocks);
  depth.resize(blocks);
  x.resize(blocks);
  y.resize(blocks);
  for (std::size_t i = 0; i < blocks; ++i) {
    for (std::size_t j = beams.symmetric ? i : 0; j < blocks; ++j) {
      fill_tile(beams.pairs, &offsets[i * tile_side], &offsets[j * tile_side], at(i, j), sources[i * blocks + j]);
    }
  }
  clear_padding(count);
  for (std::size_t i = 0; i < blocks * tile_side; ++i) {
    const std::size_t inside = i % tile_side;
    Tile& tile = at(i / tile_side, i / tile_side);
    tile.re[inside].values[inside] = shift;
    tile.im[inside].values[inside] = i < count ? beams.deviations[i] : 0;
  }
}

/// Beyond the last beam nothing is coupled.
void DepthSolver::Storage::clear_padding(std::size_t count) {
  const std::size_t first = count % tile_side;
  if (first == 0) return;
  const std::size_t last = blocks - 1;
  for (std::size_t b = 0; b < blocks; ++b) {
    for (Tile* tile : {&at(b, last), &sources[b * blocks + last]}) {
      for (std::size_t j = first; j < tile_side; ++j) tile->re[j] = tile->im[j] = {};
    }
    for (Tile* tile : {&at(last, b), &sources[last * blocks + b]}) {
      for (std::size_t j = 0; j < tile_side; ++j) {
        std::fill(tile->re[j].values.begin() + static_cast<std::ptrdiff_t>(first), tile->re[j].values.end(), 0.0F);
        std::fill(tile->im[j].values.begin() + static_cast<std::ptrdiff_t>(first), tile->im[j].values.end(), 0.0F);
      }
    }
  }
}

/// M_ij -= M_iw M_wj / M_ww. Source: Wang & De Graef, Ultramicroscopy 160 (2016) 35.
void DepthSolver::Storage::fold_weak(const CoupledBeams& beams) {
  const std::size_t count = beams.offsets.size();
  for (std::size_t w = 0; w < beams.weak_offsets.size(); ++w) {
    const std::complex<float> own(0, beams.weak_deviations[w]);
    for (std::size_t j = 0; j < count; ++j) {
      const PairTerm& from = beams.pairs[beams.weak_offsets[w] - beams.offsets[j]];
      const std::complex<float> factor = std::complex<float>(from.re, from.im) / own;
      for (std::size_t i = 0; i < count; ++i) {
        const PairTerm& to = beams.pairs[beams.offsets[i] - beams.weak_offsets[w]];
        const std::complex<float> change = std::complex<float>(to.re, to.im) * factor;
        Tile& tile = at(i / tile_side, j / tile_side);
        tile.re[j % tile_side].values[i % tile_side] -= change.real();
        tile.im[j % tile_side].values[i % tile_side] -= change.imag();
      }
    }
  }
}

/// Afterwards: above the diagonal what is left of M, on it negative inverses, below it the multipliers.
void DepthSolver::Storage::factorise(bool symmetric) {
  for (std::size_t k = 0; k < blocks; ++k) {
    negative_inverse(at(k, k));
    for (std::size_t i = k + 1; i < blocks; ++i) {
      Tile below;
      if (symmetric) {
        transpose(below, at(k, i));
      } else {
        below = at(i, k);
      }
      at(i, k) = {};
      subtract_product(at(i, k), below, at(k, k));
    }
    for (std::size_t i = k + 1; i < blocks; ++i) {
      for (std::size_t j = symmetric ? i : k + 1; j < blocks; ++j) subtract_product(at(i, j), at(i, k), at(k, j));
    }
  }
}

/// x = M^-1 right
void DepthSolver::Storage::solve(const std::vector<TileVector>& right) {
  for (std::size_t i = 0; i < blocks; ++i) {
    subtract_products({&at(i, 0), i}, y.data(), right[i], y[i]);
  }
  for (std::size_t k = blocks; k-- > 0;) {
    TileVector part;
    subtract_products({&at(k, k) + 1, blocks - 1 - k}, x.data() + k + 1, y[k], part);
    subtract_products({&at(k, k), 1}, &part, TileVector{}, x[k]);
  }
}

/// Sum over 16 coefficients of the depth. S is Hermitian, so that each pair counts twice.
double DepthSolver::Storage::summed_yield() const {
  double sum = 0;
  for (std::size_t i = 0; i < blocks; ++i) {
    sum += sandwich(depth[i], sources[i * blocks + i], depth[i]);
    for (std::size_t j = i + 1; j < blocks; ++j) sum += 2 * sandwich(depth[i], sources[i * blocks + j], depth[j]);
  }
  return sum;
}

DepthSolver::DepthSolver() : storage_(std::make_unique<Storage>()) {}
DepthSolver::DepthSolver(DepthSolver&&) noexcept = default;
DepthSolver::~DepthSolver() = default;

double DepthSolver::yield(const CoupledBeams& beams, const DepthSettings& settings) {
  Storage& s = *storage_;
  const double decay = 1 / (2 * settings.mean_depth);
  s.assemble(beams, static_cast<float>(decay + settings.scale));
  s.fold_weak(beams);
  s.factorise(beams.symmetric);
  const std::size_t blocks = s.blocks;
  std::vector<TileVector> now(blocks);
  now[0].re.values[0] = static_cast<float>(std::sqrt(2 * settings.scale));
  const auto twice = static_cast<float>(2 * settings.scale);
  double sum = 0;
  for (int term = 0; term < settings.terms; ++term) {
    s.solve(now);
    for (std::size_t b = 0; b < blocks; ++b) {
      for (std::size_t i = 0; i < tile_side; ++i) {
        float& re = now[b].re.values[i];
        float& im = now[b].im.values[i];
        re = term == 0 ? s.x[b].re.values[i] : re - twice * s.x[b].re.values[i];
        im = term == 0 ? s.x[b].im.values[i] : im - twice * s.x[b].im.values[i];
      }
      const auto column = static_cast<std::size_t>(term) % tile_side;
      s.depth[b].re[column] = now[b].re;
      s.depth[b].im[column] = now[b].im;
    }
    if (static_cast<std::size_t>(term) % tile_side == tile_side - 1) sum += s.summed_yield();
  }
  return 2 * decay * sum;
}

}  // namespace zol
