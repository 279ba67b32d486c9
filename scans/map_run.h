// A map indexed by all cores, so that a run that was stopped or killed is gone on with.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "scans/map_indexer.h"

namespace zol {

struct MapRun {
  int threads = 1;
  std::string part_path;          ///< where finished tiles are kept until the end; empty: nowhere
  bool resume = false;            ///< tiles that are kept are not indexed again
  std::uint64_t fingerprint = 0;  ///< of scan and settings: tiles of another run are not taken
  /// Asked every now and then, by any thread.
  std::function<bool()> stop = [] { return false; };
  StepTimes* times = nullptr;  ///< where the time of all threads is added
  /// Points that are done, of all; by one thread at a time.
  std::function<void(std::size_t done, std::size_t all)> progress = [](std::size_t, std::size_t) {};
};

/// Results are the same for any number of threads and for a run gone on with.
/// @returns false where it was stopped; what is finished is kept
/// @throws RunFailure  the scan can't be read, the kept tiles are those of another run, or can't be written
[[nodiscard]] bool run_map(MapIndexer& indexer, const ScanGrid& grid, const MapRun& run,
                           std::vector<PointResult>& points);

/// FNV-1a, 64 bits, going on from an earlier one.
[[nodiscard]] std::uint64_t fingerprint_of(std::string_view bytes, std::uint64_t before = 14695981039346656037U);

}  // namespace zol
