// The space group files, held against group theory and the International Tables.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <cmath>
#include <filesystem>
#include <map>
#include <numbers>
#include <set>
#include <sstream>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include "core/space_group.h"
#include "tests/cell_metric.h"

namespace zol {
namespace {

// Short symbols of the International Tables A (editions before 1992, without the letter e), their parts set apart.
// No bar on the 3 of the cubic groups.
constexpr std::array<std::string_view, standard_groups> standard_symbols{
    // 1 to 15: triclinic, monoclinic
    "P 1", "P -1", "P 2", "P 21", "C 2", "P m", "P c", "C m", "C c", "P 2/m", "P 21/m", "C 2/m", "P 2/c", "P 21/c",
    "C 2/c",
    // 16 to 74: orthorhombic
    "P 2 2 2", "P 2 2 21", "P 21 21 2", "P 21 21 21", "C 2 2 21", "C 2 2 2", "F 2 2 2", "I 2 2 2", "I 21 21 21",
    "P m m 2", "P m c 21", "P c c 2", "P m a 2", "P c a 21", "P n c 2", "P m n 21", "P b a 2", "P n a 21", "P n n 2",
    "C m m 2", "C m c 21", "C c c 2", "A m m 2", "A b m 2", "A m a 2", "A b a 2", "F m m 2", "F d d 2", "I m m 2",
    "I b a 2", "I m a 2", "P m m m", "P n n n", "P c c m", "P b a n", "P m m a", "P n n a", "P m n a", "P c c a",
    "P b a m", "P c c n", "P b c m", "P n n m", "P m m n", "P b c n", "P b c a", "P n m a", "C m c m", "C m c a",
    "C m m m", "C c c m", "C m m a", "C c c a", "F m m m", "F d d d", "I m m m", "I b a m", "I b c a", "I m m a",
    // 75 to 142: tetragonal
    "P 4", "P 41", "P 42", "P 43", "I 4", "I 41", "P -4", "I -4", "P 4/m", "P 42/m", "P 4/n", "P 42/n", "I 4/m",
    "I 41/a", "P 4 2 2", "P 4 21 2", "P 41 2 2", "P 41 21 2", "P 42 2 2", "P 42 21 2", "P 43 2 2", "P 43 21 2",
    "I 4 2 2", "I 41 2 2", "P 4 m m", "P 4 b m", "P 42 c m", "P 42 n m", "P 4 c c", "P 4 n c", "P 42 m c", "P 42 b c",
    "I 4 m m", "I 4 c m", "I 41 m d", "I 41 c d", "P -4 2 m", "P -4 2 c", "P -4 21 m", "P -4 21 c", "P -4 m 2",
    "P -4 c 2", "P -4 b 2", "P -4 n 2", "I -4 m 2", "I -4 c 2", "I -4 2 m", "I -4 2 d", "P 4/m m m", "P 4/m c c",
    "P 4/n b m", "P 4/n n c", "P 4/m b m", "P 4/m n c", "P 4/n m m", "P 4/n c c", "P 42/m m c", "P 42/m c m",
    "P 42/n b c", "P 42/n n m", "P 42/m b c", "P 42/m n m", "P 42/n m c", "P 42/n c m", "I 4/m m m", "I 4/m c m",
    "I 41/a m d", "I 41/a c d",
    // 143 to 194: trigonal, hexagonal
    "P 3", "P 31", "P 32", "R 3", "P -3", "R -3", "P 3 1 2", "P 3 2 1", "P 31 1 2", "P 31 2 1", "P 32 1 2", "P 32 2 1",
    "R 3 2", "P 3 m 1", "P 3 1 m", "P 3 c 1", "P 3 1 c", "R 3 m", "R 3 c", "P -3 1 m", "P -3 1 c", "P -3 m 1",
    "P -3 c 1", "R -3 m", "R -3 c", "P 6", "P 61", "P 65", "P 62", "P 64", "P 63", "P -6", "P 6/m", "P 63/m", "P 6 2 2",
    "P 61 2 2", "P 65 2 2", "P 62 2 2", "P 64 2 2", "P 63 2 2", "P 6 m m", "P 6 c c", "P 63 c m", "P 63 m c",
    "P -6 m 2", "P -6 c 2", "P -6 2 m", "P -6 2 c", "P 6/m m m", "P 6/m c c", "P 63/m c m", "P 63/m m c",
    // 195 to 230: cubic
    "P 2 3", "F 2 3", "I 2 3", "P 21 3", "I 21 3", "P m 3", "P n 3", "F m 3", "F d 3", "I m 3", "P a 3", "I a 3",
    "P 4 3 2", "P 42 3 2", "F 4 3 2", "F 41 3 2", "I 4 3 2", "P 43 3 2", "P 41 3 2", "I 41 3 2", "P -4 3 m", "F -4 3 m",
    "I -4 3 m", "P -4 3 n", "F -4 3 c", "I -4 3 d", "P m 3 m", "P n 3 n", "P m 3 n", "P n 3 m", "F m 3 m", "F m 3 c",
    "F d 3 m", "F d 3 c", "I m 3 m", "I a 3 d"};

struct Setting {
  int standard_number;  ///< of the same group in its standard setting
  std::string_view system;
  std::string_view symbol;
  std::string_view elements;  ///< lattice letter and symmetry elements set apart
};

constexpr std::array<Setting, all_groups - standard_groups> settings{{
    {14, "MONO", "P21/n", "P 21/n"},
    {14, "MONO", "P21/a", "P 21/a"},
    {13, "MONO", "P2/n", "P 2/n"},
    {15, "MONO", "A2/a", "A 2/a"},
    {15, "MONO", "I2/a", "I 2/a"},
    {12, "MONO", "I2/m", "I 2/m"},
    {12, "MONO", "A2/m", "A 2/m"},
    {14, "MONOC", "P1121/b", "P 1 1 21/b"},
    {15, "MONOC", "B112/b", "B 1 1 2/b"},
    {166, "RHOMB", "P(R-3m)", "P -3 m"},
    {1, "TRICL", "C1", "C 1"},
    {2, "TRICL", "C-1", "C -1"},
    {2, "TRICL", "I-1", "I -1"},
    {62, "ORTHO", "Pbnm", "P b n m"},
    {62, "ORTHO", "Pmcn", "P m c n"},
    {62, "ORTHO", "Pmnb", "P m n b"},
    {64, "ORTHO", "Bmab", "B m a b"},
    {141, "TETRA", "I41/amd:1", "I 41/a m d"},
    {227, "CUBIC", "Fd3m:1", "F d 3 m"},
    {194, "HEXA", "P63/mmc-b", "P 63/m m c"},
}};

/// What a file must hold.
struct Expected {
  int standard_number = 0;
  std::string system, symbol, elements;
};

std::string_view standard_system(int number) {
  struct Range {
    int last;
    std::string_view word;
  };
  constexpr std::array ranges{Range{2, "TRICL"},   Range{15, "MONO"},  Range{74, "ORTHO"}, Range{142, "TETRA"},
                              Range{167, "TRIGO"}, Range{194, "HEXA"}, Range{230, "CUBIC"}};
  return std::find_if(ranges.begin(), ranges.end(), [&](const Range& range) { return number <= range.last; })->word;
}

Expected expected(int number) {
  if (number > standard_groups) {
    const auto& setting = settings[static_cast<std::size_t>(number - standard_groups - 1)];
    return {setting.standard_number, std::string(setting.system), std::string(setting.symbol),
            std::string(setting.elements)};
  }
  const std::string elements(standard_symbols[static_cast<std::size_t>(number - 1)]);
  std::string symbol = elements;
  std::erase(symbol, ' ');
  return {number, std::string(standard_system(number)), symbol, elements};
}

// How many operators of each kind a point group has: rotations of order 1, 2, 3, 4, 6, then -1, m, -3, -4, -6.
// Ranges of numbers as in the International Tables.
struct PointGroup {
  int last;  ///< number of the last space group of the class
  std::array<int, 10> kinds;
};
constexpr std::array<PointGroup, 32> point_groups{{
    {1, {1, 0, 0, 0, 0, 0, 0, 0, 0, 0}},    // 1
    {2, {1, 0, 0, 0, 0, 1, 0, 0, 0, 0}},    // -1
    {5, {1, 1, 0, 0, 0, 0, 0, 0, 0, 0}},    // 2
    {9, {1, 0, 0, 0, 0, 0, 1, 0, 0, 0}},    // m
    {15, {1, 1, 0, 0, 0, 1, 1, 0, 0, 0}},   // 2/m
    {24, {1, 3, 0, 0, 0, 0, 0, 0, 0, 0}},   // 222
    {46, {1, 1, 0, 0, 0, 0, 2, 0, 0, 0}},   // mm2
    {74, {1, 3, 0, 0, 0, 1, 3, 0, 0, 0}},   // mmm
    {80, {1, 1, 0, 2, 0, 0, 0, 0, 0, 0}},   // 4
    {82, {1, 1, 0, 0, 0, 0, 0, 0, 2, 0}},   // -4
    {88, {1, 1, 0, 2, 0, 1, 1, 0, 2, 0}},   // 4/m
    {98, {1, 5, 0, 2, 0, 0, 0, 0, 0, 0}},   // 422
    {110, {1, 1, 0, 2, 0, 0, 4, 0, 0, 0}},  // 4mm
    {122, {1, 3, 0, 0, 0, 0, 2, 0, 2, 0}},  // -42m
    {142, {1, 5, 0, 2, 0, 1, 5, 0, 2, 0}},  // 4/mmm
    {146, {1, 0, 2, 0, 0, 0, 0, 0, 0, 0}},  // 3
    {148, {1, 0, 2, 0, 0, 1, 0, 2, 0, 0}},  // -3
    {155, {1, 3, 2, 0, 0, 0, 0, 0, 0, 0}},  // 32
    {161, {1, 0, 2, 0, 0, 0, 3, 0, 0, 0}},  // 3m
    {167, {1, 3, 2, 0, 0, 1, 3, 2, 0, 0}},  // -3m
    {173, {1, 1, 2, 0, 2, 0, 0, 0, 0, 0}},  // 6
    {174, {1, 0, 2, 0, 0, 0, 1, 0, 0, 2}},  // -6
    {176, {1, 1, 2, 0, 2, 1, 1, 2, 0, 2}},  // 6/m
    {182, {1, 7, 2, 0, 2, 0, 0, 0, 0, 0}},  // 622
    {186, {1, 1, 2, 0, 2, 0, 6, 0, 0, 0}},  // 6mm
    {190, {1, 3, 2, 0, 0, 0, 4, 0, 0, 2}},  // -62m
    {194, {1, 7, 2, 0, 2, 1, 7, 2, 0, 2}},  // 6/mmm
    {199, {1, 3, 8, 0, 0, 0, 0, 0, 0, 0}},  // 23
    {206, {1, 3, 8, 0, 0, 1, 3, 8, 0, 0}},  // m-3
    {214, {1, 9, 8, 6, 0, 0, 0, 0, 0, 0}},  // 432
    {220, {1, 3, 8, 0, 0, 0, 6, 0, 6, 0}},  // -43m
    {230, {1, 9, 8, 6, 0, 1, 9, 8, 6, 0}},  // m-3m
}};

const PointGroup& point_group(int standard_number) {
  return *std::find_if(point_groups.begin(), point_groups.end(),
                       [&](const PointGroup& group) { return standard_number <= group.last; });
}

constexpr int unit = 24;  // all translations of the space groups are whole 24ths of a lattice vector

using Vector = std::array<int, 3>;

/// An operator in whole numbers, the translation in 24ths.
struct Operator {
  std::array<Vector, 3> rotation{};
  Vector translation{};
  bool operator==(const Operator&) const = default;
  bool operator<(const Operator& other) const {
    return std::tie(rotation, translation) < std::tie(other.rotation, other.translation);
  }
};

const Operator identity{{{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}}, {0, 0, 0}};

Vector times(const std::array<Vector, 3>& matrix, const Vector& v) {
  Vector product{};
  for (std::size_t i = 0; i < 3; ++i) {
    for (std::size_t j = 0; j < 3; ++j) product[i] += matrix[i][j] * v[j];
  }
  return product;
}

Vector plus(const Vector& a, const Vector& b) { return {a[0] + b[0], a[1] + b[1], a[2] + b[2]}; }

Vector scaled(int factor, const Vector& v) { return {factor * v[0], factor * v[1], factor * v[2]}; }

/// First b, then a; the translation is not folded.
Operator compose(const Operator& a, const Operator& b) {
  Operator product;
  for (std::size_t i = 0; i < 3; ++i) {
    for (std::size_t j = 0; j < 3; ++j) {
      for (std::size_t k = 0; k < 3; ++k) product.rotation[i][j] += a.rotation[i][k] * b.rotation[k][j];
    }
  }
  product.translation = plus(times(a.rotation, b.translation), a.translation);
  return product;
}

Operator folded(Operator op) {
  for (int& t : op.translation) t = (t % unit + unit) % unit;
  return op;
}

int determinant(const std::array<Vector, 3>& m) {
  return m[0][0] * (m[1][1] * m[2][2] - m[1][2] * m[2][1]) - m[0][1] * (m[1][0] * m[2][2] - m[1][2] * m[2][0]) +
         m[0][2] * (m[1][0] * m[2][1] - m[1][1] * m[2][0]);
}

/// Order of the rotation, 1, 2, 3, 4 or 6; that of -n is told as n. 0 when the matrix is none.
int axis_order(const Operator& op) {
  const int sign = determinant(op.rotation);
  switch (sign * (op.rotation[0][0] + op.rotation[1][1] + op.rotation[2][2])) {
    case 3:
      return 1;
    case -1:
      return 2;
    case 0:
      return 3;
    case 1:
      return 4;
    case 2:
      return 6;
    default:
      return 0;
  }
}

/// Fails the test at an element that is no whole number or a translation that is no 24th.
/// The tolerance leaves room for thirds and sixths as 32-bit floats.
int whole(double value, double scale) {
  const double scaled = value * scale;
  EXPECT_NEAR(scaled, std::round(scaled), 1e-5 * scale);
  return static_cast<int>(std::lround(scaled));
}

std::vector<Operator> operators_of(const SpaceGroup& group) {
  std::vector<Operator> operators;
  for (const auto& [rotation, translation] : group.operators) {
    Operator op;
    for (std::size_t i = 0; i < 3; ++i) {
      for (std::size_t j = 0; j < 3; ++j) op.rotation[i][j] = whole(double{rotation[i][j]}, 1);
      EXPECT_GE(translation[i], 0.0F);
      EXPECT_LT(translation[i], 1.0F);
      op.translation[i] = whole(double{translation[i]}, unit);
    }
    operators.push_back(op);
  }
  return operators;
}

std::set<Vector> centring_translations(char lattice) {
  switch (lattice) {
    case 'A':
      return {{0, 0, 0}, {0, 12, 12}};
    case 'B':
      return {{0, 0, 0}, {12, 0, 12}};
    case 'C':
      return {{0, 0, 0}, {12, 12, 0}};
    case 'I':
      return {{0, 0, 0}, {12, 12, 12}};
    case 'F':
      return {{0, 0, 0}, {0, 12, 12}, {12, 0, 12}, {12, 12, 0}};
    case 'R':  // obverse: reflections with -h + k + l = 3n
      return {{0, 0, 0}, {16, 8, 8}, {8, 16, 16}};
    default:
      return {{0, 0, 0}};
  }
}

struct GroupFile {
  int number = 0;
  Expected expected_contents;
  SpaceGroup group;
  std::vector<Operator> operators;
};

class SpaceGroupFiles : public testing::Test {
 protected:
  void SetUp() override {
    for (int number = 1; number <= all_groups; ++number) {
      SCOPED_TRACE(file_of(number));
      auto group = read_space_group(file_of(number));
      auto operators = operators_of(group);
      files_.push_back({number, expected(number), std::move(group), std::move(operators)});
    }
  }
  std::vector<GroupFile> files_;
};

TEST_F(SpaceGroupFiles, HasSystemSymbolAndCount) {
  for (const auto& [number, expected_contents, group, operators] : files_) {
    SCOPED_TRACE(file_of(number));
    EXPECT_EQ(group.system, expected_contents.system);
    EXPECT_EQ(group.symbol, expected_contents.symbol);
    const auto& kinds = point_group(expected_contents.standard_number).kinds;
    int order = 0;
    for (const int count : kinds) order += count;
    EXPECT_EQ(operators.size(), static_cast<std::size_t>(order) * centring_translations(group.symbol.front()).size());
  }
}

TEST_F(SpaceGroupFiles, IsAGroup) {
  for (const auto& [number, expected_contents, group, operators] : files_) {
    SCOPED_TRACE(file_of(number));
    const std::set<Operator> all(operators.begin(), operators.end());
    EXPECT_EQ(all.size(), operators.size()) << "operators stand twice";
    EXPECT_EQ(operators.front(), identity);
    for (const auto& a : operators) {
      int inverses = 0;
      for (const auto& b : operators) {
        const Operator product = folded(compose(a, b));
        ASSERT_TRUE(all.contains(product));
        if (product == identity) ++inverses;
      }
      ASSERT_EQ(inverses, 1);
    }
  }
}

TEST_F(SpaceGroupFiles, HasTheCentringOfItsLetter) {
  for (const auto& [number, expected_contents, group, operators] : files_) {
    SCOPED_TRACE(file_of(number));
    std::set<Vector> found;
    for (const auto& op : operators) {
      if (op.rotation == identity.rotation) found.insert(op.translation);
    }
    EXPECT_EQ(found, centring_translations(group.symbol.front()));
  }
}

TEST_F(SpaceGroupFiles, HasThePointGroupOfItsNumber) {
  for (const auto& [number, expected_contents, group, operators] : files_) {
    SCOPED_TRACE(file_of(number));
    std::array<int, 10> kinds{};
    std::set<std::array<Vector, 3>> rotations;
    for (const auto& op : operators) {
      if (!rotations.insert(op.rotation).second) continue;
      const int sign = determinant(op.rotation);
      ASSERT_EQ(std::abs(sign), 1);
      const int order = axis_order(op);
      ASSERT_NE(order, 0);
      const int column = (order == 6 ? 4 : order - 1) + (sign < 0 ? 5 : 0);
      ++kinds[static_cast<std::size_t>(column)];
    }
    EXPECT_EQ(kinds, point_group(expected_contents.standard_number).kinds);
  }
}

Metric general_metric(const std::string& system) {
  static const std::map<std::string, Metric> metrics{
      {"TRICL", metric(5, 6, 7, 81, 95, 103)}, {"MONO", metric(5, 6, 7, 90, 95, 90)},
      {"MONOC", metric(5, 6, 7, 90, 90, 103)}, {"ORTHO", metric(5, 6, 7, 90, 90, 90)},
      {"TETRA", metric(5, 5, 7, 90, 90, 90)},  {"TRIGO", metric(5, 5, 7, 90, 90, 120)},
      {"HEXA", metric(5, 5, 7, 90, 90, 120)},  {"RHOMB", metric(5, 5, 5, 57, 57, 57)},
      {"CUBIC", metric(5, 5, 5, 90, 90, 90)}};
  return metrics.at(system);
}

TEST_F(SpaceGroupFiles, KeepsTheCellOfItsSystem) {
  for (const auto& [number, expected_contents, group, operators] : files_) {
    SCOPED_TRACE(file_of(number));
    EXPECT_LT(metric_change(group, general_metric(group.system)), 1e-9);
  }
}

// Directions that the places of a symbol stand for (International Tables A, table 2.2.4.1).
std::vector<Vector> symbol_directions(const std::string& system) {
  if (system == "MONO") return {{0, 1, 0}};
  if (system == "ORTHO" || system == "MONOC") return {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}};
  if (system == "CUBIC") return {{0, 0, 1}, {1, 1, 1}, {1, -1, 0}};
  if (system == "RHOMB") return {{1, 1, 1}, {1, -1, 0}};
  return {{0, 0, 1}, {1, 0, 0}, {1, -1, 0}};
}

/// Glide vectors that a letter stands for, in 24ths, by the normal of the plane.
std::vector<Vector> glide_vectors(char letter, const Vector& normal) {
  const Vector u = normal == Vector{1, 0, 0}    ? Vector{0, 1, 0}
                   : normal == Vector{1, -1, 0} ? Vector{1, 1, 0}
                                                : Vector{1, 0, 0};
  const Vector v = normal == Vector{0, 0, 1} ? Vector{0, 1, 0} : Vector{0, 0, 1};  // u and v lie in the plane
  switch (letter) {
    case 'a':
      return {{12, 0, 0}};
    case 'b':
      return {{0, 12, 0}};
    case 'c':
      return {{0, 0, 12}};
    case 'n':
      return {plus(scaled(12, u), scaled(12, v))};
    case 'd':
      return {plus(scaled(6, u), scaled(6, v)), plus(scaled(6, u), scaled(-6, v))};
    default:  // m
      return {{0, 0, 0}};
  }
}

/// Whether the operator turns counterclockwise about the direction.
bool turns_forward(const Operator& op, const Vector& axis) {
  for (const Vector& v : {Vector{1, 0, 0}, Vector{0, 1, 0}, Vector{0, 0, 1}}) {
    const int volume = determinant({v, times(op.rotation, v), axis});
    if (volume != 0) return volume > 0;
  }
  return false;
}

/// Whether the operator, or one that differs by a lattice vector, glides or screws by the vector (24ths).
bool has_intrinsic_part(const Operator& op, const Vector& part) {
  const int n = determinant(op.rotation) < 0 ? 2 : axis_order(op);
  for (int shift = 0; shift < 27; ++shift) {
    Operator moved = op;
    moved.translation =
        plus(op.translation, {unit * (shift % 3 - 1), unit * (shift / 3 % 3 - 1), unit * (shift / 9 - 1)});
    Operator power = moved;
    for (int i = 1; i < n; ++i) power = compose(moved, power);
    if (power.translation == scaled(n, part)) return true;
  }
  return false;
}

/// Whether the group has the element along the direction: "21", "-4", "m" (its normal), "c", "1".
bool has_element(const std::vector<Operator>& operators, const std::string& element, const Vector& axis) {
  if (element == "1") return true;
  return std::any_of(operators.begin(), operators.end(), [&](const Operator& op) {
    const int sign = determinant(op.rotation);
    const int order = axis_order(op);
    if (element == "-1") return sign < 0 && order == 1;
    const Vector image = times(op.rotation, axis);
    if (image != scaled(sign, axis)) return false;
    if (std::isalpha(static_cast<unsigned char>(element[0])) != 0) {
      const auto vectors = glide_vectors(element[0], axis);
      return sign < 0 && order == 2 && std::any_of(vectors.begin(), vectors.end(), [&](const Vector& glide) {
               return has_intrinsic_part(op, glide);
             });
    }
    if (element[0] == '-') return sign < 0 && order == element[1] - '0';
    if (sign < 0 || order != element[0] - '0' || (order > 2 && !turns_forward(op, axis))) return false;
    const int screw = element.size() > 1 ? element[1] - '0' : 0;
    return has_intrinsic_part(op, scaled(unit * screw / order, axis));
  });
}

bool has_elements_of(const std::vector<Operator>& operators, const Expected& other) {
  const auto directions = symbol_directions(other.system);
  std::istringstream symbol(other.elements);
  std::string place;
  symbol >> place;  // the lattice letter
  for (std::size_t i = 0; symbol >> place; ++i) {
    std::istringstream elements(place);
    for (std::string element; std::getline(elements, element, '/');) {
      if (!has_element(operators, element, directions.at(i))) return false;
    }
  }
  return true;
}

// No group has the elements that another one of its lattice and point group is named after. Only the pairs I222 and
// I212121, I23 and I213 have the same elements: three twofold axes meet in a point of the first, not of the second.
TEST_F(SpaceGroupFiles, HasTheSymmetryElementsOfItsSymbolAndOfNoOther) {
  const std::set<std::set<int>> alike{{23, 24}, {197, 199}};
  for (const auto& [number, expected_contents, group, operators] : files_) {
    SCOPED_TRACE(file_of(number));
    EXPECT_TRUE(has_elements_of(operators, expected_contents));
    const auto* point_group_of_file = &point_group(expected_contents.standard_number);
    for (int other_number = 1; number <= standard_groups && other_number <= standard_groups; ++other_number) {
      const Expected other = expected(other_number);
      if (other_number == number || &point_group(other_number) != point_group_of_file ||
          other.symbol.front() != group.symbol.front() || alike.contains({number, other_number})) {
        continue;
      }
      EXPECT_FALSE(has_elements_of(operators, other)) << "those of " << other.symbol;
    }
  }
}

TEST_F(SpaceGroupFiles, ThreeTwofoldAxesMeetOrNot) {
  struct Row {
    int number, axes_through_a_point;
  };
  for (const auto& [number, axes] : {Row{23, 3}, Row{24, 1}, Row{197, 3}, Row{199, 1}}) {
    int most = 0;
    for (int point = 0; point < 512; ++point) {  // eighths of the cell edges
      const Vector p{3 * (point % 8), 3 * (point / 8 % 8), 3 * (point / 64)};
      int fixing = 0;
      for (const auto& op : files_[static_cast<std::size_t>(number - 1)].operators) {
        const Operator moved{op.rotation, plus(times(op.rotation, p), plus(op.translation, scaled(-1, p)))};
        if (axis_order(op) == 2 && folded(moved).translation == Vector{0, 0, 0}) ++fixing;
      }
      most = std::max(most, fixing);
    }
    EXPECT_EQ(most, axes) << "number " << number;
  }
}

// General positions as the International Tables A give them, for the groups that another origin would leave with the
// same site symmetry there; for 231 on as the settings are defined.
struct GeneralPosition {
  int number;
  std::string_view triplet;
};
// clang-format off
const std::vector<GeneralPosition> general_positions{
    {4, "-x,y+1/2,-z"}, {7, "x,-y,z+1/2"}, {9, "x,-y,z+1/2"}, {14, "-x,y+1/2,-z+1/2"}, {15, "-x,y,-z+1/2"},
    {17, "-x,y,-z+1/2"}, {18, "-x+1/2,y+1/2,-z"}, {19, "-x+1/2,-y,z+1/2"}, {19, "-x,y+1/2,-z+1/2"},
    {20, "-x,y,-z+1/2"}, {24, "-x+1/2,-y,z+1/2"}, {24, "-x,y+1/2,-z+1/2"}, {26, "x,-y,z+1/2"}, {28, "x+1/2,-y,z"},
    {28, "-x,-y,z"}, {29, "-x,-y,z+1/2"}, {29, "x+1/2,-y,z"}, {30, "x,-y+1/2,z+1/2"}, {31, "x+1/2,-y,z+1/2"},
    {32, "x+1/2,-y+1/2,z"}, {33, "-x,-y,z+1/2"}, {33, "x+1/2,-y+1/2,z"}, {36, "x,-y,z+1/2"}, {37, "x,-y,z+1/2"},
    {39, "x,-y+1/2,z"}, {40, "x+1/2,-y,z"}, {40, "-x,-y,z"}, {41, "x+1/2,-y+1/2,z"}, {43, "x+1/4,-y+1/4,z+1/4"},
    {45, "x+1/2,-y+1/2,z"}, {46, "x+1/2,-y,z"}, {46, "-x,-y,z"}, {48, "-x+1/2,-y+1/2,z"}, {50, "-x+1/2,-y+1/2,z"},
    {57, "-x,-y,z+1/2"}, {60, "-x,y,-z+1/2"}, {62, "-x+1/2,-y,z+1/2"}, {66, "-x,y,-z+1/2"}, {67, "-x,-y+1/2,z"},
    {67, "-x,y+1/2,-z"}, {68, "-x+1/2,-y,z"}, {68, "-x,y,-z+1/2"}, {70, "-x+3/4,-y+3/4,z"}, {70, "-x+3/4,y,-z+3/4"},
    {73, "-x+1/2,-y,z+1/2"}, {76, "-y,x,z+1/4"}, {77, "-y,x,z+1/2"}, {78, "-y,x,z+3/4"}, {80, "-y,x+1/2,z+1/4"},
    {84, "-y,x,z+1/2"}, {85, "-y+1/2,x,z"}, {86, "-y,x+1/2,z+1/2"}, {88, "-y+3/4,x+1/4,z+1/4"},
    {90, "-y+1/2,x+1/2,z"}, {91, "-x,y,-z"}, {91, "-y,x,z+1/4"}, {92, "-y+1/2,x+1/2,z+1/4"}, {92, "y,x,-z"},
    {93, "-y,x,z+1/2"}, {93, "-x,y,-z"}, {94, "-y+1/2,x+1/2,z+1/2"}, {95, "-x,y,-z"}, {95, "-y,x,z+3/4"},
    {96, "-y+1/2,x+1/2,z+3/4"}, {96, "y,x,-z"}, {98, "-y,x+1/2,z+1/4"}, {100, "-y,x,z"}, {105, "-y,x,z+1/2"},
    {106, "-y,x,z+1/2"}, {108, "-y,x,z"}, {109, "-y,x+1/2,z+1/4"}, {110, "-y,x+1/2,z+1/4"}, {112, "-x,y,-z+1/2"},
    {113, "y,-x,-z"}, {116, "x,-y,z+1/2"}, {116, "y,-x,-z"}, {117, "y,-x,-z"}, {118, "x+1/2,-y+1/2,z+1/2"},
    {118, "y,-x,-z"}, {120, "x,-y,z+1/2"}, {120, "y,-x,-z"}, {122, "-x+1/2,y,-z+3/4"}, {125, "-y+1/2,x,z"},
    {126, "-y+1/2,x,z"}, {127, "-y,x,z"}, {129, "-y+1/2,x,z"}, {130, "-y+1/2,x,z"}, {131, "-y,x,z+1/2"},
    {133, "-y+1/2,x,z+1/2"}, {134, "-y+1/2,x,z+1/2"}, {135, "-y,x,z+1/2"}, {137, "-y+1/2,x,z+1/2"},
    {138, "-y+1/2,x,z+1/2"}, {140, "-y,x,z"}, {141, "-y+1/4,x+3/4,z+1/4"}, {142, "-y+1/4,x+3/4,z+1/4"},
    {144, "-y,x-y,z+1/3"}, {145, "-y,x-y,z+2/3"}, {151, "-y,-x,-z+2/3"}, {152, "y,x,-z"}, {152, "-y,x-y,z+1/3"},
    {153, "-y,-x,-z+1/3"}, {154, "y,x,-z"}, {154, "-y,x-y,z+2/3"}, {169, "x-y,x,z+1/6"}, {170, "x-y,x,z+5/6"},
    {171, "x-y,x,z+1/3"}, {171, "-x,-y,z"}, {172, "-x,-y,z"}, {172, "x-y,x,z+2/3"}, {178, "y,x,-z+1/3"},
    {178, "x-y,x,z+1/6"}, {179, "y,x,-z+2/3"}, {180, "y,x,-z+2/3"}, {180, "-x,-y,z"}, {181, "y,x,-z+1/3"},
    {181, "-x,-y,z"}, {182, "y,x,-z"}, {186, "y,x,z+1/2"}, {188, "x,y,-z+1/2"}, {190, "x,y,-z+1/2"},
    {194, "-x,-y,z+1/2"}, {198, "-x+1/2,-y,z+1/2"}, {198, "z,x,y"}, {199, "-x+1/2,-y,z+1/2"}, {199, "z,x,y"},
    {201, "-x+1/2,-y+1/2,z"}, {201, "z,x,y"}, {203, "-x+3/4,-y+3/4,z"}, {203, "z,x,y"}, {205, "-x+1/2,-y,z+1/2"},
    {205, "z,x,y"}, {206, "-x+1/2,-y,z+1/2"}, {206, "z,x,y"}, {208, "y+1/2,x+1/2,-z+1/2"},
    {210, "y+3/4,x+1/4,-z+3/4"}, {212, "y+1/4,x+3/4,-z+3/4"}, {212, "z,x,y"}, {213, "y+3/4,x+1/4,-z+1/4"},
    {213, "z,x,y"}, {214, "y+3/4,x+1/4,-z+1/4"}, {214, "-x+1/2,-y,z+1/2"}, {214, "z,x,y"}, {220, "y+1/4,x+1/4,z+1/4"},
    {220, "-x+1/2,-y,z+1/2"}, {220, "z,x,y"}, {222, "-x+1/2,-y+1/2,z"}, {222, "z,x,y"}, {224, "-x+1/2,-y+1/2,z"},
    {224, "z,x,y"}, {227, "-x+3/4,-y+1/4,z+1/2"}, {227, "z,x,y"}, {228, "-x+1/4,-y+3/4,z+1/2"}, {228, "z,x,y"},
    {230, "y+3/4,x+1/4,-z+1/4"}, {230, "-x+1/2,-y,z+1/2"},
    // settings
    {231, "-x+1/2,y+1/2,-z+1/2"}, {231, "-x,-y,-z"}, {232, "-x+1/2,y+1/2,-z"}, {232, "-x,-y,-z"},
    {233, "-x+1/2,y,-z+1/2"}, {233, "-x,-y,-z"}, {234, "-x+1/2,y,-z"}, {234, "-x,-y,-z"}, {235, "-x+1/2,y,-z"},
    {235, "-x,-y,-z"}, {236, "-x,y,-z"}, {236, "-x,-y,-z"}, {237, "-x,y,-z"}, {237, "-x,-y,-z"},
    {238, "-x,-y+1/2,z+1/2"}, {238, "-x,-y,-z"}, {239, "-x,-y+1/2,z"}, {239, "-x,-y,-z"}, {240, "y,x,z"},
    {240, "-x,-y,-z"}, {240, "z,x,y"}, {242, "-x,-y,-z"}, {243, "-x,-y,-z"}, {244, "x,y,-z+1/2"}, {244, "-x,-y,-z"},
    {245, "-x+1/2,y,z"}, {245, "-x,-y,-z"}, {246, "-x+1/2,y,z"}, {246, "-x,-y,-z"}, {247, "-x,y,z"},
    {247, "x+1/2,-y+1/2,z"}, {247, "x,y+1/2,-z+1/2"}, {247, "-x,-y,-z"}, {248, "-y,x+1/2,z+1/4"}, {248, "y,-x,-z"},
    {249, "-y,x,-z"}, {249, "y,x,z"}, {249, "-x+1/4,-y+1/4,-z+1/4"}, {250, "x,y,-z"}, {250, "-x,-y,-z+1/2"},
    {250, "-x,-y,z+1/2"}, {250, "-y,x-y,z"},
};
// clang-format on

/// "-y,x-y,z+1/3" as an operator.
Operator parse_triplet(std::string_view triplet) {
  Operator op;
  std::size_t row = 0;
  int sign = 1;
  for (std::size_t i = 0; i < triplet.size(); ++i) {
    const char c = triplet[i];
    if (c >= 'x' && c <= 'z') {
      op.rotation[row][static_cast<std::size_t>(c - 'x')] = sign;
    } else if (c >= '0' && c <= '9') {
      op.translation[row] = sign * unit * (c - '0') / (triplet[i + 2] - '0');
      i += 2;
    } else if (c == ',') {
      ++row;
    }
    sign = c == '-' ? -1 : 1;
  }
  return op;
}

TEST_F(SpaceGroupFiles, HaveTheGeneralPositionsOfTheTables) {
  for (const auto& [number, triplet] : general_positions) {
    const auto& operators = files_[static_cast<std::size_t>(number - 1)].operators;
    EXPECT_NE(std::find(operators.begin(), operators.end(), parse_triplet(triplet)), operators.end())
        << "number " << number << " lacks " << triplet;
  }
}

// Order of the site symmetry at the origin, from the lines "Origin" and the positions of the International Tables A,
// origin choice 2 where there are two.
constexpr std::array<int, standard_groups> origin_site_orders{
    // 1 to 15
    1, 2, 2, 1, 2, 2, 1, 2, 1, 4, 2, 4, 2, 2, 2,
    // 16 to 46: 222, mm2
    4, 2, 2, 1, 2, 4, 4, 4, 1, 4, 2, 2, 2, 1, 2, 2, 2, 1, 2, 4, 2, 2, 4, 2, 2, 2, 4, 2, 4, 2, 2,
    // 47 to 74: mmm
    8, 2, 4, 2, 4, 2, 4, 2, 4, 2, 2, 4, 2, 2, 2, 2, 4, 4, 8, 4, 4, 2, 8, 2, 8, 4, 2, 4,
    // 75 to 88: 4, -4, 4/m
    4, 1, 2, 1, 4, 2, 4, 4, 8, 4, 2, 2, 8, 2,
    // 89 to 110: 422, 4mm
    8, 4, 2, 2, 4, 4, 2, 2, 8, 4, 8, 4, 4, 4, 4, 4, 4, 2, 8, 4, 4, 2,
    // 111 to 142: -42m, 4/mmm
    8, 4, 4, 4, 8, 4, 4, 4, 8, 4, 8, 4, 16, 8, 4, 2, 8, 8, 4, 2, 8, 8, 2, 4, 4, 8, 2, 4, 16, 8, 4, 2,
    // 143 to 167: trigonal
    3, 1, 1, 3, 6, 6, 6, 6, 2, 2, 2, 2, 6, 6, 6, 3, 3, 6, 3, 12, 6, 12, 6, 12, 6,
    // 168 to 194: hexagonal
    6, 1, 1, 2, 2, 3, 6, 12, 6, 12, 2, 2, 4, 4, 6, 12, 6, 6, 6, 12, 6, 12, 6, 24, 12, 12, 12,
    // 195 to 230: cubic
    12, 12, 12, 3, 3, 24, 6, 24, 6, 24, 6, 6, 24, 12, 24, 12, 24, 3, 3, 3, 24, 24, 24, 12, 12, 3, 48, 6, 24, 12, 48, 24,
    12, 6, 48, 6};

TEST_F(SpaceGroupFiles, HaveTheSiteSymmetryOfTheTablesAtTheOrigin) {
  for (int number = 1; number <= standard_groups; ++number) {
    const auto& operators = files_[static_cast<std::size_t>(number - 1)].operators;
    const auto fixes_origin = [](const Operator& op) { return op.translation == Vector{0, 0, 0}; };
    const auto order = std::count_if(operators.begin(), operators.end(), fixes_origin);
    EXPECT_EQ(order, origin_site_orders[static_cast<std::size_t>(number - 1)]) << "number " << number;
    // A centre of inversion lies at the origin wherever the group has one.
    const bool centred = std::any_of(operators.begin(), operators.end(), [&](const Operator& op) {
      return fixes_origin(op) && determinant(op.rotation) < 0 && axis_order(op) == 1;
    });
    EXPECT_EQ(centred, point_group(number).kinds[5] > 0) << "number " << number;
  }
}

}  // namespace
}  // namespace zol
