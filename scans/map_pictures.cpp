#include "scans/map_pictures.h"

#include <algorithm>
#include <cmath>

#include "indexing/units.h"

namespace zol {
namespace {

constexpr int scale_colours = 256;

std::uint8_t byte_of(double part) {
  constexpr double full = 255;
  return static_cast<std::uint8_t>(std::lround(full * std::clamp(part, 0.0, 1.0)));
}

/// From dark blue over green to yellow, as bright as large.
Rgb heat(double part) {
  struct Stop {
    double red, green, blue;
  };
  constexpr std::array stops{Stop{.15, .05, .35}, Stop{.15, .35, .60}, Stop{.15, .65, .50}, Stop{.60, .85, .25},
                             Stop{1, .95, .20}};
  const double place = std::clamp(part, 0.0, 1.0) * static_cast<double>(stops.size() - 1);
  const auto first = std::min(static_cast<std::size_t>(place), stops.size() - 2);
  const double share = place - static_cast<double>(first);
  const Stop& a = stops[first];
  const Stop& b = stops[first + 1];
  return {byte_of(a.red + share * (b.red - a.red)), byte_of(a.green + share * (b.green - a.green)),
          byte_of(a.blue + share * (b.blue - a.blue))};
}

Rgb grey(double part) { return {byte_of(part), byte_of(part), byte_of(part)}; }

Rotation orientation_of(const PointResult& point) {
  return rotation_of_bunge({static_cast<double>(point.bunge_rad[0]) * degrees,
                            static_cast<double>(point.bunge_rad[1]) * degrees,
                            static_cast<double>(point.bunge_rad[2]) * degrees});
}

/// The next round number that all but a fiftieth of the values stay below.
double round_end(std::vector<float> values) {
  std::erase_if(values, [](float value) { return !(value >= 0); });
  if (values.empty()) return 1;
  const auto place = values.begin() + static_cast<std::ptrdiff_t>(values.size() - 1 - values.size() / 50);
  std::nth_element(values.begin(), place, values.end());
  double end = 0.001;
  constexpr std::array factors{2.0, 2.5, 2.0};
  constexpr double rounding = 1 - 1e-4;
  for (std::size_t i = 0; end < static_cast<double>(*place) * rounding; ++i) end *= factors[i % factors.size()];
  return end;
}

using Colouring = Rgb (*)(double part);

MapPicture scaled(const MapResult& map, const std::vector<float>& values, double end, const std::string& unit,
                  Colouring colour) {
  MapPicture picture;
  picture.unit = unit;
  picture.scale_end = end;
  for (int i = 0; i < scale_colours; ++i) picture.scale.push_back(colour(i / (scale_colours - 1.0)));
  picture.pixels.resize(map.points.size());
  for (std::size_t i = 0; i < values.size(); ++i) {
    if (values[i] >= 0) picture.pixels[i] = colour(static_cast<double>(values[i]) / end);
  }
  return picture;
}

MapPicture poles(const MapResult& map, int axis) {
  std::vector<PoleColours> keys;
  keys.reserve(map.phases.size());
  for (const auto& phase : map.phases) keys.emplace_back(phase.rotations);
  MapPicture picture;
  picture.pixels.resize(map.points.size());
  for (std::size_t i = 0; i < map.points.size(); ++i) {
    const PointResult& point = map.points[i];
    if (point.phase < 1) continue;
    picture.pixels[i] = keys[static_cast<std::size_t>(point.phase - 1)].colour(orientation_of(point).col(axis));
  }
  return picture;
}

template <class Get>
std::vector<float> values_of(const MapResult& map, const Get& get) {
  std::vector<float> values;
  values.reserve(map.points.size());
  for (const auto& point : map.points) values.push_back(get(point));
  return values;
}

/// Pixels of points to pixels of columns and rows: rows may be short.
void lay_out(const ScanGrid& grid, MapPicture& picture) {
  picture.width = grid.columns;
  picture.height = grid.rows;
  if (picture.pixels.size() == static_cast<std::size_t>(grid.columns) * static_cast<std::size_t>(grid.rows)) return;
  std::vector<Rgb> placed(static_cast<std::size_t>(grid.columns) * static_cast<std::size_t>(grid.rows));
  for (std::size_t i = 0; i < picture.pixels.size(); ++i) {
    const auto [column, row] = grid.place(i);
    placed[static_cast<std::size_t>(row) * static_cast<std::size_t>(grid.columns) + static_cast<std::size_t>(column)] =
        picture.pixels[i];
  }
  picture.pixels = std::move(placed);
}

MapPicture picture_of(const MapResult& map, MapPictureKind kind) {
  switch (kind) {
    case MapPictureKind::ipf_x:
    case MapPictureKind::ipf_y:
    case MapPictureKind::ipf_z:
      return poles(map, static_cast<int>(kind) - static_cast<int>(MapPictureKind::ipf_x));
    case MapPictureKind::quality:
      return scaled(map, values_of(map, [](const auto& p) { return p.missing != 0 ? -1 : p.quality; }), 1, "", grey);
    case MapPictureKind::confidence:
      return scaled(map, values_of(map, [](const auto& p) { return p.phase < 1 ? -1 : p.confidence; }), 1, "", grey);
    case MapPictureKind::fit: {
      const auto values = values_of(map, [](const auto& p) { return p.phase < 1 ? -1 : p.fit_deg; });
      return scaled(map, values, round_end(values), "degrees", heat);
    }
    case MapPictureKind::phase: {
      MapPicture picture;
      for (const auto& point : map.points) picture.pixels.push_back(phase_colour(point.phase));
      return picture;
    }
    case MapPictureKind::local_misorientation:
      break;
  }
  const auto values = local_misorientation_deg(map);
  return scaled(map, values, round_end(values), "degrees", heat);
}

}  // namespace

const char* name_of(MapPictureKind kind) {
  constexpr std::array names{"ipf-x", "ipf-y", "ipf-z", "iq", "ci", "fit", "phase", "kam"};
  return names[static_cast<std::size_t>(kind)];
}

Rgb phase_colour(int phase) {
  constexpr std::array<Rgb, 8> colours{{{204, 51, 51},
                                        {51, 102, 204},
                                        {51, 153, 76},
                                        {230, 180, 30},
                                        {140, 80, 180},
                                        {40, 170, 180},
                                        {230, 120, 40},
                                        {150, 150, 150}}};
  if (phase < 1) return {};
  return colours[static_cast<std::size_t>(phase - 1) % colours.size()];
}

std::vector<float> local_misorientation_deg(const MapResult& map) {
  constexpr double other_grain_deg = 5;
  std::vector<double> sums(map.points.size());
  std::vector<int> counts(map.points.size());
  const auto compare = [&](std::size_t i, const std::optional<std::size_t>& k) {
    if (!k || map.points[i].phase < 1 || map.points[i].phase != map.points[*k].phase) return;
    const auto& rotations = map.phases[static_cast<std::size_t>(map.points[i].phase - 1)].rotations;
    const double angle = misorientation_deg(orientation_of(map.points[i]), orientation_of(map.points[*k]), rotations);
    if (angle > other_grain_deg) return;
    for (const std::size_t one : {i, *k}) {
      sums[one] += angle;
      ++counts[one];
    }
  };
  for (std::size_t i = 0; i < map.points.size(); ++i) {
    const auto [column, row] = map.grid.place(i);
    compare(i, map.grid.point(column + 1, row));
    compare(i, map.grid.point(column, row + 1));
    // Rows of a hexagonal grid are shifted in turns, so that two points of the next one are neighbours.
    if (map.grid.hexagonal) compare(i, map.grid.point(row % 2 == 1 ? column + 1 : column - 1, row + 1));
  }
  std::vector<float> means(map.points.size(), -1);
  for (std::size_t i = 0; i < means.size(); ++i) {
    if (counts[i] > 0) means[i] = static_cast<float>(sums[i] / counts[i]);
  }
  return means;
}

MapPicture map_picture(const MapResult& map, MapPictureKind kind) {
  MapPicture picture = picture_of(map, kind);
  lay_out(map.grid, picture);
  return picture;
}

}  // namespace zol
