// What was typed to find space groups.
#pragma once

#include <set>
#include <string_view>

namespace zol {

/// A number ("225"), a symbol of any setting in any spelling ("Fm-3m", "P 21/n"), or a crystal system by its whole name
/// or at least its first four letters ("cubic", "mono").
class GroupSearch {
 public:
  explicit GroupSearch(std::string_view typed);

  /// Whether the text is none of these.
  [[nodiscard]] bool empty() const { return numbers_.empty(); }
  [[nodiscard]] bool finds(int number) const { return numbers_.contains(number); }

 private:
  std::set<int> numbers_;
};

/// Whether a row of a list of groups, as " 225 Fm3m", is what was typed: a group that is found by its number or symbol,
/// or a part of the row, blanks and hyphens apart. An empty text finds all.
[[nodiscard]] bool finds_row(std::string_view typed, const GroupSearch& search, std::string_view row);

}  // namespace zol
