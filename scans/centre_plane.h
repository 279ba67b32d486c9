// The pattern centre all over a map, from the map's own patterns: fitted at some clear points, with a plane through
// them.
//
// The beam moves over a flat sample, so that each coordinate of the centre is a linear function of column and row. A
// single picture tells its centre to some thousandths of its width only, as a shift of the centre looks nearly like a
// turn of the crystal; the plane takes the mean over all points.
#pragma once

#include <array>
#include <span>
#include <vector>

#include "scans/map_indexer.h"

namespace zol {

/// A point whose centre was fitted.
struct CentrePoint {
  int column = 0, row = 0;
  PatternCentre centre;    ///< widths, of the pattern as it stands in the scan
  double correlation = 0;  ///< of the pattern with the computed one
  bool left_out = false;   ///< of the plane: too far from it
};

/// x, y, z of the centre, in widths, each as middle + column * per_column + row * per_row with the column and the row
/// counted from the middle of the map.
struct CentrePlane {
  std::array<double, 3> middle{}, per_column{}, per_row{};
  std::array<double, 3> middle_error{}, per_column_error{}, per_row_error{};  ///< standard errors
  std::array<double, 3> scatter{};  ///< of the points about the plane, standard deviation
  ScanGrid grid;
  std::vector<CentrePoint> points;

  [[nodiscard]] PatternCentre at(double column, double row) const;
  /// The centre of each point of the map.
  [[nodiscard]] MapCentres centres() const;
};

/// The plane by least squares. Points farther from it than 3.5 times the usual distance (1.48 times the median) in any
/// coordinate are left out one after the other, the farthest first. Slopes along a map of one column or row are 0.
/// @throws RunFailure  fewer than five points, or not even they are left
[[nodiscard]] CentrePlane plane_through(std::vector<CentrePoint> points, const ScanGrid& grid);

/// Fits the centre at points spread all over the map: it is cut into as many fields, and of four points in each the one
/// with the best correlation is taken. MapIndexer::set_centres takes the result, as in
///   indexer.set_centres(fit_centre_plane(indexer, 25, task).centres());
/// @param indexer  prepared; its centres are where the fit starts
/// @param points   5 or more
/// @throws RunFailure  too few points are clear enough to be indexed with the centre at the start
[[nodiscard]] CentrePlane fit_centre_plane(MapIndexer& indexer, int points, Task& task);

}  // namespace zol
