#include "batch/map_command.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <iostream>
#include <memory>
#include <optional>
#include <thread>

#include "batch/batch_status.h"
#include "batch/crystal_source.h"
#include "batch/grey_image.h"
#include "batch/map_master.h"
#include "core/read_file.h"
#include "core/run_failure.h"
#include "scans/map_files.h"
#include "scans/map_run.h"
#include "shell/program/data_folders.h"
#include "shell/script/stop_signal.h"

namespace zol {
namespace {

/// The words of the command line.
struct MapWords {
  std::string scan;
  std::vector<std::string> crystals, outputs;
  std::string centre, convention = "bruker", size, background = "auto", average, refine = "pattern";
  std::string scan_x = "right", scan_y = "down", dataset, region, mask;
  std::optional<double> tilt, camera, step;
  double screen_mm = 0, kilovolt = 0, min_ci = 0.1, max_fit = 3;
  int bands = 9, families = 6, threads = 0;
  bool flip = false, resume = false, check = false, quiet = false, raw = false;
  MapMasterWords master;
};

/// "3,4,5" @throws CLI::ValidationError  it has another count of numbers
template <std::size_t count>
std::array<double, count> numbers_of(const std::string& option, const std::string& text, char between) {
  std::array<double, count> numbers{};
  std::size_t at = 0;
  for (std::size_t i = 0; i < count; ++i) {
    const std::size_t end = std::min(text.find(between, at), text.size());
    const std::string part = text.substr(at, end - at);
    const auto [stop, error] = std::from_chars(part.data(), part.data() + part.size(), numbers[i]);
    const bool last = i + 1 == count;
    if (error != std::errc() || stop != part.data() + part.size() || last != (end == text.size())) {
      throw CLI::ValidationError(
          option, "\"" + text + "\" is not " + std::to_string(count) + " numbers with '" + between + "' between");
    }
    at = end + 1;
  }
  return numbers;
}

CentreConvention convention_of(const std::string& name) {
  const auto convention = centre_convention(name);
  if (!convention) throw CLI::ValidationError("--convention", name + " is none of bruker, edax, oxford, emsoft");
  return *convention;
}

/// Dynamical patterns are fitted so closely that neighbours, turned by a little, only blur what is fitted.
std::string usual_average(const MapWords& words) {
  if (!words.average.empty()) return words.average;
  return words.master.masters.empty() ? "nlpar" : "none";
}

MapSettings settings_of(const MapWords& words, const ScanHeader& header) {
  MapSettings settings;
  constexpr double usual_tilt = 70;
  settings.geometry.sample_tilt_deg = words.tilt.value_or(header.sample_tilt_deg.value_or(usual_tilt));
  settings.geometry.detector_tilt_deg = words.camera.value_or(header.detector_tilt_deg.value_or(0));
  constexpr double micrometres = 1000;
  settings.geometry.screen_width_micrometre = words.screen_mm * micrometres;
  settings.geometry.scan_left = words.scan_x == "left";
  settings.geometry.scan_up = words.scan_y == "up";
  settings.index.band_count = words.bands;
  settings.index.candidates_fitted = 3;
  settings.index.preparation.circle = words.mask == "circle";
  settings.refinement = words.refine == "pattern" ? Refinement::pattern : Refinement::bands;
  settings.background = words.background == "auto"     ? Background::automatic
                        : words.background == "static" ? Background::stored
                        : words.background == "none"   ? Background::none
                                                       : Background::dynamic;
  const std::string average = usual_average(words);
  if (average.starts_with("nlpar=")) {
    settings.own_share = numbers_of<1>("--average", average.substr(std::string_view("nlpar=").size()), ',')[0];
  } else if (average != "nlpar" && average != "3x3" && average != "none") {
    throw CLI::ValidationError("--average", average + " is none of nlpar, nlpar=SHARE, 3x3, none");
  }
  settings.averaging = average == "none" ? Averaging::none : average == "3x3" ? Averaging::plain : Averaging::likeness;
  settings.least_confidence = words.min_ci;
  settings.most_fit_deg = words.max_fit;
  settings.flip = words.flip;
  if (!words.region.empty()) {
    const auto numbers = numbers_of<4>("--region", words.region, ',');
    for (std::size_t i = 0; i < 4; ++i) settings.region[i] = static_cast<int>(numbers[i]);
  }
  return settings;
}

ScanGrid grid_of(const MapWords& words, const ScanHeader& header) {
  if (!header.grid) {
    throw RunFailure(words.scan + " holds " + std::to_string(header.points) +
                     " patterns and does not tell the size of the map: tell it by --size COLUMNSxROWS");
  }
  ScanGrid grid = *header.grid;
  if (words.step) grid.step_x = grid.step_y = *words.step;
  return grid;
}

struct Centres {
  MapCentres of_map;
  StoredCentre written;  ///< of the middle point, as .ang has it
};

Centres centres_of(const MapWords& words, const ScanHeader& header, const MapSettings& settings, const ScanGrid& grid) {
  const PictureSize size{header.width, header.height, header.pixel_micrometre.value_or(1)};
  const auto written = [&size](const PatternCentre& centre) {
    return StoredCentre{written_centre(centre, CentreConvention::Edax, size), CentreConvention::Edax};
  };
  if (!words.centre.empty()) {
    const PatternCentre centre =
        read_centre(numbers_of<3>("--pc", words.centre, ','), convention_of(words.convention), size);
    return {MapCentres(centre, settings.geometry, grid), written(centre)};
  }
  if (header.centres.empty()) {
    throw RunFailure(words.scan + " tells no pattern centre: tell it by --pc X,Y,Z and --convention");
  }
  const auto read = [&size](const StoredCentre& centre) {
    return read_centre(centre.numbers, centre.convention, size);
  };
  if (header.centres.size() == 1) {
    const PatternCentre centre = read(header.centres.front());
    return {MapCentres(centre, settings.geometry, grid), written(centre)};
  }
  std::vector<PatternCentre> all;
  all.reserve(header.centres.size());
  for (const auto& centre : header.centres) all.push_back(read(centre));
  const PatternCentre middle = all[all.size() / 2];
  return {MapCentres(std::move(all)), written(middle)};
}

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
          (words.raw ? '1' : '0') + fingerprint_text(words.master);
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

int run(const MapWords& words) {
  const DataRoot data = find_data_root(data_places());
  for (const auto& output : words.outputs) check_map_path(output);
  OpenScanSettings open;
  open.dataset = words.dataset;
  open.raw = words.raw;
  open.read_image = read_grey_image;
  if (!words.size.empty()) {
    const auto numbers = numbers_of<2>("--size", words.size, 'x');
    open.size = std::array{static_cast<int>(numbers[0]), static_cast<int>(numbers[1])};
  }
  const auto scan = open_scan(words.scan, open);
  const ScanHeader& header = scan->header();
  for (const auto& remark : header.remarks) std::cerr << words.scan << ": " << remark << '\n';
  const ScanGrid grid = grid_of(words, header);
  const MapSettings settings = settings_of(words, header);
  Centres centres = centres_of(words, header, settings, grid);
  constexpr double usual_kilovolt = 20;
  const double kilovolt = words.kilovolt > 0 ? words.kilovolt : header.kilovolt.value_or(usual_kilovolt);

  const int threads =
      words.threads > 0 ? words.threads : static_cast<int>(std::max(1U, std::thread::hardware_concurrency()));
  QuietTask task;
  MapResult map;
  std::vector<CrystalModel> models;
  models.reserve(words.crystals.size());
  for (const auto& path : words.crystals) {
    const LoadedCrystal crystal = load_crystal(path, data, task);
    const MasterView view{kilovolt, centres.of_map.at(grid.points() / 2), header.width, header.height, threads};
    models.push_back(indexing_model(crystal, kilovolt, words.families, task,
                                    master_sphere_of(words.master, models.size(), crystal, view, task)));
    map.phases.push_back(map_phase(crystal, models.back()));
  }
  std::vector<const CrystalModel*> pointers;
  pointers.reserve(models.size());
  for (const auto& model : models) pointers.push_back(&model);

  MapIndexer indexer(*scan, grid, std::move(centres.of_map), pointers, settings);
  indexer.prepare(task);
  ProgressLine line(words.quiet);
  MapRun running;
  running.threads = threads;
  running.part_path = words.outputs.front() + ".part";
  running.resume = words.resume;
  running.fingerprint = fingerprint(words);
  running.stop = [] { return stop_signal() != 0; };
  running.progress = [&line](std::size_t done, std::size_t all) { line.show(done, all); };
  if (!run_map(indexer, grid, running, map.points)) {
    std::cerr << "stopped; what is done stands in " << running.part_path << ", --resume goes on with it\n";
    return batch_stopped;
  }
  map.grid = grid;
  map.centre = centres.written;
  map.sample_tilt_deg = settings.geometry.sample_tilt_deg;
  map.detector_tilt_deg = settings.geometry.detector_tilt_deg;
  map.kilovolt = kilovolt;
  map.width = header.width;
  map.height = header.height;
  map.source = std::filesystem::path(words.scan).filename().string();
  for (const auto& output : words.outputs) write_map(map, output);
  if (!words.quiet) summarise(map);
  return batch_done;
}

}  // namespace

void add_map_command(CLI::App& app, int& status) {
  const auto words = std::make_shared<MapWords>();
  CLI::App* map = app.add_subcommand("map", "index all patterns of a scan");
  map->footer("Example:\n  zol-batch map scan.h5 -c Ni.cif -o map.ang");
  map->add_option("SCAN", words->scan, "scan: .h5, .oh5, .h5oina, .up1, .up2, .ebsp, Pattern.dat, a folder")
      ->required();
  map->add_option("-c,--crystal", words->crystals, "structure file or crystal of a phase; once for each")
      ->required()
      ->allow_extra_args(false);
  map->add_option("-o,--output", words->outputs, "result: .ang, .ctf, .h5, .oh5, .csv; once for each")
      ->required()
      ->allow_extra_args(false);
  const auto* geometry = "Geometry";
  map->add_option("--pc", words->centre, "X,Y,Z of the map's middle point; left out: the scan's own")->group(geometry);
  map->add_option("--convention", words->convention, "of --pc: bruker, edax, oxford, emsoft")->group(geometry);
  map->add_option("--tilt", words->tilt, "of the sample, degrees")->group(geometry);
  map->add_option("--camera", words->camera, "tilt of the screen, degrees")->group(geometry);
  map->add_option("--screen", words->screen_mm, "width of the screen, mm: the centre drifts with the beam")
      ->group(geometry)
      ->check(CLI::NonNegativeNumber);
  map->add_option("--step", words->step, "between points, micrometres")->group(geometry)->check(CLI::PositiveNumber);
  map->add_option("--size", words->size, "COLUMNSxROWS where the scan does not tell it")->group(geometry);
  map->add_option("--scan-x", words->scan_x, "columns run to the right or left")
      ->group(geometry)
      ->check(CLI::IsMember({"right", "left"}));
  map->add_option("--scan-y", words->scan_y, "rows run down or up the slope")
      ->group(geometry)
      ->check(CLI::IsMember({"down", "up"}));
  map->add_flag("--flip", words->flip, "patterns stand upside down in the file")->group(geometry);
  map->add_option("--voltage", words->kilovolt, "kV; left out: the scan's own, else 20")->group(geometry);
  const auto* patterns = "Patterns";
  map->add_option("--background", words->background, "auto, static, dynamic, none")
      ->group(patterns)
      ->check(CLI::IsMember({"auto", "static", "dynamic", "none"}));
  map->add_option("--average", words->average, "nlpar, nlpar=SHARE, 3x3, none; left out: nlpar, none with --master")
      ->group(patterns);
  map->add_option("--mask", words->mask, "circle")->group(patterns)->check(CLI::IsMember({"circle"}));
  map->add_option("--region", words->region, "X,Y,W,H of the map, in points")->group(patterns);
  map->add_option("--dataset", words->dataset, "name of the scan in a file of several")->group(patterns);
  map->add_flag("--raw", words->raw, "unprocessed patterns where there are both")->group(patterns);
  const auto* indexing = "Indexing";
  map->add_option("--bands", words->bands, "that are looked for")->group(indexing)->check(CLI::Range(3, 40));
  map->add_option("--families", words->families, "of planes that vote")->group(indexing)->check(CLI::Range(1, 100));
  map->add_option("--refine", words->refine, "pattern, bands")
      ->group(indexing)
      ->check(CLI::IsMember({"pattern", "bands"}));
  map->add_option("--min-ci", words->min_ci, "confidence below which a point is not indexed")->group(indexing);
  map->add_option("--max-fit", words->max_fit, "degrees above which it is not")->group(indexing);
  add_master_options(*map, words->master);
  const auto* running = "Running";
  map->add_option("-j,--threads", words->threads, "0: one for each core")->group(running)->check(CLI::Range(0, 4096));
  map->add_flag("--resume", words->resume, "go on with a run that was stopped")->group(running);
  map->add_flag("-q,--quiet", words->quiet, "nothing but failures")->group(running);
  map->callback([words, &status] { status = run(*words); });
}

}  // namespace zol
