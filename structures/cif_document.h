// The blocks of a crystallographic information file as tables of texts.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "structures/notes.h"

namespace zol {

/// All values of a tag; one that is unknown ("?") or does not apply (".") is none.
struct CifColumn {
  std::vector<std::optional<std::string>> values;
  int loop = 0;  ///< columns of one loop share its number; 0 outside loops
  int line = 0;  ///< of the tag, or of the loop that it is in
};

struct CifBlock {
  std::string name;
  std::map<std::string, CifColumn> columns;  ///< by tag, in small letters, with _ in the place of dots

  /// The column of the first of the tags that is there with a value; a null pointer for none.
  [[nodiscard]] const CifColumn* find(std::initializer_list<std::string_view> tags) const;
  /// The first value of the first of the tags that has one.
  [[nodiscard]] std::optional<std::string> value(std::initializer_list<std::string_view> tags) const;
};

struct CifDocument {
  std::vector<CifBlock> blocks;
  Notes notes;
};

/// Whatever the bytes are, with notes on what was mended.
/// @throws RunFailure  the parser refuses the text in spite of that; the message has the line
[[nodiscard]] CifDocument parse_cif(std::string_view bytes);

}  // namespace zol
