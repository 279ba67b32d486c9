#include "scans/map_indexer.h"

#include <algorithm>
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

std::int8_t thousandths(double part) {
  constexpr double steps = 1000;
  constexpr double most = 127;
  return static_cast<std::int8_t>(std::lround(std::clamp(steps * part, -most, most)));
}

}  // namespace

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
    background_.find(scan_, reader_, grid_.points(), settings_, task);
  }
  if (settings_.averaging == Averaging::likeness) find_likeness(task);
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
  background_.take_off(worker.pattern);
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
  {
    const Timed timed(worker.times.preparing);
    if (!worker.indexer.take(worker.pattern, reader_.gathering(), settings_.index)) return result;
    if (!shows_something(worker)) return result;
    result.quality = smoothness(worker.indexer.prepared());
  }
  const PatternCentre centre = turned_centre(point);
  const FoundOrientation found =
      PointIndexer(worker.indexer, centre, models_, settings_.index, worker.times).index(guesses, task);
  if (found.model < 0) return result;
  result.confidence = static_cast<float>(found.correlation);
  result.fit_deg = static_cast<float>(found.fit_deg);
  result.bands = static_cast<std::uint8_t>(std::clamp(found.bands, 0, 255));
  if (found.lead) result.lead = thousandths(*found.lead);
  if (found.correlation < settings_.least_confidence || found.fit_deg > settings_.most_fit_deg) return result;
  const auto angles = bunge_deg(found.crystal_from_picture * picture_from_sample_);
  for (std::size_t i = 0; i < 3; ++i) {
    result.bunge_rad[i] = static_cast<float>(angles[i] * std::numbers::pi / 180);
  }
  result.phase = static_cast<std::int8_t>(found.model + 1);
  known = found;
  return result;
}

}  // namespace zol
