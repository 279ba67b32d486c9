// The reflection list of a crystal: which reflections exist, in ascending order of sin(theta)/lambda, with angle,
// structure factor, intensity and a line of text each.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "core/crystal_state.h"
#include "reflections/scattering.h"

namespace zol {

/// What the boxes of the main window say about the list. Axis 0 is h, 1 is k, 2 is l.
struct EnumerationSettings {
  std::array<bool, 3> negative{};               ///< include negative indices
  std::array<std::optional<Integer>, 3> fixed;  ///< the one value of an index, when given
  bool k_mod_3_zero = false;                    ///< keep only k mod 3 = 0, and so on; all that are set apply together
  bool h_minus_k_mod_3_zero = false;
  bool k_mod_3_not_zero = false;
  bool h_minus_k_mod_3_not_zero = false;
  bool h_mod_3_zero = false;
  bool h_mod_3_not_zero = false;
};

/// True when a lattice of that letter (A, B, C, I, F, R in obverse setting; any other is primitive) has the reflection.
/// @throws RunFailure  a sum of indices in the rule of the letter leaves 16 bits
[[nodiscard]] bool centring_allows(char lattice_letter, Integer h, Integer k, Integer l);

/// Creates the Ref arrays and fills RefCount, RefH, RefK, RefL and RefS with the reflections of d >= Dmin that the
/// lattice letter and the settings allow; h outermost, l innermost, all rising. No further absences are applied. Then
/// limits KikuchiRefLimit to the count.
/// @throws RunFailure  no cell (division by zero), a negative one, indices or their sums beyond 16 bits, not enough
/// memory
void enumerate_reflections(CrystalState& state, const EnumerationSettings& settings);

/// Sorts the list by RefS, ascending, by exchanges: among equal values the order is that of a selection sort.
void sort_by_s(CrystalState& state);

/// Computes the sorted list: angle, structure factor and intensity of each reflection.
/// @returns the lines to show. With atoms that is every reflection, else those of positive intensity
/// @throws RunFailure  the cell volume is 0
[[nodiscard]] std::vector<std::string> compute_list(CrystalState& state, const Radiation& radiation);

}  // namespace zol
