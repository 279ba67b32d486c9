// How a map is indexed.
#pragma once

#include <array>
#include <vector>

#include "indexing/pattern_indexer.h"
#include "scans/map_geometry.h"
#include "scans/neighbour_average.h"

namespace zol {

enum class Refinement { none, bands, pattern };
enum class Background { automatic, stored, dynamic, none };

struct MapSettings {
  MapGeometry geometry;
  IndexSettings index;
  Refinement refinement = Refinement::pattern;
  Background background = Background::automatic;
  std::vector<float> background_picture;  ///< to be taken as the stored one instead of the scan's own
  Averaging averaging = Averaging::likeness;
  double own_share = 0.34;        ///< that the middle point keeps of itself when it is averaged by likeness
  double least_confidence = 0.1;  ///< below it a point counts as not indexed
  double most_fit_deg = 3;
  bool flip = false;            ///< patterns stand upside down in the file
  std::array<int, 4> region{};  ///< x, y, width, height of the part of the map that is indexed; all 0: the whole
};

}  // namespace zol
