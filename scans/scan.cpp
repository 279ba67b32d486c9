#include "scans/scan.h"

#include <cmath>

#include "core/run_failure.h"

namespace zol {

std::array<int, 2> ScanGrid::place(std::size_t point) const {
  if (!hexagonal || !short_rows) {
    const auto across = static_cast<std::size_t>(columns);
    return {static_cast<int>(point % across), static_cast<int>(point / across)};
  }
  const auto of_two_rows = static_cast<std::size_t>(2 * columns - 1);
  const std::size_t in_two = point % of_two_rows;
  const auto across = static_cast<std::size_t>(columns);
  const bool second = in_two >= across;
  return {static_cast<int>(second ? in_two - across : in_two),
          static_cast<int>(2 * (point / of_two_rows) + (second ? 1U : 0U))};
}

std::optional<std::size_t> ScanGrid::point(int column, int row) const {
  if (column < 0 || row < 0 || column >= columns || row >= rows) return std::nullopt;
  const bool is_short = hexagonal && short_rows;
  if (is_short && row % 2 == 1 && column == columns - 1) return std::nullopt;
  const auto before = static_cast<std::size_t>(row) * static_cast<std::size_t>(columns);
  return before - static_cast<std::size_t>(is_short ? row / 2 : 0) + static_cast<std::size_t>(column);
}

void ScanGrid::take_steps(double along_x, double along_y) {
  const auto is_length = [](double step) { return step > 0 && std::isfinite(step); };
  step_x = is_length(along_x) ? along_x : 1;
  step_y = is_length(along_y) ? along_y : step_x;
}

void PatternBlock::begin(std::size_t first_point, std::size_t points, std::size_t pixels_of_each) {
  first = first_point;
  count = points;
  pixels = pixels_of_each;
  values.assign(points * pixels, 0);
  present.assign(points, 0);
}

void take_size(ScanHeader& header, const std::array<int, 2>& size, const std::string& path) {
  ScanGrid grid = header.grid.value_or(ScanGrid{});
  grid.columns = size[0];
  grid.rows = size[1];
  if (size[0] < 1 || size[1] < 1 || grid.points() != header.points) {
    throw RunFailure(path + " has " + std::to_string(header.points) + " patterns, which is not " +
                     std::to_string(size[0]) + " x " + std::to_string(size[1]));
  }
  header.grid = grid;
}

}  // namespace zol
