#include <cctype>
#include <sstream>

#include "core/run_failure.h"
#include "structures/space_group_symbols.h"

namespace zol {
namespace {

constexpr int twelfth = operator_unit / 12;

using Translation = std::array<int, 3>;
using Turn = std::array<std::array<int, 3>, 3>;

void add(Translation& sum, const Translation& part) {
  for (std::size_t i = 0; i < 3; ++i) sum[i] += part[i];
}

/// Turns by order about c, and what turns c to another axis.
Turn turn_about(int order, char axis) {
  const Turn about_c = order == 1   ? Turn{{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}}
                       : order == 2 ? Turn{{{-1, 0, 0}, {0, -1, 0}, {0, 0, 1}}}
                       : order == 3 ? Turn{{{0, -1, 0}, {1, -1, 0}, {0, 0, 1}}}
                       : order == 4 ? Turn{{{0, -1, 0}, {1, 0, 0}, {0, 0, 1}}}
                                    : Turn{{{1, -1, 0}, {1, 0, 0}, {0, 0, 1}}};
  const auto permuted = [&about_c](std::size_t steps) {
    Turn turned{};
    for (std::size_t i = 0; i < 3; ++i) {
      for (std::size_t j = 0; j < 3; ++j) turned[(i + steps) % 3][(j + steps) % 3] = about_c[i][j];
    }
    return turned;
  };
  switch (axis) {
    case 'x':
      return permuted(1);
    case 'y':
      return permuted(2);
    case '\'':  // twofold, along the difference of the two axes across the one before
      return {{{0, -1, 0}, {-1, 0, 0}, {0, 0, -1}}};
    case '"':  // along their sum
      return {{{0, 1, 0}, {1, 0, 0}, {0, 0, -1}}};
    case '*':  // threefold along the diagonal of the cell
      return {{{0, 0, 1}, {1, 0, 0}, {0, 1, 0}}};
    default:
      return about_c;
  }
}

/// Diagonals are those across the axis of the rotation before.
Turn about_previous(const Turn& across_c, char previous_axis) {
  const std::size_t steps = previous_axis == 'x' ? 1 : previous_axis == 'y' ? 2 : 0;
  Turn turned{};
  for (std::size_t i = 0; i < 3; ++i) {
    for (std::size_t j = 0; j < 3; ++j) turned[(i + steps) % 3][(j + steps) % 3] = across_c[i][j];
  }
  return turned;
}

std::vector<Translation> lattice_translations(char letter) {
  constexpr int half = operator_unit / 2, third = operator_unit / 3;
  switch (letter) {
    case 'P':
      return {};
    case 'A':
      return {{0, half, half}};
    case 'B':
      return {{half, 0, half}};
    case 'C':
      return {{half, half, 0}};
    case 'I':
      return {{half, half, half}};
    case 'R':
      return {{2 * third, third, third}};
    case 'H':
      return {{2 * third, third, 0}};
    case 'F':
      return {{0, half, half}, {half, 0, half}};
    default:
      throw RunFailure("its first letter is not a lattice");
  }
}

Translation letter_translation(char letter) {
  constexpr int half = operator_unit / 2, quarter = operator_unit / 4;
  switch (letter) {
    case 'a':
      return {half, 0, 0};
    case 'b':
      return {0, half, 0};
    case 'c':
      return {0, 0, half};
    case 'n':
      return {half, half, half};
    case 'u':
      return {quarter, 0, 0};
    case 'v':
      return {0, quarter, 0};
    case 'w':
      return {0, 0, quarter};
    case 'd':
      return {quarter, quarter, quarter};
    default:
      throw RunFailure(std::string("\"") + letter + "\" is not a translation");
  }
}

/// Reads the rotations one after the other; axes that are not written follow from those before.
class HallReader {
 public:
  ExactOperator take(const std::string& word) {
    std::size_t at = 0;
    const bool improper = word[at] == '-';
    if (improper) ++at;
    if (at >= word.size() || std::string_view("12346").find(word[at]) == std::string_view::npos) {
      throw RunFailure("\"" + word + "\" has no order of a rotation");
    }
    const int order = word[at++] - '0';
    char axis = default_axis(order);
    Translation translation{};
    for (; at < word.size(); ++at) {
      const char c = word[at];
      if (std::string_view("xyz'\"*").find(c) != std::string_view::npos) {
        axis = c;
      } else if (c == '=') {
        axis = '"';
      } else if (c >= '1' && c <= '5') {
        screw_ = operator_unit * (c - '0') / order;
      } else {
        add(translation, letter_translation(c));
      }
    }
    return finished(order, axis, improper, translation);
  }

 private:
  [[nodiscard]] char default_axis(int order) const {
    if (count_ == 0) return 'z';
    if (count_ == 1 && order == 2) return previous_order_ == 2 || previous_order_ == 4 ? 'x' : '\'';
    return order == 3 ? '*' : 'z';
  }

  ExactOperator finished(int order, char axis, bool improper, const Translation& translation) {
    const bool diagonal = axis == '\'' || axis == '"';
    Turn turn = turn_about(order, axis);
    if (diagonal) turn = about_previous(turn, previous_axis_);
    ExactOperator op;
    for (std::size_t i = 0; i < 3; ++i) {
      for (std::size_t j = 0; j < 3; ++j) op.rotation[i][j] = (improper ? -1 : 1) * operator_unit * turn[i][j];
    }
    Translation sum = translation;
    if (screw_ != 0 && !diagonal && axis != '*') sum[axis == 'x' ? 0 : axis == 'y' ? 1 : 2] += screw_;
    for (std::size_t i = 0; i < 3; ++i) op.translation[i] = sum[i] % operator_unit;
    screw_ = 0;
    ++count_;
    previous_order_ = order;
    if (!diagonal && axis != '*') previous_axis_ = axis;
    return op;
  }

  int count_ = 0;
  int previous_order_ = 1;
  char previous_axis_ = 'z';
  int screw_ = 0;
};

/// The operator with the origin of the brackets.
ExactOperator moved(ExactOperator op, const Translation& shift) {
  for (std::size_t i = 0; i < 3; ++i) {
    int t = op.translation[i] + shift[i];
    for (std::size_t k = 0; k < 3; ++k) t -= op.rotation[i][k] / operator_unit * shift[k];
    op.translation[i] = ((t % operator_unit) + operator_unit) % operator_unit;
  }
  return op;
}

Operators read_hall(std::string_view symbol) {
  Translation shift{};
  const std::size_t bracket = symbol.find('(');
  if (bracket != std::string_view::npos) {
    std::istringstream numbers{std::string(symbol.substr(bracket + 1))};
    for (int& component : shift) {
      if (!(numbers >> component) || std::abs(component) > 12)
        throw RunFailure("three numbers are expected in its brackets");
      component *= twelfth;
    }
    symbol = symbol.substr(0, bracket);
  }
  std::istringstream words{std::string(symbol)};
  std::string word;
  Operators generators;
  if (!(words >> word)) throw RunFailure("it is empty");
  if (word[0] == '-') {
    ExactOperator inversion;
    for (std::size_t i = 0; i < 3; ++i) inversion.rotation[i][i] = -operator_unit;
    generators.push_back(moved(inversion, shift));
    word.erase(0, 1);
  }
  if (word.size() != 1) throw RunFailure("its first letter is not a lattice");
  for (const auto& translation : lattice_translations(word[0])) {
    ExactOperator centring;
    centring.translation = translation;
    generators.push_back(centring);
  }
  HallReader reader;
  while (words >> word) generators.push_back(moved(reader.take(word), shift));
  return generated_group(generators);
}

}  // namespace

Operators hall_group(std::string_view symbol) {
  try {
    return read_hall(symbol);
  } catch (const RunFailure& failure) {
    throw RunFailure("the Hall symbol \"" + std::string(symbol) + "\": " + failure.message());
  }
}

}  // namespace zol
