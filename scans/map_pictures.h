// Pictures of a map, a pixel a point.
#pragma once

#include <string>
#include <vector>

#include "scans/map_result.h"
#include "scans/pole_colour.h"

namespace zol {

enum class MapPictureKind { ipf_x, ipf_y, ipf_z, quality, confidence, fit, phase, local_misorientation };

/// "ipf-x", "ipf-y", "ipf-z", "iq", "ci", "fit", "phase", "kam".
[[nodiscard]] const char* name_of(MapPictureKind kind);
inline constexpr std::array all_map_pictures{
    MapPictureKind::ipf_x,      MapPictureKind::ipf_y, MapPictureKind::ipf_z, MapPictureKind::quality,
    MapPictureKind::confidence, MapPictureKind::fit,   MapPictureKind::phase, MapPictureKind::local_misorientation};

struct MapPicture {
  int width = 0, height = 0;  ///< columns and rows
  std::vector<Rgb> pixels;
  std::string unit;        ///< of the scale
  double scale_end = 0;    ///< what the last colour of the scale stands for; it begins at 0. 0: there is none
  std::vector<Rgb> scale;  ///< its colours
};

/// Mean misorientation to the nearest neighbours of the same phase, of each point, degrees; neighbours that differ by
/// more than 5 degrees belong to another grain and do not count. -1 where a point is not indexed or has none.
[[nodiscard]] std::vector<float> local_misorientation_deg(const MapResult& map);

/// Points without a value are black. Axes of the sample are those of .ang: X down the slope, Y right, Z normal.
[[nodiscard]] MapPicture map_picture(const MapResult& map, MapPictureKind kind);

/// Colour of a phase, counted from 1.
[[nodiscard]] Rgb phase_colour(int phase);

}  // namespace zol
