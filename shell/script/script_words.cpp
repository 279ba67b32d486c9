#include "shell/script/script_words.h"

#include <charconv>

#include "shell/services/latin1.h"

namespace zol {
namespace {

char escaped(char c) {
  switch (c) {
    case '"':
    case '\\':
      return c;
    case 'n':
      return '\n';
    case 'r':
      return '\r';
    case 't':
      return '\t';
    case 'b':
      return '\b';
    default:
      fail_script(std::string("unknown \\") + c + R"( in a quoted word; known are \" \\ \n \r \t \b)");
  }
}

bool is_blank(char c) { return c == ' ' || c == '\t' || c == '\r'; }

/// Reads the quoted word behind an opening quote. @returns the place behind the closing one
std::size_t read_quoted(const std::string& line, std::size_t at, std::string& word) {
  for (; at < line.size(); ++at) {
    if (line[at] == '"') return at + 1;
    if (line[at] == '\\' && at + 1 < line.size()) {
      word += escaped(line[++at]);
    } else {
      word += line[at];
    }
  }
  fail_script("a quote is not closed");
}

}  // namespace

void fail_script(const std::string& message) { throw ScriptError(message); }

std::vector<std::string> split_words(const std::string& line) {
  std::vector<std::string> words;
  std::size_t at = 0;
  while (at < line.size()) {
    if (is_blank(line[at])) {
      ++at;
    } else if (line[at] == '#') {
      break;
    } else {
      std::string word;
      while (at < line.size() && !is_blank(line[at]) && line[at] != '#') {
        if (line[at] == '"') {
          at = read_quoted(line, at + 1, word);
        } else {
          word += line[at++];
        }
      }
      words.push_back(std::move(word));
    }
  }
  return words;
}

std::string box_text(const std::string& word) {
  Latin1 converted = latin1_of_utf8(word);
  if (!converted.refused.empty()) fail_script(converted.refused);
  return std::move(converted.text);
}

int whole_number(const std::string& word, const std::string& what) {
  int number = 0;
  const auto result = std::from_chars(word.data(), word.data() + word.size(), number);
  if (result.ec != std::errc() || result.ptr != word.data() + word.size()) {
    fail_script(what + " is \"" + word + "\", a whole number is expected");
  }
  return number;
}

double number(const std::string& word, const std::string& what) {
  const auto value = strict_number(word);
  if (!value) fail_script(what + " is \"" + word + "\", a number is expected");
  return *value;
}

std::pair<std::string, std::string> split_name(const std::string& name) {
  const std::size_t dot = name.find('.');
  if (dot == std::string::npos || dot == 0 || dot + 1 == name.size()) {
    fail_script("\"" + name + "\" is not a name of the form Window.Control");
  }
  return {name.substr(0, dot), name.substr(dot + 1)};
}

std::pair<std::string, std::vector<int>> split_indices(const std::string& text) {
  const std::size_t open = text.find('(');
  if (open == std::string::npos) return {text, {}};
  if (text.back() != ')') fail_script("\"" + text + "\" has no closing bracket");
  std::vector<int> indices;
  std::string list = text.substr(open + 1, text.size() - open - 2) + ',';
  for (std::size_t at = 0; at < list.size();) {
    const std::size_t comma = list.find(',', at);
    std::string index = list.substr(at, comma - at);
    std::erase_if(index, is_blank);
    indices.push_back(whole_number(index, "an index of " + text.substr(0, open)));
    at = comma + 1;
  }
  return {text.substr(0, open), indices};
}

}  // namespace zol
