#include "analysis/triple_table.h"

#include <array>
#include <vector>

#include "core/cell_geometry.h"
#include "core/exchange_sort.h"
#include "core/run_failure.h"

namespace zol {
namespace {

/// 1/d of reflection i of the list.
Single reciprocal_length(const CrystalState& state, int i) {
  return to_single(double{state.RefS(i)} + double{state.RefS(i)});
}

/// Acute angle between the normals of reflections a and b, in degrees. Not quite symmetric: the lengths are divided in
/// the order of the arguments.
Single folded_angle(const CrystalState& state, int a, int b) {
  const double product =
      Product(state, state.RefH(a), state.RefK(a), state.RefL(a), state.RefH(b), state.RefK(b), state.RefL(b));
  const Single cosine = to_single(divide(divide(product, reciprocal_length(state, a), "the length of a reflection"),
                                         reciprocal_length(state, b), "the length of a reflection"));
  const Single angle = ArcCos(cosine);
  return angle > 90 ? to_single(180.0 - double{angle}) : angle;
}

/// Angles of all ordered pairs; a triple needs three of them, so each serves many times.
std::vector<Single> pair_angles(const CrystalState& state, int count) {
  std::vector<Single> angles;
  angles.reserve(static_cast<std::size_t>(count) * static_cast<std::size_t>(count));
  for (int a = 1; a <= count; ++a) {
    for (int b = 1; b <= count; ++b) angles.push_back(folded_angle(state, a, b));
  }
  return angles;
}

void store_triple(const CrystalState& state, const std::array<int, 3>& reflections, int row, TripleTable& table) {
  for (int n = 0; n < 3; ++n) {
    const int i = reflections[static_cast<std::size_t>(n)];
    table.TripleHKL(row, 3 * n) = state.RefH(i);
    table.TripleHKL(row, 3 * n + 1) = state.RefK(i);
    table.TripleHKL(row, 3 * n + 2) = state.RefL(i);
    table.TripleS(row, n) = state.RefS(i);
    table.TripleI(row, n) = state.RefI(i);
  }
}

}  // namespace

void sort_by_weighted_intensity(CrystalState& state) {
  std::vector<double> keys;
  for (int i = 0; i <= state.RefCount.value(); ++i) {
    keys.push_back(
        -to_single(double{state.RefS(i)} * double{state.RefI(i)}));  // the largest product is the smallest key
  }
  // Without atoms and observed reflections nothing has an intensity: the list then stays as it is.
  const auto order = exchange_order(keys, 1, first_smallest_below(0), true);
  for (auto* array : {&state.RefS, &state.RefI}) reorder(*array, order);
  for (auto* array : {&state.RefH, &state.RefK, &state.RefL}) reorder(*array, order);
}

Single extend_over_ties(const CrystalState& state, Single wanted) {
  Single used = wanted;
  if (!(wanted < static_cast<Single>(state.RefCount.value()))) return used;
  for (int i = Long::rounded(wanted).value(); i <= state.RefCount.value(); ++i) {
    if (to_single(double{state.RefI(i)} * 0.999) >= state.RefI(i + 1)) break;
    used = to_single(double{used} + 1.0);
  }
  return used;
}

int triple_rows(Single reflections) {
  return Long::rounded(double{reflections} * double{reflections} * double{reflections}).value();
}

void fill_triple_table(const CrystalState& state, Single used, TripleTable& table, Progress& progress) {
  const int rows = triple_rows(used);
  table.TripleHKL.allocate(rows, 8);
  table.TripleS.allocate(rows, 2);
  table.TripleI.allocate(rows, 2);
  table.TripleAngle.allocate(rows, 2);

  const int count = Long::rounded(used).value();
  const auto angles = pair_angles(state, count);
  const auto angle = [&angles, count](int a, int b) {
    return angles[static_cast<std::size_t>(a - 1) * static_cast<std::size_t>(count) + static_cast<std::size_t>(b - 1)];
  };
  int row = 0;
  for (int i = 1; i <= count; ++i) {
    progress.report(i, count);
    for (int j = 1; j <= count; ++j) {
      for (int k = 1; k <= count; ++k) {
        ++row;
        store_triple(state, {i, j, k}, row, table);
        table.TripleAngle(row, 0) = angle(i, j);
        table.TripleAngle(row, 1) = angle(j, k);
        table.TripleAngle(row, 2) = angle(k, i);
      }
    }
  }
}

}  // namespace zol
