#include "batch/index_pictures.h"

#include <algorithm>
#include <condition_variable>
#include <exception>
#include <system_error>
#include <thread>
#include <utility>

#include "batch/batch_program.h"
#include "batch/batch_progress.h"
#include "batch/words.h"
#include "indexing/band_contrast.h"
#include "shell/desktop/qt_surface.h"
#include "shell/program/data_folders.h"

namespace zol {
namespace {

/// As it stands in the file; turned upside down, as the conventions of the program ask for, unless it is already.
GreyPicture read_picture(const std::string& path, bool flipped) {
  static std::mutex decoding;  // Qt loads its plug-ins as they are needed
  QtSurface surface(1, 1);
  {
    const std::lock_guard lock(decoding);
    surface.load(path);
  }
  GreyPicture picture = surface.grey();
  const auto width = static_cast<std::ptrdiff_t>(picture.width);
  for (int y = 0; !flipped && y < picture.height / 2; ++y) {
    std::swap_ranges(picture.values.begin() + y * width, picture.values.begin() + (y + 1) * width,
                     picture.values.end() - (y + 1) * width);
  }
  return picture;
}

/// Indexes as the window of automatic indexing does; one for each thread.
class OnePicture {
 public:
  OnePicture(const IndexWords& words, const PictureModels& models) : words_(words), models_(models) {
    settings_.band_count = words.bands;
    settings_.preparation.circle = words.mask == "circle";
  }

  [[nodiscard]] IndexedPicture index(const std::string& path) {
    IndexedPicture found;
    found.picture = path;
    try {
      BatchProgram::naming(path, [&] { find(path, found); });
    } catch (const RunFailure& failure) {
      found.failure = failure.message();
    }
    return found;
  }

 private:
  void find(const std::string& path, IndexedPicture& found) {
    const GreyPicture grey = read_picture(path, words_.flipped);
    const PictureView picture{grey.values, grey.width, grey.height};
    const PictureSize size{grey.width, grey.height, words_.pixel};
    found.result.size = size;
    found.result.centre = upside_down(centre_of_words(words_.centre, words_.convention, size), size);
    const auto fitted = models_.fitted(size, found.result.centre);
    index_with(picture, *fitted, found);
    if (!words_.refine) return;
    found.refined = indexer_.refine_centre(found.result.solutions.front().found, found.result.centre, settings_);
    found.result.centre = found.refined->centre;
    index_with(picture, *fitted, found);
  }

  void index_with(const PictureView& picture, const PictureModels::Models& models, IndexedPicture& found) {
    BatchTask task;
    std::vector<const CrystalModel*> plain;
    for (const auto& model : models) plain.push_back(model.get());
    const auto told = indexer_.index(picture, found.result.centre, plain, settings_, task);
    if (told.empty()) {
      throw RunFailure(std::to_string(indexer_.bands().size()) + " bands, but no orientation explains three of them");
    }
    std::vector<IndexSolution> solutions(told.begin(), told.end());
    settle(solutions.front(), models, found);
    const auto bands = indexer_.bands();
    found.result.bands.assign(bands.begin(), bands.end());
    found.result.solutions.clear();
    for (const auto& solution : solutions) {
      found.result.solutions.push_back(
          {models[number_of(solution, models)], solution, indexer_.matches(solution, settings_.vote.tolerance_deg)});
    }
  }

  static std::size_t number_of(const IndexSolution& solution, const PictureModels::Models& models) {
    const auto model = std::find_if(models.begin(), models.end(),
                                    [&solution](const auto& known) { return known.get() == solution.model; });
    return static_cast<std::size_t>(model - models.begin());
  }

  /// The last steps of a fit to a dynamical pattern, and what the drawn bands would give in its place.
  void settle(IndexSolution& best, const PictureModels::Models& models, IndexedPicture& found) {
    const std::size_t number = number_of(best, models);
    const CrystalModel& drawn = *models_.drawn()[number];
    if (best.model->sphere == drawn.sphere || best.correlation == 0) return;
    found.kinematic = indexer_.fit(drawn, best.crystal_from_picture, found.result.centre, settings_).correlation;
    PictureFit fit;
    fit.crystal_from_picture = best.crystal_from_picture;
    fit.centre = found.result.centre;
    fit.correlation = best.correlation;
    const PictureFit settled = indexer_.settle(*best.model, fit, found.result.centre, settings_);
    best.crystal_from_picture = settled.crystal_from_picture;
    best.correlation = settled.correlation;
  }

  const IndexWords& words_;
  const PictureModels& models_;
  IndexSettings settings_;
  PatternIndexer indexer_;
};

/// What the threads share.
class Line {
 public:
  Line(const IndexWords& words, const PictureModels& models)
      : words_(words), models_(models), found_(words.pictures.size()) {}

  void work() {
    try {
      OnePicture one(words_, models_);
      for (auto number = next(); number; number = next()) deliver(*number, one.index(words_.pictures[*number]));
    } catch (...) {
      const std::lock_guard lock(mutex_);
      if (!failure_) failure_ = std::current_exception();
      next_ = found_.size();
      ready_.notify_all();
    }
  }
  /// Waits for the picture. @throws what ended a thread
  [[nodiscard]] IndexedPicture take(std::size_t number) {
    std::unique_lock lock(mutex_);
    ready_.wait(lock, [&] { return failure_ || found_[number]; });
    if (failure_) std::rethrow_exception(failure_);
    IndexedPicture found = std::move(*found_[number]);
    found_[number].reset();
    return found;
  }
  void stop() {
    const std::lock_guard lock(mutex_);
    next_ = found_.size();
  }

 private:
  [[nodiscard]] std::optional<std::size_t> next() {
    BatchTask().check();
    const std::lock_guard lock(mutex_);
    if (next_ >= found_.size()) return std::nullopt;
    return next_++;
  }
  void deliver(std::size_t number, IndexedPicture found) {
    const std::lock_guard lock(mutex_);
    found_[number] = std::move(found);
    ready_.notify_all();
  }

  const IndexWords& words_;
  const PictureModels& models_;
  std::mutex mutex_;
  std::condition_variable ready_;
  std::size_t next_ = 0;
  std::vector<std::optional<IndexedPicture>> found_;
  std::exception_ptr failure_;
};

/// Joins what it holds; a thread goes on until the line has no picture for it.
class Crew {
 public:
  Crew(Line& line, int threads) : line_(line) {
    for (int i = 0; i < threads; ++i) {
      try {
        threads_.emplace_back([&line] { line.work(); });
      } catch (const std::system_error&) {
        if (threads_.empty()) throw;
        break;  // no more are to be had: those that run do the work
      }
    }
  }
  Crew(const Crew&) = delete;
  Crew& operator=(const Crew&) = delete;
  ~Crew() {
    line_.stop();
    for (auto& thread : threads_) thread.join();
  }

 private:
  Line& line_;
  std::vector<std::thread> threads_;
};

}  // namespace

PictureModels::PictureModels(const IndexWords& words, int threads) : words_(words), threads_(threads) {
  BatchTask task;
  const DataRoot data = find_data_root(data_places());
  for (const auto& path : words.crystals) {
    crystals_.push_back(load_crystal(path, data, task));
    drawn_.push_back(
        std::make_shared<const CrystalModel>(indexing_model(crystals_.back(), words.kilovolt, words.families, task)));
  }
  masters_.emplace(words.master, crystals_, words.kilovolt);
}

std::shared_ptr<const PictureModels::Models> PictureModels::fitted(const PictureSize& size,
                                                                   const PatternCentre& centre) const {
  const MasterView view{words_.kilovolt, centre, size.width, size.height, threads_};
  const std::lock_guard lock(mutex_);
  auto& known = of_pixels_[dynamical() ? view.pixel_deg() : 0];
  if (known) return known;
  BatchTask task;
  auto models = std::make_shared<Models>(drawn_);
  for (std::size_t i = 0; i < models->size(); ++i) {
    const auto sphere = masters_->sphere(i, view, task);
    if (!sphere) continue;
    (*models)[i] = std::make_shared<const CrystalModel>(with_pattern(*drawn_[i], sphere, words_.families, task));
  }
  known = models;
  return known;
}

void index_pictures(const IndexWords& words, const PictureModels& models, int threads,
                    const std::function<void(const IndexedPicture& found)>& tell) {
  Line line(words, models);
  const Crew crew(line, std::min(threads, static_cast<int>(words.pictures.size())));
  for (std::size_t i = 0; i < words.pictures.size(); ++i) tell(line.take(i));
}

}  // namespace zol
