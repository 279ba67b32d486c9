#include "reflections/structure_factor.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>
#include <utility>

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
Single append_structure_factor(Intensity& intensity) {
  const double a = intensity.f.a;
  const double b = intensity.f.b;
  intensity.columns.reserve(48);  // those that follow included
  append_amplitude(intensity.columns, a);
  append_amplitude(intensity.columns, b);
  const Single modulus = to_single(std::sqrt(a * a + b * b));
  append_amplitude(intensity.columns, modulus);
  return modulus;
}

void xray_intensity(const Main1State& state, double theta, double f, Intensity& intensity) {
  const double sine = std::sin(theta);
  const double cosine = std::cos(theta);
  if (state.WaveLength == 0 || sine == 0.0 || cosine == 0.0) return;
  const double cos_two_theta = std::cos(2.0 * theta);
  const double lorentz_polarisation = to_single((1.0 + cos_two_theta * cos_two_theta) / sine / sine / cosine);
  const double volume = state.CellVolume;
  intensity.value = to_single(
      divide(divide(f * lorentz_polarisation * f, volume, "the cell volume"), volume, "the cell volume") * 100.0);
  append_intensity(intensity.columns, intensity.value);
}

void electron_intensity(const Main1State& state, double s, double f, Intensity& intensity) {
  if (!(s > 0.0)) return;
  const double volume = state.CellVolume;
  intensity.value =
      to_single(divide(divide(f * f / s, volume, "the cell volume"), volume, "the cell volume") / 2.0 * 100000.0);
  append_intensity(intensity.columns, 2.0 * s * double{intensity.value});
}

/// Place of the first entry that is the same, put at the end when there is none.
template <class Entry, class Same>
std::size_t place_of(std::vector<Entry>& entries, const Entry& entry, Same same) {
  const auto found = std::find_if(entries.begin(), entries.end(), same);
  const auto place = static_cast<std::size_t>(found - entries.begin());
  if (found == entries.end()) entries.push_back(entry);
  return place;
}

/// Numbers of one call, which nobody has to clear first; for small cells they need no memory of their own.
class Room {
 public:
  explicit Room(std::size_t numbers) {
    if (numbers <= own_.size()) return;
    memory_ = std::make_unique_for_overwrite<double[]>(numbers);
    next_ = memory_.get();
  }
  [[nodiscard]] std::span<double> take(std::size_t numbers) { return {std::exchange(next_, next_ + numbers), numbers}; }

 private:
  std::array<double, 1024> own_;
  std::unique_ptr<double[]> memory_;
  double* next_ = own_.data();
};

/// What an atom of a kind scatters at the s of the reflection.
struct Scatterer {
  double weight, damping;
};

/// The sum with the term of one more atom. Rounding keeps order: where both ends of the range that holds the sine or
/// cosine give the same Single, the true value gives it too. Where they do not, the true value is computed, and so it
/// is for a sum of 0, whose sign they may not share.
template <class Wave>
Single with_atom(Single sum, const Scatterer& kind, double phase, double approximate, Wave wave) {
  const auto with_term = [sum, &kind](double value) {
    return static_cast<Single>(sum + kind.weight * value * kind.damping);
  };
  const Single low = with_term(approximate - sine_error);
  const Single high = with_term(approximate + sine_error);
  return low == high && low != 0 ? low : with_term(wave(phase));
}

}  // namespace

ScatteringCell::ScatteringCell(const CrystalState& state, const Radiation& radiation)
    : state_(&state), radiation_(radiation) {
  for (int m = 1; m <= state.NCell.value(); ++m) {
    kind_.push_back(kind_of(find_scatter_row(state, state.UCElement(m)), state.UCOcc(m), state.UCB(m)));
    x_.push_back(state.UCPos(m, 1));
    y_.push_back(state.UCPos(m, 2));
    z_.push_back(state.UCPos(m, 3));
  }
}

std::size_t ScatteringCell::kind_of(const AsfRow* row, double occupancy, double b) {
  const auto element = place_of(elements_, row, [row](const AsfRow* other) { return other == row; });
  return place_of(kinds_, {element, occupancy, b}, [&](const Kind& other) {
    return other.element == element && other.occupancy == occupancy && other.b == b;
  });
}

void ScatteringCell::scatter_at(Single s, std::span<double> factors, std::span<double> weights,
                                std::span<double> dampings) const {
  for (std::size_t e = 0; e < elements_.size(); ++e) {
    factors[e] = AtomicScatter(*state_, elements_[e], s, radiation_);
  }
  for (std::size_t n = 0; n < kinds_.size(); ++n) {
    weights[n] = to_single(factors[kinds_[n].element] * kinds_[n].occupancy);
    dampings[n] = to_single(std::exp(-kinds_[n].b * double{s} * double{s}));
  }
}

void ScatteringCell::phases_at(double h, double k, double l, std::span<double> phases) const {
  for (std::size_t m = 0; m < phases.size(); ++m) {
    phases[m] = static_cast<Single>((h * x_[m] + k * y_[m] + l * z_[m]) * program_two_pi);
  }
}

Amplitude ScatteringCell::StructureFactor(Integer h, Integer k, Integer l, Single s) const {
  const std::size_t atoms = kind_.size();
  Room room(elements_.size() + 2 * kinds_.size() + 3 * atoms);
  const auto factors = room.take(elements_.size());
  const auto weights = room.take(kinds_.size());
  const auto dampings = room.take(kinds_.size());
  scatter_at(s, factors, weights, dampings);
  const auto phases = room.take(atoms);
  const auto sines = room.take(atoms);
  const auto cosines = room.take(atoms);
  phases_at(h.value(), k.value(), l.value(), phases);
  approximate_sines(phases, sines, cosines);
  Single a = 0;
  Single b = 0;
  for (std::size_t m = 0; m < atoms; ++m) {
    const Scatterer kind{weights[kind_[m]], dampings[kind_[m]]};
    a = with_atom(a, kind, phases[m], cosines[m], [](double phase) { return std::cos(phase); });
    b = with_atom(b, kind, phases[m], sines[m], [](double phase) { return std::sin(phase); });
  }
  return {to_single(a), to_single(b)};  // a sum that leaves the range never comes back into it
}

Intensity ReflectionIntensity(const CrystalState& state, const ListEntry& entry, const ObservedReflections& observed,
                              const ScatteringCell& atoms) {
  Intensity intensity;
  if (state.NAtom > 0) {
    intensity.f = atoms.StructureFactor(entry.h, entry.k, entry.l, entry.s);
    const Single f = append_structure_factor(intensity);
    if (atoms.radiation().xray) xray_intensity(state, entry.theta, f, intensity);
    if (atoms.radiation().electron) electron_intensity(state, entry.s, f, intensity);
  } else if (state.JcpdsCount > 0) {
    intensity.f.a = observed.JcpdsFactor(entry.h, entry.k, entry.l).value_or(0.0F);
    intensity.value = append_structure_factor(intensity);
    append_intensity(intensity.columns, intensity.value);
  }
  return intensity;
}

}  // namespace zol
