// Characters at the edges of the program.
//
// Inside, the texts of boxes, tables, lists, pictures and data files are Latin-1, a byte a character. Names of files
// are the bytes of the file system, as a rule UTF-8. Captions and messages hold the program's own words in UTF-8 beside
// names of files and texts of boxes.
#pragma once

#include <string>
#include <string_view>

namespace zol {

[[nodiscard]] std::string utf8_of_latin1(std::string_view text);

struct Latin1 {
  std::string text;
  std::string refused;  ///< why there is no text; empty when there is
};
/// The text in Latin-1, unless it is no UTF-8 or has a character without a place there.
[[nodiscard]] Latin1 latin1_of_utf8(std::string_view text);

/// A caption or message for the eye: what is no UTF-8 in it is taken for Latin-1.
[[nodiscard]] std::string readable_utf8(std::string_view text);

}  // namespace zol
