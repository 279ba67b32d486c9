#include "scans/point_indexer.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace zol {
namespace {

/// What the neighbour's orientation has to reach of the neighbour's correlation to be taken without a look at the
/// bands.
constexpr double as_good = 0.85;

}  // namespace

FoundOrientation PointIndexer::index(std::span<const KnownOrientation> guesses, Task& task) {
  const bool on_picture = settings_.fit_picture;
  const bool settled = on_picture && try_guesses(guesses);
  if (!settled) find(task);
  if (best_.model < 0 || !on_picture) return best_;
  // A neighbour of the other hand fits nearly as well: the crystal that this one belongs to may be among the others.
  if (!choose() && settled && models_.size() > 1) {
    find(task);
    (void)choose();
  }
  best_.fit_deg = std::hypot(best_fit_.errors[0], best_fit_.errors[1], best_fit_.errors[2]);
  return best_;
}

bool PointIndexer::try_guesses(std::span<const KnownOrientation> guesses) {
  const Timed timed(times_.trying);
  for (const KnownOrientation& guess : guesses) {
    const CrystalModel& model = *models_[static_cast<std::size_t>(guess.model)];
    const PictureFit fit = indexer_.fit(model, guess.crystal_from_picture, centre_, settings_);
    if (fit.correlation <= best_.correlation) continue;
    best_.model = guess.model;
    best_.correlation = fit.correlation;
    best_.crystal_from_picture = fit.crystal_from_picture;
    best_fit_ = fit;
    if (fit.correlation >= as_good * guess.correlation) return true;
  }
  return false;
}

/// By the bands of the picture; a neighbour's orientation that fits better stays.
void PointIndexer::find(Task& task) {
  const Timed timed(times_.finding);
  bool replaced = false;
  for (const IndexSolution& solution : indexer_.index_taken(centre_, models_, settings_, task)) {
    if (!settings_.fit_picture && best_.model >= 0) break;  // they stand in order
    replaced = take_better(solution) || replaced;
  }
  if (!settings_.fit_picture || !replaced || best_.bands == 0) return;
  best_fit_ = indexer_.fit(model(), best_.crystal_from_picture, centre_, settings_);
  best_.crystal_from_picture = best_fit_.crystal_from_picture;
  best_.correlation = best_fit_.correlation;
}

bool PointIndexer::take_better(const IndexSolution& solution) {
  if (settings_.fit_picture && solution.correlation <= best_.correlation) return false;
  best_.model = static_cast<int>(std::find(models_.begin(), models_.end(), solution.model) - models_.begin());
  best_.correlation = settings_.fit_picture ? solution.correlation : solution.confidence;
  best_.crystal_from_picture = solution.crystal_from_picture;
  best_.bands = solution.matched;
  best_.fit_deg = solution.mean_deviation_deg;
  best_fit_ = {};
  return true;
}

/// Among look-alikes. @returns false where the crystal of the other hand fits better
bool PointIndexer::choose() {
  best_fit_.crystal_from_picture = best_.crystal_from_picture;
  const ChosenFit chosen = indexer_.choose(model(), best_fit_, centre_, settings_);
  best_fit_ = chosen.fit;
  best_.crystal_from_picture = best_fit_.crystal_from_picture;
  if (!chosen.lead) return true;
  best_.correlation = indexer_.correlation(model(), best_.crystal_from_picture, centre_);
  best_.lead = chosen.lead;
  return *chosen.lead >= 0;
}

}  // namespace zol
