#include "scans/map_files.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <numbers>

#include "core/atomic_file.h"
#include "core/run_failure.h"
#include "indexing/orientation.h"
#include "indexing/units.h"

namespace zol {
namespace {

constexpr double turn_deg = 360;

std::string fixed(double value, int decimals) {
  std::array<char, 64> text{};
  const auto [end, error] =
      std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed, decimals);
  return error == std::errc() ? std::string(text.data(), end) : "0";
}

std::string padded(const std::string& text, std::size_t width) {
  return text.size() < width ? std::string(width - text.size(), ' ') + text : text;
}

struct LaueClass {
  std::string_view name;
  int edax, oxford;
};
constexpr std::array<LaueClass, 11> classes{{{"-1", 1, 1},
                                             {"2/m", 2, 2},
                                             {"mmm", 22, 3},
                                             {"4/m", 4, 4},
                                             {"4/mmm", 42, 5},
                                             {"-3", 3, 6},
                                             {"-3m", 32, 7},
                                             {"6/m", 6, 8},
                                             {"6/mmm", 62, 9},
                                             {"m-3", 23, 10},
                                             {"m-3m", 43, 11}}};

const LaueClass& laue(const std::string& name) {
  const auto found =
      std::find_if(classes.begin(), classes.end(), [&name](const LaueClass& c) { return c.name == name; });
  return found == classes.end() ? classes.front() : *found;
}

/// Micrometres from the first point; every second row of a hexagonal grid is shifted.
std::array<double, 2> place_of(const ScanGrid& grid, std::size_t point) {
  const auto [column, row] = grid.place(point);
  const double shift = grid.hexagonal && row % 2 == 1 ? 0.5 : 0;
  return {(column + shift) * grid.step_x, row * grid.step_y};
}

void add_phase(std::string& text, const MapPhase& phase, std::size_t number) {
  const auto& cell = phase.cell;
  text += "# Phase " + std::to_string(number) + "\n# MaterialName  \t" + phase.name + "\n# Formula     \t" +
          phase.formula + "\n# Info \t\t\n# Symmetry              " + std::to_string(laue(phase.laue_class).edax) +
          "\n# LatticeConstants      ";
  for (const double value : {cell.a, cell.b, cell.c, cell.alpha, cell.beta, cell.gamma}) {
    text += fixed(value, 3) + ' ';
  }
  text += "\n# NumberFamilies        " + std::to_string(phase.families.size()) + '\n';
  for (const auto& family : phase.families) {
    text += "# hklFamilies   \t";
    for (const int index : family.hkl) text += padded(std::to_string(index), 2) + ' ';
    text += "1 " + fixed(family.intensity, 6) + " 1\n";
  }
  text += "# Categories 0 0 0 0 0 \n#\n";
}

std::string ang_header(const MapResult& map) {
  std::string text = "# TEM_PIXperUM          1.000000\n";
  constexpr std::array<const char*, 3> names{"x-star", "y-star", "z-star"};
  for (std::size_t i = 0; i < 3; ++i) {
    text += std::string("# ") + names[i] + "                " + fixed(map.centre.numbers[i], 6) + '\n';
  }
  text += "# SampleTiltAngle       " + fixed(map.sample_tilt_deg, 6) + "\n# CameraElevationAngle  " +
          fixed(map.detector_tilt_deg, 6) + "\n# WorkingDistance       0.000000\n#\n";
  for (std::size_t i = map.phases.size(); i > 0; --i) add_phase(text, map.phases[i - 1], i);
  const auto& grid = map.grid;
  const int even = grid.hexagonal && grid.short_rows ? grid.columns - 1 : grid.columns;
  text += std::string("# GRID: ") + (grid.hexagonal ? "HexGrid" : "SqrGrid") + "\n# XSTEP: " + fixed(grid.step_x, 6) +
          "\n# YSTEP: " + fixed(grid.step_y, 6) + "\n# NCOLS_ODD: " + std::to_string(grid.columns) +
          "\n# NCOLS_EVEN: " + std::to_string(even) + "\n# NROWS: " + std::to_string(grid.rows) +
          "\n#\n# OPERATOR: \t\n#\n# SAMPLEID: \t\n#\n# SCANID: \t" + map.source + "\n#\n";
  return text;
}

std::string line_of_ang(const MapResult& map, std::size_t i) {
  const PointResult& point = map.points[i];
  const bool indexed = point.phase > 0;
  constexpr double not_indexed = 4 * std::numbers::pi;
  std::string line;
  for (const float angle : point.bunge_rad) {
    line += padded(fixed(indexed ? static_cast<double>(angle) : not_indexed, 5), 9) + ' ';
  }
  const auto [x, y] = place_of(map.grid, i);
  line += padded(fixed(x, 5), 12) + ' ' + padded(fixed(y, 5), 12) + ' ';
  constexpr double quality_scale = 1000;  // a usual size for this column
  line += padded(fixed(static_cast<double>(point.quality) * quality_scale, 1), 7) + ' ';
  line += padded(fixed(indexed ? static_cast<double>(point.confidence) : -1, 3), 6) + ' ';
  const int phase = map.phases.size() > 1 ? int{point.phase} : 0;
  line += padded(std::to_string(phase), 2) + "      1 ";
  constexpr double no_fit = 180;
  line += padded(fixed(indexed ? static_cast<double>(point.fit_deg) : no_fit, 3), 7) + '\n';
  return line;
}

double within_turn(double angle_deg) {
  const double rest = std::fmod(angle_deg, turn_deg);
  return rest < 0 ? rest + turn_deg : rest;
}

/// Into Oxford's axes: those of the sample are a quarter turn from EDAX's; of the crystal, X lies along a*, normal to b
/// and c, where EDAX has it along a: gamma - 90 degrees apart.
std::array<double, 3> oxford_angles_deg(const PointResult& point, const CellConstants& cell) {
  constexpr double quarter = 90;
  const double phi1 = static_cast<double>(point.bunge_rad[0]) * degrees;
  const double phi2 = static_cast<double>(point.bunge_rad[2]) * degrees;
  return {within_turn(phi1 - quarter), static_cast<double>(point.bunge_rad[1]) * degrees,
          within_turn(phi2 + cell.gamma - quarter)};
}

std::string ctf_header(const MapResult& map) {
  std::string text = "Channel Text File\nPrj\t" + map.source + "\nAuthor\t[Unknown]\nJobMode\tGrid\nXCells\t" +
                     std::to_string(map.grid.columns) + "\nYCells\t" + std::to_string(map.grid.rows) + "\nXStep\t" +
                     fixed(map.grid.step_x, 4) + "\nYStep\t" + fixed(map.grid.step_y, 4) +
                     "\nAcqE1\t0\nAcqE2\t0\nAcqE3\t0\n"
                     "Euler angles refer to Sample Coordinate system (CS0)!\tMag\t0\tCoverage\t100\tDevice\t0\tKV\t" +
                     fixed(map.kilovolt, 4) + "\tTiltAngle\t" + fixed(map.sample_tilt_deg, 4) +
                     "\tTiltAxis\t0\nPhases\t" + std::to_string(map.phases.size()) + '\n';
  for (const auto& phase : map.phases) {
    const auto& cell = phase.cell;
    text += fixed(cell.a, 3) + ';' + fixed(cell.b, 3) + ';' + fixed(cell.c, 3) + '\t' + fixed(cell.alpha, 3) + ';' +
            fixed(cell.beta, 3) + ';' + fixed(cell.gamma, 3) + '\t' + phase.name + '\t' +
            std::to_string(laue(phase.laue_class).oxford) + '\t' + std::to_string(phase.space_group) + "\t\t\t\n";
  }
  text += "Phase\tX\tY\tBands\tError\tEuler1\tEuler2\tEuler3\tMAD\tBC\tBS\n";
  return text;
}

std::string line_of_ctf(const MapResult& map, std::size_t i) {
  constexpr double most_contrast = 255;
  std::string text;
  const PointResult& point = map.points[i];
  const bool indexed = point.phase > 0;
  const auto [x, y] = place_of(map.grid, i);
  const std::array<double, 3> none{};
  const auto angles =
      indexed ? oxford_angles_deg(point, map.phases[static_cast<std::size_t>(point.phase - 1)].cell) : none;
  const int error = indexed ? 0 : point.missing != 0 ? 5 : 3;
  text += std::to_string(int{point.phase}) + '\t' + fixed(x, 4) + '\t' + fixed(y, 4) + '\t' +
          std::to_string(indexed ? int{point.bands} : 0) + '\t' + std::to_string(error);
  for (const double angle : angles) text += '\t' + fixed(angle, 4);
  const long contrast = std::lround(static_cast<double>(point.quality) * most_contrast);
  text += '\t' + fixed(indexed ? static_cast<double>(point.fit_deg) : 0, 4) + '\t' + std::to_string(contrast) + "\t0\n";
  return text;
}

std::string line_of_csv(const MapResult& map, std::size_t i) {
  std::string text;
  const PointResult& point = map.points[i];
  const auto [column, row] = map.grid.place(i);
  const auto [x, y] = place_of(map.grid, i);
  text += std::to_string(column) + ',' + std::to_string(row) + ',' + fixed(x, 4) + ',' + fixed(y, 4) + ',' +
          std::to_string(int{point.phase});
  for (const float angle : point.bunge_rad) {
    text += point.phase > 0 ? ',' + fixed(static_cast<double>(angle) * degrees, 4) : ",";
  }
  text += ',' + fixed(static_cast<double>(point.quality), 4) + ',' + fixed(static_cast<double>(point.confidence), 4) +
          ',' + fixed(static_cast<double>(point.fit_deg), 4) + ',' + std::to_string(int{point.bands}) + '\n';
  return text;
}

/// What the text of a file of maps is made of.
struct MapText {
  std::string (*head)(const MapResult& map);
  std::string (*line)(const MapResult& map, std::size_t point);
};
constexpr MapText ang{ang_header, line_of_ang};
constexpr MapText ctf{ctf_header, line_of_ctf};
constexpr MapText csv{[](const MapResult& /*map*/) -> std::string {
                        return "column,row,x,y,phase,phi1,Phi,phi2,quality,confidence,fit,bands\n";
                      },
                      line_of_csv};

std::string whole(const MapText& kind, const MapResult& map) {
  std::string text = kind.head(map);
  for (std::size_t i = 0; i < map.points.size(); ++i) text += kind.line(map, i);
  return text;
}

void check_grid_of_ctf(const MapResult& map) {
  if (map.grid.hexagonal) throw RunFailure(".ctf holds square grids only; write .ang or .h5");
}

}  // namespace

int edax_symmetry(const std::string& laue_class) { return laue(laue_class).edax; }

std::string ang_text(const MapResult& map) { return whole(ang, map); }
std::string ctf_text(const MapResult& map) {
  check_grid_of_ctf(map);
  return whole(ctf, map);
}
std::string csv_text(const MapResult& map) { return whole(csv, map); }

namespace {

constexpr std::array<std::string_view, 5> endings{".ang", ".ctf", ".csv", ".h5", ".oh5"};

bool ends_with_any(const std::string& path, std::initializer_list<std::string_view> known) {
  return std::any_of(known.begin(), known.end(), [&path](std::string_view one) { return path.ends_with(one); });
}

}  // namespace

void check_map_path(const std::string& path) {
  if (std::any_of(endings.begin(), endings.end(), [&path](std::string_view one) { return path.ends_with(one); }))
    return;
  throw RunFailure(path + ": its ending is none of .ang, .ctf, .csv, .h5, .oh5");
}

void write_map(const MapResult& map, const std::string& path) {
  check_map_path(path);
  if (ends_with_any(path, {".h5", ".oh5"})) return write_map_hdf5(map, path);
  if (path.ends_with(".ctf")) check_grid_of_ctf(map);
  const MapText& kind = path.ends_with(".ang") ? ang : path.ends_with(".ctf") ? ctf : csv;
  AtomicFile file(path);
  file.write(kind.head(map));
  constexpr std::size_t in_memory = 8192;  // lines
  for (std::size_t i = 0; i < map.points.size(); ++i) {
    file.write(kind.line(map, i));
    if (i % in_memory == in_memory - 1) file.flush();
  }
  file.commit();
}

}  // namespace zol
