#include "powder/histogram.h"

#include <cmath>
#include <vector>

#include "core/float_loop.h"
#include "core/number_text.h"
#include "core/run_failure.h"

namespace zol {
namespace {

/// A point of the grid along one axis: its offset and the entry of the table that holds its value.
struct GridPoint {
  Single offset;
  int entry;
};

/// The points of a loop by repeated addition. Rounding may end it one point early.
std::vector<GridPoint> points_of(const InterferenceGrid& grid, std::size_t axis) {
  const double width = grid.width[axis];
  const Single last = to_single(grid.steps[axis].value() * width);
  std::vector<GridPoint> points;
  const Single first = to_single(-grid.steps[axis].value() * width);
  float_loop("the interference grid along an axis", first, last, width, LoopSense::Rising, [&](Single x) {
    points.push_back({x, static_cast<int>(std::floor(std::abs(divide(x, width, "the grid width")) + 0.5))});
  });
  return points;
}

/// Coordinates of the points around an index.
std::vector<double> around(Integer index, const std::vector<GridPoint>& points) {
  std::vector<double> coordinates;
  coordinates.reserve(points.size());
  for (const auto& point : points) coordinates.push_back(to_single(index.value() + double{point.offset}));
  return coordinates;
}

std::vector<double> squares(const std::vector<double>& coordinates, double edge) {
  std::vector<double> result;
  result.reserve(coordinates.size());
  for (const double x : coordinates) result.push_back(x * x * edge * edge);
  return result;
}

/// Terms 2 x y edge_x edge_y cosine, y running fastest.
std::vector<double> mixed(const std::vector<double>& xs, const std::vector<double>& ys, double edge_x, double edge_y,
                          double cosine) {
  std::vector<double> result;
  result.reserve(xs.size() * ys.size());
  for (const double x : xs) {
    for (const double y : ys) result.push_back(2.0 * x * y * edge_x * edge_y * cosine);
  }
  return result;
}

/// Spreads reflections over the points of a grid. The terms of the squared length that depend on only one or two of
/// the three indices are computed once; their sum is formed in the order of DHKLS, so that it is the same to the bit.
class Spreader {
 public:
  Spreader(const Main1State& cell, const InterferenceTable& table, Integer count, Histogram& bins, Task& task)
      : cell_(cell),
        table_(table),
        task_(task),
        dmin_(cell.Dmin),
        count_(count.value()),
        bins_(bins),
        beyond_(bins.upper() + 1.0),
        points_{points_of(table.grid(), 0), points_of(table.grid(), 1), points_of(table.grid(), 2)},
        square_(points_[2].size()),
        position_(points_[2].size()) {}

  void add(Integer h, Integer k, Integer l, Single intensity) {
    const auto hs = around(h, points_[0]);
    const auto ks = around(k, points_[1]);
    const auto ls = around(l, points_[2]);
    const auto hh = squares(hs, cell_.AStar);
    const auto kk = squares(ks, cell_.BStar);
    const auto ll = squares(ls, cell_.CStar);
    const auto hk = mixed(hs, ks, cell_.AStar, cell_.BStar, cell_.CosGammaStar);
    const auto kl = mixed(ks, ls, cell_.BStar, cell_.CStar, cell_.CosAlphaStar);
    for (std::size_t i = 0; i < hs.size(); ++i) {
      task_.check();
      const auto lh = mixed(ls, {hs[i]}, cell_.CStar, cell_.AStar, cell_.CosBetaStar);
      for (std::size_t j = 0; j < ks.size(); ++j) {
        place_row(hh[i] + kk[j], ll, hk[i * ks.size() + j], kl.data() + j * ls.size(), lh);
        add_row(table_.row(points_[0][i].entry, points_[1][j].entry), intensity);
      }
    }
  }

 private:
  /// Positions, in bins and not yet whole, of a row of points along c*; no number where the metric is impossible.
  void place_row(double hh_kk, const std::vector<double>& ll, double hk, const double* kl,
                 const std::vector<double>& lh) {
    for (std::size_t z = 0; z < ll.size(); ++z) square_[z] = hh_kk + ll[z] + hk + kl[z] + lh[z];
    for (std::size_t z = 0; z < ll.size(); ++z) {
      position_[z] = dmin_ * double{static_cast<Single>(std::sqrt(square_[z]))} * count_;
    }
  }

  void add_row(const Single* values, Single intensity) {
    for (std::size_t z = 0; z < position_.size(); ++z) {
      if (!(position_[z] >= 0.0 && position_[z] < beyond_)) fail(z);
      Single& bin = bins_(static_cast<int>(position_[z]));
      bin = to_single(double{bin} + double{intensity} * double{values[points_[2][z].entry]});
    }
  }

  /// Names what is wrong with a point that has no bin.
  void fail(std::size_t z) const {
    (void)square_root(square_[z], "the squared length of a reciprocal vector");
    (void)bins_(Long::floor(position_[z]).value());
  }

  const Main1State& cell_;
  const InterferenceTable& table_;
  Task& task_;
  double dmin_;
  double count_;
  Histogram& bins_;
  double beyond_;  // the first position that has no bin
  std::array<std::vector<GridPoint>, 3> points_;
  std::vector<double> square_, position_;
};

/// Bins are numbered in 16 bits.
void check_last_bin(double bin) {
  if (bin <= 32767.0) return;
  throw RunFailure("the histogram would end at bin " + plain_text(bin) +
                   ", the last one possible is 32767: Dmin is too small");
}

}  // namespace

Integer bin_count(Single dmin) {
  const double count = std::floor(divide(5000.0, dmin, "Dmin"));
  check_last_bin(count);
  return Integer::rounded(count);
}

int highest_bin(Integer count, int beyond) {
  check_last_bin(count.value() + static_cast<double>(beyond));
  return (count + beyond).value();
}

Histogram fill_histogram(const CrystalState& state, const InterferenceTable& table, Integer count, int last,
                         Task& task) {
  Histogram bins("Bins", last);
  Spreader spreader(state, table, count, bins, task);
  constexpr double of_point = 4.5e-9;
  double points = state.RefCount.value();
  for (const Integer steps : table.grid().steps) points *= 2.0 * steps.value() + 1;
  task.expect({points * of_point, 0});
  const int reflections = state.RefCount.value();
  for (int r = 1; r <= reflections; ++r) {
    task.report(r, reflections);
    spreader.add(state.RefH(r), state.RefK(r), state.RefL(r), state.RefI(r));
  }
  return bins;
}

}  // namespace zol
