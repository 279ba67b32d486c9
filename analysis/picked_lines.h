// The straight lines that the user draws on a measured pattern: ends in picture coordinates, 0 to 511, y downward.
#pragma once

#include <optional>

#include "core/bounded_array.h"
#include "core/numbers.h"

namespace zol {

struct PickedLines {
  BoundedTable<Single> LineX{"LineX", 5, 1};  ///< line, end
  BoundedTable<Single> LineY{"LineY", 5, 1};
  BoundedArray<Integer> LineDone{"LineDone", 5};  ///< 1 when both ends are set
  Integer LastLine = 2;                           ///< 5 when each band is picked by its two edges
};

struct LineEnd {
  int line = 0;
  int end = 0;
};

/// The first line without both ends.
[[nodiscard]] std::optional<int> unfinished_line(const PickedLines& lines);

/// The end nearest to a point; among equals the later one.
[[nodiscard]] LineEnd nearest_end(const PickedLines& lines, Single x, Single y);

/// Removes all lines in use.
void clear_lines(PickedLines& lines);

}  // namespace zol
