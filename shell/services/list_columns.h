// What the lines of a list hold, told by the window that writes them, so that the list can also be shown as a table.
// Names and units are UTF-8, lines and cells Latin-1.
#pragma once

#include <functional>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

namespace zol {

struct ListColumn {
  static constexpr std::size_t to_the_end = std::numeric_limits<std::size_t>::max();
  enum Kind { Number, Word };

  std::string name;       ///< empty: what stands there belongs to no column
  std::string unit = {};  ///< empty: none
  /// Characters that it takes in the line, or to_the_end. 0: a word, up to the next blank and with it.
  std::size_t width = 0;
  Kind kind = Number;
  char end = ' ';         ///< behind a word, where that is no blank
  std::string hint = {};  ///< what it means, where the name does not say it
};

using ListCells = std::vector<std::string>;

/// The cells of a line, one for each column that has a name. Blanks around a word are dropped, those of a number also
/// inside, so that its sign stands at it; cells beyond the end of the line are empty.
[[nodiscard]] ListCells cells_of_line(std::string_view line, const std::vector<ListColumn>& columns);

/// The number that a cell begins with; a cell without one gives NaN.
[[nodiscard]] double number_of_cell(std::string_view cell);

/// Columns that are made from the cells of a row, on request.
struct AddedColumns {
  std::string caption;  ///< of the choice
  std::vector<ListColumn> columns;
  std::function<ListCells(const ListCells& row)> cells;
  int behind = -1;  ///< the column that they follow; -1: the last one
};

/// Rows that belong together, such as equivalent reflections.
struct RowFamily {
  std::string name;    ///< the same for all of them
  bool leads = false;  ///< the row that stands for them, where it is listed
};
struct RowFamilies {
  std::string caption;        ///< of the choice that shows them
  std::string merge_caption;  ///< of the choice that shows one row of each
  ListColumn name;            ///< the column of their names
  std::function<RowFamily(const ListCells& row)> family_of;
  std::vector<int> summed = {};  ///< columns whose sums over a family are shown where it is merged
};

struct ListColumns {
  std::string title;  ///< of the table
  /// As the list is now.
  std::function<std::vector<ListColumn>()> columns;
  std::function<bool(std::string_view line)> is_row = {};  ///< none: all lines are rows
  /// What may be added for the crystal as it is now.
  std::function<std::vector<AddedColumns>()> added = {};
  std::function<std::vector<RowFamilies>()> families = {};  ///< one or none
};

/// For a list whose columns are always the same.
[[nodiscard]] inline std::function<std::vector<ListColumn>()> always(std::vector<ListColumn> columns) {
  return [columns = std::move(columns)] { return columns; };
}

}  // namespace zol
