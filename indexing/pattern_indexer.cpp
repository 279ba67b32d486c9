#include "indexing/pattern_indexer.h"

#include <algorithm>
#include <utility>

#include "core/run_failure.h"
#include "indexing/pattern_centre_fit.h"

namespace zol {
namespace {

constexpr int sphere_size = 801;
constexpr double worth_steps = 0.85;  ///< share of the fit's correlation at which a look-alike is fitted too

/// As the picture is drawn, without a step.
FitSettings still(FitSettings settings) {
  settings.most_steps = 0;
  return settings;
}

/// Directions of planes that vote, where the crystal has them. The fewer rotations a crystal has, the more orientations
/// there are to be told apart, also those of pseudo-symmetry.
std::size_t least_planes(const ReflectorSet& reflectors) {
  constexpr std::size_t least = 20;
  constexpr std::size_t more_without_symmetry = 40;
  return least + more_without_symmetry / std::max<std::size_t>(1, reflectors.symmetry.size());
}

}  // namespace

std::vector<bool> voting_families(const ReflectorSet& reflectors, int family_count) {
  constexpr double parallel = 1 - 1e-6;
  std::vector<bool> used;
  std::vector<Vector3> directions;
  const std::size_t least = least_planes(reflectors);
  for (const ReflectorFamily& family : reflectors.families) {
    if (static_cast<int>(used.size()) >= family_count && directions.size() >= least) break;
    used.push_back(true);
    const auto members = std::span(reflectors.members)
                             .subspan(static_cast<std::size_t>(family.first), static_cast<std::size_t>(family.count));
    // Other orders of a plane stand on the same normals.
    if (std::any_of(directions.begin(), directions.end(), [&members](const Vector3& known) {
          return std::abs(known.dot(members.front().normal)) > parallel;
        })) {
      continue;
    }
    for (const Reflector& member : members) directions.push_back(member.normal);
  }
  return used;
}

CrystalModel make_crystal_model(std::string title, ReflectorSet reflectors, std::vector<bool> families_used,
                                std::shared_ptr<const KinematicSphere> sphere, Task& task) {
  CrystalModel model{std::move(title), std::move(reflectors), std::move(families_used), nullptr, std::move(sphere)};
  model.table = std::make_shared<const VoteTable>(model.reflectors, model.families_used, task);
  if (!model.sphere) {
    model.sphere = std::make_shared<const KinematicSphere>(model.reflectors, sphere_size, StripShape{}, task);
  }
  return model;
}

std::span<const IndexSolution> PatternIndexer::index(const PictureView& picture, const PatternCentre& centre,
                                                     std::span<const CrystalModel* const> models,
                                                     const IndexSettings& settings, Task& task) {
  solutions_.clear();
  bands_.clear();
  if (!take(picture, settings, task)) {
    throw RunFailure("the picture is blank: it has no contrast to find bands in");
  }
  const auto found = index_taken(centre, models, settings, task);
  if (bands_.size() < 3) {
    throw RunFailure("only " + std::to_string(bands_.size()) + " bands were found, three are needed");
  }
  if (!settings.fit_picture) return found;
  return choose_best_of_each(centre, settings);
}

bool PatternIndexer::take(const PictureView& picture, const IndexSettings& settings, Task& task) {
  if (!prepared_.prepare(picture, settings.preparation, task)) return false;
  if (settings.fit_picture) fitter_.take(prepared_);
  return true;
}

bool PatternIndexer::take(std::span<const float> gathered, const Gathering& gathering, const IndexSettings& settings) {
  if (!prepared_.prepare(gathered, gathering, settings.preparation)) return false;
  if (settings.fit_picture) fitter_.take(prepared_);
  return true;
}

std::span<const IndexSolution> PatternIndexer::index_taken(const PatternCentre& centre,
                                                           std::span<const CrystalModel* const> models,
                                                           const IndexSettings& settings, Task& task) {
  solutions_.clear();
  DetectionSettings detection = settings.detection;
  detection.most_bands = settings.band_count;
  const auto found = detection_.detect(prepared_, centre, detection);
  bands_.assign(found.begin(), found.end());
  if (bands_.size() < 3) return solutions_;
  int tried = 0;
  for (const CrystalModel* model : models) {
    task.report(tried++, static_cast<int>(models.size()));
    const auto orientations = vote_.vote(*model->table, bands_, settings.vote, task);
    int fitted = 0;
    for (const Orientation& orientation : orientations) {
      task.check();
      IndexSolution solution{model,
                             orientation.crystal_from_picture,
                             orientation.matched,
                             orientation.mean_deviation_deg,
                             orientation.votes,
                             0,
                             0};
      if (settings.fit_picture && fitted < settings.candidates_fitted) {
        const PictureFit fit = fitter_.fit(*model->sphere, orientation.crystal_from_picture, centre, settings.fit);
        // A fit that runs away has left its bands behind; the bands' own orientation is the better one then.
        if (misorientation_deg(fit.crystal_from_picture, orientation.crystal_from_picture) <
            2 * settings.vote.tolerance_deg) {
          solution.crystal_from_picture = fit.crystal_from_picture;
        }
        solution.correlation = fit.correlation;
        ++fitted;
      }
      solutions_.push_back(solution);
    }
  }
  rate(settings);
  return solutions_;
}

PictureFit PatternIndexer::settle(const CrystalModel& model, const PictureFit& fit, const PatternCentre& centre,
                                  const IndexSettings& settings) {
  if (!model.sphere->continuous()) return fit;
  FitSettings last = settings.fit;
  last.evened = true;
  last.most_steps = 3;
  const PictureFit settled = fitter_.fit(*model.sphere, fit.crystal_from_picture, centre, last);
  const bool near =
      misorientation_deg(settled.crystal_from_picture, fit.crystal_from_picture) < settings.vote.tolerance_deg;
  return near && settled.correlation > 0 ? settled : fit;
}

ChosenFit PatternIndexer::choose(const CrystalModel& model, const PictureFit& fit, const PatternCentre& centre,
                                 const IndexSettings& settings) {
  ChosenFit chosen{settle(model, fit, centre, settings), {}};
  if (!model.sphere->continuous() || model.reflectors.lookalikes.empty()) return chosen;
  FitSettings look = settings.fit;
  look.evened = true;
  const Rotation start = chosen.fit.crystal_from_picture;
  double best = fitter_.fit(*model.sphere, start, centre, still(look)).correlation;
  double second = -1;
  for (const Lookalike& lookalike : model.reflectors.lookalikes) {
    PictureFit other = fitter_.fit(*model.sphere, lookalike.applied(start), centre, still(look));
    if (other.correlation > worth_steps * best) {
      look.most_steps = 2;
      other = fitter_.fit(*model.sphere, other.crystal_from_picture, centre, look);
    }
    if (other.correlation > best && !lookalike.other_hand) {
      chosen.fit = other;
      std::swap(best, other.correlation);
    }
    second = std::max(second, other.correlation);
  }
  chosen.lead = best - second;
  return chosen;
}

/// Of each crystal the best solution gives way to a look-alike that fits better.
std::span<const IndexSolution> PatternIndexer::choose_best_of_each(const PatternCentre& centre,
                                                                   const IndexSettings& settings) {
  chosen_.clear();
  bool turned_any = false;
  for (std::size_t i = 0; i < solutions_.size(); ++i) {
    IndexSolution& best = solutions_[i];
    if (best.correlation == 0 || !best.model->sphere->continuous()) continue;
    if (std::find(chosen_.begin(), chosen_.end(), best.model) != chosen_.end()) continue;
    chosen_.push_back(best.model);
    const PictureFit fit{best.crystal_from_picture, centre, best.correlation, 0, {}};
    const ChosenFit chosen = choose(*best.model, fit, centre, settings);
    best.lead = chosen.lead;
    const Rotation& turned = chosen.fit.crystal_from_picture;
    if (misorientation_deg(turned, best.crystal_from_picture) < 2 * settings.vote.tolerance_deg) continue;
    const PictureFit again = fitter_.fit(*best.model->sphere, turned, centre, settings.fit);
    best.crystal_from_picture = again.crystal_from_picture;
    best.correlation = again.correlation;
    turned_any = true;
    // The look-alike may stand farther down too.
    const auto same = std::remove_if(
        solutions_.begin() + static_cast<std::ptrdiff_t>(i) + 1, solutions_.end(), [&](const IndexSolution& other) {
          return other.model == best.model &&
                 misorientation_deg(other.crystal_from_picture, best.crystal_from_picture,
                                    best.model->reflectors.symmetry) < 2 * settings.vote.tolerance_deg;
        });
    solutions_.erase(same, solutions_.end());
  }
  if (turned_any) rate(settings);
  return solutions_;
}

/// Orders the solutions, and tells anew what fits of the bands where the picture has moved an orientation.
void PatternIndexer::rate(const IndexSettings& settings) {
  std::sort(solutions_.begin(), solutions_.end(), [](const IndexSolution& a, const IndexSolution& b) {
    return a.correlation != b.correlation ? a.correlation > b.correlation : a.votes > b.votes;
  });
  for (IndexSolution& solution : solutions_) {
    solution.confidence = 0;
    if (solution.correlation == 0) continue;
    match_bands(*solution.model->table, bands_, solution.crystal_from_picture, settings.vote.tolerance_deg, matches_);
    solution.matched = 0;
    solution.mean_deviation_deg = 0;
    solution.votes = 0;
    for (const MatchedBand& match : matches_) {
      if (match.plane < 0) continue;
      const double part = match.deviation_deg / settings.vote.tolerance_deg;
      ++solution.matched;
      solution.mean_deviation_deg += match.deviation_deg;
      solution.votes += 1 - part * part;
    }
    if (solution.matched > 0) solution.mean_deviation_deg /= solution.matched;
  }
  double votes_of_others = 0;
  for (std::size_t i = 1; i < solutions_.size(); ++i) votes_of_others = std::max(votes_of_others, solutions_[i].votes);
  if (!solutions_.empty() && solutions_.front().votes > 0) {
    solutions_.front().confidence = std::clamp(1 - votes_of_others / solutions_.front().votes, 0.0, 1.0);
  }
}

PictureFit PatternIndexer::refine_centre(const IndexSolution& solution, const PatternCentre& centre,
                                         const IndexSettings& settings) {
  fitter_.take(prepared_);
  const auto on_bands = fit_centre_on_bands(*solution.model->table, bands_, solution.crystal_from_picture, centre,
                                            settings.vote.tolerance_deg);
  FitSettings fit = settings.fit;
  fit.centre = true;
  fit.most_steps = 40;
  PictureFit best = fitter_.fit(*solution.model->sphere, solution.crystal_from_picture, centre, fit);
  if (on_bands) {
    const PictureFit other =
        fitter_.fit(*solution.model->sphere, on_bands->crystal_from_picture, on_bands->centre, fit);
    if (other.correlation > best.correlation) best = other;
  }
  return best;
}

std::vector<MatchedBand> PatternIndexer::matches(const IndexSolution& solution, double tolerance_deg) const {
  std::vector<MatchedBand> matched;
  match_bands(*solution.model->table, bands_, solution.crystal_from_picture, tolerance_deg, matched);
  return matched;
}

}  // namespace zol
