#include "analysis/triple_table.h"

#include <utility>

#include "core/cell_geometry.h"
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

std::vector<TripleTable::Plane> first_planes(const CrystalState& state, int count) {
  std::vector<TripleTable::Plane> planes;
  for (int i = 1; i <= count; ++i) {
    planes.push_back({{state.RefH(i), state.RefK(i), state.RefL(i)}, state.RefS(i), state.RefI(i)});
  }
  return planes;
}

/// Place of an element in one of the tables: which of the three reflections, of which table.
std::size_t place(int column) { return static_cast<std::size_t>(column); }

}  // namespace

std::optional<TripleTable::Triple> TripleTable::triple_of(long long row) const {
  const std::size_t n = planes_.size();
  if (row < 1 || static_cast<std::size_t>(row) > n * n * n) return std::nullopt;
  const auto at = static_cast<std::size_t>(row - 1);
  return Triple{at / n / n, at / n % n, at % n};
}

/// The reflection that an element is of, none in a row of zeros.
const TripleTable::Plane* TripleTable::plane(std::string_view table, const Rows& rows, int row, int column,
                                             int columns) const {
  if (row < 0 || row > rows.upper) detail::fail_index(table, row, rows.upper);
  if (column < 0 || column >= columns) detail::fail_index(table, column, columns - 1);
  const auto reflections = rows.filled ? triple_of(row) : std::nullopt;
  return reflections ? &planes_[(*reflections)[place(column * 3 / columns)]] : nullptr;
}

Integer TripleTable::TripleHKL(int row, int column) const {
  const Plane* found = plane("TripleHKL", indices_and_angles_, row, column, 9);
  return found != nullptr ? found->hkl[place(column % 3)] : Integer(0);
}

Single TripleTable::TripleS(int row, int column) const {
  const Plane* found = plane("TripleS", lengths_and_intensities_, row, column, 3);
  return found != nullptr ? found->s : 0.0F;
}

Single TripleTable::TripleI(int row, int column) const {
  const Plane* found = plane("TripleI", lengths_and_intensities_, row, column, 3);
  return found != nullptr ? found->intensity : 0.0F;
}

Single TripleTable::TripleAngle(int row, int column) const {
  if (plane("TripleAngle", indices_and_angles_, row, column, 3) == nullptr) return 0;
  const Triple reflections = *triple_of(row);
  return angle(reflections[place(column)], reflections[place((column + 1) % 3)]);
}

void TripleTable::empty_indices_and_angles(int rows) {
  if (rows < 0) detail::fail_bound("TripleHKL", rows);
  indices_and_angles_ = {rows, false};
}

TripleTable::TripleTable(int rows, std::vector<Plane> planes, std::vector<Single> angles)
    : planes_(std::move(planes)),
      angles_(std::move(angles)),
      indices_and_angles_{rows, true},
      lengths_and_intensities_{rows, true} {
  if (rows < 0) detail::fail_bound("TripleHKL", rows);
  const std::size_t count = planes_.size();
  if (count * count * count > static_cast<std::size_t>(rows)) detail::fail_index("TripleHKL", rows + 1LL, rows);
}

ListOrder order_by_weighted_intensity(const CrystalState& state, Task& task) {
  std::vector<double> keys;
  for (int i = 0; i <= state.RefCount.value(); ++i) {
    keys.push_back(
        -to_single(double{state.RefS(i)} * double{state.RefI(i)}));  // the largest product is the smallest key
  }
  // Without atoms and observed reflections nothing has an intensity: the list then stays as it is.
  return {exchange_order(keys, 1, first_smallest_below(0), true, task)};
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

int triple_rows(Single reflections) { return Long::rounded(triples_of(reflections)).value(); }

TripleTable make_triple_table(const CrystalState& state, Single used, Task& task) {
  const int rows = triple_rows(used);
  const int count = Long::rounded(used).value();
  std::vector<Single> angles;
  for (int a = 1; a <= count; ++a) {
    task.report(a, count);
    task.check();
    for (int b = 1; b <= count; ++b) angles.push_back(folded_angle(state, a, b));
  }
  return {rows, first_planes(state, count), std::move(angles)};
}

}  // namespace zol
