#include "structures/library_query.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cmath>
#include <limits>
#include <string>
#include <utility>

#include "core/number_text.h"
#include "core/run_failure.h"
#include "structures/group_search.h"

namespace zol {
namespace {

char small_letter(char c) { return static_cast<char>(std::tolower(static_cast<unsigned char>(c))); }

/// @param wanted  in small letters
bool holds(std::string_view text, std::string_view wanted) {
  const auto* found = std::search(text.begin(), text.end(), wanted.begin(), wanted.end(),
                                  [](char one, char other) { return small_letter(one) == other; });
  return wanted.empty() || found != text.end();
}

/// At blanks; quotes hold together what stands between them and go.
std::vector<std::string> words_of(std::string_view text) {
  std::vector<std::string> words(1);
  bool quoted = false;
  for (const char c : text) {
    if (c == '"') {
      quoted = !quoted;
    } else if (!quoted && (c == ' ' || c == '\t')) {
      words.emplace_back();
    } else {
      words.back() += c;
    }
  }
  std::erase(words, "");
  return words;
}

struct Quantity {
  std::string_view name;
  double (*of)(const LibraryEntry& entry);
  double tolerance;
  bool relative;
};
constexpr std::array quantities{
    Quantity{"a", [](const LibraryEntry& entry) { return entry.cell.a; }, 0.01, true},
    Quantity{"b", [](const LibraryEntry& entry) { return entry.cell.b; }, 0.01, true},
    Quantity{"c", [](const LibraryEntry& entry) { return entry.cell.c; }, 0.01, true},
    Quantity{"alpha", [](const LibraryEntry& entry) { return entry.cell.alpha; }, 1, false},
    Quantity{"beta", [](const LibraryEntry& entry) { return entry.cell.beta; }, 1, false},
    Quantity{"gamma", [](const LibraryEntry& entry) { return entry.cell.gamma; }, 1, false},
    Quantity{"v", [](const LibraryEntry& entry) { return entry.volume; }, 0.03, true},
    Quantity{"density", [](const LibraryEntry& entry) { return entry.density; }, 0.03, true}};

struct Range {
  double from = -std::numeric_limits<double>::infinity();
  double to = std::numeric_limits<double>::infinity();
};

std::string quoted(std::string_view word) { return '"' + std::string(word) + '"'; }

double number_of(std::string_view text, std::string_view word) {
  const auto number = strict_number(text);
  if (!number || !std::isfinite(*number)) throw RunFailure(quoted(word) + ": a number is expected, as in a=5.43");
  return *number;
}

/// @param sign  of "=", "<" and ">"
Range range_of(const Quantity& quantity, char sign, std::string_view value, std::string_view word) {
  if (sign == '<') return {.to = number_of(value, word)};
  if (sign == '>') return {.from = number_of(value, word)};
  constexpr std::string_view to = "..";
  if (const auto at = value.find(to); at != std::string_view::npos) {
    return {number_of(value.substr(0, at), word), number_of(value.substr(at + to.size()), word)};
  }
  const auto at = value.find('~');
  const double middle = number_of(value.substr(0, at), word);
  double tolerance = quantity.relative ? std::abs(middle) * quantity.tolerance : quantity.tolerance;
  if (at != std::string_view::npos) tolerance = number_of(value.substr(at + 1), word);
  const double rounding = 1e-9 * std::abs(middle);
  return {middle - tolerance - rounding, middle + tolerance + rounding};
}

/// All of the text is elements with their counts. @returns none where it is not
Formula formula_of(std::string_view text) {
  Formula formula;
  while (!text.empty()) {
    const bool two = text.size() > 1 && text[1] >= 'a' && text[1] <= 'z';
    const std::string_view element = text.substr(0, two ? 2 : 1);
    if (atomic_number(element) == 0) return {};
    text.remove_prefix(element.size());
    const auto digits = std::min(text.find_first_not_of("0123456789."), text.size());
    const auto count = digits == 0 ? std::optional(1.0) : strict_number(text.substr(0, digits));
    if (!count || !(*count > 0)) return {};
    formula[std::string(element)] += *count;
    text.remove_prefix(digits);
  }
  return formula;
}

/// One is a multiple of the other, within 3 % of each element.
bool same_formula(const Formula& one, const Formula& other) {
  if (one.size() != other.size() || one.empty()) return false;
  const double ratio = other.begin()->second / one.begin()->second;
  return std::equal(one.begin(), one.end(), other.begin(), [ratio](const auto& left, const auto& right) {
    constexpr double tolerance = 0.03;
    return left.first == right.first && std::abs(right.second / left.second / ratio - 1) <= tolerance;
  });
}

bool is_group_name(const std::string& name) { return name == "group" || name == "sg" || name == "system"; }

}  // namespace

LibraryQuery::Condition LibraryQuery::condition_of(std::string_view word) {
  const std::string_view behind = word.substr(1);
  if ((word[0] == '+' || word[0] == '-') && atomic_number(behind) > 0) {
    return [element = std::string(behind), wanted = word[0] == '+'](const LibraryEntry& entry) {
      return !entry.formula.empty() && entry.formula.contains(element) == wanted;
    };
  }
  if (word[0] == '+') throw RunFailure(quoted(word) + ": an element is expected after the sign, as in +Si");
  if (const auto at = word.find_first_of("=<>"); at != std::string_view::npos) {
    std::string name(word.substr(0, at));
    std::transform(name.begin(), name.end(), name.begin(), small_letter);
    const std::string_view value = word.substr(at + 1);
    if (is_group_name(name)) {
      const GroupSearch groups(value);
      if (groups.empty()) throw RunFailure(quoted(word) + ": there is no such space group or crystal system");
      return [groups](const LibraryEntry& entry) { return groups.finds(entry.group); };
    }
    const auto* found = std::find_if(quantities.begin(), quantities.end(),
                                     [&name](const Quantity& quantity) { return quantity.name == name; });
    if (found == quantities.end()) {
      throw RunFailure(quoted(word) +
                       ": a, b, c, alpha, beta, gamma, V, density or group are expected before the sign");
    }
    return [of = found->of, range = range_of(*found, word[at], value, word)](const LibraryEntry& entry) {
      return entry.volume > 0 && of(entry) >= range.from && of(entry) <= range.to;
    };
  }
  std::string small(word);
  std::transform(small.begin(), small.end(), small.begin(), small_letter);
  return [small, groups = GroupSearch(word), formula = formula_of(word)](const LibraryEntry& entry) {
    return holds(entry.path, small) || holds(entry.title, small) || groups.finds(entry.group) ||
           same_formula(formula, entry.formula);
  };
}

LibraryQuery::LibraryQuery(std::string_view text) {
  for (const auto& word : words_of(text)) conditions_.push_back(condition_of(word));
}

bool LibraryQuery::finds(const LibraryEntry& entry) const {
  return std::all_of(conditions_.begin(), conditions_.end(),
                     [&entry](const Condition& condition) { return condition(entry); });
}

}  // namespace zol
