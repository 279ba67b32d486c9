// Space group files: the system word, the symbol and all general positions of one space group or setting.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "core/crystal_state.h"
#include "core/numbers.h"

namespace zol {

/// Maps a fractional position x to R x + t.
struct SymmetryOperator {
  std::array<std::array<Single, 3>, 3> rotation{};  ///< row by row
  std::array<Single, 3> translation{};
};

struct SpaceGroup {
  std::string system;                       ///< crystal system word, such as "CUBIC"
  std::string symbol;                       ///< its first character is the lattice letter
  std::vector<SymmetryOperator> operators;  ///< all of them, centring translations included
};

struct SpaceGroupName {
  std::string system;
  std::string symbol;
};

/// The first two fields of a file. @throws RunFailure  it is missing or has no such fields
[[nodiscard]] SpaceGroupName read_space_group_name(const std::string& path);

/// The whole file. @throws RunFailure  it is missing, broken, or has more than 1000 operators
[[nodiscard]] SpaceGroup read_space_group(const std::string& path);

/// Cell constraint of a crystal system: the values of the boxes b, c, alpha, beta, gamma; an empty text leaves a box as
/// it is.
struct CellConstraint {
  bool b_as_a = false;
  bool c_as_a = false;
  std::string_view alpha, beta, gamma;
};
/// The word is compared exactly; an unknown one constrains nothing.
[[nodiscard]] CellConstraint cell_constraint(std::string_view system);

/// The operator for another choice of axes: element (i, j) becomes (p(i), p(j)), with p from the name of the setting
/// ("abc", "cab", "bca", "a-cb", "ba-c", "c-ba"). Signs do not change. Any other name gives zeros.
[[nodiscard]] SymmetryOperator permute_axes(const SymmetryOperator& op, std::string_view axis_setting);

}  // namespace zol
