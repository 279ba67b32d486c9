// The words of the command line that tell of a scan and how its patterns are indexed.
#pragma once

#include <CLI/CLI.hpp>
#include <optional>
#include <string>
#include <vector>

#include "batch/map_master.h"

namespace zol {

struct MapWords {
  std::string scan;
  std::vector<std::string> crystals, outputs;
  std::string centre, convention = "bruker", size, background = "auto", average, refine = "pattern";
  std::string scan_x = "right", scan_y = "down", dataset, region, mask;
  std::string pictures;        ///< what their names begin with; empty: none
  int picture_scale = 0;       ///< pixels of a point; 0: by the size of the map
  std::string settings_file;   ///< where words are read that the command line does not tell
  std::string write_settings;  ///< where all words are written
  std::string settings_text;   ///< of all words, as they are written there
  std::string results_text;    ///< of those that results depend on
  std::optional<double> tilt, camera, step;
  double screen_mm = 0, kilovolt = 0, min_ci = 0.1, max_fit = 3;
  int bands = 9, families = 6, threads = 0, fit_centre = 0;
  bool flip = false, resume = false, check = false, quiet = false, verbose = false, raw = false;
  MapMasterWords master;
};

/// Scan, crystals, geometry and patterns.
void add_scan_words(CLI::App& command, MapWords& words);
/// Bands and families of planes.
void add_band_words(CLI::App& command, MapWords& words);
/// What else a map needs: indexing, results, running.
void add_map_words(CLI::App& command, MapWords& words);

}  // namespace zol
