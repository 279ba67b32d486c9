#include "shell/script/control_text.h"

#include <array>
#include <charconv>
#include <ostream>
#include <string_view>

#include "shell/services/latin1.h"

namespace zol {
namespace {

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

std::vector<std::string> drawing_text(const Canvas& canvas) {
  std::vector<std::string> lines;
  for (const auto& primitive : canvas.drawing()) lines.push_back(std::visit(PrimitiveText{}, primitive.what));
  return lines;
}

void print_control(Control& shown, std::ostream& output) {
  switch (shown.kind()) {
    case ControlKind::TextBox: {
      const auto& box = dynamic_cast<TextBox&>(shown);
      output << (box.holds_file_name ? box.text() : utf8_of_latin1(box.text())) << '\n';
      break;
    }
    case ControlKind::ComboBox:
      output << utf8_of_latin1(dynamic_cast<ComboBox&>(shown).text()) << '\n';
      break;
    case ControlKind::CheckBox:
      output << dynamic_cast<CheckBox&>(shown).value() << '\n';
      break;
    case ControlKind::OptionButton:
      output << (dynamic_cast<OptionButton&>(shown).on() ? 1 : 0) << '\n';
      break;
    case ControlKind::CommandButton:
      output << (shown.visible() ? 1 : 0) << '\n';
      break;
    case ControlKind::ListBox:
      for (const auto& line : dynamic_cast<ListBox&>(shown).items()) output << utf8_of_latin1(line) << '\n';
      break;
    case ControlKind::ProgressBar: {
      const auto& bar = dynamic_cast<ProgressBar&>(shown);
      output << plain_text(bar.minimum()) << ' ' << plain_text(bar.maximum()) << ' ' << plain_text(bar.value()) << '\n';
      break;
    }
    case ControlKind::Slider:
      output << dynamic_cast<Slider&>(shown).value() << '\n';
      break;
    case ControlKind::Grid:
      print_grid(dynamic_cast<Grid&>(shown), output);
      break;
    case ControlKind::Canvas:
      for (const auto& line : drawing_text(dynamic_cast<Canvas&>(shown))) output << line << '\n';
      break;
    case ControlKind::Label:
    case ControlKind::Frame:
    case ControlKind::MenuItem:
      output << readable_utf8(shown.caption()) << '\n';
      break;
  }
}

}  // namespace zol
