#include "shell/services/list_columns.h"

#include <algorithm>
#include <utility>

#include "core/number_text.h"
#include "core/trimmed.h"

namespace zol {
namespace {

/// Takes a column off the front of a line.
std::string_view take(std::string_view& line, const ListColumn& column) {
  std::size_t length = column.width;
  std::size_t behind = 0;
  if (length == 0) {
    line.remove_prefix(std::min(line.find_first_not_of(' '), line.size()));
    length = line.find(column.end);
    behind = 1;
  }
  const auto cell = line.substr(0, length);
  line.remove_prefix(std::min(cell.size() + behind, line.size()));
  return cell;
}

}  // namespace

ListCells cells_of_line(std::string_view line, const std::vector<ListColumn>& columns) {
  ListCells cells;
  cells.reserve(columns.size());
  for (const ListColumn& column : columns) {
    const auto text = take(line, column);
    if (column.name.empty()) continue;
    std::string cell(trimmed(text, " "));
    if (column.kind == ListColumn::Number) std::erase(cell, ' ');
    cells.push_back(std::move(cell));
  }
  return cells;
}

double number_of_cell(std::string_view cell) {
  const auto number = leading_number(cell);
  return number ? number->value : std::numeric_limits<double>::quiet_NaN();
}

}  // namespace zol
