#include "powder/interference.h"

#include <cmath>

#include "core/number_text.h"
#include "core/run_failure.h"

namespace zol {
namespace {

/// sin^2(N pi t) / sin^2(pi t), N^2 at the lattice point.
double interference(double cells, double t) {
  if (t == 0.0) return cells * cells;
  const double numerator = std::sin(cells * program_pi * t);
  const double sine = std::sin(t * program_pi);
  return divide(divide(numerator * numerator, sine, "sin(pi t)"), sine, "sin(pi t)");
}

/// Its values at the points 0 to steps of one axis.
std::vector<double> along_axis(const InterferenceGrid& grid, std::size_t axis, double cells) {
  const int steps = grid.steps[axis].value();
  if (steps < 0) {
    throw RunFailure("the interference function cannot have " + std::to_string(steps) + " steps along an axis");
  }
  std::vector<double> values;
  for (int i = 0; i <= steps; ++i) values.push_back(interference(cells, i * double{grid.width[axis]}));
  return values;
}

}  // namespace

InterferenceGrid interference_grid(const Main1State& cell, const CrystalliteSize& size) {
  struct Axis {
    Single edge, cells;
    const char *edge_name, *cells_name;
  };
  const std::array axes{Axis{cell.AStar, size.CellsP, "a*", "the crystallite size P"},
                        Axis{cell.BStar, size.CellsQ, "b*", "the crystallite size Q"},
                        Axis{cell.CStar, size.CellsR, "c*", "the crystallite size R"}};
  InterferenceGrid grid;
  for (std::size_t axis = 0; axis < axes.size(); ++axis) {
    const auto& [edge, cells, edge_name, cells_name] = axes[axis];
    const double reach = divide(2.0, cells, cells_name);
    Integer& steps = grid.steps[axis];
    steps = Integer::rounded(std::floor(reach * double{edge} / bin_width) + 1.0);
    grid.width[axis] = to_single(divide(bin_width, edge, edge_name));
    if (steps > max_grid_steps) {
      steps = max_grid_steps;
      grid.width[axis] = to_single(reach / max_grid_steps);
    }
  }
  return grid;
}

std::string grid_text(const InterferenceGrid& grid) {
  return Str(grid.steps[0]) + Str(grid.steps[1]) + Str(grid.steps[2]);
}

// 16 bits from factor to factor; two numbers of steps alone never pass them.
Integer grid_points(const InterferenceGrid& grid) {
  const auto& [a, b, c] = grid.steps;
  const Long product = Long(a.value()) * Long(b.value()) * Long(c.value());
  if (product > 32767) {
    throw RunFailure("the interference grid has " + plain_text(a) + " x " + plain_text(b) + " x " + plain_text(c) +
                     " points, at most 32767 are possible: P, Q or R is too small");
  }
  return a * b * c;
}

// The entry is rounded after each factor and once more after the divisions.
InterferenceTable::InterferenceTable(const InterferenceGrid& grid, const CrystalliteSize& size, Task& task)
    : grid_(grid) {
  const double p = size.CellsP;
  const double q = size.CellsQ;
  const double r = size.CellsR;
  const auto along_a = along_axis(grid, 0, p);
  const auto along_b = along_axis(grid, 1, q);
  const auto along_c = along_axis(grid, 2, r);
  points_ = {along_a.size(), along_b.size(), along_c.size()};
  values_.reserve(points_[0] * points_[1] * points_[2]);
  for (const double of_a : along_a) {
    task.check();
    const Single first = to_single(of_a);
    for (const double of_b : along_b) {
      const Single second = to_single(of_b * double{first});
      for (const double of_c : along_c) {
        const Single third = to_single(of_c * double{second});
        const double norm_p = divide(divide(third, p, "P"), p, "P");
        const double norm_q = divide(divide(norm_p, q, "Q"), q, "Q");
        values_.push_back(to_single(divide(divide(norm_q, r, "R"), r, "R")));
      }
    }
  }
}

}  // namespace zol
