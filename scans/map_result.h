// What is found at the points of a map.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "core/lattice.h"
#include "indexing/orientation.h"
#include "scans/scan.h"

namespace zol {

/// One point. Trivial, so that a file of them can be gone on with.
struct PointResult {
  std::array<float, 3> bunge_rad{};  ///< sample to crystal, axes as detector.h has them
  float quality = 0;                 ///< of the picture: 0 noise, 1 smooth; 0 where there is none
  float confidence = 0;      ///< correlation with the computed picture, or lead in votes where it was not fitted
  float fit_deg = 0;         ///< mean deviation of the bands, or the error of the fit on the picture
  std::int8_t phase = 0;     ///< 1 the first crystal; 0 not indexed
  std::uint8_t bands = 0;    ///< that agree; 0 where they were not looked for
  std::uint8_t missing = 0;  ///< 1: there was no pattern
  std::int8_t lead = 0;      ///< thousandths of correlation over the best look-alike, -127 to 127; 0: there is none

  bool operator==(const PointResult&) const = default;
};

/// What the writers need of a phase.
struct MapPhase {
  std::string name, formula;
  CellConstants cell;
  int space_group = 0;
  std::string laue_class;  ///< as "m-3m"
  struct Family {
    std::array<int, 3> hkl{};
    double intensity = 0;  ///< of the strongest, 100
  };
  std::vector<Family> families;
  std::vector<Rotation> rotations;  ///< proper ones of the Laue group, in the crystal's frame
};

struct MapResult {
  ScanGrid grid;
  std::vector<PointResult> points;
  std::vector<MapPhase> phases;
  StoredCentre centre;  ///< of the middle of the map, in the convention of EDAX
  double sample_tilt_deg = 70, detector_tilt_deg = 0, kilovolt = 20;
  int width = 0, height = 0;  ///< pixels of a pattern
  std::string source;         ///< name of the scan
  std::string creator;        ///< name and version of the program
  std::string settings;       ///< text from which the run can be repeated
};

}  // namespace zol
