#include "scans/map_geometry.h"

#include <cmath>
#include <numbers>

namespace zol {

// The beam goes by dX to the right and dY down the slope. With a = 90 - sample tilt + screen tilt, the angle between
// slope and screen normal's plane, the foot of the perpendicular moves by dX to the right and dY cos a down the screen,
// and the sample point comes nearer to it by dY sin a.
MapCentres::MapCentres(const PatternCentre& middle, const MapGeometry& geometry, const ScanGrid& grid)
    : middle_(middle), grid_(grid) {
  if (!(geometry.screen_width_micrometre > 0)) return;
  constexpr double right_angle = 90;
  const double a = (right_angle - geometry.sample_tilt_deg + geometry.detector_tilt_deg) * std::numbers::pi / 180;
  const double per_width = 1 / geometry.screen_width_micrometre;
  per_column_[0] = (geometry.scan_left ? -1 : 1) * grid.step_x * per_width;
  const double down = (geometry.scan_up ? -1 : 1) * grid.step_y * per_width;
  per_row_[1] = down * std::cos(a);
  per_row_[2] = -down * std::sin(a);
}

PatternCentre MapCentres::at(std::size_t point) const {
  if (!of_points_.empty()) return of_points_[point];
  const auto [column, row] = grid_.place(point);
  const double right = column - (grid_.columns - 1) / 2.0;
  const double down = row - (grid_.rows - 1) / 2.0;
  const auto moved = [&](double middle, std::size_t i) { return middle + right * per_column_[i] + down * per_row_[i]; };
  return {moved(middle_.x, 0), moved(middle_.y, 1), moved(middle_.z, 2)};
}

}  // namespace zol
