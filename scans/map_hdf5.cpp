// Maps as HDF5: EDAX's layout under "Scan 1/EBSD/Data" and "Header", and the crystal map of kikuchipy and orix beside
// it.
#include <algorithm>
#include <array>
#include <cstdint>
#include <numbers>
#include <utility>

#include "hdf5/hdf5_writer.h"
#include "scans/map_files.h"

namespace zol {
namespace {

template <class Value, class Get>
std::vector<Value> column_of(const MapResult& map, const Get& get) {
  std::vector<Value> values;
  values.reserve(map.points.size());
  for (std::size_t i = 0; i < map.points.size(); ++i) values.push_back(static_cast<Value>(get(map.points[i], i)));
  return values;
}

double position(const MapResult& map, std::size_t point, bool x) {
  const auto [column, row] = map.grid.place(point);
  const double shift = map.grid.hexagonal && row % 2 == 1 ? 0.5 : 0;
  return x ? (column + shift) * map.grid.step_x : row * map.grid.step_y;
}

void write_edax(Hdf5Writer& out, const MapResult& map) {
  out.text("Manufacturer", "EDAX");
  out.text("Version", "OIM Analysis 8.6.103 x64 [29 Sep 2022]");
  const std::string data = "Scan 1/EBSD/Data/";
  constexpr double not_indexed = 4 * std::numbers::pi;
  constexpr std::array<const char*, 3> angles{"Phi1", "Phi", "Phi2"};
  for (std::size_t k = 0; k < 3; ++k) {
    out.array(data + angles[k], column_of<float>(map, [k](const PointResult& p, std::size_t) {
                return p.phase > 0 ? static_cast<double>(p.bunge_rad[k]) : not_indexed;
              }));
  }
  const bool several = map.phases.size() > 1;
  out.array(data + "IQ", column_of<float>(map, [](const auto& p, std::size_t) { return p.quality * 1000; }));
  out.array(data + "CI",
            column_of<float>(map, [](const auto& p, std::size_t) { return p.phase > 0 ? p.confidence : -1; }));
  out.array(data + "Fit",
            column_of<float>(map, [](const auto& p, std::size_t) { return p.phase > 0 ? p.fit_deg : 180; }));
  out.array(data + "Phase",
            column_of<std::int8_t>(map, [several](const auto& p, std::size_t) { return several ? p.phase : 0; }));
  out.array(data + "Valid",
            column_of<std::int8_t>(map, [](const auto& p, std::size_t) { return p.missing == 0 ? 1 : 0; }));
  out.array(data + "SEM Signal", column_of<std::int32_t>(map, [](const auto&, std::size_t) { return 0; }));
  out.array(data + "X Position",
            column_of<float>(map, [&map](const auto&, std::size_t i) { return position(map, i, true); }));
  out.array(data + "Y Position",
            column_of<float>(map, [&map](const auto&, std::size_t i) { return position(map, i, false); }));
  const std::string header = "Scan 1/EBSD/Header/";
  out.single<std::int32_t>(header + "nColumns", map.grid.columns);
  out.single<std::int32_t>(header + "nRows", map.grid.rows);
  out.single(header + "Step X", static_cast<float>(map.grid.step_x));
  out.single(header + "Step Y", static_cast<float>(map.grid.step_y));
  out.text(header + "Grid Type", map.grid.hexagonal ? "HexGrid" : "SqrGrid");
  out.single<std::int32_t>(header + "Pattern Width", map.width);
  out.single<std::int32_t>(header + "Pattern Height", map.height);
  out.single(header + "Sample Tilt", static_cast<float>(map.sample_tilt_deg));
  out.single(header + "Camera Elevation Angle", static_cast<float>(map.detector_tilt_deg));
  constexpr std::array<const char*, 3> stars{"x-star", "y-star", "z-star"};
  for (std::size_t k = 0; k < 3; ++k) {
    out.single(header + "Pattern Center Calibration/" + stars[k], static_cast<float>(map.centre.numbers[k]));
  }
  for (std::size_t i = 0; i < map.phases.size(); ++i) {
    const MapPhase& phase = map.phases[i];
    const std::string place = header + "Phase/" + std::to_string(i + 1) + '/';
    out.text(place + "MaterialName", phase.name);
    out.text(place + "Formula", phase.formula);
    out.single<std::int32_t>(place + "Symmetry", edax_symmetry(phase.laue_class));
    out.text(place + "Laue Group", phase.laue_class);
    out.single<std::int32_t>(place + "SpaceGroupNumber", phase.space_group);
    const auto& cell = phase.cell;
    for (const auto& [name, value] : {std::pair("a", cell.a),
                                      {"b", cell.b},
                                      {"c", cell.c},
                                      {"alpha", cell.alpha},
                                      {"beta", cell.beta},
                                      {"gamma", cell.gamma}}) {
      out.single(place + "Lattice Constant " + name, static_cast<float>(value));
    }
  }
}

void write_crystal_map(Hdf5Writer& out, const MapResult& map) {
  const std::string place = "Scan 1/EBSD/CrystalMap/crystal_map/";
  constexpr std::array<const char*, 3> angles{"phi1", "Phi", "phi2"};
  for (std::size_t k = 0; k < 3; ++k) {
    out.array(place + "data/" + angles[k],
              column_of<double>(map, [k](const auto& p, std::size_t) { return p.bunge_rad[k]; }));
  }
  out.array(place + "data/phase_id",
            column_of<std::int32_t>(map, [](const auto& p, std::size_t) { return p.phase > 0 ? p.phase - 1 : -1; }));
  out.array(place + "data/x",
            column_of<double>(map, [&map](const auto&, std::size_t i) { return position(map, i, true); }));
  out.array(place + "data/y",
            column_of<double>(map, [&map](const auto&, std::size_t i) { return position(map, i, false); }));
  out.array(place + "data/id", column_of<std::int32_t>(map, [](const auto&, std::size_t i) { return i; }));
  out.array(place + "data/is_in_data", column_of<std::uint8_t>(map, [](const auto&, std::size_t) { return 1; }));
  out.array(place + "data/scores", column_of<double>(map, [](const auto& p, std::size_t) { return p.confidence; }));
  out.array(place + "data/quality", column_of<double>(map, [](const auto& p, std::size_t) { return p.quality; }));
  out.array(place + "data/fit", column_of<double>(map, [](const auto& p, std::size_t) { return p.fit_deg; }));
  const std::string header = place + "header/";
  out.single<std::int32_t>(header + "ny", map.grid.rows);
  out.single<std::int32_t>(header + "nx", map.grid.columns);
  out.single(header + "y_step", map.grid.step_y);
  out.single(header + "x_step", map.grid.step_x);
  out.single<std::int32_t>(header + "rotations_per_point", 1);
  out.text(header + "scan_unit", "um");
  for (std::size_t i = 0; i < map.phases.size(); ++i) {
    const MapPhase& phase = map.phases[i];
    const std::string of_phase = header + "phases/" + std::to_string(i) + '/';
    out.text(of_phase + "name", phase.name);
    out.single<std::int32_t>(of_phase + "space_group", phase.space_group);
    out.text(of_phase + "point_group", phase.laue_class);
    const auto& cell = phase.cell;
    out.array(of_phase + "structure/lattice/abcABG",
              std::vector<double>{cell.a, cell.b, cell.c, cell.alpha, cell.beta, cell.gamma});
  }
}

}  // namespace

void write_map_hdf5(const MapResult& map, const std::string& path) {
  write_hdf5(path, [&map](Hdf5Writer& out) {
    write_edax(out, map);
    write_crystal_map(out, map);
    if (std::any_of(map.points.begin(), map.points.end(), [](const PointResult& p) { return p.lead != 0; })) {
      out.array("ZOL/lead_over_lookalikes", column_of<float>(map, [](const auto& p, std::size_t) {
                  constexpr double steps = 1000;
                  return p.lead / steps;
                }));
    }
    out.text("ZOL/creator", map.creator);
    out.text("ZOL/settings", map.settings);
    out.text("ZOL/source", map.source);
  });
}

}  // namespace zol
