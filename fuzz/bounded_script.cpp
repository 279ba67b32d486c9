#include "fuzz/bounded_script.h"

#include <array>
#include <optional>
#include <sstream>
#include <string_view>
#include <vector>

#include "core/number_text.h"
#include "shell/script/script_words.h"

namespace zol::fuzz {
namespace {

/// A box whose number rules the amount of work. Numbers that are not positive end in a failure or mean a default.
struct Bound {
  std::string_view box;
  double least = 0;  ///< of the positive numbers
  double most = 0;
};
constexpr double any = 1e300;
constexpr std::array bounds{
    Bound{"Main1.Text1", 0, 9},        Bound{"Main1.Text2", 0, 9},         Bound{"Main1.Text3", 0, 9},
    Bound{"Main1.Text15", 0.5, any},   Bound{"PATTERN3.Text2", 0, 60},     Bound{"PATTERN3.Text10", 0, 1},
    Bound{"Zaxis.Text1", 0, 6},        Bound{"Zaxis.Text2", 0, 6},         Bound{"Zaxis.Text3", 0, 6},
    Bound{"Xd.Text6", 100, any},       Bound{"Xd.Text7", 100, any},        Bound{"Xd.Text8", 100, any},
    Bound{"Dring.Text6", 100, any},    Bound{"Dring.Text7", 100, any},     Bound{"Dring.Text8", 100, any},
    Bound{"AtomDistance.Text1", 0, 5}, Bound{"FiberTexture.Text2", 0, 30}, Bound{"Pattern.Text1", 0, 3},
    Bound{"FiberTexture.Text1", 0, 3},
};

/// Text of the bound that a number passes; none for a number within.
std::optional<std::string> bounded(std::string_view text, const Bound& bound) {
  const double value = Val(text);
  if (value > bound.most) return plain_text(bound.most);
  if (value > 0 && value < bound.least) return plain_text(bound.least);
  return std::nullopt;
}

std::string quoted(std::string_view word) {
  std::string text = "\"";
  for (const char c : word) {
    switch (c) {
      case '\n':
        text += "\\n";
        break;
      case '\r':
        text += "\\r";
        break;
      case '"':
      case '\\':
        text += '\\';
        [[fallthrough]];
      default:
        text += c;
    }
  }
  return text + '"';
}

/// A typed number stands behind what is in the box: together they may be any number, so it is set instead.
void bound_box(std::vector<std::string>& words) {
  for (const Bound& bound : bounds) {
    if (words[1] != bound.box) continue;
    words[0] = "set";
    words[2] = bounded(words[2], bound).value_or(words[2]);
  }
}

/// An answer is the name of a file, the least spacing of a list, or another number of a prompt.
void bound_answer(std::string& answer) {
  answer = answer.substr(answer.find_last_of('/') + 1);
  if (answer == "." || answer == "..") answer.clear();
  if (const auto number = strict_number(answer); number) {
    answer = bounded(answer, {"the prompt for Dmin", 0.5, any}).value_or(answer);
  }
}

/// No words for a line that cannot be read.
std::vector<std::string> words_of(const std::string& line) {
  try {
    return split_words(line);
  } catch (const ScriptError&) {
    return {};
  }
}

std::string bounded_line(const std::string& line) {
  std::vector<std::string> words = words_of(line);
  if (words.empty()) return line;
  if (words.size() == 3 && (words[0] == "set" || words[0] == "type")) bound_box(words);
  if (words.size() == 2 && words[0] == "answer") bound_answer(words[1]);
  if (words.size() == 3 && words[0] == "export") words[2] = words[2].substr(words[2].find_last_of('/') + 1);
  std::string text;
  for (const auto& word : words) text += (text.empty() ? "" : " ") + quoted(word);
  return text;
}

/// The window of spots or arcs that an operation draws in; empty when it draws in neither. They share the width of the
/// picture with the windows of Kikuchi patterns, where it is an angle and far larger.
std::string drawn_window(const std::vector<std::string>& words) {
  if (words.size() < 2) return "";
  if (words[1] == "Main1.PatternDisp") return "Pattern";
  if (words[1] == "Main1.PatternDisp3") return "FiberTexture";
  const std::string window = words[1].substr(0, words[1].find('.'));
  return window == "Pattern" || window == "FiberTexture" ? window : "";
}

/// Sets a width before operations that come from another window, and before each one that doubles it.
class WidthKeeper {
 public:
  std::string before(const std::string& line) {
    const std::string window = drawn_window(words_of(line));
    const bool widens = line.find(".Command3\"") != std::string::npos;
    const bool kept = window == last_ && !widens;
    last_ = window;
    if (window.empty() || kept) return "";
    return "set " + window + ".Text1 0\nset " + window + ".Text1 2\n";
  }

 private:
  std::string last_;
};

}  // namespace

std::string bounded_script(const std::string& script) {
  std::istringstream lines(script);
  std::string result;
  std::string line;
  WidthKeeper width;
  for (int n = 0; n < most_operations && std::getline(lines, line); ++n) {
    line = bounded_line(line);
    result += width.before(line) + line + '\n';
  }
  return result;
}

}  // namespace zol::fuzz
