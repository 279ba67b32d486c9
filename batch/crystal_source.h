// Crystals of the command line: any structure file, or a crystal file of the program.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "core/crystal_state.h"
#include "core/data_root.h"
#include "core/space_group.h"
#include "core/task.h"
#include "indexing/pattern_indexer.h"
#include "scans/map_result.h"

namespace zol {

struct LoadedCrystal {
  std::string title;    ///< of the file, without folder and ending
  std::string formula;  ///< contents of the cell, empty where they are observed lines
  CrystalState state;   ///< cell, sites, unit cell, tables of scattering factors
  SpaceGroup group;
  std::vector<std::string> report;  ///< what was read and taken for granted, of a structure file
};

/// @throws RunFailure  it cannot be read, or leaves something open that an option has to tell; the message names it
[[nodiscard]] LoadedCrystal load_crystal(const std::string& path, const DataRoot& data, Task& task);

/// @param sphere  null: the bands of its planes
/// @throws RunFailure  too few reflections
[[nodiscard]] CrystalModel indexing_model(const LoadedCrystal& crystal, double kilovolt, int families, Task& task,
                                          std::shared_ptr<const KinematicSphere> sphere = nullptr);

/// What files of maps tell of it.
[[nodiscard]] MapPhase map_phase(const LoadedCrystal& crystal, const CrystalModel& model);

}  // namespace zol
