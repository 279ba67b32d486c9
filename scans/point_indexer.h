// One point of a map: what its neighbours have, then what its bands tell, then look-alikes.
#pragma once

#include <span>

#include "scans/map_settings.h"
#include "scans/step_times.h"

namespace zol {

/// An orientation that was found at a point, to be tried at its neighbours.
struct KnownOrientation {
  int model = -1;  ///< its number; -1: none
  double correlation = 0;
  Rotation crystal_from_picture = Rotation::Identity();
};

/// What was found at a point.
struct FoundOrientation : KnownOrientation {
  int bands = 0;                    ///< that agree, where bands were looked for
  double fit_deg = 0;               ///< error of the fit on the picture; without one, what the bands deviate
  std::optional<double> lead = {};  ///< as ChosenFit has it
};

/// Finds the orientation of the picture that an indexer has taken. For one point.
class PointIndexer {
 public:
  /// @param indexer  has taken the picture
  /// @param times  trying and finding are added
  PointIndexer(PatternIndexer& indexer, const PatternCentre& centre, std::span<const CrystalModel* const> models,
               const IndexSettings& settings, StepTimes& times)
      : indexer_(indexer), centre_(centre), models_(models), settings_(settings), times_(times) {}

  /// @param guesses  of neighbours: the first that fits nearly as well as it does there is taken without looking for
  ///   bands
  /// @returns model -1 where nothing was found
  [[nodiscard]] FoundOrientation index(std::span<const KnownOrientation> guesses, Task& task);

 private:
  [[nodiscard]] const CrystalModel& model() const { return *models_[static_cast<std::size_t>(best_.model)]; }
  [[nodiscard]] bool try_guesses(std::span<const KnownOrientation> guesses);
  void find(Task& task);
  [[nodiscard]] bool take_better(const IndexSolution& solution);
  [[nodiscard]] bool choose();

  PatternIndexer& indexer_;
  const PatternCentre& centre_;
  std::span<const CrystalModel* const> models_;
  const IndexSettings& settings_;
  StepTimes& times_;
  FoundOrientation best_;
  PictureFit best_fit_;
};

}  // namespace zol
