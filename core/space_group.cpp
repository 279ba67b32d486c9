#include "core/space_group.h"

#include "core/record_reader.h"

namespace zol {
namespace {

constexpr int max_operators = 1000;

SpaceGroupName read_name(RecordReader& file) {
  SpaceGroupName name;
  name.system = file.next_string("the crystal system");
  name.symbol = file.next_string("the space group symbol");
  return name;
}

struct NamedConstraint {
  std::string_view system;
  CellConstraint constraint;
};

// Hexagonal axes for both "HEXA" and "TRIGO"; unique axis b for "MONO".
constexpr std::array constraints{
    NamedConstraint{"CUBIC", {true, true, "90", "90", "90"}},  //
    NamedConstraint{"HEXA", {true, false, "90", "90", "120"}},
    NamedConstraint{"TRIGO", {true, false, "90", "90", "120"}},
    NamedConstraint{"TETRA", {true, false, "90", "90", "90"}},
    NamedConstraint{"ORTHO", {false, false, "90", "90", "90"}},
    NamedConstraint{"MONO", {false, false, "90", "", "90"}},
};

struct AxisPermutation {
  std::string_view setting;
  std::array<std::size_t, 3> source;  ///< 0 for a, 1 for b, 2 for c
};

constexpr std::array permutations{
    AxisPermutation{"abc", {0, 1, 2}},  AxisPermutation{"cab", {2, 0, 1}},  AxisPermutation{"bca", {1, 2, 0}},
    AxisPermutation{"a-cb", {0, 2, 1}}, AxisPermutation{"ba-c", {1, 0, 2}}, AxisPermutation{"c-ba", {2, 1, 0}},
};

}  // namespace

SpaceGroupName read_space_group_name(const std::string& path) {
  RecordReader file(path);
  return read_name(file);
}

SpaceGroup read_space_group(const std::string& path) {
  RecordReader file(path);
  SpaceGroup group;
  auto name = read_name(file);
  group.system = std::move(name.system);
  group.symbol = std::move(name.symbol);
  const int count = file.next_integer("the number of operators").value();
  if (count > max_operators) {
    file.fail("the number of operators is " + std::to_string(count) + ", at most 1000 are allowed");
  }
  for (int op = 1; op <= count; ++op) {
    SymmetryOperator entry;
    for (std::size_t i = 0; i < 3; ++i) {
      for (std::size_t j = 0; j < 3; ++j) {
        entry.rotation[i][j] = file.next_single("r" + std::to_string(i + 1) + std::to_string(j + 1) + " of operator " +
                                                std::to_string(op));
      }
    }
    for (std::size_t i = 0; i < 3; ++i) {
      entry.translation[i] = file.next_single("t" + std::to_string(i + 1) + " of operator " + std::to_string(op));
    }
    group.operators.push_back(entry);
  }
  return group;
}

CellConstraint cell_constraint(std::string_view system) {
  for (const auto& entry : constraints) {
    if (entry.system == system) return entry.constraint;
  }
  return {};
}

SymmetryOperator permute_axes(const SymmetryOperator& op, std::string_view axis_setting) {
  SymmetryOperator turned;
  for (const auto& [setting, p] : permutations) {
    if (setting != axis_setting) continue;
    for (std::size_t i = 0; i < 3; ++i) {
      for (std::size_t j = 0; j < 3; ++j) turned.rotation[i][j] = op.rotation[p[i]][p[j]];
      turned.translation[i] = op.translation[p[i]];
    }
  }
  return turned;
}

}  // namespace zol
