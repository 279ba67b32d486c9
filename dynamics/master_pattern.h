// The dynamical backscatter Kikuchi pattern of a crystal over all directions: its master pattern.
//
// By reciprocity the intensity that leaves in a direction is the yield of a plane wave that comes in against it: beams
// coupled by the crystal's potential and absorption, sources at the atoms by Z^2, depths distributed exponentially.
// docs/theory-dynamical.md has the formulas with their sources.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/task.h"
#include "dynamics/beam_choice.h"
#include "dynamics/direction_grid.h"
#include "dynamics/dynamic_crystal.h"

namespace zol {

struct MasterSettings {
  std::vector<double> kilovolts{20};  ///< a pattern each, the highest first
  int size = 401;                     ///< points along a side of the square grid, odd
  double depth_nm = 8;                ///< mean depth that electrons come from
  double smallest_spacing = 0;        ///< angstroms; 0: by the volume of the cell
  int beams = 0;                      ///< 0: by the volume of the cell
  std::optional<CouplingRule> rule;   ///< in place of a number of beams
  int threads = 1;
};

/// Beams and spacing where the settings leave them open, the depth where absorption is strong.
struct MasterChoice {
  double smallest_spacing = 0;
  int beams = 0;
  double depth_nm = 0;  ///< at most that in which electrons lose their coherence
  std::optional<CouplingRule> rule = {};
};
/// @throws RunFailure  a setting out of its range
[[nodiscard]] MasterChoice master_choice(const DynamicCrystal& crystal, const MasterSettings& settings);

/// What a pattern takes a core, within a factor of two. @throws RunFailure  a setting out of its range
[[nodiscard]] Effort master_effort(const DynamicCrystal& crystal, const MasterSettings& settings);

/// 1: what atoms far apart would yield.
struct MasterPattern {
  struct Halves {
    std::vector<float> north, south;  ///< size x size, row y, column x, e3 in the middle
  };
  int size = 0;
  std::vector<double> kilovolts;
  std::vector<Halves> patterns;  ///< of each voltage
  MasterChoice choice;
  CellConstants cell;
  std::vector<DynamicSite> sites;
  int space_group = 1;
  std::size_t directions = 0;  ///< that were computed, of one voltage; 0 where it was read

  /// In a direction of any length but 0, linear between grid points. @param pattern  number of the voltage
  [[nodiscard]] double at(const GridDirection& direction, std::size_t pattern = 0) const;
};

/// All that such a pattern has beside its values. @throws RunFailure  as master_choice
[[nodiscard]] MasterPattern empty_master(const DynamicCrystal& crystal, const MasterSettings& settings);

/// The same bytes for any number of threads. Reports directions done, checks the task all the time.
/// @throws RunFailure  a setting out of its range, an element or the cell that does not do
[[nodiscard]] MasterPattern master_pattern(const DynamicCrystal& crystal, const MasterSettings& settings, Task& task);

/// The yield of single directions, one thread.
[[nodiscard]] std::vector<double> master_yields(const DynamicCrystal& crystal, const MasterChoice& choice,
                                                double kilovolt, const std::vector<GridDirection>& directions,
                                                Task& task);

/// Correlation of a sample of directions with what more effort gives.
struct MasterConvergence {
  double twice_beams = 1;    ///< twice the beams
  double finer_spacing = 1;  ///< spacings down to 0.8 of the smallest, half more beams
};
[[nodiscard]] MasterConvergence master_convergence(const DynamicCrystal& crystal, const MasterSettings& settings,
                                                   Task& task);

}  // namespace zol
