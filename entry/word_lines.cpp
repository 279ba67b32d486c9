#include "entry/word_lines.h"

#include <cmath>

#include "core/number_text.h"
#include "core/run_failure.h"

namespace zol {

std::vector<std::string> cut_words(std::string_view line, const std::string& path, int number) {
  std::vector<std::string> words;
  std::string token;
  for (const char c : line) {
    if (c != ' ') {
      token += c;
    } else if (!token.empty()) {
      words.push_back(std::exchange(token, {}));
    }
  }
  if (!token.empty()) words.push_back(token);
  if (words.size() > most_words) {
    throw RunFailure(path + ", line " + std::to_string(number) + ": " + std::to_string(words.size()) +
                     " words, at most " + std::to_string(most_words) + " are read");
  }
  return words;
}

void for_each_line(std::string_view text, Task& task, const std::function<void(std::string_view line)>& visit) {
  while (!text.empty()) {
    task.check();
    const std::size_t end = text.find_first_of("\r\n");
    visit(text.substr(0, end));
    if (end == std::string_view::npos) return;
    const bool crlf = text[end] == '\r' && end + 1 < text.size() && text[end + 1] == '\n';
    text.remove_prefix(end + (crlf ? 2 : 1));
  }
}

std::string without_uncertainty(std::string_view word) { return std::string(word.substr(0, word.find('('))); }

void WordTable::take(std::string_view line) {
  ++line_;
  const auto words = cut_words(line, path_, line_);
  count_ = static_cast<int>(words.size());
  for (int i = 1; i <= count_; ++i) words_(i) = words[static_cast<std::size_t>(i - 1)];
}

Single WordTable::number(int index, std::string_view meaning) const {
  const std::string& word = words_(index);
  const auto value = strict_number(word);
  if (value && std::isfinite(static_cast<Single>(*value))) return static_cast<Single>(*value);
  const std::string place = index == 0 ? "there is no column for it" : "it is word " + std::to_string(index);
  throw RunFailure(path_ + ", line " + std::to_string(line_) + ": \"" + word + "\" is taken for " +
                   std::string(meaning) + " (" + place + "), a number and nothing else is expected");
}

}  // namespace zol
