#include "shell/services/table_filter.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "core/number_text.h"
#include "shell/services/list_table.h"

namespace zol {
namespace {

constexpr std::array<std::string_view, 6> signs{"<=", ">=", "<>", "<", ">", "="};

bool fits(std::string_view sign, double value, double wanted) {
  if (std::isnan(value)) return false;
  if (sign == "<") return value < wanted;
  if (sign == ">") return value > wanted;
  if (sign == "<=") return value <= wanted;
  if (sign == ">=") return value >= wanted;
  return (value == wanted) == (sign == "=");
}

}  // namespace

std::string small_letters(std::string_view text) {
  std::string small(text);
  for (char& c : small) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return small;
}

TableFilter::TableFilter(std::string_view text, const ListTable& table) {
  while (!text.empty()) {
    const auto word = text.substr(0, text.find(' '));
    text.remove_prefix(std::min(text.size(), word.size() + 1));
    if (word.empty()) continue;
    parts_.push_back(part_of(word, table));
    if (fault_.empty()) fault_ = fault_of(word, parts_.back(), table);
  }
}

std::string TableFilter::fault_of(std::string_view word, const Part& part, const ListTable& table) {
  const std::string name(word.substr(0, word.find_first_of("<>=")));
  const std::string typed(word);
  if (part.column < 0) {
    const bool compares = !name.empty() && name.size() < word.size();
    return compares && table.column_named(name) < 0 ? typed + R"(: there is no column ")" + name + R"(")" : "";
  }
  const bool misses = table.column(part.column).kind == ListColumn::Number && !part.number;
  return misses ? typed + R"(: ")" + part.text + R"(" is not a number)" : "";
}

TableFilter::Part TableFilter::part_of(std::string_view word, const ListTable& table) {
  Part anywhere{-1, {}, small_letters(word)};
  const std::size_t place = word.find_first_of("<>=");
  if (place == std::string_view::npos) return anywhere;
  const int column = table.column_named(word.substr(0, place));
  if (column < 0) return anywhere;
  const auto comparison = word.substr(place);
  const auto* const sign = std::find_if(signs.begin(), signs.end(),
                                        [comparison](std::string_view known) { return comparison.starts_with(known); });
  Part part{column, *sign, small_letters(comparison.substr(sign->size()))};
  std::string number = part.text;
  std::replace(number.begin(), number.end(), ',', '.');
  part.number = strict_number(number);
  // Of a comparison that is still being typed nothing is held against a row.
  if (part.text.empty()) return {-1, {}, {}};
  return part;
}

bool TableFilter::holds(const Part& part, const ListCells& cells) {
  if (part.column < 0) {
    return std::any_of(cells.begin(), cells.end(), [&part](const std::string& cell) {
      return small_letters(cell).find(part.text) != std::string::npos;
    });
  }
  const std::string& cell = cells[static_cast<std::size_t>(part.column)];
  if (part.number) return fits(part.sign, number_of_cell(cell), *part.number);
  return (small_letters(cell) == part.text) == (part.sign != "<>");
}

bool TableFilter::lets(const ListCells& cells) const {
  return std::all_of(parts_.begin(), parts_.end(), [&cells](const Part& part) { return holds(part, cells); });
}

}  // namespace zol
