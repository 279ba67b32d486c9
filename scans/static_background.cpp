#include "scans/static_background.h"

#include <algorithm>
#include <cstddef>
#include <numeric>
#include <utility>

#include "core/run_failure.h"

namespace zol {
namespace {

/// Of pictures spread evenly over the scan; empty where too few are there.
std::vector<float> mean_of_points(Scan& scan, std::size_t points, Task& task) {
  constexpr std::size_t looked_at = 400;
  constexpr std::size_t least = 100;  ///< fewer do not cancel
  if (points < least) return {};
  std::vector<float> sums(scan.header().pixels(), 0);
  PatternBlock block;
  std::size_t used = 0;
  for (std::size_t i = 0; i < looked_at; ++i) {
    task.check();
    scan.read(i * points / looked_at, 1, block);
    if (block.present[0] == 0) continue;
    ++used;
    for (std::size_t p = 0; p < sums.size(); ++p) sums[p] += block.values[p];
  }
  if (used < least) return {};
  for (float& value : sums) value /= static_cast<float>(used);
  return sums;
}

double sum_of(std::span<const float> values) {
  return std::accumulate(values.begin(), values.end(), 0.0,
                         [](double sum, float value) { return sum + static_cast<double>(value); });
}

}  // namespace

void StaticBackground::find(Scan& scan, const TileReader& reader, std::size_t points, const MapSettings& settings,
                            Task& task) {
  const bool given = !settings.background_picture.empty();
  std::vector<float> picture = given ? settings.background_picture : scan.header().static_background;
  kind_ = given ? BackgroundKind::given : BackgroundKind::of_scan;
  if (picture.empty()) {
    if (settings.background == Background::stored) throw RunFailure("the scan holds no static background");
    kind_ = BackgroundKind::mean_of_points;
    picture = mean_of_points(scan, points, task);
  }
  values_.clear();
  if (!picture.empty()) {
    values_.resize(reader.gathering().pixels());
    reader.reduce(picture, values_);
    mean_ = sum_of(values_) / static_cast<double>(values_.size());
    if (!(mean_ > 0)) values_.clear();
  }
  if (values_.empty()) kind_ = BackgroundKind::none;
}

void StaticBackground::take_off(std::span<float> pattern) const {
  if (values_.empty()) return;
  const auto scale = static_cast<float>(sum_of(pattern) / static_cast<double>(pattern.size()) / mean_);
  for (std::size_t i = 0; i < pattern.size(); ++i) pattern[i] -= scale * values_[i];
}

}  // namespace zol
