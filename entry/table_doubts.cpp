#include "entry/table_doubts.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "core/number_text.h"
#include "core/trimmed.h"

namespace zol {
namespace {

enum SiteColumn { label = 1, element = 2, occupancy = 3, x = 4, z = 6, b = 7 };
enum LineColumn { intensity = 1, first_index = 2, last_index = 4 };

/// The first row whose first cell is empty ends the table; one beyond the last when there is none.
int end_of(const TableTexts& table) {
  int row = 1;
  while (row <= table.rows && !table.text(row, 1).empty()) ++row;
  return row;
}

/// What "OK" makes of a row.
std::string doubt_behind_end(const TableTexts& table, int end, int row, int column) {
  if (table.text(row, column).empty()) return "";
  return "not taken: the empty first cell of row " + std::to_string(end) + " ends the table";
}

/// The value is what counts, whatever stands behind it in the cell.
std::string doubt_of_number(const std::string& text) {
  const auto number = trimmed(text);
  if (number.empty() || strict_number(number)) return "";
  return "\"" + text + "\" is not a number, it counts as " + short_text(Val(text), 7);
}

double value_at(const TableTexts& table, int row, int column) { return Val(table.text(row, column)); }

/// Whether two sites lie together, whole cells apart included.
bool in_one_place(const TableTexts& table, int row, int other) {
  constexpr double together = 1e-4;
  for (int column = x; column <= z; ++column) {
    const double apart = value_at(table, row, column) - value_at(table, other, column);
    if (!(std::abs(apart - std::round(apart)) < together)) return false;
  }
  return true;
}

std::string doubt_of_place(const TableTexts& table, int end, int row) {
  double filled = 0;
  int first = 0;
  for (int other = 1; other < end; ++other) {
    if (!in_one_place(table, row, other)) continue;
    filled += value_at(table, other, occupancy);
    if (other == row) continue;
    if (first == 0) first = other;
    const auto same = [&](int column) { return table.text(row, column) == table.text(other, column); };
    if (same(label) && same(element)) return "the same site as row " + std::to_string(other) + ", both count as one";
  }
  constexpr double full = 1.0001;
  if (first == 0 || filled < full) return "";
  return "in the place of row " + std::to_string(first) + ", together with an occupancy of " + short_text(filled, 4);
}

std::string doubt_of_range(double value, double least, double most) {
  if (value >= least && value <= most) return "";
  return "outside " + short_text(least, 0) + " to " + short_text(most, 0);
}

std::string doubt_of_element(const std::string& element) {
  return element.empty() ? "no element: the atom scatters nothing"
                         : "no scattering factors for \"" + element + "\": the atom scatters nothing";
}

}  // namespace

std::string site_doubt(const TableTexts& table, const std::function<bool(const std::string&)>& scatters, int row,
                       int column) {
  const int end = end_of(table);
  if (row >= end) return doubt_behind_end(table, end, row, column);
  const std::string& text = table.text(row, column);
  if (column == label) return doubt_of_place(table, end, row);
  if (column == element) return scatters(text) ? "" : doubt_of_element(text);
  if (auto doubt = doubt_of_number(text); !doubt.empty()) return doubt;
  const double value = Val(text);
  if (column == occupancy) {
    if (trimmed(text).empty()) return "empty: an occupancy of 0, the atom scatters nothing";
    return doubt_of_range(value, 0, 1);
  }
  if (column == b) return value < 0 ? "below 0: the atom would scatter more at higher angles" : "";
  return doubt_of_range(value, -1, 2);
}

std::string line_doubt(const TableTexts& table, int row, int column) {
  const int end = end_of(table);
  if (row >= end) return doubt_behind_end(table, end, row, column);
  if (auto doubt = doubt_of_number(table.text(row, column)); !doubt.empty()) return doubt;
  const double value = value_at(table, row, column);
  if (column != intensity) return value == std::round(value) ? "" : "not whole: no reflection has this index";
  if (value < 0) return "below 0";
  for (int other = 1; other < end; ++other) {
    bool same = other != row;
    for (int index = first_index; index <= last_index; ++index) {
      same = same && value_at(table, row, index) == value_at(table, other, index);
    }
    if (same) return "the same indices as row " + std::to_string(other);
  }
  return "";
}

}  // namespace zol
