#include "scans/map_indexer.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstddef>
#include <numbers>
#include <utility>

#include "core/run_failure.h"
#include "indexing/units.h"

namespace zol {
namespace {

constexpr int tile_columns = 32;
constexpr int tile_rows = 8;
/// What the neighbour's orientation has to reach of the neighbour's correlation to be taken without a look at the
/// bands.
constexpr double as_good = 0.85;
/// Spread of a picture in steps of its grey values below which it shows nothing but their rounding, 0.29.
constexpr double least_contrast = 0.5;

/// A gathered pixel is saturated where all of its pixels are; their mean is rounded.
constexpr double nearly_all = 1 - 1e-6;

/// How smooth a picture is: the mean correlation of pixels with those beside and below them. It is the mean cosine of
/// its power spectrum, 0 for white noise, and so akin to the measure of Krieger Lassen, Conradsen & Juul Jensen,
/// Scanning Microscopy 7 (1993) 23.
float smoothness(const PreparedPicture& picture) {
  const auto& values = picture.values();
  const int w = picture.width();
  double product = 0;
  double square = 0;
  for (int y = 0; y + 1 < picture.height(); ++y) {
    const float* row = &values[index(y) * index(w)];
    const float* below = row + w;
    float line_product = 0;
    float line_square = 0;
    for (int x = 0; x + 1 < w; ++x) {
      line_product += row[x] * (row[x + 1] + below[x]);
      line_square += row[x] * row[x];
    }
    product += static_cast<double>(line_product);
    square += static_cast<double>(line_square);
  }
  return square > 0 ? static_cast<float>(std::clamp(product / (2 * square), 0.0, 1.0)) : 0.0F;
}

/// Adds the time until it goes.
class Timed {
 public:
  explicit Timed(double& seconds) : seconds_(seconds) {}
  Timed(const Timed&) = delete;
  Timed& operator=(const Timed&) = delete;
  ~Timed() { seconds_ += std::chrono::duration<double>(std::chrono::steady_clock::now() - start_).count(); }

 private:
  double& seconds_;
  std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
};

}  // namespace

StepTimes& StepTimes::operator+=(const StepTimes& other) {
  reading += other.reading;
  averaging += other.averaging;
  preparing += other.preparing;
  trying += other.trying;
  finding += other.finding;
  return *this;
}

MapIndexer::MapIndexer(Scan& scan, const ScanGrid& grid, MapCentres centres, std::vector<const CrystalModel*> models,
                       const MapSettings& settings)
    : scan_(scan),
      grid_(grid),
      reader_(scan, grid_, settings.index.preparation.most_pixels, settings.flip),
      centres_(std::move(centres)),
      models_(std::move(models)),
      settings_(settings),
      picture_from_sample_(
          picture_from_sample(settings.geometry.sample_tilt_deg - settings.geometry.detector_tilt_deg)),
      saturated_(static_cast<float>((std::ldexp(1.0, std::min(scan.header().bits, 24)) - 1) * nearly_all)),
      rounding_(scan.header().whole
                    ? 1.0F / static_cast<float>(12 * reader_.gathering().side * reader_.gathering().side)
                    : 0.0F) {
  settings_.index.fit_picture = settings.refinement == Refinement::pattern;
  settings_.index.vote.turn_onto_bands = settings.refinement != Refinement::none;
  auto [left, top, width, height] = settings.region;
  if (width == 0 && height == 0) {
    width = grid.columns;
    height = grid.rows;
  }
  if (left < 0 || top < 0 || width < 1 || height < 1 || width > grid.columns - left || height > grid.rows - top) {
    throw RunFailure("the region lies outside the map of " + std::to_string(grid.columns) + " x " +
                     std::to_string(grid.rows) + " points");
  }
  const auto [across, down] = tile_size();
  for (int row = top; row < top + height; row += down) {
    for (int column = left; column < left + width; column += across) {
      tiles_.push_back({column, row, std::min(across, left + width - column), std::min(down, top + height - row)});
    }
  }
}

/// Smaller for many pixels, so that a tile with its margin takes no more than some memory.
std::array<int, 2> MapIndexer::tile_size() const {
  constexpr std::size_t most_bytes = std::size_t{40} << 20U;
  constexpr int least_columns = 8;
  constexpr int least_rows = 2;
  int columns = tile_columns;
  int rows = tile_rows;
  const auto too_large = [&] {
    return index(columns + 2 * margin()) * index(rows + 2 * margin()) * reader_.gathering().pixels() * sizeof(float) >
           most_bytes;
  };
  while (too_large() && columns > least_columns) columns /= 2;
  while (too_large() && rows > least_rows) rows /= 2;
  return {columns, rows};
}

void MapIndexer::read_tile(const MapTile& tile, int margin, Worker& worker) {
  const Timed timed(worker.times.reading);
  reader_.read(tile, margin, worker.block, worker.tile);
}

void MapIndexer::prepare(Task& task) {
  if (settings_.background == Background::automatic || settings_.background == Background::stored) {
    find_background(task);
  }
  if (settings_.averaging == Averaging::likeness) find_likeness(task);
}

/// The file's own background, or the mean of many points: bands move from point to point and cancel.
void MapIndexer::find_background(Task& task) {
  constexpr std::size_t looked_at = 400;
  constexpr std::size_t least = 100;  ///< fewer do not cancel
  const bool given = !settings_.background_picture.empty();
  background_ = given ? settings_.background_picture : scan_.header().static_background;
  background_kind_ = given ? BackgroundKind::given : BackgroundKind::of_scan;
  if (background_.empty() && settings_.background == Background::stored) {
    throw RunFailure("the scan holds no static background");
  }
  const std::size_t points = grid_.points();
  if (background_.empty() && points >= least) {
    background_kind_ = BackgroundKind::mean_of_points;
    background_.assign(scan_.header().pixels(), 0);
    PatternBlock block;
    std::size_t used = 0;
    for (std::size_t i = 0; i < looked_at; ++i) {
      task.check();
      scan_.read(i * points / looked_at, 1, block);
      if (block.present[0] == 0) continue;
      ++used;
      for (std::size_t p = 0; p < background_.size(); ++p) background_[p] += block.values[p];
    }
    if (used < least) background_.clear();
    for (float& value : background_) value /= static_cast<float>(used);
  }
  if (!background_.empty()) {
    std::vector<float> reduced(reader_.gathering().pixels());
    reader_.reduce(background_, reduced);
    background_ = std::move(reduced);
  }
  background_mean_ = 0;
  for (const float value : background_) background_mean_ += static_cast<double>(value);
  background_mean_ /= static_cast<double>(std::max<std::size_t>(background_.size(), 1));
  if (!(background_mean_ > 0)) background_.clear();
  if (background_.empty()) background_kind_ = BackgroundKind::none;
}

void MapIndexer::find_likeness(Task& task) {
  constexpr std::size_t tiles_looked_at = 6;
  Worker worker = make_worker();
  std::vector<std::vector<double>> distances;
  for (std::size_t i = 0; i < std::min(tiles_looked_at, tiles_.size()); ++i) {
    task.check();
    MapTile tile = tiles_[i * tiles_.size() / std::min(tiles_looked_at, tiles_.size())];
    tile.columns = std::min(tile.columns, 8);
    tile.rows = std::min(tile.rows, 4);
    read_tile(tile, LikenessAverage::margin, worker);
    worker.likeness.look_at(worker.tile);
    for (int row = 0; row < tile.rows; ++row) {
      for (int column = 0; column < tile.columns; ++column) {
        const int x = column + LikenessAverage::margin;
        const int y = row + LikenessAverage::margin;
        if (worker.tile.present[worker.tile.place(x, y)] == 0) continue;
        distances.push_back(worker.likeness.distances(x, y));
      }
    }
  }
  likeness_ = length_of_likeness(distances, settings_.own_share);
}

/// The pattern of a place of the worker's tile as it is indexed: averaged, without background.
void MapIndexer::pattern_of(int column, int row, Worker& worker) const {
  const Timed timed(worker.times.averaging);
  const PatternTile& tile = worker.tile;
  worker.pattern.resize(tile.pixels);
  if (settings_.averaging == Averaging::likeness) {
    worker.likeness.average(column, row, likeness_, worker.pattern);
  } else {
    const auto own = tile.pattern(tile.place(column, row));
    std::copy(own.begin(), own.end(), worker.pattern.begin());
    if (settings_.averaging == Averaging::plain) {
      float count = 1;
      for (const auto& [right, down] : {std::pair(1, 0), {-1, 0}, {0, 1}, {0, -1}}) {
        const std::size_t there = tile.place(column + right, row + down);
        if (tile.present[there] == 0) continue;
        ++count;
        const auto pattern = tile.pattern(there);
        for (std::size_t i = 0; i < tile.pixels; ++i) worker.pattern[i] += pattern[i];
      }
      for (float& value : worker.pattern) value /= count;
    }
  }
  if (!background_.empty()) {
    double mean = 0;
    for (const float value : worker.pattern) mean += static_cast<double>(value);
    const auto scale = static_cast<float>(mean / static_cast<double>(tile.pixels) / background_mean_);
    for (std::size_t i = 0; i < tile.pixels; ++i) worker.pattern[i] -= scale * background_[i];
  }
}

/// Points about a tile that its own ones are averaged with.
int MapIndexer::margin() const {
  if (settings_.averaging == Averaging::likeness) return LikenessAverage::margin;
  return settings_.averaging == Averaging::plain ? 1 : 0;
}

bool MapIndexer::shows_something(const Worker& worker) const {
  return !scan_.header().whole || worker.indexer.prepared().contrast() >= least_contrast;
}

bool MapIndexer::take_point(std::size_t point, Worker& worker) {
  const int margin = this->margin();
  const auto [column, row] = grid_.place(point);
  read_tile({column, row, 1, 1}, margin, worker);
  if (worker.tile.present[worker.tile.place(margin, margin)] == 0) return false;
  if (settings_.averaging == Averaging::likeness) worker.likeness.look_at(worker.tile);
  pattern_of(margin, margin, worker);
  return worker.indexer.take(worker.pattern, reader_.gathering(), settings_.index) && shows_something(worker);
}

void MapIndexer::index_tile(const MapTile& tile, Worker& worker, TileState& state, Task& task,
                            const std::function<void()>& after_point) {
  const int margin = this->margin();
  read_tile(tile, margin, worker);
  if (settings_.averaging == Averaging::likeness) {
    const Timed timed(worker.times.averaging);
    worker.likeness.look_at(worker.tile);
  }
  const auto across = index(tile.columns);
  state.found.resize(across * index(tile.rows));
  state.known.resize(state.found.size());
  std::vector<KnownOrientation> guesses;
  for (std::size_t& here = state.done; here < state.found.size(); after_point()) {
    task.check();
    const int column = static_cast<int>(here % across);
    const int row = static_cast<int>(here / across);
    const auto point = grid_.point(tile.column + column, tile.row + row);
    if (!point || worker.tile.present[worker.tile.place(column + margin, row + margin)] == 0) {
      state.found[here++].missing = 1;
      continue;
    }
    pattern_of(column + margin, row + margin, worker);
    guesses.clear();
    if (column > 0 && state.known[here - 1].model >= 0) guesses.push_back(state.known[here - 1]);
    if (row > 0 && state.known[here - across].model >= 0) guesses.push_back(state.known[here - across]);
    state.found[here] = index_point(*point, guesses, worker, state.known[here], task);
    ++here;
  }
}

PointResult MapIndexer::index_point(std::size_t point, std::span<const KnownOrientation> guesses, Worker& worker,
                                    KnownOrientation& known, Task& task) const {
  PointResult result;
  const PictureSize size{scan_.header().width, scan_.header().height, 1};
  PatternIndexer& indexer = worker.indexer;
  {
    const Timed timed(worker.times.preparing);
    if (!indexer.take(worker.pattern, reader_.gathering(), settings_.index)) return result;
    if (!shows_something(worker)) return result;
    result.quality = smoothness(indexer.prepared());
  }
  const PatternCentre centre = upside_down(centres_.at(point), size);
  const bool on_picture = settings_.index.fit_picture;
  KnownOrientation best;
  const auto model_of = [this](const KnownOrientation& one) -> const CrystalModel& {
    return *models_[index(one.model)];
  };
  PictureFit best_fit;
  int bands = 0;
  double fit_deg = 0;
  bool settled = false;
  if (on_picture) {
    const Timed timed(worker.times.trying);
    for (const KnownOrientation& guess : guesses) {
      const PictureFit fit = indexer.fit(model_of(guess), guess.crystal_from_picture, centre, settings_.index);
      if (fit.correlation <= best.correlation) continue;
      best = {guess.model, fit.correlation, fit.crystal_from_picture};
      best_fit = fit;
      settled = fit.correlation >= as_good * guess.correlation;
      if (settled) break;
    }
  }
  const auto find = [&] {
    const Timed timed(worker.times.finding);
    bool replaced = false;
    for (const IndexSolution& solution : indexer.index_taken(centre, models_, settings_.index, task)) {
      if (on_picture && solution.correlation <= best.correlation) continue;
      if (!on_picture && best.model >= 0) break;  // they stand in order
      best = {static_cast<int>(std::find(models_.begin(), models_.end(), solution.model) - models_.begin()),
              on_picture ? solution.correlation : solution.confidence, solution.crystal_from_picture};
      bands = solution.matched;
      fit_deg = solution.mean_deviation_deg;
      best_fit = {};
      replaced = true;
    }
    if (on_picture && replaced && bands > 0) {
      best_fit = indexer.fit(model_of(best), best.crystal_from_picture, centre, settings_.index);
      best.crystal_from_picture = best_fit.crystal_from_picture;
      best.correlation = best_fit.correlation;
    }
  };
  const auto choose = [&] {
    best_fit.crystal_from_picture = best.crystal_from_picture;
    const ChosenFit chosen = indexer.choose(model_of(best), best_fit, centre, settings_.index);
    best_fit = chosen.fit;
    best.crystal_from_picture = best_fit.crystal_from_picture;
    if (!chosen.lead) return true;
    best.correlation = indexer.correlation(model_of(best), best.crystal_from_picture, centre);
    constexpr double steps = 1000;
    constexpr double most = 127;
    result.lead = static_cast<std::int8_t>(std::lround(std::clamp(steps * *chosen.lead, -most, most)));
    return *chosen.lead >= 0;
  };
  if (!settled) find();
  if (best.model < 0) return result;
  // A neighbour of the other hand fits nearly as well: the crystal that this one belongs to may be among the others.
  if (on_picture && !choose() && settled && models_.size() > 1) {
    find();
    (void)choose();
  }
  if (on_picture) fit_deg = std::hypot(best_fit.errors[0], best_fit.errors[1], best_fit.errors[2]);
  result.confidence = static_cast<float>(best.correlation);
  result.fit_deg = static_cast<float>(fit_deg);
  result.bands = static_cast<std::uint8_t>(std::clamp(bands, 0, 255));
  if (best.correlation < settings_.least_confidence || fit_deg > settings_.most_fit_deg) return result;
  const auto angles = bunge_deg(best.crystal_from_picture * picture_from_sample_);
  for (std::size_t i = 0; i < 3; ++i) {
    result.bunge_rad[i] = static_cast<float>(angles[i] * std::numbers::pi / 180);
  }
  result.phase = static_cast<std::int8_t>(best.model + 1);
  known = best;
  return result;
}

}  // namespace zol
