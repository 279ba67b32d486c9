// The Fourier series of a crystal for fast electrons: potential, absorption, and where backscattering starts.
//
// Plane waves are exp(2 pi i k.r). Sources: Bird & King, Acta Cryst. A46 (1990) 202 for absorption by thermal diffuse
// scattering, which has a closed form for Gaussians (docs/theory-dynamical.md); sources go with Z^2.
#pragma once

#include <array>
#include <vector>

#include "core/task.h"
#include "dynamics/depth_solver.h"
#include "dynamics/dynamic_crystal.h"
#include "dynamics/electron.h"

namespace zol {

/// Scattering factor at s = sin(theta)/lambda, angstroms.
[[nodiscard]] double electron_factor(const GaussianFactor& factor, double s);
/// Absorptive part by thermal diffuse scattering of a fast electron, angstroms, relativistic mass left out;
/// the Debye-Waller factor of the reflection itself left out too.
[[nodiscard]] double absorptive_factor(const GaussianFactor& factor, double s, double b_iso, const FastElectron& fast);

/// A reflection that may be a beam.
struct CandidateBeam {
  std::array<int, 3> hkl{};
  std::array<double, 3> g{};  ///< 1/angstrom, in the frame of core/lattice.h
  int offset = 0;             ///< differences of offsets are places in the table of pairs
  double strength = 0;        ///< |U_g|, 1/angstrom^2, at least 1e-2 where it is absent
};

struct PotentialSettings {
  double kilovolt = 20;
  double smallest_spacing = 0.45;  ///< angstroms
  bool absorption = true;
};

class CrystalPotential {
 public:
  /// @throws RunFailure  the cell or the voltage is none, or there would be more than 60 000 reflections
  CrystalPotential(const DynamicCrystal& crystal, const PotentialSettings& settings, Task& task);

  [[nodiscard]] const FastElectron& electron() const { return electron_; }
  [[nodiscard]] double wave_number() const { return wave_number_; }          ///< inside the crystal, 1/angstrom
  [[nodiscard]] double mean_potential() const { return mean_potential_; }    ///< U_0, 1/angstrom^2
  [[nodiscard]] double mean_absorption() const { return mean_absorption_; }  ///< U'_0, 1/angstrom^2
  [[nodiscard]] bool symmetric() const { return symmetric_; }                ///< all series are real
  /// 000 first, then by |g|.
  [[nodiscard]] const std::vector<CandidateBeam>& candidates() const { return candidates_; }
  /// The entry of difference 0; others at differences of offsets.
  [[nodiscard]] const PairTerm* pairs() const { return pairs_.data() + middle_; }

 private:
  void find_candidates(const DynamicCrystal& crystal, double smallest_spacing, Task& task);
  void fill_pairs(const DynamicCrystal& crystal, const PotentialSettings& settings, Task& task);

  FastElectron electron_;
  double wave_number_ = 0, mean_potential_ = 0, mean_absorption_ = 0;
  bool symmetric_ = false;
  std::array<int, 3> reach_{};  ///< largest indices of a difference
  std::size_t middle_ = 0;
  std::vector<CandidateBeam> candidates_;
  std::vector<PairTerm> pairs_;
};

}  // namespace zol
