#include "scans/centre_plane.h"

#include <Eigen/Cholesky>
#include <algorithm>
#include <cmath>
#include <optional>

#include "core/run_failure.h"

namespace zol {
namespace {

constexpr std::size_t least_points = 5;

std::array<double, 3> numbers(const PatternCentre& centre) { return {centre.x, centre.y, centre.z}; }

/// 1, column, row of a point as far as the map has a length along them.
Eigen::Vector3d terms(const CentrePoint& point, const ScanGrid& grid) {
  return {1, point.column - (grid.columns - 1) / 2.0, point.row - (grid.rows - 1) / 2.0};
}

bool varies(const std::vector<CentrePoint>& points, int CentrePoint::*place) {
  return std::any_of(points.begin(), points.end(),
                     [&](const CentrePoint& p) { return !p.left_out && p.*place != points.front().*place; });
}

/// Fits the plane to the points that are not left out.
void fit_plane(CentrePlane& plane) {
  Eigen::Matrix3d normal = Eigen::Matrix3d::Zero();
  Eigen::Matrix3d right = Eigen::Matrix3d::Zero();
  std::size_t used = 0;
  for (const CentrePoint& point : plane.points) {
    if (point.left_out) continue;
    ++used;
    const Eigen::Vector3d t = terms(point, plane.grid);
    normal += t * t.transpose();
    for (std::size_t i = 0; i < 3; ++i) right.col(static_cast<int>(i)) += numbers(point.centre)[i] * t;
  }
  int parameters = 3;
  for (const auto& [place, at] : {std::pair(&CentrePoint::column, 1), {&CentrePoint::row, 2}}) {
    if (varies(plane.points, place)) continue;
    --parameters;
    normal.row(at).setZero();
    normal.col(at).setZero();
    normal(at, at) = 1;
    right.row(at).setZero();
  }
  const Eigen::Matrix3d inverse = normal.ldlt().solve(Eigen::Matrix3d::Identity());
  const Eigen::Matrix3d solution = inverse * right;
  for (std::size_t i = 0; i < 3; ++i) {
    const auto column = static_cast<int>(i);
    plane.middle[i] = solution(0, column);
    plane.per_column[i] = solution(1, column);
    plane.per_row[i] = solution(2, column);
    double square = 0;
    for (const CentrePoint& point : plane.points) {
      if (point.left_out) continue;
      const double off = numbers(point.centre)[i] - terms(point, plane.grid).dot(solution.col(column));
      square += off * off;
    }
    plane.scatter[i] = std::sqrt(square / std::max(1.0, static_cast<double>(used) - parameters));
    plane.middle_error[i] = plane.scatter[i] * std::sqrt(inverse(0, 0));
    plane.per_column_error[i] = plane.scatter[i] * (right.row(1).isZero(0) ? 0 : std::sqrt(inverse(1, 1)));
    plane.per_row_error[i] = plane.scatter[i] * (right.row(2).isZero(0) ? 0 : std::sqrt(inverse(2, 2)));
  }
}

/// The farthest point beyond what is usual, in units of that; none where all are near.
std::optional<std::size_t> farthest(const CentrePlane& plane) {
  constexpr double usual_of_median = 1.4826;  // of a normal distribution
  constexpr double most = 3.5;
  constexpr double rounding = 1e-9;
  std::optional<std::size_t> found;
  double largest = most;
  for (std::size_t i = 0; i < 3; ++i) {
    std::vector<double> off(plane.points.size(), 0);
    std::vector<double> of_used;
    for (std::size_t p = 0; p < off.size(); ++p) {
      const CentrePoint& point = plane.points[p];
      if (point.left_out) continue;
      off[p] = std::abs(numbers(point.centre)[i] - numbers(plane.at(point.column, point.row))[i]);
      of_used.push_back(off[p]);
    }
    const auto middle = of_used.begin() + static_cast<std::ptrdiff_t>(of_used.size() / 2);
    std::nth_element(of_used.begin(), middle, of_used.end());
    const double usual = usual_of_median * *middle + rounding;
    for (std::size_t p = 0; p < off.size(); ++p) {
      if (off[p] / usual <= largest) continue;
      largest = off[p] / usual;
      found = p;
    }
  }
  return found;
}

/// The centre of a point, fitted from where the indexer has it. @returns none where it cannot be indexed
std::optional<CentrePoint> fit_point(MapIndexer& indexer, int column, int row, bool with_centre,
                                     MapIndexer::Worker& worker, Task& task) {
  const auto point = indexer.grid().point(column, row);
  if (!point || !indexer.take_point(*point, worker)) return std::nullopt;
  const PatternCentre start = indexer.turned_centre(*point);
  const auto solutions = worker.indexer.index_taken(start, indexer.models(), indexer.index_settings(), task);
  if (solutions.empty()) return std::nullopt;
  CentrePoint found{column, row, start, solutions.front().correlation, false};
  if (with_centre) {
    const PictureFit fit = worker.indexer.refine_centre(solutions.front(), start, indexer.index_settings());
    found.centre = fit.centre;
    found.correlation = fit.correlation;
  }
  found.centre = upside_down(found.centre, indexer.picture_size());
  return found;
}

/// Of some points in a field of the map, the one that fits best.
std::optional<CentrePoint> clearest(MapIndexer& indexer, const std::array<double, 4>& field, MapIndexer::Worker& worker,
                                    Task& task) {
  const auto [left, top, width, height] = field;
  std::optional<CentrePoint> best;
  for (const auto& [x, y] : {std::pair(0.3, 0.3), {0.7, 0.3}, {0.3, 0.7}, {0.7, 0.7}}) {
    task.check();
    const auto found =
        fit_point(indexer, static_cast<int>(left + x * width), static_cast<int>(top + y * height), false, worker, task);
    if (found && (!best || found->correlation > best->correlation)) best = found;
  }
  return best;
}

}  // namespace

PatternCentre CentrePlane::at(double column, double row) const {
  const double right = column - (grid.columns - 1) / 2.0;
  const double down = row - (grid.rows - 1) / 2.0;
  const auto number = [&](std::size_t i) { return middle[i] + right * per_column[i] + down * per_row[i]; };
  return {number(0), number(1), number(2)};
}

MapCentres CentrePlane::centres() const { return {{middle[0], middle[1], middle[2]}, per_column, per_row, grid}; }

CentrePlane plane_through(std::vector<CentrePoint> points, const ScanGrid& grid) {
  CentrePlane plane;
  plane.grid = grid;
  plane.points = std::move(points);
  std::size_t used = plane.points.size();
  while (used >= least_points) {
    fit_plane(plane);
    const auto far = farthest(plane);
    if (!far) return plane;
    plane.points[*far].left_out = true;
    --used;
  }
  throw RunFailure("a plane of pattern centres needs " + std::to_string(least_points) +
                   " clear points at least, and there are " + std::to_string(used));
}

CentrePlane fit_centre_plane(MapIndexer& indexer, int points, Task& task) {
  const ScanGrid& grid = indexer.grid();
  const int across = std::clamp(static_cast<int>(std::lround(std::sqrt(points))), 1, grid.columns);
  const int down = std::clamp((points + across - 1) / across, 1, grid.rows);
  const double width = static_cast<double>(grid.columns) / across;
  const double height = static_cast<double>(grid.rows) / down;
  auto worker = indexer.make_worker();
  std::vector<CentrePoint> clear;
  for (int field = 0; field < across * down; ++field) {
    task.report(field, across * down);
    const int column = field % across;
    const int row = field / across;
    const auto best = clearest(indexer, {column * width, row * height, width, height}, worker, task);
    if (!best) continue;
    const auto fitted = fit_point(indexer, best->column, best->row, true, worker, task);
    if (fitted) clear.push_back(*fitted);
  }
  return plane_through(std::move(clear), grid);
}

}  // namespace zol
