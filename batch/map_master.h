// Master patterns of "zol-batch map" and "index": from files, or made for each crystal.
#pragma once

#include <CLI/CLI.hpp>
#include <memory>
#include <string>
#include <vector>

#include "batch/crystal_source.h"
#include "dynamics/master_pattern.h"
#include "indexing/detector.h"

namespace zol {

/// The words of the command line.
struct MapMasterWords {
  std::vector<std::string> masters;  ///< "auto", "none", or a file for each crystal; empty: auto where that is quick
  double depth_nm = 8;
};

void add_master_options(CLI::App& command, MapMasterWords& words);

/// All that results depend on, files too.
[[nodiscard]] std::string fingerprint_text(const MapMasterWords& words);

/// What patterns see of a crystal's master pattern, smoothed by their pixels.
struct MasterView {
  double kilovolt = 20;
  PatternCentre centre;
  int width = 0, height = 0;
  int threads = 1;

  /// Of a pixel in the middle as it is fitted.
  [[nodiscard]] double pixel_deg() const;
};

/// Which crystals are fitted to dynamical patterns, and these. Where nothing was told, all are or none: correlations
/// decide between crystals, and those with dynamical patterns are the higher ones.
class CrystalMasters {
 public:
  /// @param crystals  have to live as long
  /// @throws RunFailure  the words leave a crystal without, a file cannot be read, or a crystal cannot have what was
  /// asked
  CrystalMasters(MapMasterWords words, const std::vector<LoadedCrystal>& crystals, double kilovolt);

  /// Whether any crystal has one.
  [[nodiscard]] bool any() const;
  /// A line that tells why bands are drawn though nobody asked for that; empty: they are not.
  [[nodiscard]] const std::string& remark() const { return remark_; }
  /// What they are, for reports.
  [[nodiscard]] std::string description(std::size_t number) const;
  /// @param number  of the crystal, from 0
  /// @returns null where its bands are to be drawn
  /// @throws RunFailure  it cannot be made
  [[nodiscard]] std::shared_ptr<const KinematicSphere> sphere(std::size_t number, const MasterView& view,
                                                              Task& task) const;

 private:
  MapMasterWords words_;
  const std::vector<LoadedCrystal>* crystals_;
  std::string remark_;
  std::vector<std::string> of_crystal_;  ///< "auto", "none" or a file
  std::vector<MasterPattern> of_files_;  ///< where there is one
};

}  // namespace zol
