#include "shell/services/pasted_rows.h"

#include <algorithm>

#include "core/trimmed.h"

namespace zol {
namespace {

constexpr std::string_view blanks = " \t\xa0";  // with the blank that breaks no line

std::vector<std::string_view> lines_of(std::string_view text) {
  std::vector<std::string_view> lines;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find_first_of("\r\n"), text.size());
    lines.push_back(text.substr(0, end));
    text.remove_prefix(std::min(text.size(), end + (text.substr(end, 2) == "\r\n" ? 2 : 1)));
  }
  while (!lines.empty() && trimmed(lines.back(), blanks).empty()) lines.pop_back();
  return lines;
}

/// The character between cells; a blank stands for any run of them.
char parted_by(std::string_view text) {
  for (const char c : {'\t', ';', ','}) {
    if (text.find(c) != std::string_view::npos) return c;
  }
  return ' ';
}

/// Words with commas inside are numbers with decimal commas, not rows parted by commas.
bool commas_are_points(const std::vector<std::string_view>& lines) {
  return std::any_of(lines.begin(), lines.end(), [](std::string_view line) {
    const auto inside = trimmed(line, blanks);
    return inside.find(' ') != std::string_view::npos && inside.find(", ") == std::string_view::npos;
  });
}

bool is_number_with_comma(std::string_view cell) {
  if (cell.starts_with('-') || cell.starts_with('+')) cell.remove_prefix(1);
  const std::size_t comma = cell.find(',');
  if (comma == std::string_view::npos || comma + 1 == cell.size()) return false;
  return cell.find_first_not_of("0123456789,") == std::string_view::npos && cell.rfind(',') == comma;
}

std::string cell_of(std::string_view text, char between) {
  text = trimmed(text, blanks);
  if (text.size() > 1 && text.front() == '"' && text.back() == '"') text = text.substr(1, text.size() - 2);
  std::string cell(text);
  if (between != ',' && is_number_with_comma(cell)) cell[cell.find(',')] = '.';
  return cell;
}

std::vector<std::string> cells_of(std::string_view line, char between) {
  if (between == ' ') line = trimmed(line, blanks);
  std::vector<std::string> cells;
  for (;;) {
    const std::size_t end = between == ' ' ? line.find_first_of(blanks) : line.find(between);
    cells.push_back(cell_of(line.substr(0, end), between));
    if (end == std::string_view::npos) return cells;
    line.remove_prefix(end + 1);
    if (between == ' ') line = trimmed(line, blanks);
  }
}

}  // namespace

std::vector<std::vector<std::string>> pasted_rows(std::string_view text) {
  const auto lines = lines_of(text);
  char between = parted_by(text);
  if (between == ',' && commas_are_points(lines)) between = ' ';
  std::vector<std::vector<std::string>> rows;
  rows.reserve(lines.size());
  for (const auto line : lines) rows.push_back(cells_of(line, between));
  return rows;
}

}  // namespace zol
