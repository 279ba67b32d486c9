#include "entry/window/table_form.h"

#include "core/number_text.h"

namespace zol {

void put_cell(Grid& grid, int row, int column, std::string_view text) {
  grid.set_row(row);
  grid.set_column(column);
  grid.set_text(text);
}

void write_frame(Grid& grid, std::span<const std::string_view> headers) {
  for (int row = 1; row <= table_rows; ++row) put_cell(grid, row, 0, Str(row));
  int column = 0;
  for (const auto header : headers) put_cell(grid, 0, ++column, header);
}

void type_into_table(Grid& grid, TextBox& buffer, int& key) {
  if (key != key_enter) buffer.set_text(buffer.text() + static_cast<char>(key));
  if (key == key_enter) {
    key = 0;
    if (!buffer.text().empty()) {
      grid.set_text(buffer.text());
      buffer.set_text("");
    }
    if (grid.column() == grid.columns() - 1) {
      grid.set_column(0);
      grid.set_row(grid.row() + 1);
    }
    grid.set_column(grid.column() + 1);
  } else if (key == key_backspace) {
    key = 0;
    const std::string& typed = buffer.text();
    if (typed.size() > 1) buffer.set_text(typed.substr(0, typed.size() - 2));
  }
}

void delete_cell(Grid& grid) { grid.set_text(""); }

void delete_row(Grid& grid) {
  for (int row = grid.row() + 1; row <= table_rows; ++row) {
    for (int column = 1; column < grid.columns(); ++column) put_cell(grid, row - 1, column, grid.text(row, column));
  }
}

int filled_rows(const Grid& grid) {
  int rows = 0;
  while (rows < table_rows && !grid.text(rows + 1, 1).empty()) ++rows;
  return rows;
}

}  // namespace zol
