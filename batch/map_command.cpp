#include "batch/map_command.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <iostream>
#include <memory>
#include <thread>

#include "batch/batch_status.h"
#include "batch/map_job.h"
#include "batch/map_words.h"
#include "core/read_file.h"
#include "scans/map_files.h"
#include "scans/map_run.h"
#include "shell/script/stop_signal.h"

namespace zol {
namespace {

/// Points, rate and time left on standard error, where that is a terminal.
class ProgressLine {
 public:
  explicit ProgressLine(bool quiet) : shown_(!quiet && isatty(STDERR_FILENO) != 0) {}
  ~ProgressLine() {
    if (shown_ && begun_) std::cerr << '\n';
  }
  ProgressLine(const ProgressLine&) = delete;
  ProgressLine& operator=(const ProgressLine&) = delete;

  void show(std::size_t done, std::size_t all) {
    const auto now = std::chrono::steady_clock::now();
    if (!shown_ || (begun_ && now - last_ < std::chrono::milliseconds(200) && done < all)) return;
    last_ = now;
    begun_ = true;
    const double seconds = std::chrono::duration<double>(now - start_).count();
    const double rate = static_cast<double>(done) / std::max(seconds, 1e-3);
    std::array<char, 96> line{};
    (void)std::snprintf(line.data(), line.size(), "\r%zu of %zu points, %.0f a second, %.0f s left   ", done, all, rate,
                        static_cast<double>(all - done) / std::max(rate, 1e-3));
    std::cerr << line.data() << std::flush;
  }

 private:
  bool shown_, begun_ = false;
  std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now(), last_ = start_;
};

/// What results depend on, beside the scan's own bytes.
std::uint64_t fingerprint(const MapWords& words) {
  std::string text;
  for (const auto* part :
       {&words.scan, &words.centre, &words.convention, &words.size, &words.background, &words.average, &words.refine,
        &words.scan_x, &words.scan_y, &words.dataset, &words.region, &words.mask}) {
    text += *part + '\n';
  }
  for (const auto& crystal : words.crystals) text += crystal + '\n' + read_file(crystal) + '\n';
  for (const double number : {words.tilt.value_or(-1), words.camera.value_or(-1), words.step.value_or(-1),
                              words.screen_mm, words.kilovolt, words.min_ci, words.max_fit}) {
    text += std::to_string(number) + '\n';
  }
  text += std::to_string(words.bands) + '\n' + std::to_string(words.families) + '\n' + (words.flip ? '1' : '0') +
          (words.raw ? '1' : '0');
  std::error_code error;
  const auto time = std::filesystem::last_write_time(words.scan, error).time_since_epoch().count();
  return fingerprint_of(text + std::to_string(time));
}

void summarise(const MapResult& map) {
  std::vector<std::size_t> of_phase(map.phases.size() + 1);
  std::size_t missing = 0;
  for (const auto& point : map.points) {
    ++of_phase[static_cast<std::size_t>(point.phase)];
    missing += point.missing;
  }
  for (std::size_t i = 0; i < map.phases.size(); ++i) {
    std::cout << map.phases[i].name << ": " << of_phase[i + 1] << " of " << map.points.size() << " points\n";
  }
  std::cout << "not indexed: " << of_phase[0];
  if (missing > 0) std::cout << ", of which " << missing << " have no pattern";
  std::cout << '\n';
}

MapResult empty_result(const MapJob& job, const MapWords& words) {
  MapResult map;
  map.grid = job.grid;
  map.phases = job.phases;
  map.centre = centre_of_ang(job);
  map.sample_tilt_deg = job.settings.geometry.sample_tilt_deg;
  map.detector_tilt_deg = job.settings.geometry.detector_tilt_deg;
  map.kilovolt = job.kilovolt;
  map.width = job.scan->header().width;
  map.height = job.scan->header().height;
  map.source = std::filesystem::path(words.scan).filename().string();
  return map;
}

int run(const MapWords& words) {
  for (const auto& output : words.outputs) check_map_path(output);
  QuietTask task;
  const MapJob job = make_map_job(words, task);
  job.indexer->prepare(task);
  ProgressLine line(words.quiet);
  MapRun running;
  running.threads =
      words.threads > 0 ? words.threads : static_cast<int>(std::max(1U, std::thread::hardware_concurrency()));
  running.part_path = words.outputs.front() + ".part";
  running.resume = words.resume;
  running.fingerprint = fingerprint(words);
  running.stop = [] { return stop_signal() != 0; };
  running.progress = [&line](std::size_t done, std::size_t all) { line.show(done, all); };
  MapResult map = empty_result(job, words);
  if (!run_map(*job.indexer, job.grid, running, map.points)) {
    std::cerr << "stopped; what is done stands in " << running.part_path << ", --resume goes on with it\n";
    return batch_stopped;
  }
  for (const auto& output : words.outputs) write_map(map, output);
  if (!words.quiet) summarise(map);
  return batch_done;
}

}  // namespace

void add_map_command(CLI::App& app, int& status) {
  const auto words = std::make_shared<MapWords>();
  CLI::App* map = app.add_subcommand("map", "index all patterns of a scan");
  map->footer("Example:\n  zol-batch map scan.h5 -c Ni.cif -o map.ang");
  add_scan_words(*map, *words);
  add_map_words(*map, *words);
  map->callback([words, &status] { status = run(*words); });
}

}  // namespace zol
