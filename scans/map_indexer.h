// All patterns of a scan to orientations.
//
// The map is cut into tiles, which are worked on one by one in any order and by any number of threads; what is found
// depends on the tile alone. Within a tile the orientation of the neighbour before is tried first: where it fits as
// well as it did there, bands need not be looked for. Where it does not, as at a boundary, bands and votes give more
// orientations, all are fitted, and the best stays.
#pragma once

#include <array>
#include <functional>
#include <span>
#include <vector>

#include "scans/map_result.h"
#include "scans/map_settings.h"
#include "scans/point_indexer.h"
#include "scans/static_background.h"
#include "scans/step_times.h"
#include "scans/tile_reader.h"

namespace zol {

/// How far a tile is. What follows depends on it alone, so that another run can go on with it.
struct TileState {
  std::size_t done = 0;                 ///< points, row by row
  std::vector<PointResult> found;       ///< of the whole tile
  std::vector<KnownOrientation> known;  ///< of the whole tile; a row of it is looked back at
};

/// @param scan  read by one thread at a time
class MapIndexer {
 public:
  MapIndexer(Scan& scan, const ScanGrid& grid, MapCentres centres, std::vector<const CrystalModel*> models,
             const MapSettings& settings);

  [[nodiscard]] const std::vector<MapTile>& tiles() const { return tiles_; }
  /// Looks at a few points all over the map: mean picture, length of likeness. To be called first.
  void prepare(Task& task);
  /// Of averaging by likeness: the length at which weights have fallen to 1/e.
  [[nodiscard]] double likeness() const { return likeness_; }
  [[nodiscard]] BackgroundKind background_kind() const { return background_.kind(); }

  [[nodiscard]] const ScanGrid& grid() const { return grid_; }
  [[nodiscard]] const std::vector<const CrystalModel*>& models() const { return models_; }
  [[nodiscard]] const IndexSettings& index_settings() const { return settings_.index; }
  [[nodiscard]] PictureSize picture_size() const { return {scan_.header().width, scan_.header().height, 1}; }
  /// The pattern centre of a point in its picture turned upside down, as it is indexed.
  [[nodiscard]] PatternCentre turned_centre(std::size_t point) const {
    return upside_down(centres_.at(point), picture_size());
  }
  /// Centres that were found meanwhile. Not while other threads index.
  void set_centres(MapCentres centres) { centres_ = std::move(centres); }

  /// The storage of one thread.
  struct Worker {
    Worker(float saturated, float rounding) : likeness(saturated, rounding) {}
    PatternBlock block;
    PatternTile tile;
    LikenessAverage likeness;
    PatternIndexer indexer;
    std::vector<float> pattern;
    StepTimes times;
  };
  [[nodiscard]] Worker make_worker() const { return {saturated_, rounding_}; }
  /// Goes on with a tile to its end. Many threads may call it, each with a worker of its own.
  /// @param after_point  is called after each point
  void index_tile(
      const MapTile& tile, Worker& worker, TileState& state, Task& task,
      const std::function<void()>& after_point = [] {});
  /// Makes the pattern of one point ready in the worker's indexer, as the map has it.
  /// @returns false where there is none, or it is blank
  [[nodiscard]] bool take_point(std::size_t point, Worker& worker);

 private:
  void read_tile(const MapTile& tile, int margin, Worker& worker);
  void find_likeness(Task& task);
  PointResult index_point(std::size_t point, std::span<const KnownOrientation> guesses, Worker& worker,
                          KnownOrientation& known, Task& task) const;
  void pattern_of(int column, int row, Worker& worker) const;
  [[nodiscard]] bool shows_something(const Worker& worker) const;
  [[nodiscard]] int margin() const;
  [[nodiscard]] std::array<int, 2> tile_size() const;

  Scan& scan_;
  ScanGrid grid_;
  TileReader reader_;
  MapCentres centres_;
  std::vector<const CrystalModel*> models_;
  MapSettings settings_;
  Rotation picture_from_sample_;
  std::vector<MapTile> tiles_;
  StaticBackground background_;
  double likeness_ = 0;
  float saturated_, rounding_;
};

}  // namespace zol
