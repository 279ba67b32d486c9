// Reasons that guards of several windows have in common, and how a guard asks a calculation.
#pragma once

#include <string>

#include "core/crystal_state.h"
#include "core/run_failure.h"
#include "shell/services/controls.h"

namespace zol::guard {

/// A reason if it holds.
[[nodiscard]] inline std::string when(bool holds, const char* reason) { return holds ? reason : ""; }

/// What a calculation that is cheap and changes nothing fails with; empty where it does not.
template <class Calculation>
[[nodiscard]] std::string failure_of(const Calculation& calculation) {
  try {
    (void)calculation();
  } catch (const RunFailure& failure) {
    return failure.message();
  }
  return "";
}

/// The first one that is not empty.
[[nodiscard]] std::string first_of(std::initializer_list<std::string> reasons);

[[nodiscard]] std::string no_cell(const CrystalState& state);
[[nodiscard]] std::string no_reflections(const CrystalState& state, int least = 1);
[[nodiscard]] std::string no_zone_axis(const CrystalState& state);
/// Boxes that hold no number but 0.
[[nodiscard]] bool all_zero(std::initializer_list<const TextBox*> boxes);

/// Guards the text of a box that is read as a whole number of 16 bits.
void whole_number(TextBox& box);

}  // namespace zol::guard
