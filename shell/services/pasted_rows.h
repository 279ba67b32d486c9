// Rows of cells in a text that was copied elsewhere.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zol {

/// Cells stand between tabs (from a spreadsheet), else between semicolons, else between commas, else between blanks; a
/// line is a row, empty lines at the end are none. Quotes around a cell and blanks around it go; where no comma parts
/// cells, one inside a number is a decimal point.
[[nodiscard]] std::vector<std::vector<std::string>> pasted_rows(std::string_view text);

}  // namespace zol
