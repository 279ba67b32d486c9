// Space groups by name: Hall symbols, Hermann-Mauguin symbols in the spellings that structure files have, numbers.
#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "structures/symmetry_group.h"

namespace zol {

/// A setting of the International Tables.
struct TabulatedSetting {
  int number = 0;
  std::string_view symbol;     ///< full Hermann-Mauguin symbol, elements set apart
  std::string_view qualifier;  ///< "1" or "2" the origin choice, "H" or "R" the axes of a rhombohedral lattice
  std::string_view hall;
};

/// All of them; of each number the standard setting first.
[[nodiscard]] std::span<const TabulatedSetting> tabulated_settings();

/// The setting with these operators, sorted; a null pointer where no tabulated one has them.
[[nodiscard]] const TabulatedSetting* setting_of(const Operators& operators);

/// The group of a Hall symbol, sorted.
/// Source: Hall, Acta Cryst. A37 (1981) 517; the origin shift in brackets as in the International Tables B A1.4.2.3.
/// @throws RunFailure  it is not a Hall symbol
[[nodiscard]] Operators hall_group(std::string_view symbol);

/// A setting that a name may mean.
struct NamedGroup {
  int number = 0;
  std::string symbol;     ///< as the table has it, without the qualifier
  std::string qualifier;  ///< as in TabulatedSetting
  Operators operators;
};

/// Settings that a Hermann-Mauguin symbol may mean, the likeliest first: with or without blanks, underscores and
/// brackets, full or short, with an origin or axes after a colon or as the tails S, Z, H, R, with the letter e of new
/// symbols, cubic ones without the bar of -3, orthorhombic ones in any order of the axes. The cell gives the unique
/// axis of a short monoclinic symbol, and the axes of a rhombohedral one. More than one only where the symbol leaves
/// open which of two origins is meant.
/// @returns none where it is not a symbol
[[nodiscard]] std::vector<NamedGroup> groups_of_symbol(std::string_view symbol, const CellConstants& cell);

/// The same by number, 1 to 230: the standard setting, and the other origin where there are two.
[[nodiscard]] std::vector<NamedGroup> groups_of_number(int number, const CellConstants& cell);

}  // namespace zol
