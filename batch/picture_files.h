// Pictures of a map as .png, and their legend.
#pragma once

#include <string>

#include "scans/map_result.h"

namespace zol {

/// PREFIX-ipf-x.png and so on for each kind of picture, and PREFIX-legend.png. A point is a rectangle of its steps'
/// shape, small maps are enlarged. @throws RunFailure  one cannot be written
void write_map_pictures(const MapResult& map, const std::string& prefix);

}  // namespace zol
