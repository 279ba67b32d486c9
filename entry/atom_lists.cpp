#include "entry/atom_lists.h"

#include "core/read_file.h"
#include "core/run_failure.h"
#include "entry/word_lines.h"

namespace zol {
namespace {

constexpr std::size_t most_lines = 200;

/// Words of each line of a file.
std::vector<std::vector<std::string>> word_lines(const std::string& path, bool skip_empty, Task& task) {
  std::vector<std::vector<std::string>> table;
  int number = 0;
  for_each_line(read_file(path, task), task, [&](std::string_view line) {
    ++number;
    auto words = cut_words(line, path, number);
    if (words.empty() && skip_empty) return;
    if (table.size() == most_lines) {
      throw RunFailure(path + ", line " + std::to_string(number) + ": the table holds 200 lines of atoms at most");
    }
    table.push_back(std::move(words));
  });
  return table;
}

/// Word n of a line, from 1; empty when the line has none.
std::string word(const std::vector<std::string>& words, std::size_t n) { return n <= words.size() ? words[n - 1] : ""; }

std::string element_of_label(const std::string& label) {
  const std::string element = label.substr(0, 2);
  return element.starts_with('O') ? "O" : element;
}

}  // namespace

std::vector<AtomRow> read_bare_atom_list(const std::string& path, Task& task) {
  std::vector<AtomRow> rows;
  for (const auto& words : word_lines(path, true, task)) {
    const std::string label = word(words, 1);
    rows.push_back({label, element_of_label(label), "1.0", word(words, 2), word(words, 3), word(words, 4), "0.0"});
  }
  return rows;
}

std::vector<AtomRow> read_mincryst_list(const std::string& path, Task& task) {
  std::vector<AtomRow> rows;
  for (const auto& words : word_lines(path, false, task)) {
    rows.push_back({word(words, 6), word(words, 6), word(words, 8), word(words, 2), word(words, 3), word(words, 4),
                    word(words, 5)});
  }
  return rows;
}

}  // namespace zol
