// From a picture to the orientation of the crystal in it: bands, votes, and the fit on the picture itself.
#pragma once

#include <array>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "indexing/orientation_vote.h"
#include "indexing/picture_fit.h"

namespace zol {

/// What indexing needs of a crystal, made once for many pictures. Several threads may use it.
struct CrystalModel {
  std::string title;
  ReflectorSet reflectors;
  std::vector<bool> families_used;  ///< of each family, whether it votes
  std::shared_ptr<const VoteTable> table;
  std::shared_ptr<const KinematicSphere> sphere;
};

/// The first families vote: as many as asked for and more, until there are planes enough to tell orientations apart.
[[nodiscard]] std::vector<bool> voting_families(const ReflectorSet& reflectors, int family_count);

/// @param sphere  of an earlier model of the same crystal, or none: it is drawn
/// @throws RunFailure  the crystal has too few planes
[[nodiscard]] CrystalModel make_crystal_model(std::string title, ReflectorSet reflectors,
                                              std::vector<bool> families_used,
                                              std::shared_ptr<const KinematicSphere> sphere, Task& task);

struct IndexSettings {
  int band_count = 9;
  PreparationSettings preparation;
  DetectionSettings detection;
  VoteSettings vote;
  FitSettings fit;
  int candidates_fitted = 10;  ///< of each crystal, on the picture
  bool fit_picture = true;     ///< else the bands alone decide
};

/// One orientation that may be that of the picture.
struct IndexSolution {
  const CrystalModel* model = nullptr;
  Rotation crystal_from_picture = Rotation::Identity();
  int matched = 0;                ///< bands
  double mean_deviation_deg = 0;  ///< of those
  double votes = 0;
  double correlation = 0;           ///< of the picture with the drawn bands; 0 where it was not fitted
  double confidence = 0;            ///< lead in votes over the best other orientation, 0 to 1; 0 for all but the first
  std::optional<double> lead = {};  ///< as ChosenFit has it, of the best one of each crystal
};

/// A fit among its look-alikes.
struct ChosenFit {
  PictureFit fit;
  /// In correlation, over the best look-alike. Below 0: the crystal of the other hand, which no turn makes of this one,
  /// fits better. None where the crystal has no look-alikes, or only its bands are drawn.
  std::optional<double> lead;
};

/// Holds all storage of indexing one picture after the other. One thread at a time.
class PatternIndexer {
 public:
  /// Solutions, the best first; valid until the next call.
  /// @throws RunFailure  the picture is blank, or fewer than three bands were found; the message says so
  std::span<const IndexSolution> index(const PictureView& picture, const PatternCentre& centre,
                                       std::span<const CrystalModel* const> models, const IndexSettings& settings,
                                       Task& task);
  std::span<const IndexSolution> index(const PictureView& picture, const PatternCentre& centre,
                                       std::span<const CrystalModel* const> models, const IndexSettings& settings) {
    QuietTask task;
    return index(picture, centre, models, settings, task);
  }

  // The parts of index, for whoever knows an orientation that the picture may have.

  /// Makes a picture ready for the calls that follow. @returns false where it is blank
  [[nodiscard]] bool take(const PictureView& picture, const IndexSettings& settings, Task& task);
  /// The same with pixels that have been gathered before, of as many pixels as the settings say.
  [[nodiscard]] bool take(std::span<const float> gathered, const Gathering& gathering, const IndexSettings& settings);
  /// Fits an orientation to the picture taken.
  [[nodiscard]] PictureFit fit(const CrystalModel& model, const Rotation& start, const PatternCentre& centre,
                               const IndexSettings& settings) {
    return fitter_.fit(*model.sphere, start, centre, settings.fit);
  }
  /// Of the picture taken with that of an orientation.
  [[nodiscard]] double correlation(const CrystalModel& model, const Rotation& crystal_from_picture,
                                   const PatternCentre& centre) {
    return fitter_.correlation(*model.sphere, crystal_from_picture, centre);
  }
  /// The last steps of a fit that is nearly done: with the computed picture made even as well, where it has all greys.
  [[nodiscard]] PictureFit settle(const CrystalModel& model, const PictureFit& fit, const PatternCentre& centre,
                                  const IndexSettings& settings);
  /// The last steps of a fit, of it and of its look-alikes; the one that fits best.
  [[nodiscard]] ChosenFit choose(const CrystalModel& model, const PictureFit& fit, const PatternCentre& centre,
                                 const IndexSettings& settings);
  /// Finds the bands of the picture taken, and orientations by them. @returns none where too few bands were found
  std::span<const IndexSolution> index_taken(const PatternCentre& centre, std::span<const CrystalModel* const> models,
                                             const IndexSettings& settings, Task& task);
  [[nodiscard]] const PreparedPicture& prepared() const { return prepared_; }

  /// Pattern centre and orientation together on the picture of the last call, from one of its solutions: on the bands
  /// first, on the picture then.
  [[nodiscard]] PictureFit refine_centre(const IndexSolution& solution, const PatternCentre& centre,
                                         const IndexSettings& settings);

  [[nodiscard]] std::span<const DetectedBand> bands() const { return bands_; }
  /// What each band is in a solution.
  [[nodiscard]] std::vector<MatchedBand> matches(const IndexSolution& solution, double tolerance_deg) const;

 private:
  void rate(const IndexSettings& settings);
  std::span<const IndexSolution> choose_best_of_each(const PatternCentre& centre, const IndexSettings& settings);

  PreparedPicture prepared_;
  BandDetection detection_;
  std::vector<DetectedBand> bands_;
  OrientationVote vote_;
  PictureFitter fitter_;
  std::vector<MatchedBand> matches_;
  std::vector<IndexSolution> solutions_;
  std::vector<const CrystalModel*> chosen_;  ///< whose best solution stands among its look-alikes
};

}  // namespace zol
