#include "shell/script/script_driver.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <cstring>
#include <istream>
#include <ostream>

#include "shell/services/latin1.h"

namespace zol {
namespace {

[[noreturn]] void fail(const std::string& message) { throw ScriptError(message); }

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
      fail(std::string("unknown \\") + c + R"( in a quoted word; known are \" \\ \n \r \t \b)");
  }
}

/// A word as text of a box.
std::string box_text(const std::string& word) {
  Latin1 converted = latin1_of_utf8(word);
  if (!converted.refused.empty()) fail(converted.refused);
  return std::move(converted.text);
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
  fail("a quote is not closed");
}

int whole_number(const std::string& word, const std::string& what) {
  int number = 0;
  const auto result = std::from_chars(word.data(), word.data() + word.size(), number);
  if (result.ec != std::errc() || result.ptr != word.data() + word.size()) {
    fail(what + " is \"" + word + "\", a whole number is expected");
  }
  return number;
}

double number(const std::string& word, const std::string& what) {
  const auto value = strict_number(word);
  if (!value) fail(what + " is \"" + word + "\", a number is expected");
  return *value;
}

/// "Window.Rest" as a pair.
std::pair<std::string, std::string> split_name(const std::string& name) {
  const std::size_t dot = name.find('.');
  if (dot == std::string::npos || dot == 0 || dot + 1 == name.size()) {
    fail("\"" + name + "\" is no name of the form Window.Control");
  }
  return {name.substr(0, dot), name.substr(dot + 1)};
}

/// "NAME(i,j)" as name and indices.
std::pair<std::string, std::vector<int>> split_indices(const std::string& text) {
  const std::size_t open = text.find('(');
  if (open == std::string::npos) return {text, {}};
  if (text.back() != ')') fail("\"" + text + "\" has no closing bracket");
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

/// RRGGBB of a colour that is packed as r + 256 g + 65536 b.
std::string colour_text(Colour colour) {
  constexpr std::string_view digits = "0123456789ABCDEF";
  std::string text;
  for (const unsigned shift : {4U, 0U, 12U, 8U, 20U, 16U}) {
    text += digits[(static_cast<unsigned>(colour) >> shift) & 0xFU];
  }
  return text;
}

/// Coordinates with 7 significant digits.
std::string coordinates(std::initializer_list<double> values) {
  std::string line;
  for (const double value : values) {
    std::array<char, 40> text{};
    constexpr int digits = 7;
    const auto end = std::to_chars(text.data(), text.data() + text.size(), value == 0.0 ? 0.0 : value,
                                   std::chars_format::general, digits);
    line.append(1, ' ').append(text.data(), end.ptr);
  }
  return line;
}

std::string quoted(const std::string& text) {
  std::string result = "\"";
  for (const char c : text) {
    if (c == '"' || c == '\\') result += '\\';
    result += c;
  }
  return result + '"';
}

struct PrimitiveText {
  std::string operator()(const UserScale& s) const { return "scale" + coordinates({s.left, s.top, s.right, s.bottom}); }
  std::string operator()(const DrawnLine& d) const {
    return "line" + coordinates({d.x1, d.y1, d.x2, d.y2}) + ' ' + colour_text(d.colour);
  }
  std::string operator()(const DrawnCircle& d) const {
    return "circle" + coordinates({d.x, d.y, d.radius}) + ' ' + colour_text(d.colour) + ' ' +
           (d.fill ? colour_text(*d.fill) : "none");
  }
  std::string operator()(const DrawnPoint& d) const {
    return "point" + coordinates({d.x, d.y}) + ' ' + colour_text(d.colour);
  }
  std::string operator()(const DrawnText& d) const {
    return "text" + coordinates({d.x, d.y}) + ' ' + colour_text(d.colour) + ' ' + quoted(utf8_of_latin1(d.text));
  }
};

/// Rows from 0 to the last one with text beyond column 0, cells separated by tabs.
void print_grid(const Grid& grid, std::ostream& output) {
  const auto has_text = [&grid](int row) {
    for (int column = 1; column < grid.columns(); ++column) {
      if (!grid.text(row, column).empty()) return true;
    }
    return false;
  };
  int last = grid.rows() - 1;
  while (last >= 0 && !has_text(last)) --last;
  for (int row = 0; row <= last; ++row) {
    for (int column = 0; column < grid.columns(); ++column) {
      if (column > 0) output << '\t';
      output << utf8_of_latin1(grid.text(row, column));
    }
    output << '\n';
  }
}

}  // namespace

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

std::vector<std::string> drawing_text(const Canvas& canvas) {
  std::vector<std::string> lines;
  for (const auto& primitive : canvas.drawing()) lines.push_back(std::visit(PrimitiveText{}, primitive.what));
  return lines;
}

/// An operation, its form, how many words it takes behind its own, and what it does.
struct ScriptDriver::Operation {
  std::string_view name;
  std::string_view usage;
  std::size_t fewest;
  std::size_t most;
  void (*run)(ScriptDriver& driver, const Words& words);
};

const std::vector<ScriptDriver::Operation>& ScriptDriver::operations() {
  static constexpr std::size_t any = 1000;
  static const std::vector<Operation> table{
      {"show", "show WINDOW", 1, 1,
       [](ScriptDriver& d, const Words& w) {
         if (!d.program_.windows().knows(w[1])) fail("there is no window " + w[1]);
         d.program_.windows().use(w[1]).show();
       }},
      {"set", "set W.C TEXT", 2, 2,
       [](ScriptDriver& d, const Words& w) {
         auto& box = d.control<TextBox>(w[1]);
         box.set_text(box.holds_file_name ? w[2] : box_text(w[2]));
       }},
      {"type", "type W.C TEXT", 2, 2, [](ScriptDriver& d, const Words& w) { d.type(w); }},
      {"leave", "leave W.C", 1, 1, [](ScriptDriver& d, const Words& w) { d.control<TextBox>(w[1]).leave(); }},
      {"click", "click W.C", 1, 1, [](ScriptDriver& d, const Words& w) { d.click(w); }},
      {"select", "select W.C INDEX", 2, 2, [](ScriptDriver& d, const Words& w) { d.select(w); }},
      {"choose", "choose W.C TEXT", 2, 2, [](ScriptDriver& d, const Words& w) { d.choose(w); }},
      {"cell", "cell W.C ROW COLUMN", 3, 3,
       [](ScriptDriver& d, const Words& w) {
         auto& grid = d.control<Grid>(w[1]);
         grid.set_row(whole_number(w[2], "ROW"));
         grid.set_column(whole_number(w[3], "COLUMN"));
       }},
      {"press", "press W.C X Y", 3, 3,
       [](ScriptDriver& d, const Words& w) { d.control<Canvas>(w[1]).press(number(w[2], "X"), number(w[3], "Y")); }},
      {"move", "move W.C X Y", 3, 3,
       [](ScriptDriver& d, const Words& w) { d.control<Canvas>(w[1]).move(number(w[2], "X"), number(w[3], "Y")); }},
      {"release", "release W.C X Y", 3, 3,
       [](ScriptDriver& d, const Words& w) { d.control<Canvas>(w[1]).release(number(w[2], "X"), number(w[3], "Y")); }},
      {"doubleclick", "doubleclick W.C", 1, 1,
       [](ScriptDriver& d, const Words& w) { d.control<Canvas>(w[1]).double_click(); }},
      {"answer", "answer TEXT", 1, 1, [](ScriptDriver& d, const Words& w) { d.services_.queue_answer(w[1], d.line_); }},
      {"cancel", "cancel", 0, 0, [](ScriptDriver& d, const Words&) { d.services_.queue_answer(""); }},
      {"print", "print W.C", 1, 1, [](ScriptDriver& d, const Words& w) { d.print(w); }},
      {"call", "call W.OPERATION", 1, 1, [](ScriptDriver& d, const Words& w) { d.call(w); }},
      {"visible", "visible W.C", 1, 1,
       [](ScriptDriver& d, const Words& w) { d.output_ << (d.any_control(w[1]).visible() ? 1 : 0) << '\n'; }},
      {"caption", "caption WINDOW", 1, 1,
       [](ScriptDriver& d, const Words& w) {
         if (!d.program_.windows().knows(w[1])) fail("there is no window " + w[1]);
         d.output_ << readable_utf8(d.program_.windows().use(w[1]).caption()) << '\n';
       }},
      {"printer", "printer", 0, 0, [](ScriptDriver& d, const Words&) { d.print_pages(); }},
      {"export", "export W.C FILE", 2, 2,
       [](ScriptDriver& d, const Words& w) { d.services_.export_picture(d.control<Canvas>(w[1]), w[2]); }},
      {"echo", "echo WORDS", 0, any,
       [](ScriptDriver& d, const Words& w) {
         for (std::size_t i = 1; i < w.size(); ++i) {
           if (const auto readable = readable_utf8(w[i]); readable != w[i]) fail("\"" + readable + "\" is no UTF-8");
           d.output_ << (i > 1 ? " " : "") << w[i];
         }
         d.output_ << '\n';
       }},
  };
  return table;
}

ScriptDriver::ScriptDriver(Program& program, ScriptServices& services, std::ostream& output)
    : program_(program),
      services_(services),
      output_(output),
      gate_([this] { program_.windows().free_unloaded(); },
            [this](const std::exception_ptr& reason) { stopped_ = reason; }) {}

void ScriptDriver::run(std::istream& script) {
  std::string line;
  // Who writes the script may wait for what a line prints.
  const auto next_line = [&] {
    if (script.rdbuf()->in_avail() <= 0) output_.flush();
    return static_cast<bool>(std::getline(script, line));
  };
  for (line_ = 0; !services_.ended() && next_line();) {
    ++line_;
    try {
      const Words words = split_words(line);
      if (words.empty()) continue;
      gate_.enter({line, line, [this, &words] { execute(words); }});
      if (stopped_) std::rethrow_exception(stopped_);
    } catch (const ScriptError& error) {
      if (error.line() > 0) throw;
      throw ScriptError(error.what(), line_);
    }
  }
  if (script.bad()) {
    throw RunFailure("can't read the script behind line " + std::to_string(line_) + ": " + std::strerror(errno));
  }
}

void ScriptDriver::execute(const Words& words) {
  const auto& table = operations();
  const auto found =
      std::find_if(table.begin(), table.end(), [&words](const Operation& op) { return op.name == words.front(); });
  if (found == table.end()) fail("unknown operation \"" + words.front() + "\"");
  const std::size_t given = words.size() - 1;
  if (given < found->fewest || given > found->most) fail("the form is: " + std::string(found->usage));
  found->run(*this, words);
}

Control& ScriptDriver::any_control(const std::string& name) {
  const auto [window, rest] = split_name(name);
  if (!program_.windows().knows(window)) fail("there is no window " + window);
  Control* found = program_.windows().use(window).find(rest);
  if (found == nullptr) fail("window " + window + " has no control " + rest);
  return *found;
}

template <class Kind>
Kind& ScriptDriver::control(const std::string& name) {
  auto* found = dynamic_cast<Kind*>(&any_control(name));
  if (found == nullptr) fail(name + " is a control of another kind");
  return *found;
}

void ScriptDriver::type(const Words& words) {
  Control& target = any_control(words[1]);
  for (const char c : box_text(words[2])) {
    if (auto* box = dynamic_cast<TextBox*>(&target)) {
      box->type(c);
    } else if (auto* grid = dynamic_cast<Grid*>(&target)) {
      grid->press_key(static_cast<unsigned char>(c));
    } else {
      fail(words[1] + " takes no typing");
    }
  }
}

void ScriptDriver::click(const Words& words) {
  Control& target = any_control(words[1]);
  if (auto* button = dynamic_cast<CommandButton*>(&target)) return button->click();
  if (auto* item = dynamic_cast<MenuItem*>(&target)) return item->click();
  if (auto* check = dynamic_cast<CheckBox*>(&target)) return check->click();
  if (auto* option = dynamic_cast<OptionButton*>(&target)) return option->click();
  fail(words[1] + " can't be clicked");
}

void ScriptDriver::select(const Words& words) {
  Control& target = any_control(words[1]);
  const int index = whole_number(words[2], "INDEX");
  const auto pick = [&](auto& control) {
    const std::size_t count = control.items().size();
    if (index < 0 || static_cast<std::size_t>(index) >= count) {
      fail(words[1] + " has no item " + words[2] + ", it has " + std::to_string(count) + ", the first is 0");
    }
    control.pick(index);
  };
  if (auto* list = dynamic_cast<ListBox*>(&target)) return pick(*list);
  if (auto* combo = dynamic_cast<ComboBox*>(&target)) return pick(*combo);
  fail(words[1] + " has no items");
}

void ScriptDriver::choose(const Words& words) {
  auto& combo = control<ComboBox>(words[1]);
  const auto item = std::find(combo.items().begin(), combo.items().end(), box_text(words[2]));
  if (item == combo.items().end()) fail(words[1] + " has no item \"" + words[2] + "\"");
  combo.pick(static_cast<int>(item - combo.items().begin()));
}

void ScriptDriver::print(const Words& words) {
  const auto [owner, name] = split_name(words[1]);
  if (owner == "Module1") return print_value(owner, program_.module1(), name);
  if (!program_.windows().knows(owner)) fail("there is no window " + owner);
  Window& window = program_.windows().use(owner);
  if (Control* shown = window.find(name)) return print_control(*shown);
  print_value(owner, window.fields(), name);
}

void ScriptDriver::print_value(const std::string& owner, const NamedValues& values, const std::string& name) {
  const auto [field, indices] = split_indices(name);
  const int dimensions = values.dimensions(field);
  if (dimensions < 0) fail(owner + " has no control or field " + field);
  if (static_cast<std::size_t>(dimensions) != indices.size()) {
    fail(owner + "." + field + " takes " + std::to_string(dimensions) + " indices, given are " +
         std::to_string(indices.size()));
  }
  output_ << values.text(field, indices) << '\n';
}

void ScriptDriver::print_control(Control& shown) {
  switch (shown.kind()) {
    case ControlKind::TextBox: {
      const auto& box = dynamic_cast<TextBox&>(shown);
      output_ << (box.holds_file_name ? box.text() : utf8_of_latin1(box.text())) << '\n';
      break;
    }
    case ControlKind::ComboBox:
      output_ << utf8_of_latin1(dynamic_cast<ComboBox&>(shown).text()) << '\n';
      break;
    case ControlKind::CheckBox:
      output_ << dynamic_cast<CheckBox&>(shown).value() << '\n';
      break;
    case ControlKind::OptionButton:
      output_ << (dynamic_cast<OptionButton&>(shown).on() ? 1 : 0) << '\n';
      break;
    case ControlKind::CommandButton:
      output_ << (shown.visible() ? 1 : 0) << '\n';
      break;
    case ControlKind::ListBox:
      for (const auto& line : dynamic_cast<ListBox&>(shown).items()) output_ << utf8_of_latin1(line) << '\n';
      break;
    case ControlKind::ProgressBar: {
      const auto& bar = dynamic_cast<ProgressBar&>(shown);
      output_ << plain_text(bar.minimum()) << ' ' << plain_text(bar.maximum()) << ' ' << plain_text(bar.value())
              << '\n';
      break;
    }
    case ControlKind::Grid:
      print_grid(dynamic_cast<Grid&>(shown), output_);
      break;
    case ControlKind::Canvas:
      for (const auto& line : drawing_text(dynamic_cast<Canvas&>(shown))) output_ << line << '\n';
      break;
    case ControlKind::Label:
    case ControlKind::Frame:
    case ControlKind::MenuItem:
      output_ << readable_utf8(shown.caption()) << '\n';
      break;
  }
}

void ScriptDriver::call(const Words& words) {
  const auto [owner, name] = split_name(words[1]);
  if (!program_.windows().knows(owner)) fail("there is no window " + owner);
  const auto* operation = program_.windows().use(owner).operation(name);
  if (operation == nullptr) fail("window " + owner + " has no operation " + name);
  (*operation)();
}

void ScriptDriver::print_pages() {
  for (const auto& line : services_.take_printed()) output_ << line << '\n';
}

}  // namespace zol
