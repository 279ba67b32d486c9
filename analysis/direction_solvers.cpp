#include "analysis/direction_solvers.h"

#include <cmath>

#include "core/cell_geometry.h"

namespace zol {
namespace {

constexpr int axis_u = 0;
constexpr int axis_v = 1;
constexpr int axis_w = 2;

/// One case: the axis that the two others are expressed by. They follow it in the cycle u, v, w.
struct Case {
  int number;
  int x, first, second;
};
constexpr std::array cases{Case{1, axis_u, axis_v, axis_w}, Case{2, axis_w, axis_u, axis_v},
                           Case{3, axis_v, axis_w, axis_u}};

using Row = std::array<Integer, 3>;

/// The minor that belongs to an axis: that component of the zone which the two planes share.
std::array<Integer, 3> minors_of(const Row& p, const Row& q) {
  const auto minor = [&p, &q](int i, int j) {
    const auto a = static_cast<std::size_t>(i);
    const auto b = static_cast<std::size_t>(j);
    return p[a] * q[b] - p[b] * q[a];
  };
  return {minor(axis_v, axis_w), minor(axis_w, axis_u), minor(axis_u, axis_v)};
}

/// first = m1 x + n1, second = m2 x + n2
struct Line {
  Single m1, n1, m2, n2;
};

/// The square of the length of the direction as a x^2 + 2 b x + c + 1.
struct Quadratic {
  Single a, b, c;
};

/// Lengths of the cell edges and half cross terms of the squared length, by axis.
struct Metric {
  explicit Metric(const Main1State& cell) : edge{cell.CellA, cell.CellB, cell.CellC} {
    const auto [a, b, c, cos_alpha, cos_beta, cos_gamma] = direct_axes(cell);
    cross[axis_u + axis_v - 1] = to_single(a * b * cos_gamma);
    cross[axis_u + axis_w - 1] = to_single(a * c * cos_beta);
    cross[axis_v + axis_w - 1] = to_single(b * c * cos_alpha);
  }
  [[nodiscard]] double length(int axis) const { return edge[static_cast<std::size_t>(axis)]; }
  [[nodiscard]] double q(int i, int j) const { return cross[static_cast<std::size_t>(i + j - 1)]; }
  std::array<Single, 3> edge;
  std::array<Single, 3> cross{};
};

Quadratic squared_length(const Metric& metric, const Case& by, const Line& line) {
  const double m1 = line.m1;
  const double n1 = line.n1;
  const double m2 = line.m2;
  const double n2 = line.n2;
  const double length_x = metric.length(by.x);
  const double length_1 = metric.length(by.first);
  const double length_2 = metric.length(by.second);
  const double q_x1 = metric.q(by.x, by.first);
  const double q_x2 = metric.q(by.x, by.second);
  const double q_12 = metric.q(by.first, by.second);
  Quadratic square{};
  square.a = to_single(m1 * m1 * length_1 * length_1 + length_x * length_x + m2 * m2 * length_2 * length_2 +
                       2.0 * m1 * q_x1 + 2.0 * m2 * q_x2 + 2.0 * m1 * m2 * q_12);
  square.b = to_single(n2 * m2 * length_2 * length_2 + n1 * m1 * length_1 * length_1 + n1 * q_x1 + n2 * q_x2 +
                       (n1 * m2 + n2 * m1) * q_12);
  // The cross term has the factor 1 on purpose, though the squared length has 2: results depend on it.
  square.c = to_single(n2 * n2 * length_2 * length_2 + n1 * n1 * length_1 * length_1 + n2 * n1 * q_12 - 1.0);
  return square;
}

Single on_line(Single slope, Single x, Single offset) { return to_single(double{x} * double{slope} + double{offset}); }

/// In the order second, x, first of case 2 and first, second, x of case 3 the components are turned by one place; the
/// solutions of those cases are listed that way.
SingleTriple in_order(const Case& by, Single x, Single first, Single second) {
  if (by.number == 1) return {x, first, second};
  if (by.number == 2) return {second, x, first};
  return {first, second, x};
}

}  // namespace

Integer InvertMatrix(Integer n, BoundedTable<Single>& a) {
  return Matrix(n, a) ? match_status::inverted : match_status::singular;
}

Integer SolveTwoPlanes(const Main1State& cell, const std::array<Indices<Integer>, 3>& planes,
                       const SingleTriple& cosines, TwoDirections& directions) {
  const auto length = [&cell, &planes](std::size_t i) { return DHKL(cell, planes[i].h, planes[i].k, planes[i].l); };
  const double r1 = to_single(double{length(0)} * double{cosines[0]});
  const double r2 = to_single(double{length(1)} * double{cosines[1]});
  const Row p{planes[0].h, planes[0].k, planes[0].l};
  const Row q{planes[1].h, planes[1].k, planes[1].l};
  const auto minors = minors_of(p, q);

  for (const Case& by : cases) {
    const auto x_axis = static_cast<std::size_t>(by.x);
    const auto first = static_cast<std::size_t>(by.first);
    const auto second = static_cast<std::size_t>(by.second);
    if (minors[x_axis] == 0) continue;
    const double minor = minors[x_axis].value();
    const Line line{
        to_single(minors[first].value() / minor), to_single((r1 * q[second].value() - r2 * p[second].value()) / minor),
        to_single(minors[second].value() / minor), to_single((p[first].value() * r2 - q[first].value() * r1) / minor)};
    const auto [a, b, c] = squared_length(Metric(cell), by, line);
    const Single discriminant = to_single(double{b} * double{b} - double{a} * double{c});
    if (discriminant < 0) {
      directions.A1 = directions.A2 = in_order(by, 1, 0, 0);
      return by.number == 3 ? match_status::no_real_root_case_3 : match_status::no_real_root;
    }
    const double middle = divide(-double{b}, a, "the square term of a direction's length");
    const double half_width = std::sqrt(double{discriminant}) / a;
    const Single x1 = to_single(middle + half_width);
    directions.A1 = in_order(by, x1, on_line(line.m1, x1, line.n1), on_line(line.m2, x1, line.n2));
    if (!(discriminant > 0)) {
      directions.A2 = {};
      return match_status::one_root + by.number;
    }
    const Single x2 = to_single(middle - half_width);
    directions.A2 = in_order(by, x2, on_line(line.m1, x2, line.n1), on_line(line.m2, x2, line.n2));
    return match_status::two_roots + by.number;
  }
  return match_status::parallel_planes;
}

}  // namespace zol
