#include "reflections/window/shared_state.h"

#include <algorithm>
#include <numbers>

#include "core/number_text.h"
#include "reflections/window/main1_form.h"

namespace zol {
namespace {

std::string short_number(double value) { return short_text(value, 4); }

/// By its first lines: sorted lists are sorted from the start.
std::string order_of_list(const CrystalState& state) {
  constexpr int looked_at = 64;
  const int last = std::min(state.RefCount.value(), looked_at);
  if (last < 2) return "";
  for (int i = 2; i <= last; ++i) {
    if (state.RefS(i) < state.RefS(i - 1)) return "list by intensity";
  }
  return "list by d";
}

std::string part_text(const CrystalState& state, Shared part) {
  switch (part) {
    case Shared::Radiation:
      return (state.AccVoltage > 0 ? short_number(state.AccVoltage) + " kV, " : "") + short_number(state.WaveLength) +
             " Å";
    case Shared::HalfWidthDegrees:
      return "half width " + short_number(state.CamAcquisition) + "°";
    case Shared::HalfWidthInverse:
      return "half width " + short_number(state.CamAcquisition) + " 1/Å";
    case Shared::Shifts:
      return "shifts " + short_number(state.CamXShift) + "°, " + short_number(state.CamYShift) + "°";
    case Shared::Axis:
      return "axis [" + short_number(state.ZoneU) + " " + short_number(state.ZoneV) + " " + short_number(state.ZoneW) +
             "]";
    case Shared::Turn:
      return "turn " + short_number(state.PatternAngle * 180 / std::numbers::pi) + "°";
    case Shared::Order:
      return order_of_list(state);
  }
  return "";
}

}  // namespace

std::string shared_state_line(Workbench& bench, std::initializer_list<Shared> parts) {
  if (bench.windows.find(Main1Form::window_name) == nullptr) return "";  // to ask would make it
  std::string line;
  for (const Shared part : parts) {
    const std::string text = part_text(main1_state(bench), part);
    if (!text.empty()) line += (line.empty() ? "" : "; ") + text;
  }
  return line;
}

}  // namespace zol
