// A crystal structure as a plain value in double precision: what readers of structure files make, and what any
// calculation beside the program's one crystal works on.
//
// Positions are fractional. Operators are exact: their elements are whole numbers of 24ths, enough for every rotation
// and translation of the 230 groups in every setting of their axes.
#pragma once

#include <array>
#include <string>
#include <tuple>
#include <vector>

#include "core/lattice.h"
#include "core/task.h"

namespace zol {

inline constexpr int operator_unit = 24;  ///< 1 in the elements of an operator

/// Maps a position x to R x + t.
struct ExactOperator {
  std::array<std::array<int, 3>, 3> rotation{{{operator_unit, 0, 0}, {0, operator_unit, 0}, {0, 0, operator_unit}}};
  std::array<int, 3> translation{};  ///< 0 to 23 where folded
  bool operator==(const ExactOperator&) const = default;
  bool operator<(const ExactOperator& other) const {
    return std::tie(rotation, translation) < std::tie(other.rotation, other.translation);
  }

  [[nodiscard]] DirectVector apply(const DirectVector& position) const;
};

/// First the right operator, then the left one, with the translation folded into the cell.
/// @throws RunFailure  a product that is not a whole number of 24ths
[[nodiscard]] ExactOperator operator*(const ExactOperator& left, const ExactOperator& right);

/// One site of the asymmetric unit.
struct Site {
  std::string label;
  std::string element;    ///< symbol without charge, as "Fe"
  int charge = 0;         ///< in elementary charges, 3 for Fe3+
  double occupancy = 1;   ///< 0 to 1
  DirectVector position;  ///< fractional
  double b_iso = 0;       ///< square angstroms, B = 8 pi^2 U
  bool operator==(const Site&) const = default;
};

struct Structure {
  std::string title;
  CellConstants cell;
  int space_group_number = 1;            ///< 1 to 230
  std::string space_group_symbol;        ///< Hermann-Mauguin, as "F m -3 m"
  std::string axis_setting = "abc";      ///< how its axes are related to those of the standard setting
  std::vector<ExactOperator> operators;  ///< all general positions, centring included; empty: not known
  std::vector<Site> sites;
  bool operator==(const Structure&) const = default;
};

/// An atom of the unit cell: which site it comes from, and where it is, 0 <= x < 1.
struct CellAtom {
  int site = 0;  ///< from 0
  DirectVector position;
};

/// All atoms of the unit cell, by site, then by operator; without operators the sites as given. Images of one site
/// that lie close together are one atom, at the place of the first: the site lies on a symmetry element.
/// @param merge_angstrom  largest distance between images that are one, also across the faces of the cell
/// Checks the task at each operator, reports nothing.
/// @throws RunFailure     the cell constants make no cell, or a position is not a finite number
[[nodiscard]] std::vector<CellAtom> cell_atoms(const Structure& structure, double merge_angstrom, Task& task);

}  // namespace zol
