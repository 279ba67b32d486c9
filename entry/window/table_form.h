// What the two table editors share: a grid of 200 numbered rows, typed into by way of an edit buffer. They are told
// apart by their columns.
#pragma once

#include <span>
#include <string_view>

#include "shell/services/window_services.h"

namespace zol {

inline constexpr int table_rows = 200;

/// Writes the text of a cell; the current cell follows.
void put_cell(Grid& grid, int row, int column, std::string_view text);

/// Row numbers, then headers of columns 1 on.
void write_frame(Grid& grid, std::span<const std::string_view> headers);

/// A key in the grid: characters go to the buffer, Enter puts the buffer into the cell and walks on by rows, backspace
/// takes back the last character of the buffer. A backspace in an empty buffer stays in it.
/// @throws RunFailure  Enter in the last cell of the last row
void type_into_table(Grid& grid, TextBox& buffer, int& key);

/// Empties the current cell.
void delete_cell(Grid& grid);

/// Moves the rows behind the current one up by one; the last row stays as it was. The current cell ends at the last
/// cell that was written.
void delete_row(Grid& grid);

/// Rows before the first one with an empty first column; what stands behind is not counted.
[[nodiscard]] int filled_rows(const Grid& grid);

}  // namespace zol
