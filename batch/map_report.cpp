#include "batch/map_report.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <iostream>

#include "core/number_text.h"

namespace zol {
namespace {

std::string fixed(double value, int places) {
  constexpr std::array<const char*, 5> patterns{"0", "0.0", "0.00", "0.000", "0.0000"};
  return Format(value, patterns[static_cast<std::size_t>(places)]);
}

const char* name_of(BackgroundKind kind) {
  switch (kind) {
    case BackgroundKind::given:
      return "the picture that was given";
    case BackgroundKind::of_scan:
      return "the scan's own";
    case BackgroundKind::mean_of_points:
      return "the mean of points all over the map";
    case BackgroundKind::none:
      break;
  }
  return "none is taken off, only the local mean";
}

/// What stands at one of nine places.
struct Look {
  std::array<int, 2> place{};
  PointResult point;
};

void tell_looks(const MapJob& job, const std::vector<Look>& looks) {
  std::cout << right_field("column", 8) << right_field("row", 8) << "  " << left_field("phase", 12)
            << right_field("confidence", 11) << right_field("fit (deg)", 11) << right_field("quality", 9) << '\n';
  for (const auto& [place, point] : looks) {
    const std::string phase = point.missing != 0 ? "no pattern"
                              : point.phase == 0 ? "not indexed"
                                                 : job.phases[static_cast<std::size_t>(point.phase - 1)].name;
    std::cout << right_field(std::to_string(place[0]), 8) << right_field(std::to_string(place[1]), 8) << "  "
              << left_field(phase, 12) << right_field(fixed(static_cast<double>(point.confidence), 3), 11)
              << right_field(fixed(static_cast<double>(point.fit_deg), 3), 11)
              << right_field(fixed(static_cast<double>(point.quality), 3), 9) << '\n';
  }
}

/// One of nine points of the area, and a tile about it that lies within the area.
struct Sample {
  MapTile tile;
  int column = 0, row = 0;
};
Sample sample_of(const MapTile& area, int i) {
  constexpr int across = 8;
  constexpr int down = 4;
  Sample sample;
  sample.column = area.column + (area.columns - 1) * (i % 3) / 2;
  sample.row = area.row + (area.rows - 1) * (i / 3) / 2;
  MapTile& tile = sample.tile;
  tile.columns = std::min(across, area.columns);
  tile.rows = std::min(down, area.rows);
  tile.column = std::clamp(sample.column - across / 2, area.column, area.column + area.columns - tile.columns);
  tile.row = std::clamp(sample.row - down / 2, area.row, area.row + area.rows - tile.rows);
  return sample;
}

}  // namespace

std::string header_text(const MapJob& job) {
  const ScanHeader& header = job.scan->header();
  const ScanGrid& grid = job.grid;
  std::string text = "format: " + header.format + '\n';
  text += "patterns: " + std::to_string(header.points) + " of " + std::to_string(header.width) + " x " +
          std::to_string(header.height) + " pixels, " + std::to_string(header.bits) + " bits" +
          (header.whole ? "" : ", real numbers") + '\n';
  text += "map: " + std::to_string(grid.columns) + " x " + std::to_string(grid.rows) + " points, steps " +
          short_text(grid.step_x, 4) + " x " + short_text(grid.step_y, 4) + " micrometres" +
          (grid.hexagonal ? ", hexagonal grid" : "") + '\n';
  return text;
}

std::string decisions_text(const MapJob& job) {
  const auto& geometry = job.settings.geometry;
  std::string text = "pattern centre of the middle point: " + fixed(job.centre.x, 4) + ", " + fixed(job.centre.y, 4) +
                     ", " + fixed(job.centre.z, 4) + " widths (from the left, from the top, distance), " +
                     job.centre_source + '\n';
  text += "tilts: sample " + short_text(geometry.sample_tilt_deg, 2) + ", screen " +
          short_text(geometry.detector_tilt_deg, 2) + " degrees; " + short_text(job.kilovolt, 2) + " kV\n";
  text += std::string("static background: ") + name_of(job.indexer->background_kind()) + '\n';
  if (job.settings.averaging == Averaging::likeness) {
    text += "likeness: length " + fixed(job.indexer->likeness(), 3) + " for an own share of " +
            short_text(job.settings.own_share, 3) + '\n';
  }
  for (std::size_t i = 0; i < job.models.size(); ++i) {
    const CrystalModel& model = job.models[i];
    text += model.title + ": " +
            std::to_string(std::count(model.families_used.begin(), model.families_used.end(), true)) + " families vote";
    if (job.settings.refinement == Refinement::pattern) text += ", fitted to " + job.fitted_to[i];
    text += '\n';
  }
  return text;
}

std::string lookalike_text(const MapResult& map, std::size_t phase) {
  std::size_t points = 0;
  std::size_t other_hand = 0;
  double lead = 0;
  for (const PointResult& point : map.points) {
    if (static_cast<std::size_t>(point.phase) != phase + 1 || point.lead == 0) continue;
    ++points;
    other_hand += point.lead < 0 ? 1 : 0;
    lead += static_cast<double>(point.lead) / 1000;
  }
  if (points == 0) return "";
  std::string text =
      "  correlation above that of look-alikes by " + fixed(lead / static_cast<double>(points), 3) + " on average";
  if (other_hand > 0) text += "; the other hand fits better at " + std::to_string(other_hand) + " points";
  return text + '\n';
}

std::string times_text(const StepTimes& times, std::size_t points) {
  struct Step {
    const char* name;
    double seconds;
  };
  const std::array steps{Step{"reading", times.reading}, Step{"averaging and background", times.averaging},
                         Step{"preparing", times.preparing}, Step{"trying neighbours' orientations", times.trying},
                         Step{"bands, votes and fits", times.finding}};
  std::string text;
  for (const auto& [name, seconds] : steps) {
    const double each = points > 0 ? seconds * 1e6 / static_cast<double>(points) : 0;
    text += left_field(std::string(name) + ':', 34) + right_field(fixed(seconds, 2), 9) + " s, " +
            right_field(fixed(each, 0), 6) + " microseconds a point\n";
  }
  return text;
}

void check_map(const MapJob& job, int threads, bool quiet, Task& task) {
  if (!quiet) std::cout << header_text(job) << decisions_text(job) << std::flush;
  const auto& tiles = job.indexer->tiles();
  MapTile area = tiles.front();
  area.columns = tiles.back().column + tiles.back().columns - area.column;
  area.rows = tiles.back().row + tiles.back().rows - area.row;
  MapIndexer::Worker worker = job.indexer->make_worker();
  std::vector<Look> looks;
  std::size_t points = 0;
  std::size_t indexed = 0;
  const auto start = std::chrono::steady_clock::now();
  constexpr int places = 9;
  for (int i = 0; i < places; ++i) {
    const auto [tile, column, row] = sample_of(area, i);
    TileState state;
    job.indexer->index_tile(tile, worker, state, task);
    const auto& found = state.found;
    const auto at = static_cast<std::size_t>((row - tile.row) * tile.columns + column - tile.column);
    looks.push_back({{column, row}, found[at]});
    points += found.size();
    indexed += static_cast<std::size_t>(
        std::count_if(found.begin(), found.end(), [](const PointResult& point) { return point.phase > 0; }));
  }
  if (quiet) return;
  const double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
  const double rate = static_cast<double>(points) / std::max(seconds, 1e-6);
  tell_looks(job, looks);
  const double all = static_cast<double>(area.columns) * area.rows;
  std::cout << "indexed: " << indexed << " of " << points << " points about these nine\n"
            << "rate: " << fixed(rate, 0) << " points a second and thread; the whole map takes about "
            << fixed(std::ceil(all / rate / threads), 0) << " s with " << threads << " threads\n"
            << times_text(worker.times, points);
}

}  // namespace zol
