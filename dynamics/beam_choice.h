// The beams that matter for a direction: those of the smallest deviation from Bragg's law against their potential.
#pragma once

#include <array>
#include <utility>
#include <vector>

#include "dynamics/potential.h"

namespace zol {

/// A rule of other programs, in multiples of K |s_g| over a coefficient of the potential: for comparison with them.
struct CouplingRule {
  double strong = 4;   ///< coupled so to a listed beam: followed
  double weak = 8;     ///< folded into the strong ones
  double listed = 50;  ///< coupled so to 000
};

/// Holds storage from one direction to the next; one thread at a time. What it chooses does not depend on what it chose
/// before.
class BeamChoice {
 public:
  explicit BeamChoice(const CrystalPotential& potential);

  /// Electrons leave in a direction, a unit vector of the frame of core/lattice.h: by reciprocity the wave of a
  /// detector there comes in against it. 000 and count - 1 others.
  void choose(const std::array<double, 3>& direction, int count);
  /// By the coupling to other beams. Source: Wang & De Graef, Ultramicroscopy 160 (2016) 35.
  void choose(const std::array<double, 3>& direction, const CouplingRule& rule);
  [[nodiscard]] const std::vector<int>& offsets() const { return offsets_; }
  /// Of each, as CoupledBeams wants them.
  [[nodiscard]] const std::vector<float>& deviations() const { return deviations_; }
  /// Of those that are folded in; none by the first rule.
  [[nodiscard]] const std::vector<int>& weak_offsets() const { return weak_offsets_; }
  [[nodiscard]] const std::vector<float>& weak_deviations() const { return weak_deviations_; }

 private:
  void rank(const std::array<double, 3>& direction);
  void take(int candidate, std::vector<int>& offsets, std::vector<float>& deviations) const;
  void gather(float limit);

  const CrystalPotential* potential_;
  std::size_t padded_;
  std::vector<float> x_, y_, z_, square_, weight_, deviation_, rank_;
  float limit_ = 0;  ///< a guess from the direction before
  std::vector<std::pair<float, int>> near_;
  std::vector<int> chosen_, offsets_, weak_offsets_;
  std::vector<float> deviations_, weak_deviations_;
};

}  // namespace zol
