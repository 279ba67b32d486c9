#include "reflections/structure_factor.h"

#include <algorithm>
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

ScatteringCell::ScatteringCell(const CrystalState& state, const Radiation& radiation) : radiation_(radiation) {
  for (int m = 1; m <= state.NCell.value(); ++m) {
    Kind kind;
    kind.row = find_scatter_row(state, state.UCElement(m));
    kind.occupancy = state.UCOcc(m);
    kind.b = state.UCB(m);
    element_missing_ = element_missing_ || kind.row == nullptr;
    const auto same = std::find_if(kinds_.begin(), kinds_.end(), [&kind](const Kind& other) {
      return other.row == kind.row && other.occupancy == kind.occupancy && other.b == kind.b;
    });
    const auto place = static_cast<std::size_t>(same - kinds_.begin());
    if (same == kinds_.end()) kinds_.push_back(kind);
    atoms_.push_back({state.UCPos(m, 1), state.UCPos(m, 2), state.UCPos(m, 3), place});
  }
}

void ScatteringCell::structure_factor(CrystalState& state, int i) {
  const double h = state.RefH(i).value();
  const double k = state.RefK(i).value();
  const double l = state.RefL(i).value();
  const Single s = state.RefS(i);
  if (element_missing_) state.ScatterMissing = 1;
  for (Kind& kind : kinds_) {
    kind.weight = to_single(double{scattering_factor(state, kind.row, s, radiation_)} * double{kind.occupancy});
    kind.damping = to_single(std::exp(-double{kind.b} * double{s} * double{s}));
  }
  Single a = 0;
  Single b = 0;
  for (const Atom& atom : atoms_) {
    const double phase = static_cast<Single>((h * atom.x + k * atom.y + l * atom.z) * program_two_pi);
    const Kind& kind = kinds_[atom.kind];
    a = static_cast<Single>(a + kind.weight * std::cos(phase) * kind.damping);
    b = static_cast<Single>(b + kind.weight * std::sin(phase) * kind.damping);
  }
  // A sum that leaves the range never comes back into it.
  state.RefA(i) = to_single(a);
  state.RefB(i) = to_single(b);
}

void ReflectionIntensity(CrystalState& state, int i, Single theta, const Radiation& radiation,
                         const ObservedReflections& observed, ScatteringCell& atoms, std::string& line) {
  if (state.NAtom > 0) {
    atoms.structure_factor(state, i);
    const Single f = append_structure_factor(state, i, line);
    if (radiation.xray) xray_intensity(state, i, theta, f, line);
    if (radiation.electron) electron_intensity(state, i, f, line);
  } else if (state.JcpdsCount > 0) {
    JcpdsFactor(state, observed, i);
    state.RefB(i) = 0;
    state.RefI(i) = append_structure_factor(state, i, line);
    append_intensity(line, state.RefI(i));
  }
}

}  // namespace zol
