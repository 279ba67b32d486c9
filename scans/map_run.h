// A map indexed by all cores, so that a run that was stopped or killed is gone on with.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "scans/map_indexer.h"

namespace zol {

struct MapRun {
  int threads = 1;
  std::string part_path;  ///< where finished tiles are kept until the end; empty: nowhere
  bool resume = false;    ///< tiles that are kept are not indexed again
  /// A tile that takes long is kept as far as it is, so often: a process that is killed loses no more.
  std::chrono::milliseconds keep_every{1000};
  std::uint64_t fingerprint = 0;  ///< of scan and settings: tiles of another run are not taken
  /// Asked every now and then, by any thread.
  std::function<bool()> stop = [] { return false; };
  StepTimes* times = nullptr;  ///< where the time of all threads is added
  /// Points that are done, of all; by one thread at a time.
  std::function<void(std::size_t done, std::size_t all)> progress = [](std::size_t, std::size_t) {};
};

/// Hands out tiles to be worked on and takes what is found. Many threads may call it.
class TileDesk {
 public:
  TileDesk() = default;
  TileDesk(const TileDesk&) = delete;
  TileDesk& operator=(const TileDesk&) = delete;
  virtual ~TileDesk() = default;
  /// The next tile; none when all are handed out, or nobody is to go on.
  virtual std::optional<std::size_t> next() = 0;
  /// How far an earlier run had come with a tile.
  virtual TileState begun(std::size_t /*tile*/) { return {}; }
  /// A tile that is not done yet.
  virtual void keep(std::size_t /*tile*/, const TileState& /*state*/) {}
  virtual void deliver(std::size_t tile, const std::vector<PointResult>& results) = 0;
};

/// What the calling thread does while threads of this process work at the same desk, as serving other processes. It is
/// told whether the run has been stopped, and returns false where it stops the run itself.
using AlongsideWork = std::function<bool(TileDesk& desk, const std::function<bool()>& stopped)>;

/// Works on tiles until the desk has none, or the run is stopped. @returns false where it was stopped
/// @throws RunFailure  of any thread, or of the work alongside
[[nodiscard]] bool work_on_tiles(MapIndexer& indexer, TileDesk& desk, const MapRun& run,
                                 const AlongsideWork& alongside = {});

/// Results are the same for any number of threads and for a run gone on with.
/// @returns false where it was stopped; what is finished is kept
/// @throws RunFailure  the scan cannot be read, the kept tiles are those of another run, or cannot be written
[[nodiscard]] bool run_map(MapIndexer& indexer, const ScanGrid& grid, const MapRun& run,
                           std::vector<PointResult>& points, const AlongsideWork& alongside = {});

/// FNV-1a, 64 bits, going on from an earlier one.
[[nodiscard]] std::uint64_t fingerprint_of(std::string_view bytes, std::uint64_t before = 14695981039346656037U);

}  // namespace zol
