#include "reflections/structure_factor.h"

#include <algorithm>
#include <cmath>

#include "core/number_text.h"
#include "core/sines.h"

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

/// Place of the first entry that is the same, put at the end when there is none.
template <class Entry, class Same>
std::size_t place_of(std::vector<Entry>& entries, const Entry& entry, Same same) {
  const auto found = std::find_if(entries.begin(), entries.end(), same);
  const auto place = static_cast<std::size_t>(found - entries.begin());
  if (found == entries.end()) entries.push_back(entry);
  return place;
}

/// The sum with the term of one more atom. Rounding keeps order: where both ends of the range that holds the sine or
/// cosine give the same Single, the true value gives it too. Where they do not, the true value is computed, and so it
/// is for a sum of 0, whose sign they may not share.
template <class Kind, class Wave>
Single with_atom(Single sum, const Kind& kind, double phase, double approximate, Wave wave) {
  const auto with_term = [sum, &kind](double value) {
    return static_cast<Single>(sum + kind.weight * value * kind.damping);
  };
  const Single low = with_term(approximate - sine_error);
  const Single high = with_term(approximate + sine_error);
  return low == high && low != 0 ? low : with_term(wave(phase));
}

}  // namespace

ScatteringCell::ScatteringCell(const CrystalState& state, const Radiation& radiation) : radiation_(radiation) {
  const int atoms = state.NCell.value();
  for (int m = 1; m <= atoms; ++m) {
    kind_.push_back(kind_of(find_scatter_row(state, state.UCElement(m)), state.UCOcc(m), state.UCB(m)));
    x_.push_back(state.UCPos(m, 1));
    y_.push_back(state.UCPos(m, 2));
    z_.push_back(state.UCPos(m, 3));
  }
  for (auto* values : {&phases_, &sines_, &cosines_}) values->resize(kind_.size());
}

std::size_t ScatteringCell::kind_of(const AsfRow* row, double occupancy, double b) {
  const auto element = place_of(elements_, {row}, [row](const Element& other) { return other.row == row; });
  return place_of(kinds_, {element, occupancy, b}, [&](const Kind& other) {
    return other.element == element && other.occupancy == occupancy && other.b == b;
  });
}

void ScatteringCell::set_kinds(const CrystalState& state, Single s) {
  for (Element& element : elements_) element.factor = scattering_factor(state, element.row, s, radiation_);
  for (Kind& kind : kinds_) {
    kind.weight = to_single(elements_[kind.element].factor * kind.occupancy);
    kind.damping = to_single(std::exp(-kind.b * double{s} * double{s}));
  }
}

void ScatteringCell::set_waves(double h, double k, double l) {
  for (std::size_t m = 0; m < phases_.size(); ++m) {
    phases_[m] = static_cast<Single>((h * x_[m] + k * y_[m] + l * z_[m]) * program_two_pi);
  }
  approximate_sines(phases_, sines_, cosines_);
}

void ScatteringCell::StructureFactor(CrystalState& state, int i) {
  for (const Element& element : elements_) {
    if (element.row == nullptr) state.ScatterMissing = 1;
  }
  set_kinds(state, state.RefS(i));
  set_waves(state.RefH(i).value(), state.RefK(i).value(), state.RefL(i).value());
  Single a = 0;
  Single b = 0;
  for (std::size_t m = 0; m < kind_.size(); ++m) {
    const Kind& kind = kinds_[kind_[m]];
    a = with_atom(a, kind, phases_[m], cosines_[m], [](double phase) { return std::cos(phase); });
    b = with_atom(b, kind, phases_[m], sines_[m], [](double phase) { return std::sin(phase); });
  }
  // A sum that leaves the range never comes back into it.
  state.RefA(i) = to_single(a);
  state.RefB(i) = to_single(b);
}

void ReflectionIntensity(CrystalState& state, int i, Single theta, const Radiation& radiation,
                         const ObservedReflections& observed, ScatteringCell& atoms, std::string& line) {
  if (state.NAtom > 0) {
    atoms.StructureFactor(state, i);
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
