#include "structures/space_group_symbols.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <sstream>

namespace zol {
namespace {

/// A symbol in parts: "F d -3 m :2" is F, d, -3, m and the qualifier 2.
struct Symbol {
  std::vector<std::string> words;  ///< one without blanks
  std::string qualifier;
  [[nodiscard]] std::string joined() const {
    std::string text;
    for (const auto& word : words) text += word;
    return text;
  }
};

bool is_one_of(char c, std::string_view set) { return set.find(c) != std::string_view::npos; }

std::string lower(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(), [](unsigned char c) { return std::tolower(c); });
  return text;
}

/// Origin or axes that stand behind a colon, in brackets, or as a last letter set apart.
void take_qualifier(Symbol& symbol, std::string& text) {
  const auto qualifier_in = [](std::string_view tail) -> std::string {
    for (const char c : tail) {
      if (is_one_of(c, "12")) return {c};
      if (is_one_of(c, "hH")) return "H";
      if (is_one_of(c, "rR")) return "R";
      if (is_one_of(c, "sS")) return "1";
      if (is_one_of(c, "zZ")) return "2";
    }
    return {};
  };
  const std::size_t colon = text.find_first_of(":{");
  const std::size_t words = text.find("origin");
  const std::size_t at = std::min(colon, words);
  if (at == std::string::npos) return;
  std::string tail = text.substr(at);
  if (tail.find("origin") != std::string::npos) std::erase_if(tail, [](char c) { return !is_one_of(c, "12"); });
  symbol.qualifier = qualifier_in(tail);
  text.erase(at);
  while (!text.empty() && is_one_of(text.back(), " (,")) text.pop_back();
}

Symbol parted(std::string_view given) {
  Symbol symbol;
  std::string text;
  for (const char c : given) {
    if (c == '_' || c == '(' || c == ')' || c == '\'' || c == '"' || c == '~') {
      if (c == '~') text += ' ';
      continue;
    }
    text += c;
  }
  take_qualifier(symbol, text);
  std::istringstream words(text);
  for (std::string word; words >> word;) symbol.words.push_back(lower(word));
  // Tails of the inorganic database: S and Z the origins, H and R the axes, HR hexagonal axes.
  if (symbol.words.size() > 1) {
    const std::string& tail = symbol.words.back();
    const std::string meaning = tail == "s"                   ? "1"
                                : tail == "z"                 ? "2"
                                : tail == "h" || tail == "hr" ? "H"
                                : tail == "r"                 ? "R"
                                                              : "";
    if (!meaning.empty()) {
      symbol.qualifier = meaning;
      symbol.words.pop_back();
    }
  }
  return symbol;
}

/// Elements of a symbol without the identity in the places of a monoclinic one.
std::string without_ones(const std::string& full) {
  std::istringstream words(full);
  std::string text;
  for (std::string word; words >> word;) {
    if (word != "1" || text.size() < 2) text += word == "1" && text.size() == 1 ? "" : word;
  }
  return text;
}

/// Names under which a tabulated setting goes, without blanks, in small letters.
std::vector<std::string> spellings(const TabulatedSetting& setting) {
  const std::string full = lower(std::string(setting.symbol));
  std::string joined = full;
  std::erase(joined, ' ');
  std::vector<std::string> names{joined};
  if (setting.number >= 3 && setting.number <= 15) names.push_back(without_ones(full));
  if (setting.number >= 195) {  // older cubic symbols: m3m, m3, d3c
    std::string old = joined;
    const std::size_t bar = old.find("-3");
    if (bar != std::string::npos) {
      old.erase(bar, 1);
      names.push_back(old);
    }
  }
  return names;
}

/// Symbols with an e-glide under the names that they had before 1992, in every order of the axes.
std::string without_e(std::string joined) {
  const std::size_t e = joined.find('e');
  if (e == std::string::npos || joined.size() < 4) return joined;
  // The glide stands across the centring of the lattice: either letter of the two directions is right.
  const char lattice = joined[0];
  const std::size_t place = e;
  const std::string options = place == 1 ? "bc" : place == 2 ? "ac" : "ab";
  joined[e] = lattice == 'a' && place != 1 ? options.back() : options.front();
  return joined;
}

bool right(double angle) { return std::abs(angle - 90) < 0.01; }

/// The axis that a short monoclinic symbol means, by the angles of the cell.
char unique_axis(const CellConstants& cell) {
  if (!right(cell.beta)) return 'b';
  if (!right(cell.gamma)) return 'c';
  return right(cell.alpha) ? 'b' : 'a';
}

char unique_axis(const TabulatedSetting& setting) {
  std::istringstream words{std::string(setting.symbol)};
  std::string lattice, a, b, c;
  words >> lattice >> a >> b >> c;
  if (a != "1") return 'a';
  return b != "1" ? 'b' : 'c';
}

bool hexagonal_axes(const CellConstants& cell) { return std::abs(cell.gamma - 120) < 0.5; }

NamedGroup made(const TabulatedSetting& setting) {
  return {setting.number, std::string(setting.symbol), std::string(setting.qualifier), hall_group(setting.hall)};
}

/// Settings of one symbol narrowed by qualifier and cell; two origins both stay where nothing tells.
std::vector<NamedGroup> narrowed(std::vector<const TabulatedSetting*> found, const std::string& qualifier,
                                 const CellConstants& cell) {
  const auto all = found;
  const auto keep_where = [&found](const auto& wanted) {
    std::vector<const TabulatedSetting*> kept;
    std::copy_if(found.begin(), found.end(), std::back_inserter(kept), wanted);
    if (!kept.empty()) found = kept;
  };
  if (!qualifier.empty()) keep_where([&](const auto* s) { return s->qualifier == qualifier; });
  const auto has = [&found](std::string_view mark) {
    return std::any_of(found.begin(), found.end(), [mark](const auto* s) { return s->qualifier == mark; });
  };
  if (has("H") || has("R")) {  // the cell counts, whatever the symbol says
    found = all;
    keep_where([&](const auto* s) { return s->qualifier == (hexagonal_axes(cell) ? "H" : "R"); });
  }
  if (!found.empty() && found.front()->number >= 3 && found.front()->number <= 15) {
    keep_where([&](const auto* s) { return unique_axis(*s) == unique_axis(cell); });
  }
  std::vector<NamedGroup> groups;
  for (const auto* setting : found) {
    const bool other_origin =
        !groups.empty() && is_one_of(setting->qualifier.empty() ? ' ' : setting->qualifier[0], "12");
    if (groups.empty() ||
        (other_origin && setting->number == groups.front().number && setting->symbol == groups.front().symbol)) {
      groups.push_back(made(*setting));
    }
  }
  return groups;
}

std::vector<const TabulatedSetting*> tabulated(const std::string& joined) {
  std::vector<const TabulatedSetting*> found;
  for (const auto& setting : tabulated_settings()) {
    const auto names = spellings(setting);
    if (std::find(names.begin(), names.end(), joined) != names.end()) found.push_back(&setting);
  }
  return found;
}

/// An orthorhombic symbol in another order of the axes, by the permutation that makes a tabulated one of it.
std::vector<NamedGroup> with_exchanged_axes(const Symbol& symbol, const CellConstants& cell) {
  if (symbol.words.size() != 4) return {};
  constexpr std::string_view axes = "abc";
  std::array<std::size_t, 3> order{0, 1, 2};
  do {
    // New axis i is old axis order[i].
    const auto renamed = [&order](char letter, std::string_view names) {
      const std::size_t old = names.find(letter);
      if (old == std::string_view::npos) return letter;
      return names[static_cast<std::size_t>(std::find(order.begin(), order.end(), old) - order.begin())];
    };
    std::string joined{renamed(symbol.words[0][0], axes)};
    for (std::size_t i = 0; i < 3; ++i) {
      for (const char c : symbol.words[1 + order[i]]) joined += renamed(c, axes);
    }
    auto groups = narrowed(tabulated(joined), symbol.qualifier, cell);
    if (groups.empty() || groups.front().number < 16 || groups.front().number > 74) continue;
    SettingChange back{{}, {}};
    for (std::size_t i = 0; i < 3; ++i) back.matrix[i][order[i]] = operator_unit;
    for (auto& group : groups) {
      group.symbol = symbol.joined();
      group.operators = transformed(group.operators, back).value();
    }
    return groups;
  } while (std::next_permutation(order.begin(), order.end()));
  return {};
}

}  // namespace

const TabulatedSetting* setting_of(const Operators& operators) {
  for (const auto& setting : tabulated_settings()) {
    if (hall_group(setting.hall) == operators) return &setting;
  }
  return nullptr;
}

std::vector<NamedGroup> groups_of_symbol(std::string_view given, const CellConstants& cell) {
  Symbol symbol = parted(given);
  std::string joined = symbol.joined();
  // A last letter that is not set apart: Fd3mS, R-3mH, R-3mR.
  for (int attempt = 0; attempt < 2 && !joined.empty(); ++attempt) {
    for (const auto& name : {joined, without_e(joined)}) {
      auto groups = narrowed(tabulated(name), symbol.qualifier, cell);
      if (!groups.empty()) return groups;
    }
    const std::string_view tails = "szhr";
    if (!is_one_of(joined.back(), tails)) break;
    symbol.qualifier = std::string(1, "12HR"[tails.find(joined.back())]);
    joined.pop_back();
  }
  return with_exchanged_axes(symbol, cell);
}

std::vector<NamedGroup> groups_of_number(int number, const CellConstants& cell) {
  std::vector<const TabulatedSetting*> found;
  for (const auto& setting : tabulated_settings()) {
    if (setting.number != number) continue;
    if (found.empty() || setting.symbol == found.front()->symbol || (number >= 3 && number <= 15)) {
      found.push_back(&setting);
    }
  }
  return narrowed(found, "", cell);
}

}  // namespace zol
