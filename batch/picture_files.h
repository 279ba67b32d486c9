// Pictures of a map as .png, and their legend.
#pragma once

#include <string>
#include <vector>

#include "scans/map_result.h"

namespace zol {

/// The files that are written.
[[nodiscard]] std::vector<std::string> map_picture_paths(const std::string& prefix);

/// PREFIX-ipf-x.png and so on for each kind of picture, and PREFIX-legend.png. A point is a rectangle of its steps'
/// shape. @param scale  its pixels across; 0: small maps are enlarged @throws RunFailure  one cannot be written
void write_map_pictures(const MapResult& map, const std::string& prefix, int scale);

}  // namespace zol
