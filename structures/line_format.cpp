#include "structures/line_format.h"

#include <cctype>
#include <cmath>
#include <sstream>

#include "core/run_failure.h"
#include "structures/field_numbers.h"

namespace zol {

std::vector<NumberedLine> numbered_lines(std::string_view bytes) {
  std::vector<NumberedLine> lines;
  std::string text;
  int number = 1;
  for (const char c : bytes) {
    if (c == '\r') continue;
    if (c == '\n') {
      lines.push_back({text, number++});
      text.clear();
    } else {
      text += c;
    }
  }
  if (!text.empty()) lines.push_back({text, number});
  return lines;
}

std::vector<std::string> words_of(const std::string& line) {
  std::istringstream stream(line);
  std::vector<std::string> words;
  for (std::string word; stream >> word;) words.push_back(word);
  return words;
}

void fail_in_line(int line, const std::string& why) { throw RunFailure("line " + std::to_string(line) + ": " + why); }

double number_in(const std::string& word, int line, const std::string& what) {
  const auto number = measured_number(word);
  if (!number) fail_in_line(line, what + " is \"" + word + "\", a number is expected");
  return number->value;
}

int whole_number_in(const std::string& word, int line, const std::string& what, int lowest, int highest) {
  const double number = number_in(word, line, what);
  if (!(number >= lowest && number <= highest) || number != std::trunc(number)) {
    fail_in_line(line, what + " is \"" + word + "\", a whole number from " + std::to_string(lowest) + " to " +
                           std::to_string(highest) + " is expected");
  }
  return static_cast<int>(number);
}

std::string element_name(const std::string& word) {
  std::string name;
  for (const char c : word) {
    if (std::isalpha(static_cast<unsigned char>(c)) == 0) break;
    name += static_cast<char>(name.empty() ? std::toupper(static_cast<unsigned char>(c))
                                           : std::tolower(static_cast<unsigned char>(c)));
  }
  return name == "D" ? "H" : name;
}

}  // namespace zol
