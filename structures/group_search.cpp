#include "structures/group_search.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <string>

#include "core/number_text.h"
#include "core/run_failure.h"
#include "structures/library_entry.h"
#include "structures/space_group_symbols.h"

namespace zol {
namespace {

constexpr int last_group = 230;

/// Small letters, without what spellings differ by.
std::string bare(std::string_view text) {
  std::string result;
  for (const char c : text) {
    if (c != ' ' && c != '-' && c != '_') result += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  }
  return result;
}

}  // namespace

GroupSearch::GroupSearch(std::string_view typed) {
  constexpr std::size_t letters_of_system = 4;
  const std::string small = bare(typed);
  if (const auto number = strict_number(small)) {
    const double whole = std::round(*number);
    if (whole == *number && whole >= 1 && whole <= last_group) numbers_.insert(static_cast<int>(whole));
    return;
  }
  for (int group = 1; small.size() >= letters_of_system && group <= last_group; ++group) {
    if (crystal_system(group).starts_with(small)) numbers_.insert(group);
  }
  if (!numbers_.empty()) return;
  try {
    for (const NamedGroup& group : groups_of_symbol(typed, {})) numbers_.insert(group.number);
  } catch (const RunFailure&) {  // no symbol
  }
}

bool finds_row(std::string_view typed, const GroupSearch& search, std::string_view row) {
  const int number = static_cast<int>(std::clamp(Val(row.substr(0, row.find_first_not_of(" 0123456789"))), 0.0, 1e6));
  if (search.finds(number)) return true;
  const std::string wanted = bare(typed);
  const bool is_number = strict_number(wanted).has_value();
  return is_number ? plain_text(number) == wanted : bare(row).find(wanted) != std::string::npos;
}

}  // namespace zol
