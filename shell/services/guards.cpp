#include "shell/services/guards.h"

#include <algorithm>

#include "core/number_text.h"

namespace zol::guard {

std::string first_of(std::initializer_list<std::string> reasons) {
  const auto* found =
      std::find_if(reasons.begin(), reasons.end(), [](const std::string& reason) { return !reason.empty(); });
  return found == reasons.end() ? "" : *found;
}

std::string no_cell(const CrystalState& state) {
  return when(state.CellVolume == 0, "there is no cell: type one in the main window");
}

std::string no_reflections(const CrystalState& state, int least) {
  if (state.RefCount >= least) return "";
  if (state.RefCount == 0) return "the list of reflections is empty: \"Calc\" of the main window makes it";
  return "the list holds fewer than " + plain_text(least) + " reflections";
}

std::string no_zone_axis(const CrystalState& state) {
  return when(state.ZoneU == 0 && state.ZoneV == 0 && state.ZoneW == 0, "the zone axis u, v, w is 0 0 0");
}

bool all_zero(std::initializer_list<const TextBox*> boxes) {
  return std::all_of(boxes.begin(), boxes.end(), [](const TextBox* box) { return Val(box->text()) == 0; });
}

void whole_number(TextBox& box) {
  box.warn_text = [](const std::string& text) {
    constexpr double largest = 32767;
    return when(!(Val(text) >= -largest - 1 && Val(text) <= largest), "the box takes whole numbers up to 32767");
  };
}

}  // namespace zol::guard
