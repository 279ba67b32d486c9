#include "scans/neighbour_average.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "indexing/vector_clones.h"

namespace zol {
namespace {

constexpr double noticed = 1e-3;  ///< weights below it are left out

struct Difference {
  float square = 0, count = 0;
};

/// Sum of squared differences of the pixels that are not saturated in either, and their number.
ZOL_VECTOR_CLONES void compare(const float* a, const float* b, std::size_t count, float saturated, Difference& found) {
  float square = 0;
  float used = 0;
#pragma omp simd reduction(+ : square, used)
  for (std::size_t i = 0; i < count; ++i) {
    const float step = a[i] - b[i];
    const float counts = a[i] < saturated && b[i] < saturated ? 1.0F : 0.0F;
    square += counts * step * step;
    used += counts;
  }
  found.square = square;
  found.count = used;
}

ZOL_VECTOR_CLONES void add_weighted(const float* from, float weight, std::size_t count, float* to) {
  for (std::size_t i = 0; i < count; ++i) to[i] += weight * from[i];
}

}  // namespace

/// Half of all steps: the other half are these from the other end.
const std::vector<LikenessAverage::Offset>& LikenessAverage::offsets() {
  static const std::vector<Offset> all = [] {
    std::vector<Offset> steps;
    for (int down = 0; down <= radius; ++down) {
      for (int right = -radius; right <= radius; ++right) {
        if (down > 0 || right > 0) steps.push_back({right, down});
      }
    }
    return steps;
  }();
  return all;
}

void LikenessAverage::look_at(const PatternTile& tile) {
  tile_ = &tile;
  const std::size_t points = tile.place(0, tile.rows);
  squares_.assign(points * offsets().size(), -1);
  counts_.assign(squares_.size(), 0);
  constexpr float none = std::numeric_limits<float>::max();
  variance_.assign(points, none);
  twins_.assign(points, 0);
  // Point by point, so that a pattern and those about it stay in the cache for all steps.
  for (int row = 0; row < tile.rows; ++row) {
    for (int column = 0; column < tile.columns; ++column) compare_with_neighbours(column, row);
  }
  // Identical twins, which some detectors deliver, tell nothing of the noise; many of them tell that there is none.
  constexpr int many = 3;
  for (std::size_t i = 0; i < points; ++i) {
    if (twins_[i] >= many) variance_[i] = rounding_;
  }
}

void LikenessAverage::compare_with_neighbours(int column, int row) {
  const PatternTile& tile = *tile_;
  const std::size_t here = tile.place(column, row);
  if (tile.present[here] == 0) return;
  for (std::size_t o = 0; o < offsets().size(); ++o) {
    const auto [right, down] = offsets()[o];
    if (column + right < 0 || column + right >= tile.columns || row + down >= tile.rows) continue;
    const std::size_t there = tile.place(column + right, row + down);
    if (tile.present[there] == 0) continue;
    Difference found;
    compare(tile.pattern(here).data(), tile.pattern(there).data(), tile.pixels, saturated_, found);
    if (found.count < 1) continue;
    const float mean = found.square / found.count;
    squares_[o * variance_.size() + here] = mean;
    counts_[o * variance_.size() + here] = found.count;
    if (std::abs(right) > 1 || down > 1) continue;
    if (mean <= 0) {
      ++twins_[here];
      ++twins_[there];
      continue;
    }
    variance_[here] = std::min(variance_[here], mean / 2);
    variance_[there] = std::min(variance_[there], mean / 2);
  }
}

/// In units of its own spread: how much more two patterns differ than noise of theirs would make them.
double LikenessAverage::difference(std::size_t i, std::size_t offset, bool forward, const Offset& step) const {
  const std::size_t points = variance_.size();
  const auto across = static_cast<std::ptrdiff_t>(tile_->columns);
  const std::ptrdiff_t shift = step.down * across + step.right;
  const auto there = static_cast<std::size_t>(static_cast<std::ptrdiff_t>(i) + (forward ? shift : -shift));
  const std::size_t first = forward ? i : there;
  const auto mean = static_cast<double>(squares_[offset * points + first]);
  if (mean < 0) return -1;
  const double noise = static_cast<double>(variance_[i]) + static_cast<double>(variance_[there]);
  if (!(noise > 0) || noise >= static_cast<double>(std::numeric_limits<float>::max())) return -1;
  const auto count = static_cast<double>(counts_[offset * points + first]);
  return std::max((mean - noise) * std::sqrt(count) / (noise * std::sqrt(2.0)), 0.0);
}

/// Calls with the neighbour's place and its distance, in the order of the steps.
template <class Visit>
void LikenessAverage::each_neighbour(int column, int row, const Visit& visit) const {
  const std::size_t here = tile_->place(column, row);
  for (std::size_t o = 0; o < offsets().size(); ++o) {
    for (const bool forward : {true, false}) {
      const int sign = forward ? 1 : -1;
      const int x = column + sign * offsets()[o].right;
      const int y = row + sign * offsets()[o].down;
      if (x < 0 || y < 0 || x >= tile_->columns || y >= tile_->rows) continue;
      const double far = difference(here, o, forward, offsets()[o]);
      if (far >= 0) visit(tile_->place(x, y), far);
    }
  }
}

std::vector<double> LikenessAverage::distances(int column, int row) const {
  std::vector<double> found;
  each_neighbour(column, row, [&found](std::size_t /*there*/, double far) { found.push_back(far); });
  return found;
}

void LikenessAverage::average(int column, int row, double length, std::span<float> pattern) const {
  const auto own = tile_->pattern(tile_->place(column, row));
  std::copy(own.begin(), own.end(), pattern.begin());
  double sum = 1;
  each_neighbour(column, row, [&](std::size_t there, double far) {
    const double weight = std::exp(-far / (length * length));
    if (weight < noticed) return;
    add_weighted(tile_->pattern(there).data(), static_cast<float>(weight), pattern.size(), pattern.data());
    sum += weight;
  });
  const auto share = static_cast<float>(1 / sum);
  for (float& value : pattern) value *= share;
}

double length_of_likeness(const std::vector<std::vector<double>>& distances, double own_share) {
  constexpr double longest = 1.5;
  const auto middle_share = [&distances](double length) {
    std::vector<double> shares;
    for (const auto& of_point : distances) {
      double sum = 1;
      for (const double far : of_point) sum += std::exp(-far / (length * length));
      shares.push_back(1 / sum);
    }
    const auto middle = shares.begin() + static_cast<std::ptrdiff_t>(shares.size() / 2);
    std::nth_element(shares.begin(), middle, shares.end());
    return *middle;
  };
  double shorter = 0.05;
  double longer = longest;
  if (distances.empty() || middle_share(longer) > own_share) return longer;
  for (int round = 0; round < 40; ++round) {
    const double length = (shorter + longer) / 2;
    (middle_share(length) > own_share ? shorter : longer) = length;
  }
  return longer;
}

}  // namespace zol
