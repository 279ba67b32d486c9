// Text of a crystallographic information file, brought into a form that a strict parser takes.
//
// Files that people have break the rules in a handful of ways, most of which leave no doubt about what is meant. These
// are mended here: byte order marks, line ends, Latin-1, control characters, data before the first block, loops that
// are cut short, tags without a value, values without a tag, quotes and text fields that are not closed.
#pragma once

#include <string>
#include <string_view>

#include "structures/notes.h"

namespace zol {

struct MendedCif {
  std::string text;  ///< ASCII but for quoted values, which may have Latin-1; the lines are those of the file
  Notes notes;       ///< what was mended, with its line
};

/// Takes CIF 1.0 and 1.1, and of CIF 2.0 triple quotes and lists. Never fails.
[[nodiscard]] MendedCif mended_cif(std::string_view bytes);

}  // namespace zol
