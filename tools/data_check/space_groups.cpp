// The space group files, held against group theory and the International Tables.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <cmath>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include "core/record_reader.h"
#include "core/space_group.h"
#include "tests/cell_metric.h"

namespace zol {
namespace {

constexpr int standard_groups = 230;
constexpr int lattice_vector = 24;  // all translations of the space groups are whole 24ths of a lattice vector

using Vector = std::array<int, 3>;
using Matrix = std::array<Vector, 3>;

/// An operator in whole numbers, the translation in 24ths.
struct Operator {
  Matrix rotation{};
  Vector translation{};
  bool operator==(const Operator&) const = default;
  bool operator<(const Operator& other) const {
    return std::tie(rotation, translation) < std::tie(other.rotation, other.translation);
  }
};

const Operator identity{{{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}}, {0, 0, 0}};

Vector plus(const Vector& a, const Vector& b) { return {a[0] + b[0], a[1] + b[1], a[2] + b[2]}; }
Vector scaled(int factor, const Vector& v) { return {factor * v[0], factor * v[1], factor * v[2]}; }
Vector times(const Matrix& matrix, const Vector& v) {
  Vector product{};
  for (std::size_t i = 0; i < 3; ++i) product[i] = matrix[i][0] * v[0] + matrix[i][1] * v[1] + matrix[i][2] * v[2];
  return product;
}

/// First b, then a; the translation is not folded.
Operator compose(const Operator& a, const Operator& b) {
  Operator product{{}, plus(times(a.rotation, b.translation), a.translation)};
  for (std::size_t j = 0; j < 3; ++j) {
    const Vector column = times(a.rotation, {b.rotation[0][j], b.rotation[1][j], b.rotation[2][j]});
    for (std::size_t i = 0; i < 3; ++i) product.rotation[i][j] = column[i];
  }
  return product;
}

Operator folded(Operator op) {
  for (int& t : op.translation) t = (t % lattice_vector + lattice_vector) % lattice_vector;
  return op;
}

int determinant(const Matrix& m) {
  return m[0][0] * (m[1][1] * m[2][2] - m[1][2] * m[2][1]) - m[0][1] * (m[1][0] * m[2][2] - m[1][2] * m[2][0]) +
         m[0][2] * (m[1][0] * m[2][1] - m[1][1] * m[2][0]);
}

/// Order of the rotation, from its trace; that of -n is told as n.
int axis_order(const Operator& op) {
  const int trace = op.rotation[0][0] + op.rotation[1][1] + op.rotation[2][2];
  const int place = determinant(op.rotation) * trace + 1;
  constexpr std::array orders{2, 3, 4, 6, 1};  // for traces -1 to 3
  return orders.at(static_cast<std::size_t>(place));
}

bool is_centre(const Operator& op) { return determinant(op.rotation) < 0 && axis_order(op) == 1; }

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
      op.translation[row] = sign * lattice_vector * (c - '0') / (triplet[i + 2] - '0');
      i += 2;
    } else if (c == ',') {
      ++row;
    }
    sign = c == '-' ? -1 : 1;
  }
  return op;
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
      EXPECT_TRUE(translation[i] >= 0.0F && translation[i] < 1.0F) << translation[i];
      op.translation[i] = whole(double{translation[i]}, lattice_vector);
    }
    operators.push_back(op);
  }
  return operators;
}

// What the files must hold stands in tests/reference/space_groups.csv, one line for each. Symbols are the short ones of
// the International Tables A (editions before 1992, without the letter e; no bar on the 3 of the cubic groups).
struct GroupFile {
  int number = 0;
  std::string system, symbol;
  std::string elements;          ///< lattice letter and symmetry elements set apart
  std::size_t multiplicity = 0;  ///< of the general position
  int origin = 0;                ///< order of the site symmetry at the origin, of 1 to 230; origin choice 2
  /// General positions as the International Tables A give them, for the groups that another origin would leave with the
  /// same site symmetry there; for 231 on as the settings are defined.
  std::vector<Operator> positions;
  SpaceGroup group;                 ///< the file
  std::vector<Operator> operators;  ///< of the file
};

class SpaceGroupFiles : public testing::Test {
 protected:
  void SetUp() override {
    RecordReader reference(ZOL_SOURCE_DIR "/tests/reference/space_groups.csv");
    for (int column = 0; column < 7; ++column) (void)reference.next_string("heading");
    while (!reference.at_end()) {
      GroupFile file;
      file.number = reference.next_integer("number").value();
      SCOPED_TRACE(file.number);
      file.system = reference.next_string("system");
      file.symbol = reference.next_string("symbol");
      file.elements = reference.next_string("elements");
      file.multiplicity = static_cast<std::size_t>(reference.next_integer("multiplicity").value());
      file.origin = reference.next_integer("origin").value();
      std::istringstream positions(reference.next_string("positions"));
      for (std::string triplet; positions >> triplet;) file.positions.push_back(parse_triplet(triplet));
      file.group = read_space_group(file_of(file.number));
      file.operators = operators_of(file.group);
      files_.push_back(file);
    }
    ASSERT_EQ(files_.size(), static_cast<std::size_t>(all_groups));
  }
  std::vector<GroupFile> files_;
};

// Each operator times all operators gives all of them once more, so that all products and inverses are there.
TEST_F(SpaceGroupFiles, AreGroupsWithTheCentringOfTheirLetter) {
  const std::map<char, std::set<Vector>> centrings{
      {'P', {{0, 0, 0}}},
      {'A', {{0, 0, 0}, {0, 12, 12}}},
      {'B', {{0, 0, 0}, {12, 0, 12}}},
      {'C', {{0, 0, 0}, {12, 12, 0}}},
      {'I', {{0, 0, 0}, {12, 12, 12}}},
      {'F', {{0, 0, 0}, {0, 12, 12}, {12, 0, 12}, {12, 12, 0}}},
      {'R', {{0, 0, 0}, {16, 8, 8}, {8, 16, 16}}}};  // obverse: reflections with -h + k + l = 3n
  for (const auto& file : files_) {
    SCOPED_TRACE(file.number);
    EXPECT_EQ(file.group.system, file.system);
    EXPECT_EQ(file.group.symbol, file.symbol);
    EXPECT_EQ(file.operators.size(), file.multiplicity);
    EXPECT_EQ(file.operators.front(), identity);
    const std::set<Operator> all(file.operators.begin(), file.operators.end());
    EXPECT_EQ(all.size(), file.multiplicity) << "operators stand twice";
    std::set<Vector> centring;
    for (const auto& a : all) {
      std::set<Operator> products;
      for (const auto& b : all) products.insert(folded(compose(a, b)));
      ASSERT_TRUE(products == all);
      if (a.rotation == identity.rotation) centring.insert(a.translation);
    }
    EXPECT_EQ(centring, centrings.at(file.symbol.front()));
  }
}

TEST_F(SpaceGroupFiles, KeepTheCellOfTheirSystem) {
  const std::map<std::string, CellNumbers> cells{
      {"TRICL", {5, 6, 7, 81, 95, 103}}, {"MONO", {5, 6, 7, 90, 95, 90}},  {"MONOC", {5, 6, 7, 90, 90, 103}},
      {"ORTHO", {5, 6, 7, 90, 90, 90}},  {"TETRA", {5, 5, 7, 90, 90, 90}}, {"TRIGO", {5, 5, 7, 90, 90, 120}},
      {"HEXA", {5, 5, 7, 90, 90, 120}},  {"RHOMB", {5, 5, 5, 57, 57, 57}}, {"CUBIC", cubic_cell(5)}};
  for (const auto& file : files_) {
    EXPECT_LT(metric_change(file.group, with_cell(cells.at(file.system))), 1e-9) << "number " << file.number;
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
  const std::map<char, std::vector<Vector>> vectors{
      {'m', {{0, 0, 0}}},
      {'a', {{12, 0, 0}}},
      {'b', {{0, 12, 0}}},
      {'c', {{0, 0, 12}}},
      {'n', {plus(scaled(12, u), scaled(12, v))}},
      {'d', {plus(scaled(6, u), scaled(6, v)), plus(scaled(6, u), scaled(-6, v))}}};
  return vectors.at(letter);
}

/// Whether the operator turns counterclockwise about the direction.
bool turns_forward(const Operator& op, const Vector& axis) {
  for (const Vector& v : identity.rotation) {
    const int volume = determinant({v, times(op.rotation, v), axis});
    if (volume != 0) return volume > 0;
  }
  return false;
}

/// Whether the operator, or one that differs by a lattice vector, glides or screws by the vector (24ths).
bool has_intrinsic_part(const Operator& op, const Vector& part) {
  const int n = determinant(op.rotation) < 0 ? 2 : axis_order(op);
  for (int shift = 0; shift < 27; ++shift) {
    const Vector cell{shift % 3 - 1, shift / 3 % 3 - 1, shift / 9 - 1};
    const Operator moved{op.rotation, plus(op.translation, scaled(lattice_vector, cell))};
    Operator power = moved;
    for (int i = 1; i < n; ++i) power = compose(moved, power);
    if (power.translation == scaled(n, part)) return true;
  }
  return false;
}

/// Whether the operator is the element along the direction: "21", "-4", "m" (its normal), "c", "1".
bool is_element(const Operator& op, const std::string& element, const Vector& axis) {
  if (element == "1") return true;
  if (element == "-1") return is_centre(op);
  const int sign = determinant(op.rotation);
  const int order = axis_order(op);
  if (times(op.rotation, axis) != scaled(sign, axis)) return false;
  if (std::isalpha(static_cast<unsigned char>(element[0])) != 0) {
    const auto vectors = glide_vectors(element[0], axis);
    return sign < 0 && order == 2 &&
           std::any_of(vectors.begin(), vectors.end(), [&](const auto& v) { return has_intrinsic_part(op, v); });
  }
  if (element[0] == '-') return sign < 0 && order == element[1] - '0';
  if (sign < 0 || order != element[0] - '0' || (order > 2 && !turns_forward(op, axis))) return false;
  const int screw = element.size() > 1 ? element[1] - '0' : 0;
  return has_intrinsic_part(op, scaled(lattice_vector * screw / order, axis));
}

bool has_elements_of(const std::vector<Operator>& operators, const GroupFile& other) {
  const auto directions = symbol_directions(other.system);
  std::istringstream symbol(other.elements.substr(1));  // behind the lattice letter
  std::string place;
  for (std::size_t i = 0; symbol >> place; ++i) {
    std::istringstream elements(place);
    for (std::string element; std::getline(elements, element, '/');) {
      const auto is_it = [&](const Operator& op) { return is_element(op, element, directions.at(i)); };
      if (std::none_of(operators.begin(), operators.end(), is_it)) return false;
    }
  }
  return true;
}

// No group has the elements that another one of its lattice and order is named after. With its own elements, which
// generate the point group, and the right order it has that point group. Only the pairs I222 and I212121, I23 and I213
// have the same elements; three twofold axes meet in the origin of the first, in no point of the second.
TEST_F(SpaceGroupFiles, HaveTheSymmetryElementsOfTheirSymbolAndOfNoOther) {
  const std::set<std::set<int>> alike{{23, 24}, {197, 199}};
  for (const auto& file : files_) {
    SCOPED_TRACE(file.number);
    EXPECT_TRUE(has_elements_of(file.operators, file));
    for (const auto& other : files_) {
      if (file.number > standard_groups || other.number > standard_groups || other.number == file.number ||
          other.multiplicity != file.multiplicity || other.symbol.front() != file.symbol.front() ||
          alike.contains({file.number, other.number})) {
        continue;
      }
      EXPECT_FALSE(has_elements_of(file.operators, other)) << "those of " << other.symbol;
    }
  }
}

TEST_F(SpaceGroupFiles, HaveThePositionsAndTheOriginOfTheTables) {
  for (const auto& file : files_) {
    SCOPED_TRACE(file.number);
    const std::set<Operator> all(file.operators.begin(), file.operators.end());
    for (const auto& position : file.positions) EXPECT_TRUE(all.contains(position));
    if (file.number > standard_groups) continue;
    const auto fixes_origin = [](const Operator& op) { return op.translation == Vector{0, 0, 0}; };
    EXPECT_EQ(std::count_if(all.begin(), all.end(), fixes_origin), file.origin);
    // A centre of inversion lies at the origin wherever the group has one.
    EXPECT_EQ(all.contains({{{{-1, 0, 0}, {0, -1, 0}, {0, 0, -1}}}, {0, 0, 0}}),
              std::any_of(all.begin(), all.end(), is_centre));
  }
}

}  // namespace
}  // namespace zol
