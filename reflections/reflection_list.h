// The reflection list of a crystal: which reflections exist, in ascending order of sin(theta)/lambda, with angle,
// structure factor, intensity and a line of text each.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "core/crystal_state.h"
#include "core/task.h"
#include "reflections/scattering.h"

namespace zol {

/// Which reflections the list takes, as chosen in the main window. Axis 0 is h, 1 is k, 2 is l.
struct EnumerationSettings {
  std::array<bool, 3> negative{};               ///< include negative indices
  std::array<std::optional<Integer>, 3> fixed;  ///< the one value of an index, when given
  bool k_mod_3_zero = false;                    ///< keep only k mod 3 = 0, and so on; all those set apply together
  bool h_minus_k_mod_3_zero = false;
  bool k_mod_3_not_zero = false;
  bool h_minus_k_mod_3_not_zero = false;
  bool h_mod_3_zero = false;
  bool h_mod_3_not_zero = false;
};

/// True when a lattice of that letter (A, B, C, I, F, R in obverse setting; any other is primitive) has the reflection.
/// @throws RunFailure  a sum of indices in the rule of the letter leaves 16 bits
[[nodiscard]] bool centring_allows(char lattice_letter, Integer h, Integer k, Integer l);

/// The list of a crystal, entries from 1. The arrays have the bounds and names of those in the state.
struct ReflectionList {
  Long count;
  BoundedArray<Integer> h{"RefH"}, k{"RefK"}, l{"RefL"};
  BoundedArray<Single> s{"RefS"};                 ///< sin(theta)/lambda, inverse angstroms
  BoundedArray<Single> a{"RefA"}, b{"RefB"};      ///< structure factor
  BoundedArray<Single> i{"RefI"};                 ///< intensity
  BoundedArray<Single> two_theta{"RefTwoTheta"};  ///< degrees, 0 when there is no angle
  BoundedTable<Integer> bands{"BandHKL"};         ///< empty, for the Kikuchi band list
  bool scatter_missing = false;                   ///< an element had no scattering factor
  std::vector<std::string> lines;  ///< with atoms every reflection, otherwise those of positive intensity
};

/// The reflections of d >= Dmin that the lattice letter and the settings allow, with their indices and s; h outermost,
/// l innermost, all rising. No further absences are applied.
/// @throws RunFailure  a reciprocal edge or Dmin is 0, the cell has no metric, indices or their sums pass 16 bits, or
///                     there is not enough memory
[[nodiscard]] ReflectionList enumerate_reflections(const CrystalState& state, const EnumerationSettings& settings,
                                                   Task& task);

/// Sorts indices and s by s, ascending, by exchanges: among equal values the order is that of a selection sort.
void sort_list(ReflectionList& list, Task& task);

/// Adds angle, structure factor, intensity and line of each reflection, in the order of the list.
/// @throws RunFailure  the cell volume is 0
void compute_list(const CrystalState& state, const Radiation& radiation, ReflectionList& list, Task& task);

/// All three: the list as the main window shows it. They check the task and report nothing.
[[nodiscard]] ReflectionList reflection_list(const CrystalState& state, const EnumerationSettings& settings,
                                             const Radiation& radiation, Task& task);

/// Replaces the list of the state, all but its lines: RefCount, the Ref arrays, BandHKL and, where an element
/// had no scattering factor, ScatterMissing. Limits KikuchiRefLimit to the count.
void commit(CrystalState& state, ReflectionList list);

}  // namespace zol
