// Lines and words of formats that have a line for each thing.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zol {

inline constexpr double b_where_none = 0.5;  ///< square angstroms, where a file has no displacement parameters

struct NumberedLine {
  std::string text;
  int number = 0;  ///< from 1
};

/// Without their ends, LF or CR LF.
[[nodiscard]] std::vector<NumberedLine> numbered_lines(std::string_view bytes);
/// Cut at blanks and tabs.
[[nodiscard]] std::vector<std::string> words_of(const std::string& line);
/// The letters that a word begins with as a symbol; deuterium as hydrogen.
[[nodiscard]] std::string element_name(const std::string& word);

/// @throws RunFailure  always, with the number of the line
[[noreturn]] void fail_in_line(int line, const std::string& why);
/// @throws RunFailure  the word is not a number
[[nodiscard]] double number_in(const std::string& word, int line, const std::string& what);
/// @throws RunFailure  the word is not a whole number from lowest to highest
[[nodiscard]] int whole_number_in(const std::string& word, int line, const std::string& what, int lowest, int highest);

}  // namespace zol
