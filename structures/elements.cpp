#include "structures/elements.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <charconv>
#include <cmath>

namespace zol {
namespace {

struct Element {
  std::string_view symbol;
  double weight;
};
constexpr std::array<Element, 98> elements{
    {{"H", 1.008},   {"He", 4.0026}, {"Li", 6.94},   {"Be", 9.0122}, {"B", 10.81},   {"C", 12.011},  {"N", 14.007},
     {"O", 15.999},  {"F", 18.998},  {"Ne", 20.180}, {"Na", 22.990}, {"Mg", 24.305}, {"Al", 26.982}, {"Si", 28.085},
     {"P", 30.974},  {"S", 32.06},   {"Cl", 35.45},  {"Ar", 39.95},  {"K", 39.098},  {"Ca", 40.078}, {"Sc", 44.956},
     {"Ti", 47.867}, {"V", 50.942},  {"Cr", 51.996}, {"Mn", 54.938}, {"Fe", 55.845}, {"Co", 58.933}, {"Ni", 58.693},
     {"Cu", 63.546}, {"Zn", 65.38},  {"Ga", 69.723}, {"Ge", 72.630}, {"As", 74.922}, {"Se", 78.971}, {"Br", 79.904},
     {"Kr", 83.798}, {"Rb", 85.468}, {"Sr", 87.62},  {"Y", 88.906},  {"Zr", 91.224}, {"Nb", 92.906}, {"Mo", 95.95},
     {"Tc", 97},     {"Ru", 101.07}, {"Rh", 102.91}, {"Pd", 106.42}, {"Ag", 107.87}, {"Cd", 112.41}, {"In", 114.82},
     {"Sn", 118.71}, {"Sb", 121.76}, {"Te", 127.60}, {"I", 126.90},  {"Xe", 131.29}, {"Cs", 132.91}, {"Ba", 137.33},
     {"La", 138.91}, {"Ce", 140.12}, {"Pr", 140.91}, {"Nd", 144.24}, {"Pm", 145},    {"Sm", 150.36}, {"Eu", 151.96},
     {"Gd", 157.25}, {"Tb", 158.93}, {"Dy", 162.50}, {"Ho", 164.93}, {"Er", 167.26}, {"Tm", 168.93}, {"Yb", 173.05},
     {"Lu", 174.97}, {"Hf", 178.49}, {"Ta", 180.95}, {"W", 183.84},  {"Re", 186.21}, {"Os", 190.23}, {"Ir", 192.22},
     {"Pt", 195.08}, {"Au", 196.97}, {"Hg", 200.59}, {"Tl", 204.38}, {"Pb", 207.2},  {"Bi", 208.98}, {"Po", 209},
     {"At", 210},    {"Rn", 222},    {"Fr", 223},    {"Ra", 226},    {"Ac", 227},    {"Th", 232.04}, {"Pa", 231.04},
     {"U", 238.03},  {"Np", 237},    {"Pu", 244},    {"Am", 243},    {"Cm", 247},    {"Bk", 247},    {"Cf", 251}}};

bool is_letter(char c) { return std::isalpha(static_cast<unsigned char>(c)) != 0; }
bool is_digit(char c) { return c >= '0' && c <= '9'; }
char upper(char c) { return static_cast<char>(std::toupper(static_cast<unsigned char>(c))); }
char lower(char c) { return static_cast<char>(std::tolower(static_cast<unsigned char>(c))); }

std::string capitalised(std::string_view letters) {
  std::string symbol;
  for (const char c : letters) symbol += symbol.empty() ? upper(c) : lower(c);
  return symbol;
}

/// Letters that mean an oxygen whose hydrogens are not told.
bool is_water(const std::string& letters) {
  constexpr std::array<std::string_view, 8> names{"wat", "wa", "ow", "oh", "oha", "ohb", "hoh", "h2o"};
  std::string small;
  for (const char c : letters) small += lower(c);
  return std::find(names.begin(), names.end(), small) != names.end();
}

/// A plain decimal at the start of a text, taken off it.
std::optional<double> take_number(std::string_view& text) {
  double value = 0;
  const auto read = std::from_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed);
  if (read.ec != std::errc()) return std::nullopt;
  text.remove_prefix(static_cast<std::size_t>(read.ptr - text.data()));
  return value;
}

/// "3+", "+3", "+", "2-", "0+" behind the letters.
int charge_in(std::string_view text) {
  const std::size_t sign = text.find_first_of("+-");
  if (sign == std::string_view::npos) return 0;
  int digits = -1;
  if (sign > 0 && is_digit(text[sign - 1])) digits = text[sign - 1] - '0';
  if (sign + 1 < text.size() && is_digit(text[sign + 1])) digits = text[sign + 1] - '0';
  if (digits < 0) digits = 1;
  return text[sign] == '-' ? -digits : digits;
}

/// One element from the letters that a text starts with.
std::optional<std::string> element_in(std::string_view letters, bool is_label, const Formula& formula) {
  const std::string two = letters.size() > 1 ? capitalised(letters.substr(0, 2)) : "";
  std::string one = capitalised(letters.substr(0, 1));
  if (one == "D") one = "H";
  const bool two_known = atomic_number(two) > 0;
  const bool one_known = atomic_number(one) > 0;
  if (two_known && one_known) {
    const bool has_two = formula.contains(two);
    const bool has_one = formula.contains(one);
    if (has_one != has_two) return has_two ? two : one;
    const bool written_as_symbol = std::islower(static_cast<unsigned char>(letters[1])) != 0;
    if (!has_two && !formula.empty()) return std::nullopt;  // neither is there
    return written_as_symbol || !is_label || letters.size() == 2 ? two : one;
  }
  if (two_known) return two;
  if (one_known && (is_label || letters.size() == 1 || formula.empty() || formula.contains(one))) return one;
  return std::nullopt;
}

std::optional<Species> single_species(std::string_view text, bool is_label, const Formula& formula) {
  std::size_t length = 0;
  while (length < text.size() && is_letter(text[length])) ++length;
  if (length == 0) return std::nullopt;
  const std::string letters(text.substr(0, length));
  const bool tungsten = capitalised(letters) == "W" && (formula.empty() || formula.contains("W"));
  if (is_water(letters) || (capitalised(letters) == "W" && !tungsten)) return Species{"O", 0, 1, true};
  const auto element = element_in(letters, is_label, formula);
  if (!element) return std::nullopt;
  return Species{*element, is_label ? 0 : charge_in(text.substr(length)), 1, false};
}

/// "0.75Si + 0.25Al", "Si0.75Al0.25": at least two elements with shares.
std::vector<Species> mixed_species(std::string_view text, const Formula& formula) {
  std::vector<Species> parts;
  double sum = 0;
  while (!text.empty()) {
    while (!text.empty() && (text.front() == ' ' || text.front() == '+' || text.front() == ',' || text.front() == '/' ||
                             text.front() == '(' || text.front() == ')')) {
      text.remove_prefix(1);
    }
    if (text.empty()) break;
    auto share = take_number(text);
    std::size_t length = 0;
    while (length < text.size() && is_letter(text[length]) &&
           (length == 0 || std::islower(static_cast<unsigned char>(text[length])) != 0)) {
      ++length;
    }
    auto species = single_species(text.substr(0, length), false, formula);
    if (!species) return {};
    text.remove_prefix(length);
    if (!share) share = take_number(text);
    if (!share) return {};
    species->share = *share;
    sum += *share;
    parts.push_back(*species);
  }
  if (parts.size() < 2 || sum > 1.02) return {};
  return parts;
}

}  // namespace

int atomic_number(std::string_view symbol) {
  const auto found =
      std::find_if(elements.begin(), elements.end(), [symbol](const Element& e) { return e.symbol == symbol; });
  return found == elements.end() ? 0 : static_cast<int>(found - elements.begin()) + 1;
}

std::string_view element_symbol(int atomic_number) {
  return atomic_number >= 1 && atomic_number <= 98 ? elements[static_cast<std::size_t>(atomic_number - 1)].symbol : "";
}

double atomic_weight(std::string_view symbol) {
  const int number = atomic_number(symbol);
  return number > 0 ? elements[static_cast<std::size_t>(number - 1)].weight : 0;
}

Formula parse_formula(std::string_view text) {
  Formula formula;
  while (!text.empty()) {
    if (!is_letter(text.front())) {
      text.remove_prefix(1);
      continue;
    }
    std::size_t length = 1;
    if (text.size() > 1 && is_letter(text[1])) {
      const bool symbol = std::islower(static_cast<unsigned char>(text[1])) != 0;
      const bool alone = text.size() == 2 || !is_letter(text[2]);  // "CA2 SI O4"
      if (atomic_number(capitalised(text.substr(0, 2))) > 0 && (symbol || alone)) length = 2;
    }
    std::string element = capitalised(text.substr(0, length));
    if (element == "D") element = "H";
    text.remove_prefix(length);
    const double count = take_number(text).value_or(1);
    if (!text.empty() && (text.front() == '+' || text.front() == '-')) continue;  // "2-" is the charge of the whole
    if (atomic_number(element) > 0) formula[element] += count;
  }
  return formula;
}

std::string formula_text(const Formula& formula) {
  // Carbon and hydrogen first where there is carbon, then by the letters.
  std::vector<std::string> order;
  for (const std::string first : {"C", "H"}) {
    if (formula.contains("C") && formula.contains(first)) order.push_back(first);
  }
  for (const auto& [element, count] : formula) {
    if (std::find(order.begin(), order.end(), element) == order.end()) order.push_back(element);
  }
  std::string text;
  for (const auto& element : order) {
    if (!text.empty()) text += ' ';
    text += element;
    const double count = std::round(formula.at(element) * 1000) / 1000;
    if (count == 1) continue;
    std::array<char, 32> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), count).ptr;
    text.append(digits.data(), end);
  }
  return text;
}

std::vector<Species> species_of(std::string_view text, bool is_label, const Formula& formula) {
  while (!text.empty() && (text.front() == ' ' || text.front() == '(' || text.front() == '\'')) text.remove_prefix(1);
  if (!is_label) {
    auto mixed = mixed_species(text, formula);
    if (!mixed.empty()) return mixed;
  }
  if (auto species = single_species(text, is_label, formula)) return {*species};
  return {};
}

std::string species_key(const std::string& element, int charge) {
  if (charge == 0) return element;
  return element + std::to_string(std::abs(charge)) + (charge > 0 ? '+' : '-');
}

}  // namespace zol
