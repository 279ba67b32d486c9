#include "batch/map_command.h"

#include <algorithm>
#include <filesystem>
#include <iostream>
#include <memory>

#include "batch/batch_progress.h"
#include "batch/batch_status.h"
#include "batch/map_job.h"
#include "batch/map_master.h"
#include "batch/map_outputs.h"
#include "batch/map_ranks.h"
#include "batch/map_report.h"
#include "batch/map_words.h"
#include "batch/output_guard.h"
#include "batch/picture_files.h"
#include "batch/word_file.h"
#include "core/atomic_file.h"
#include "core/read_file.h"
#include "scans/map_files.h"
#include "scans/map_run.h"
#include "shell/program/program.h"
#include "shell/script/stop_signal.h"
#include "shell/services/latin1.h"

namespace zol {
namespace {

/// What results depend on, beside the scan's own bytes.
std::uint64_t fingerprint(const MapWords& words) {
  std::string text = words.results_text;
  for (const auto& crystal : words.crystals) text += read_file(crystal) + '\n';
  std::vector<std::string> files{words.scan};
  if (words.background.find('=') != std::string::npos) {
    files.push_back(words.background.substr(words.background.find('=') + 1));
  }
  for (const auto& file : files) {
    std::error_code error;
    text += std::to_string(std::filesystem::last_write_time(file, error).time_since_epoch().count()) + '\n';
  }
  return fingerprint_of(text + fingerprint_text(words.master));
}

bool within(const std::array<int, 4>& region, const std::array<int, 2>& place) {
  if (region[2] == 0) return true;
  return place[0] >= region[0] && place[0] < region[0] + region[2] && place[1] >= region[1] &&
         place[1] < region[1] + region[3];
}

void summarise(const MapResult& map, const std::array<int, 4>& region) {
  std::vector<std::size_t> of_phase(map.phases.size() + 1);
  std::size_t missing = 0;
  std::size_t outside = 0;
  for (std::size_t i = 0; i < map.points.size(); ++i) {
    if (!within(region, map.grid.place(i))) {
      ++outside;
      continue;
    }
    ++of_phase[static_cast<std::size_t>(map.points[i].phase)];
    missing += map.points[i].missing;
  }
  for (std::size_t i = 0; i < map.phases.size(); ++i) {
    std::cout << map.phases[i].name << ": " << of_phase[i + 1] << " of " << map.points.size() - outside << " points\n"
              << lookalike_text(map, i);
  }
  std::cout << "not indexed: " << of_phase[0];
  if (missing > 0) std::cout << ", of which " << missing << " have no pattern";
  std::cout << '\n';
  if (outside > 0) std::cout << "outside the region: " << outside << '\n';
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
  map.creator = "ZOL " + std::string(program_version);
  map.settings = words.settings_text;
  map.source = std::filesystem::path(words.scan).filename().string();
  return map;
}

void write_text(const std::string& path, const std::string& text) {
  AtomicFile file(path);
  file.contain(text);
  file.commit();
}

/// What all processes do; the first one goes on with the result. @returns false where it was stopped
bool index_map(const MapJob& job, const MapWords& words, const MapRanks& ranks, MapResult& map) {
  BatchProgress line("points", words.quiet);
  StepTimes times;
  MapRun running;
  running.threads = words.threads > 0 ? words.threads : ranks.cores();
  running.resume = words.resume;
  running.stop = [] { return stop_signal() != 0; };
  running.times = &times;
  if (ranks.first()) {
    running.part_path = part_path(words);
    running.fingerprint = fingerprint(words);
    running.progress = [&line](std::size_t done, std::size_t all) { line.show(done, all); };
  }
  if (!ranks.run(*job.indexer, job.grid, running, map.points)) {
    if (ranks.first()) {
      std::cerr << "stopped; what is finished is in " << running.part_path << ", --resume continues from there\n";
    }
    return false;
  }
  if (words.verbose && ranks.first()) std::cerr << times_text(times, map.points.size());
  return true;
}

int run(const MapWords& words, const MapRanks& ranks) {
  if (words.outputs.empty() && !words.check) throw CLI::RequiredError("--output");
  check_map_outputs(words);
  if (words.check && !ranks.first()) return batch_done;
  if (!words.check && ranks.first()) check_part(words);
  BatchTask task;
  MapJob job = make_map_job(words, task);
  if (ranks.first()) {
    for (const auto& remark : job.scan->header().remarks) std::cerr << words.scan << ": " << remark << '\n';
    if (!job.master_remark.empty() && !words.quiet) std::cerr << readable_utf8(job.master_remark) << '\n';
  }
  prepare_map_job(job, words, task);
  if (words.check) {
    check_map(job, words.threads > 0 ? words.threads : ranks.cores(), words.quiet, task);
    return batch_done;
  }
  if (ranks.first()) {
    if (words.verbose) std::cerr << header_text(job) << decisions_text(job);
    if (!words.write_settings.empty()) write_text(words.write_settings, words.settings_text);
  }
  MapResult map = empty_result(job, words);
  if (!index_map(job, words, ranks, map)) return batch_stopped;
  if (!ranks.first()) return batch_done;
  for (const auto& output : words.outputs) write_map(map, output);
  if (!words.pictures.empty()) {
    make_folder_of(words.pictures);
    write_map_pictures(map, words.pictures, words.picture_scale);
  }
  if (!words.quiet) summarise(map, job.settings.region);
  return batch_done;
}

/// Runs it, and takes the other processes down where this one fails: they would wait for ever.
int run_with_others(const MapWords& words) {
  const MapRanks ranks;
  try {
    return run(words, ranks);
  } catch (const CLI::ParseError&) {
    throw;  // all have the same words
  } catch (const Cancelled&) {
    if (ranks.count() == 1) throw;
    if (ranks.first()) std::cerr << "zol-batch: stopped" << std::endl;
    ranks.abandon();
    throw;
  } catch (...) {
    if (ranks.count() == 1) throw;
    std::cerr << "zol-batch: " << readable_utf8(failure_text(std::current_exception())) << std::endl;
    ranks.abandon();
    throw;
  }
}

}  // namespace

void add_map_command(CLI::App& app, int& status) {
  const auto words = std::make_shared<MapWords>();
  CLI::App* map = app.add_subcommand("map", "index all patterns of a scan");
  map->footer("Example:\n  zol-batch map scan.h5 -c Ni.cif -o map.ang");
  add_settings_words(*map, words->settings_file, words->write_settings);
  add_scan_words(*map, *words);
  add_map_words(*map, *words);
  map->callback([words, map, &status] {
    std::vector<std::string> of_this_run{"resume", "check", "quiet", "verbose"};
    words->settings_text = words_text(*map, of_this_run);
    of_this_run.insert(of_this_run.end(), {"output", "threads", "pictures", "picture-scale"});
    words->results_text = words_text(*map, of_this_run);
    status = run_with_others(*words);
  });
}

}  // namespace zol
