#include "shell/services/shared_state.h"

#include "core/number_text.h"
#include "core/numbers.h"

namespace zol::shared {
namespace {

template <class Number>
std::string three(Number a, Number b, Number c) {
  return plain_text(a) + " " + plain_text(b) + " " + plain_text(c);
}

/// Whether each key is at least the one before, or at most. Most lists are told after a few rows.
template <class Key>
bool in_order(const CrystalState& state, bool rising, const Key& key) {
  for (int i = 2; i <= state.RefCount.value(); ++i) {
    if (rising ? key(i) < key(i - 1) : key(i) > key(i - 1)) return false;
  }
  return true;
}

}  // namespace

std::string radiation(const CrystalState& state) {
  if (state.WaveLength == 0) return "";
  const std::string length = "λ " + plain_text(state.WaveLength) + " Å";
  return state.AccVoltage > 0 ? plain_text(state.AccVoltage) + " kV, " + length : length;
}

std::string half_angle(const CrystalState& state) { return "area " + plain_text(state.CamAcquisition) + "°"; }

std::string half_width(const CrystalState& state) {
  return "half width " + plain_text(state.CamAcquisition) + " Å⁻¹";
}

std::string shifts(const CrystalState& state) {
  return "shifts " + plain_text(state.CamXShift) + "°, " + plain_text(state.CamYShift) + "°";
}

std::string zone_axis(const CrystalState& state) {
  return "axis [" + three(state.ZoneU, state.ZoneV, state.ZoneW) + "]";
}

std::string fiber_axis(const CrystalState& state) {
  return "HKL " + three(state.OriginH, state.OriginK, state.OriginL);
}

std::string turn(const CrystalState& state) {
  return "turn " + Format(state.PatternAngle / degree, "0.##") + "°";
}

std::string order(const CrystalState& state) {
  if (state.RefCount < 2) return "";
  const auto s = [&state](int i) { return state.RefS(i); };
  const auto intensity = [&state](int i) { return state.RefI(i); };
  // Products as the sorts have them: rounded for the triple table, exact for a drawing.
  const auto product = [&state](int i) { return to_single(double{state.RefS(i)} * double{state.RefI(i)}); };
  if (in_order(state, true, s)) return "list by 1/d";
  if (in_order(state, false, product)) return "list by I/d";
  if (in_order(state, false, intensity)) return "list by I";
  return "list in no order";
}

std::string smallest_d(const CrystalState& state) { return "d from " + plain_text(state.Dmin) + " Å"; }

}  // namespace zol::shared
