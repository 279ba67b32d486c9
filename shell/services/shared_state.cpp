#include "shell/services/shared_state.h"

#include <algorithm>
#include <cmath>

#include "core/number_text.h"
#include "core/numbers.h"

namespace zol::shared {
namespace {

std::string number(double value) { return short_text(value, 5); }

std::string three(double a, double b, double c) { return number(a) + " " + number(b) + " " + number(c); }

/// Whether the keys from a row on rise or fall throughout, but for what a sort by rounded keys leaves. Most lists are
/// told after a few rows.
template <class Key>
bool in_order(const CrystalState& state, int first, double direction, const Key& key) {
  constexpr double rounding = 1e-4;
  constexpr double of_nothing = 1e-6;  // forbidden reflections have intensities of rounding alone
  const int last = state.RefCount.value();
  const double least = of_nothing * std::max(std::abs(key(first)), std::abs(key(last)));
  double before = key(first);
  for (int i = first + 1; i <= last; ++i) {
    const double present = key(i);
    if ((present - before) * direction < -rounding * std::abs(before) - least) return false;
    before = present;
  }
  return true;
}

}  // namespace

std::string radiation(const CrystalState& state) {
  if (state.WaveLength == 0) return "";
  const std::string length = "λ " + number(state.WaveLength) + " Å";
  return state.AccVoltage > 0 ? number(state.AccVoltage) + " kV, " + length : length;
}

std::string half_angle(const CrystalState& state) {
  constexpr double least = 3;  // what is less is a width of spots, instead of which the window takes its own angle
  return state.CamAcquisition < least ? "" : "area " + number(state.CamAcquisition) + "°";
}

std::string half_width(const CrystalState& state) { return "half width " + number(state.CamAcquisition) + " Å⁻¹"; }

std::string shifts(const CrystalState& state) {
  return "shifts " + number(state.CamXShift) + "°, " + number(state.CamYShift) + "°";
}

std::string zone_axis(const CrystalState& state) {
  if (state.ZoneU == 0 && state.ZoneV == 0 && state.ZoneW == 0) return "";  // none has been set
  return "axis [" + three(state.ZoneU, state.ZoneV, state.ZoneW) + "]";
}

std::string fiber_axis(const CrystalState& state) {
  return "HKL " + three(state.OriginH.value(), state.OriginK.value(), state.OriginL.value());
}

std::string turn(const CrystalState& state) {
  return "turn " + number(std::round(state.PatternAngle / degree * 100) / 100) + "°";
}

std::string order(const CrystalState& state) {
  if (state.RefCount < 2) return "";
  constexpr double rising = 1;
  constexpr double falling = -1;
  const auto intensity = [&state](int i) { return double{state.RefI(i)}; };
  const auto product = [&state](int i) { return double{state.RefS(i)} * double{state.RefI(i)}; };
  if (in_order(state, 1, rising, [&state](int i) { return double{state.RefS(i)}; })) return "list by 1/d";
  if (in_order(state, 1, falling, product)) return "list by I/d";
  if (in_order(state, 1, rising, product)) return "list by I/d, weakest first";
  if (in_order(state, 2, rising, intensity)) return "list by I, weakest first";  // but for the first row
  return "list in no order";
}

std::string smallest_d(const CrystalState& state) { return "d from " + number(state.Dmin) + " Å"; }

}  // namespace zol::shared
