#include "entry/window/table_editor.h"

#include "core/number_text.h"
#include "shell/services/wiring.h"

namespace zol {
namespace {

void Form_Activate(TableForm& form) { form.G.set_focus(); }

/// Puts the buffer into the current cell, unless nothing was typed, and walks on by rows.
void enter_cell(Grid& grid, TextBox& buffer) {
  if (!buffer.text().empty()) {
    grid.set_text(buffer.text());
    buffer.set_text("");
  }
  if (grid.column() == grid.columns() - 1) {
    grid.set_column(0);
    grid.set_row(grid.row() + 1);
  }
  grid.set_column(grid.column() + 1);
}

/// Characters go to the buffer. Backspace takes back its last character; in an empty buffer it stays.
void G_KeyPress(TableForm& form, int& key) {
  TextBox& buffer = form.Text1;
  if (swallow_enter(key)) {
    enter_cell(form.G, buffer);
    return;
  }
  buffer.set_text(buffer.text() + static_cast<char>(key));
  if (key != key_backspace) return;
  key = 0;
  const std::string& typed = buffer.text();
  if (typed.size() > 1) buffer.set_text(typed.substr(0, typed.size() - 2));
}

void Command2_Click(Workbench& bench, TableForm& form) { close_table(bench, form); }

void Command3_Click(TableForm& form) { form.G.set_text(""); }

/// Moves the rows behind the current one up by one; the last row stays as it was. The current cell ends at the last
/// cell that was written.
void Command4_Click(TableForm& form) {
  Grid& grid = form.G;
  for (int row = grid.row() + 1; row <= table_rows; ++row) {
    for (int column = 1; column < grid.columns(); ++column) put_cell(grid, row - 1, column, grid.text(row, column));
  }
}

}  // namespace

void put_cell(Grid& grid, int row, int column, std::string_view text) {
  grid.set_row(row);
  grid.set_column(column);
  grid.set_text(text);
}

void put_row(Grid& grid, int row, std::span<const std::string> texts) {
  int column = 0;
  for (const auto& text : texts) put_cell(grid, row, ++column, text);
}

void write_frame(Grid& grid, std::span<const std::string_view> headers) {
  for (int row = 1; row <= table_rows; ++row) put_cell(grid, row, 0, Str(row));
  int column = 0;
  for (const auto header : headers) put_cell(grid, 0, ++column, header);
}

void fill_table(Grid& grid, std::span<const std::string_view> headers, int rows,
                const std::function<std::vector<std::string>(int row)>& texts_of) {
  constexpr int number_width = 500;
  grid.set_column_width(0, number_width);
  write_frame(grid, headers);
  for (int row = 1; row <= rows; ++row) put_row(grid, row, texts_of(row));
  grid.set_row(rows < 1 ? 1 : rows + 1);
  grid.set_column(1);
}

int filled_rows(const Grid& grid) {
  int rows = 0;
  while (rows < table_rows && !grid.text(rows + 1, 1).empty()) ++rows;
  return rows;
}

TableTexts texts_of(const Grid& grid) {
  return {[&grid](int row, int column) -> const std::string& { return grid.text(row, column); }, table_rows};
}

void close_table(Workbench& bench, TableForm& form) {
  form.hide();
  bench.windows.unload(form.name());
}

void wire_table(Workbench& bench, TableForm& form) {
  const Wire on(bench, form);
  form.on_activate = on(Form_Activate);
  form.G.on_key_press = on(G_KeyPress);
  form.Command2.on_click = on(Command2_Click);  // "CANCEL"
  form.Command3.on_click = on(Command3_Click);  // "delete a cell"
  form.Command4.on_click = on(Command4_Click);  // "delete a row"
}

}  // namespace zol
