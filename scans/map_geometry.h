// The pattern centre of each point of a map.
#pragma once

#include <array>
#include <vector>

#include "scans/scan.h"

namespace zol {

/// How the beam moves and what the screen is.
struct MapGeometry {
  double sample_tilt_deg = 70, detector_tilt_deg = 0;
  double screen_width_micrometre = 0;  ///< 0: the centre is the same all over the map
  bool scan_left = false;              ///< columns run to the left as seen from behind the screen
  bool scan_up = false;                ///< rows run up the slope
};

/// Pattern centres in widths, of all points.
class MapCentres {
 public:
  /// One centre of the map's middle point; it drifts with the beam where the screen's width is known.
  MapCentres(const PatternCentre& middle, const MapGeometry& geometry, const ScanGrid& grid);
  /// One for each point.
  explicit MapCentres(std::vector<PatternCentre> of_points) : of_points_(std::move(of_points)) {}
  /// x, y, z of the middle of the map and what they grow by from one column or row to the next.
  MapCentres(const PatternCentre& middle, const std::array<double, 3>& per_column, const std::array<double, 3>& per_row,
             const ScanGrid& grid)
      : middle_(middle), grid_(grid), per_column_(per_column), per_row_(per_row) {}

  [[nodiscard]] PatternCentre at(std::size_t point) const;

 private:
  std::vector<PatternCentre> of_points_;
  PatternCentre middle_;
  ScanGrid grid_;
  std::array<double, 3> per_column_{}, per_row_{};  ///< of x, y, z, in widths
};

}  // namespace zol
