// Master patterns of "zol-batch map": from files, or made for each crystal.
#pragma once

#include <CLI/CLI.hpp>
#include <memory>
#include <string>
#include <vector>

#include "batch/crystal_source.h"
#include "dynamics/master_view.h"
#include "indexing/kinematic_sphere.h"

namespace zol {

/// The words of the command line.
struct MapMasterWords {
  std::vector<std::string> masters;  ///< "auto", or a file for each crystal
  double depth_nm = 8;
};

void add_master_options(CLI::App& map, MapMasterWords& words);

/// All that results depend on, files too.
[[nodiscard]] std::string fingerprint_text(const MapMasterWords& words);

/// @param number  of the crystal, from 0
/// @returns null where no master pattern is asked for
/// @throws RunFailure  a file that can't be read, or a crystal that has no such pattern
[[nodiscard]] std::shared_ptr<const KinematicSphere> master_sphere_of(const MapMasterWords& words, std::size_t number,
                                                                      const LoadedCrystal& crystal,
                                                                      const MasterView& view, Task& task);

}  // namespace zol
