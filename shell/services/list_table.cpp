#include "shell/services/list_table.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <unordered_map>
#include <utility>

#include "core/number_text.h"
#include "shell/services/latin1.h"
#include "shell/services/table_filter.h"

namespace zol {
namespace {

std::vector<ListColumn> named(std::vector<ListColumn> columns) {
  std::erase_if(columns, [](const ListColumn& column) { return column.name.empty(); });
  return columns;
}

/// As a cell of a CSV file (RFC 4180).
std::string quoted(const std::string& cell, char between) {
  if (cell.find(between) == std::string::npos && cell.find_first_of("\"\r\n") == std::string::npos) return cell;
  std::string text = "\"";
  for (const char c : cell) text += c == '"' ? "\"\"" : std::string(1, c);
  return text + '"';
}

/// A rounded number keeps the sign of what it was: "-0.00" says no more than "0.00".
std::string without_sign_of_zero(const std::string& cell) {
  const bool zero = cell.starts_with('-') && cell.find_first_not_of("-0.") == std::string::npos;
  return zero && cell.find('0') != std::string::npos ? cell.substr(1) : cell;
}

}  // namespace

std::vector<std::string> ListTable::choices(const ListColumns& declared) {
  std::vector<std::string> captions;
  if (declared.added) {
    for (const auto& added : declared.added()) captions.push_back(added.caption);
  }
  if (declared.families) {
    for (const auto& families : declared.families()) {
      captions.push_back(families.caption);
      captions.push_back(families.merge_caption);
    }
  }
  return captions;
}

ListTable::ListTable(const ListColumns& declared, const SharedVector<std::string>& lines, const TableChoices& chosen)
    : read_(declared.columns()), lines_(lines) {
  find_lines(declared);
  std::size_t cell = 0;
  for (auto& column : named(read_)) heads_.push_back({std::move(column), From::List, 0, cell++});
  if (declared.added) added_ = declared.added();
  std::erase_if(added_, [&chosen](const AddedColumns& added) { return !chosen.contains(added.caption); });
  for (std::size_t i = added_.size(); i-- > 0;) add_heads(added_[i], i);
  if (!declared.families) return;
  for (auto& families : declared.families()) {
    merged_ = chosen.contains(families.merge_caption);
    if (!merged_ && !chosen.contains(families.caption)) continue;
    families_ = std::move(families);
    find_families();
    add_family_heads();
  }
}

void ListTable::find_lines(const ListColumns& declared) {
  rows_.reserve(lines_.size());
  for (std::size_t i = 0; i < lines_.size(); ++i) {
    if (!declared.is_row || declared.is_row(lines_[i])) rows_.push_back(static_cast<int>(i));
  }
}

/// Those of one place stand in the order of their declaration, since the last is put in first.
void ListTable::add_heads(const AddedColumns& added, std::size_t number) {
  const auto at = added.behind < 0 ? named(read_).size() : static_cast<std::size_t>(added.behind) + 1;
  for (std::size_t i = 0; i < added.columns.size(); ++i) {
    heads_.insert(heads_.begin() + static_cast<std::ptrdiff_t>(at + i), {added.columns[i], From::Added, number, i});
  }
}

void ListTable::find_families() {
  std::unordered_map<std::string, int> known;
  family_of_line_.assign(lines_.size(), -1);
  for (const int at : rows_) {
    const ListCells row = cells_of_line(line(at), read_);
    auto [name, leads] = families_->family_of(row);
    const auto [place, is_new] = known.try_emplace(std::move(name), static_cast<int>(all_families_.size()));
    if (is_new) {
      all_families_.push_back({place->second + 1, place->first, at, false, 0, {}});
      all_families_.back().sums.resize(families_->summed.size());
    }
    Family& family = all_families_[static_cast<std::size_t>(place->second)];
    family_of_line_[static_cast<std::size_t>(at)] = place->second;
    ++family.lines;
    if (leads && !std::exchange(family.led, true)) family.leader = at;
    for (std::size_t i = 0; i < family.sums.size(); ++i) {
      const double value = number_of_cell(row[static_cast<std::size_t>(families_->summed[i])]);
      if (!std::isnan(value)) family.sums[i] += value;
    }
  }
  if (merged_) {
    std::erase_if(rows_, [this](int at) {
      const int family = family_of_line_[static_cast<std::size_t>(at)];
      return all_families_[static_cast<std::size_t>(family)].leader != at;
    });
  }
}

void ListTable::add_family_heads() {
  std::vector<ListColumn> columns{{"family", "", 0, ListColumn::Number, ' ', "families in the order of the list"},
                                  families_->name};
  if (merged_) {
    columns.push_back({"listed", "", 0, ListColumn::Number, ' ', "rows of the list that belong to it"});
    for (const int summed : families_->summed) {
      ListColumn sum = named(read_)[static_cast<std::size_t>(summed)];
      sum.name = "sum " + sum.name;
      columns.push_back(std::move(sum));
    }
  }
  for (std::size_t i = 0; i < columns.size(); ++i) heads_.push_back({std::move(columns[i]), From::Family, 0, i});
}

ListCells ListTable::family_cells(int at) const {
  if (!families_) return {};
  const Family& family = all_families_[static_cast<std::size_t>(family_of_line_[static_cast<std::size_t>(at)])];
  ListCells cells{plain_text(family.number), family.name};
  if (!merged_) return cells;
  constexpr int places = 3;
  cells.push_back(plain_text(family.lines));
  for (const double sum : family.sums) cells.push_back(short_text(sum, places));
  return cells;
}

std::string ListTable::head(int at) const {
  const ListColumn& shown = column(at);
  return shown.unit.empty() ? shown.name : shown.name + " (" + shown.unit + ")";
}

int ListTable::column_named(std::string_view name) const {
  int found = -1;
  const auto wanted = small_letters(name);
  for (int i = columns() - 1; i >= 0; --i) {
    if (column(i).name == name) return i;
    if (small_letters(column(i).name) == wanted) found = i;
  }
  return found;
}

int ListTable::row_of(int line) const {
  const auto found = std::lower_bound(rows_.begin(), rows_.end(), line);
  if (found != rows_.end() && *found == line) return static_cast<int>(found - rows_.begin());
  const auto at = static_cast<std::size_t>(line);
  if (!merged_ || line < 0 || at >= family_of_line_.size() || family_of_line_[at] < 0) return -1;
  const int leader = all_families_[static_cast<std::size_t>(family_of_line_[at])].leader;
  return static_cast<int>(std::lower_bound(rows_.begin(), rows_.end(), leader) - rows_.begin());
}

ListCells ListTable::cells(int row) const {
  const int at = line_of(row);
  const ListCells of_list = cells_of_line(line(at), read_);
  std::vector<ListCells> of_added;
  of_added.reserve(added_.size());
  for (const auto& added : added_) of_added.push_back(added.cells(of_list));
  const ListCells of_family = family_cells(at);
  ListCells shown;
  shown.reserve(heads_.size());
  for (const Head& head : heads_) {
    const ListCells& source = head.from == From::List     ? of_list
                              : head.from == From::Family ? of_family
                                                          : of_added[head.added];
    const std::string& cell = source.at(head.cell);
    shown.push_back(head.column.kind == ListColumn::Number ? without_sign_of_zero(cell) : utf8_of_latin1(cell));
  }
  return shown;
}

std::vector<int> ListTable::arranged(int sorted_by, bool descending, std::string_view filter) const {
  const TableFilter wanted(filter, *this);
  const auto column = static_cast<std::size_t>(std::max(0, sorted_by));
  const bool sorts = sorted_by >= 0 && sorted_by < columns();
  const bool by_number = sorts && heads_[column].column.kind == ListColumn::Number;
  std::vector<int> order;
  std::vector<double> numbers;
  std::vector<std::string> words;
  for (int row = 0; row < rows(); ++row) {
    if (!sorts && wanted.lets_all()) {
      order.push_back(row);
      continue;
    }
    ListCells row_cells = cells(row);
    if (!wanted.lets(row_cells)) continue;
    order.push_back(row);
    if (by_number) numbers.push_back(number_of_cell(row_cells[column]));
    if (sorts && !by_number) words.push_back(std::move(row_cells[column]));
  }
  if (!sorts) return order;
  std::vector<std::size_t> places(order.size());
  std::iota(places.begin(), places.end(), std::size_t{0});
  std::stable_sort(places.begin(), places.end(), [&](std::size_t a, std::size_t b) {
    if (!by_number) return descending ? words[b] < words[a] : words[a] < words[b];
    if (std::isnan(numbers[a]) || std::isnan(numbers[b])) return !std::isnan(numbers[a]) && std::isnan(numbers[b]);
    return descending ? numbers[b] < numbers[a] : numbers[a] < numbers[b];
  });
  std::vector<int> arranged;
  arranged.reserve(order.size());
  for (const std::size_t place : places) arranged.push_back(order[place]);
  return arranged;
}

std::string ListTable::fault_of_filter(std::string_view filter) const { return TableFilter(filter, *this).fault(); }

std::string ListTable::text(const std::vector<int>& rows, char between) const {
  std::string text;
  const auto add_line = [&](const ListCells& cells) {
    for (std::size_t i = 0; i < cells.size(); ++i) {
      if (i > 0) text += between;
      text += between == ',' ? quoted(cells[i], between) : cells[i];
    }
    text += '\n';
  };
  ListCells heads;
  for (int i = 0; i < columns(); ++i) heads.push_back(head(i));
  add_line(heads);
  for (const int row : rows) add_line(cells(row));
  return text;
}

}  // namespace zol
