// What all patterns of a scan have in common: the diffuse background of the screen.
#pragma once

#include <span>
#include <vector>

#include "scans/map_settings.h"
#include "scans/tile_reader.h"

namespace zol {

/// Where a static background comes from.
enum class BackgroundKind { none, given, of_scan, mean_of_points };

/// In proportion to a pattern's own brightness it is taken off.
class StaticBackground {
 public:
  /// The settings' picture, the scan's own one, or the mean of many points: bands move from point to point and cancel.
  /// Few points do not, then there is none.
  /// @throws RunFailure  a stored one is asked for, and there is none
  void find(Scan& scan, const TileReader& reader, std::size_t points, const MapSettings& settings, Task& task);
  [[nodiscard]] BackgroundKind kind() const { return kind_; }
  void take_off(std::span<float> pattern) const;

 private:
  std::vector<float> values_;  ///< gathered as patterns are; empty: none
  double mean_ = 0;
  BackgroundKind kind_ = BackgroundKind::none;
};

}  // namespace zol
