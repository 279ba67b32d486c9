#include "powder/plain_columns.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "core/number_text.h"
#include "core/run_failure.h"
#include "core/trimmed.h"

namespace zol {
namespace {

constexpr std::string_view line_marks = "#!;'/*%\"";
constexpr std::string_view rest_marks = "#!";
constexpr std::string_view byte_order_mark = "\xEF\xBB\xBF";
constexpr std::size_t shown_characters = 40;

bool is_digit(char c) { return c >= '0' && c <= '9'; }

/// Lines end by LF, CR LF or CR.
std::vector<std::string_view> lines_of(std::string_view text) {
  std::vector<std::string_view> lines;
  while (!text.empty()) {
    const auto end = text.find_first_of("\r\n");
    lines.push_back(text.substr(0, end));
    if (end == std::string_view::npos) break;
    text.remove_prefix(end + (text.substr(end, 2) == "\r\n" ? 2 : 1));
  }
  return lines;
}

/// What counts in a line.
std::string_view contents(std::string_view line) {
  line = trimmed(line);
  if (line.empty() || line_marks.find(line.front()) != std::string_view::npos) return {};
  return trimmed(line.substr(0, line.find_first_of(rest_marks)));
}

std::vector<std::string_view> fields_of(std::string_view row, std::string_view separators) {
  std::vector<std::string_view> fields;
  for (auto begin = row.find_first_not_of(separators); begin != std::string_view::npos;
       begin = row.find_first_not_of(separators)) {
    row.remove_prefix(begin);
    fields.push_back(row.substr(0, row.find_first_of(separators)));
    row.remove_prefix(fields.back().size());
  }
  return fields;
}

constexpr std::string_view wide_separators = " \t;";
constexpr std::string_view all_separators = " \t;,";

bool begins_with_number(std::string_view row) {
  return strict_number(row.substr(0, row.find_first_of(all_separators))).has_value();
}

/// A field like "10,5", which is one number or two.
bool has_inner_comma(std::string_view field) {
  const auto comma = field.find(',');
  return comma != std::string_view::npos && comma > 0 && comma + 1 < field.size() && is_digit(field[comma - 1]) &&
         is_digit(field[comma + 1]) && field.find(',', comma + 1) == std::string_view::npos;
}

/// No number has a point, and a line has columns of which one has a comma between two digits.
bool has_decimal_commas(const std::vector<std::string_view>& rows) {
  bool found = false;
  for (const auto row : rows) {
    if (!begins_with_number(row)) continue;
    if (row.find('.') != std::string_view::npos) return false;
    const auto fields = fields_of(row, wide_separators);
    found = found || (fields.size() >= 2 && std::any_of(fields.begin(), fields.end(), has_inner_comma));
  }
  return found;
}

std::optional<double> number_of(std::string_view field, bool decimal_comma) {
  std::string text(field);
  if (decimal_comma) std::replace(text.begin(), text.end(), ',', '.');
  const auto number = strict_number(text);
  return number && std::isfinite(*number) ? number : std::nullopt;
}

}  // namespace

std::vector<PlainRow> read_plain_columns(std::string_view text, const std::string& file, const std::string& what,
                                         Task& task) {
  if (text.substr(0, byte_order_mark.size()) == byte_order_mark) text.remove_prefix(byte_order_mark.size());
  auto lines = lines_of(text);
  std::transform(lines.begin(), lines.end(), lines.begin(), contents);
  const bool decimal_comma = has_decimal_commas(lines);
  std::vector<PlainRow> rows;
  int line = 0;
  for (const auto row : lines) {
    ++line;
    task.check();
    if (row.empty() || (rows.empty() && !begins_with_number(row))) continue;
    rows.push_back({{}, line});
    auto& values = rows.back().values;
    for (const auto field : fields_of(row, decimal_comma ? wide_separators : all_separators)) {
      const auto value = number_of(field, decimal_comma);
      if (!value) break;
      values.push_back(*value);
    }
    if (values.size() < 2) {
      throw RunFailure(file + ", line " + std::to_string(line) + ": \"" + std::string(row.substr(0, shown_characters)) +
                       "\", expected are two numbers, " + what);
    }
  }
  if (rows.empty()) throw RunFailure(file + ": no line has two numbers, " + what);
  return rows;
}

}  // namespace zol
