#include "reflections/structure_factor.h"

#include <cmath>

#include "core/number_text.h"

namespace zol {
namespace {

constexpr std::string_view amplitude_pattern = " ###0.00";
constexpr std::string_view intensity_pattern = "###0.000";
constexpr std::size_t amplitude_width = 8;
constexpr std::size_t intensity_width = 11;

void append_amplitude(std::string& line, double value) {
  line += right_field(Format(value, amplitude_pattern), amplitude_width);
}

void append_intensity(std::string& line, double value) {
  line += right_field(Format(value, intensity_pattern), intensity_width);
}

/// Appends A, B and F. @returns F, the modulus
Single append_structure_factor(const CrystalState& state, int i, std::string& line) {
  const double a = state.RefA(i);
  const double b = state.RefB(i);
  append_amplitude(line, a);
  append_amplitude(line, b);
  const Single modulus = to_single(std::sqrt(a * a + b * b));
  append_amplitude(line, modulus);
  return modulus;
}

void xray_intensity(CrystalState& state, int i, double theta, double f, std::string& line) {
  const double sine = std::sin(theta);
  const double cosine = std::cos(theta);
  if (state.WaveLength == 0 || sine == 0.0 || cosine == 0.0) return;
  const double cos_two_theta = std::cos(2.0 * theta);
  const double lorentz_polarisation = to_single((1.0 + cos_two_theta * cos_two_theta) / sine / sine / cosine);
  const double volume = state.CellVolume;
  state.RefI(i) = to_single(
      divide(divide(f * lorentz_polarisation * f, volume, "the cell volume"), volume, "the cell volume") * 100.0);
  append_intensity(line, state.RefI(i));
}

void electron_intensity(CrystalState& state, int i, double f, std::string& line) {
  const double s = state.RefS(i);
  if (!(s > 0.0)) return;
  const double volume = state.CellVolume;
  state.RefI(i) =
      to_single(divide(divide(f * f / s, volume, "the cell volume"), volume, "the cell volume") / 2.0 * 100000.0);
  append_intensity(line, 2.0 * s * double{state.RefI(i)});
}

}  // namespace

void StructureFactor(CrystalState& state, int i, const Radiation& radiation) {
  const double h = state.RefH(i).value();
  const double k = state.RefK(i).value();
  const double l = state.RefL(i).value();
  const Single s = state.RefS(i);
  Single a = 0;
  Single b = 0;
  for (int m = 1; m <= state.NCell.value(); ++m) {
    const Single f = AtomicScatter(state, state.UCElement(m), s, radiation);
    const double weight = to_single(double{f} * double{state.UCOcc(m)});
    const double phase =
        to_single((h * double{state.UCPos(m, 1)} + k * double{state.UCPos(m, 2)} + l * double{state.UCPos(m, 3)}) *
                  program_two_pi);
    const double damping = to_single(std::exp(-double{state.UCB(m)} * double{s} * double{s}));
    a = to_single(double{a} + weight * std::cos(phase) * damping);
    b = to_single(double{b} + weight * std::sin(phase) * damping);
  }
  state.RefA(i) = a;
  state.RefB(i) = b;
}

void ReflectionIntensity(CrystalState& state, int i, Single theta, const Radiation& radiation,
                         const ObservedReflections& observed, std::string& line) {
  if (state.NAtom > 0) {
    StructureFactor(state, i, radiation);
    const Single f = append_structure_factor(state, i, line);
    if (radiation.xray) xray_intensity(state, i, theta, f, line);
    if (radiation.electron) electron_intensity(state, i, f, line);
  } else if (state.JcpdsCount > 0) {
    if (const auto value = observed.value(state.RefH(i), state.RefK(i), state.RefL(i))) state.RefA(i) = *value;
    state.RefB(i) = 0;
    state.RefI(i) = append_structure_factor(state, i, line);
    append_intensity(line, state.RefI(i));
  }
}

}  // namespace zol
