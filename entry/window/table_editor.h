// What the two table editors do alike: typing, deleting, closing. What "OK" does is their own.
#pragma once

#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "entry/table_doubts.h"
#include "entry/window/table_form.h"
#include "shell/services/workbench.h"

namespace zol {

/// Writes the text of a cell; the current cell follows.
void put_cell(Grid& grid, int row, int column, std::string_view text);

/// Writes the texts of a row from column 1 on.
void put_row(Grid& grid, int row, std::span<const std::string> texts);

/// Row numbers, then headers of columns 1 on.
void write_frame(Grid& grid, std::span<const std::string_view> headers);

/// Fills a new table; the first cell after the filled rows becomes the current one.
/// @param texts_of  texts of a row, from 1
/// @throws RunFailure  no row is left after the filled ones
void fill_table(Grid& grid, std::span<const std::string_view> headers, int rows,
                const std::function<std::vector<std::string>(int row)>& texts_of);

/// Rows before the first one with an empty first column; later rows are not counted.
[[nodiscard]] int filled_rows(const Grid& grid);

/// The next opening is fresh.
void close_table(Workbench& bench, TableForm& form);

/// The texts of the table as they are, for what looks for doubtful ones.
[[nodiscard]] TableTexts texts_of(const Grid& grid);

/// Ties all events but those of loading and of "OK".
void wire_table(Workbench& bench, TableForm& form);

}  // namespace zol
