// Many Kikuchi pictures indexed by all cores, for "zol-batch index".
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include "batch/map_master.h"
#include "indexing/window/auto_index_form.h"

namespace zol {

/// The words of the command line.
struct IndexWords {
  std::vector<std::string> pictures, crystals;
  std::string centre, convention = "bruker", overlay, mask;
  double tilt = 70, kilovolt = 20, pixel = 1;
  int bands = 9, families = 6, threads = 0;
  bool flipped = false, refine = false, csv = false, json = false;
  MapMasterWords master;
};

/// What was found in one picture.
struct IndexedPicture {
  std::string picture;
  std::string failure;  ///< why nothing was found; empty: it was
  IndexResult result;
  std::optional<double> kinematic;    ///< correlation of the drawn bands, where the best one was fitted dynamically
  std::optional<PictureFit> refined;  ///< the centre of the result is that of this one
};

/// The crystals of the command line, ready for pictures of any size. Many threads may ask for them.
class PictureModels {
 public:
  using Models = std::vector<std::shared_ptr<const CrystalModel>>;

  /// @throws RunFailure  a crystal cannot be read; the message names it
  PictureModels(const IndexWords& words, int threads);
  /// With their bands drawn.
  [[nodiscard]] const Models& drawn() const { return drawn_; }
  [[nodiscard]] bool dynamical() const { return masters_->any(); }
  [[nodiscard]] const std::string& remark() const { return masters_->remark(); }
  /// With the patterns that pictures of this size are fitted to.
  [[nodiscard]] std::shared_ptr<const Models> fitted(const PictureSize& size, const PatternCentre& centre) const;

 private:
  const IndexWords& words_;
  int threads_;
  std::vector<LoadedCrystal> crystals_;
  std::optional<CrystalMasters> masters_;
  Models drawn_;
  mutable std::mutex mutex_;
  mutable std::map<double, std::shared_ptr<const Models>> of_pixels_;  ///< by their angle, degrees
};

/// Each picture in the order of the words, told by the calling thread once those before it have been.
/// @throws Cancelled  a signal has come
void index_pictures(const IndexWords& words, const PictureModels& models, int threads,
                    const std::function<void(const IndexedPicture& found)>& tell);

}  // namespace zol
