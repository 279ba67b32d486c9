// Columns of numbers in a text file, as diffractometers and spreadsheets write them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/task.h"

namespace zol {

struct PlainRow {
  std::vector<double> values;
  int line = 0;  ///< of the file, from 1
};

/// Rows of two numbers or more. Between them are blanks, tabs, semicolons or commas; a number may have a decimal
/// comma where no number of the file has a point and something else is between the columns. Left out are empty
/// lines, lines that begin with # ! ; ' / * % or a quote, what follows # or ! in a line, and all before the first row
/// that does not begin with a number.
/// @param what  the two columns, for messages
/// @throws RunFailure  a row that is none, or no row at all; it names file, line and what was expected
/// @throws Cancelled  the task stops
[[nodiscard]] std::vector<PlainRow> read_plain_columns(std::string_view text, const std::string& file,
                                                       const std::string& what, Task& task);

}  // namespace zol
