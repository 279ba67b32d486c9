// How all importers cut lines into words, and what they change in a word.
#pragma once

#include <algorithm>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "core/bounded_array.h"
#include "core/numbers.h"
#include "core/task.h"

namespace zol {

inline constexpr int most_words = 100;  ///< in a line

/// Words of a line: only the blank separates; a tab, a comma or a quote belongs to the word.
/// @param path, number  the line, for the message
/// @throws RunFailure   it has more than 100 words
[[nodiscard]] std::vector<std::string> cut_words(std::string_view line, const std::string& path, int number);

/// Visits the lines of a text in turn; CR LF, LF or CR ends one, and an end at the end of the text makes no further
/// line. Checks the task before each line.
void for_each_line(std::string_view text, Task& task, const std::function<void(std::string_view line)>& visit);

/// A value without its standard uncertainty: the text before the first "(".
[[nodiscard]] std::string without_uncertainty(std::string_view word);

/// The words of the line under work, numbered from 1. Words of earlier lines remain where a later line has none, and
/// word 0 is always empty: readers take whatever is at a column.
class WordTable {
 public:
  /// @param path  names the file in messages
  explicit WordTable(std::string path) : path_(std::move(path)) {}

  /// Takes the next line. @throws RunFailure  it has more than 100 words
  void take(std::string_view line);

  [[nodiscard]] int count() const { return count_; }  ///< words only of this line
  [[nodiscard]] int line() const { return line_; }    ///< from 1
  [[nodiscard]] const std::string& operator()(int index) const { return words_(index); }
  void strip(int index) { words_(index) = without_uncertainty(words_(index)); }
  /// Cuts a word before its first digit: an element without charge or count.
  void cut_before_digits(int index) {
    words_(index).erase(std::min(words_(index).find_first_of("0123456789"), words_(index).size()));
  }

  /// Strict conversion: a number and nothing else.
  /// @param meaning  what the word was taken for, for the message
  /// @throws RunFailure  names the file, the line, the word, its place and the meaning
  [[nodiscard]] Single number(int index, std::string_view meaning) const;

 private:
  std::string path_;
  BoundedArray<String> words_{"words", most_words};
  int count_ = 0;
  int line_ = 0;
};

}  // namespace zol
