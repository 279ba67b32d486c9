// A scan of the command line with all that its patterns are indexed by.
#pragma once

#include <memory>
#include <vector>

#include "batch/map_words.h"
#include "core/task.h"
#include "scans/map_indexer.h"
#include "scans/map_result.h"

namespace zol {

struct MapJob {
  std::unique_ptr<Scan> scan;
  ScanGrid grid;
  MapSettings settings;
  double kilovolt = 0;
  std::vector<CrystalModel> models;
  std::vector<MapPhase> phases;
  std::vector<std::string> fitted_to;  ///< of each crystal, for reports
  std::string master_remark;           ///< why bands are drawn though nobody asked for that; mostly empty
  PatternCentre centre;                ///< of the middle point, widths
  std::string centre_source;           ///< "of the scan" and so on
  std::unique_ptr<MapIndexer> indexer;
};

/// Opens the scan, loads the crystals and makes the indexer, which is not prepared yet.
/// @throws RunFailure  a file cannot be read, or leaves open what an option has to tell; the message names it
/// @throws CLI::ValidationError  wrong words
[[nodiscard]] MapJob make_map_job(const MapWords& words, Task& task);

/// Prepares the indexer, and fits the centre where the words ask for it.
/// @throws RunFailure  too few points are clear enough for that
void prepare_map_job(MapJob& job, const MapWords& words, Task& task);

/// The centre as .ang has it.
[[nodiscard]] StoredCentre centre_of_ang(const MapJob& job);

}  // namespace zol
