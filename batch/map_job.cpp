#include "batch/map_job.h"

#include <algorithm>
#include <thread>
#include <utility>

#include "batch/crystal_source.h"
#include "batch/grey_image.h"
#include "batch/number_check.h"
#include "batch/words.h"
#include "core/number_text.h"
#include "core/run_failure.h"
#include "scans/centre_plane.h"
#include "shell/program/data_folders.h"

namespace zol {
namespace {

/// Dynamical patterns are fitted so closely that neighbours, turned by a little, only blur what is fitted.
std::string average_of(const MapWords& words, bool dynamical) {
  if (!words.average.empty()) return words.average;
  return dynamical ? "none" : "nlpar";
}

/// Nothing is fitted to a picture where only bands count.
MapMasterWords masters_of(const MapWords& words) {
  MapMasterWords masters = words.master;
  if (masters.masters.empty() && words.refine != "pattern") masters.masters = {"none"};
  return masters;
}

Background background_of(const std::string& word) {
  if (word.starts_with("static")) return Background::stored;
  return word == "auto" ? Background::automatic : word == "none" ? Background::none : Background::dynamic;
}

void read_average(const std::string& word, MapSettings& settings) {
  constexpr std::string_view with_share = "nlpar=";
  if (word.starts_with(with_share)) {
    const std::string share = word.substr(with_share.size());
    const std::string wrong = number_from(1e-6, 1)(share);
    if (!wrong.empty()) throw CLI::ValidationError("--average", wrong);
    settings.own_share = numbers_of<1>("--average", share)[0];
  } else if (word != "nlpar" && word != "3x3" && word != "none") {
    throw CLI::ValidationError("--average", word + " is none of nlpar, nlpar=SHARE, 3x3, none");
  }
  settings.averaging = word == "none" ? Averaging::none : word == "3x3" ? Averaging::plain : Averaging::likeness;
}

constexpr std::string_view static_picture = "static=";

std::vector<float> background_picture(const MapWords& words, const ScanHeader& header) {
  const std::string path = words.background.substr(static_picture.size());
  GreyImage image = read_grey_image(path);
  if (image.width != header.width || image.height != header.height) {
    throw RunFailure("the background " + path + " has " + std::to_string(image.width) + " x " +
                     std::to_string(image.height) + " pixels, the patterns have " + std::to_string(header.width) +
                     " x " + std::to_string(header.height));
  }
  return std::move(image.values);
}

std::array<int, 4> region_of(const std::string& words, const ScanGrid& grid) {
  const std::array region = whole_numbers_of<4>("--region", words, ',', {0, 0, 1, 1});
  if (region[2] > grid.columns - region[0] || region[3] > grid.rows - region[1]) {
    throw CLI::ValidationError("--region", words + " lies outside the map of " + std::to_string(grid.columns) + " x " +
                                               std::to_string(grid.rows) + " points");
  }
  return region;
}

/// A scan's own centre has its own convention.
void check_convention(const MapWords& words) {
  const bool usual = convention_of(words.convention) == CentreConvention::Bruker;
  if (words.centre.empty() && !usual) throw CLI::ValidationError("--convention", "needs --pc, whose convention it is");
}

MapSettings settings_of(const MapWords& words, const ScanHeader& header, const ScanGrid& grid, bool dynamical) {
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
  settings.refinement = words.refine == "pattern" ? Refinement::pattern
                        : words.refine == "bands" ? Refinement::bands
                                                  : Refinement::none;
  settings.background = background_of(words.background);
  if (words.background.starts_with(static_picture)) settings.background_picture = background_picture(words, header);
  read_average(average_of(words, dynamical), settings);
  settings.least_confidence = words.min_ci;
  settings.most_fit_deg = words.max_fit;
  settings.flip = words.flip;
  if (!words.region.empty()) {
    settings.region = region_of(words.region, grid);
  }
  return settings;
}

std::unique_ptr<Scan> open_scan_of(const MapWords& words) {
  OpenScanSettings open;
  open.dataset = words.dataset;
  open.raw = words.raw;
  open.read_image = read_grey_image;
  if (!words.size.empty()) {
    open.size = whole_numbers_of<2>("--size", words.size, 'x', {1, 1});
  }
  return open_scan(words.scan, open);
}

ScanGrid grid_of(const MapWords& words, const ScanHeader& header) {
  if (!header.grid && header.points == 1) return {1, 1};
  if (!header.grid) {
    throw RunFailure(words.scan + " holds " + std::to_string(header.points) +
                     " patterns and no size of the map: give it by --size COLUMNSxROWS");
  }
  ScanGrid grid = *header.grid;
  if (words.step) grid.step_x = grid.step_y = *words.step;
  return grid;
}

PictureSize picture_size(const ScanHeader& header) {
  return {header.width, header.height, header.pixel_micrometre.value_or(1)};
}

struct Centres {
  MapCentres of_map;
  PatternCentre middle;
  std::string source;
};

Centres centres_of(const MapWords& words, Scan& scan, const MapSettings& settings, const ScanGrid& grid) {
  const ScanHeader& header = scan.header();
  const std::vector<StoredCentre> stored = scan.take_centres();
  const PictureSize size = picture_size(header);
  if (!words.centre.empty()) {
    const PatternCentre centre = centre_of_words(words.centre, words.convention, size);
    return {MapCentres(centre, settings.geometry, grid), centre, "from --pc"};
  }
  if (stored.empty()) {
    throw RunFailure(words.scan + " has no pattern centre: give it by --pc X,Y,Z and --convention");
  }
  const auto read = [&size](const StoredCentre& centre) {
    return read_centre(centre.numbers, centre.convention, size);
  };
  if (stored.size() == 1) {
    const PatternCentre centre = read(stored.front());
    return {MapCentres(centre, settings.geometry, grid), centre, "of the scan"};
  }
  std::vector<PatternCentre> all;
  all.reserve(stored.size());
  for (const auto& centre : stored) all.push_back(read(centre));
  const PatternCentre middle = all[all.size() / 2];
  return {MapCentres(std::move(all)), middle, "of the scan, which has one for each point"};
}

}  // namespace

StoredCentre centre_of_ang(const MapJob& job) {
  return {written_centre(job.centre, CentreConvention::Edax, picture_size(job.scan->header())), CentreConvention::Edax};
}

void prepare_map_job(MapJob& job, const MapWords& words, Task& task) {
  job.indexer->prepare(task);
  if (words.fit_centre == 0) return;
  const CentrePlane plane = fit_centre_plane(*job.indexer, words.fit_centre, task);
  job.centre = plane.at(0, 0);
  job.centre_source = "fitted at " + std::to_string(plane.points.size()) + " points, errors " +
                      short_text(plane.middle_error[0], 5) + ", " + short_text(plane.middle_error[1], 5) + ", " +
                      short_text(plane.middle_error[2], 5);
  job.indexer->set_centres(plane.centres());
}

MapJob make_map_job(const MapWords& words, Task& task) {
  check_convention(words);
  MapJob job;
  const DataRoot data = find_data_root(data_places());
  job.scan = open_scan_of(words);
  const ScanHeader& header = job.scan->header();
  job.grid = grid_of(words, header);
  constexpr double usual_kilovolt = 20;
  job.kilovolt = words.kilovolt > 0 ? words.kilovolt : header.kilovolt.value_or(usual_kilovolt);
  std::vector<LoadedCrystal> crystals;
  for (const auto& path : words.crystals) crystals.push_back(load_crystal(path, data, task));
  const CrystalMasters masters(masters_of(words), crystals, job.kilovolt);
  job.master_remark = masters.remark();
  job.settings = settings_of(words, header, job.grid, masters.any());
  Centres centres = centres_of(words, *job.scan, job.settings, job.grid);
  job.centre = centres.middle;
  job.centre_source = centres.source;
  const int threads =
      words.threads > 0 ? words.threads : static_cast<int>(std::max(1U, std::thread::hardware_concurrency()));
  const MasterView view{job.kilovolt, centres.of_map.at(job.grid.points() / 2), header.width, header.height, threads};
  job.models.reserve(crystals.size());
  for (std::size_t i = 0; i < crystals.size(); ++i) {
    job.models.push_back(
        indexing_model(crystals[i], job.kilovolt, words.families, task, masters.sphere(i, view, task)));
    job.phases.push_back(map_phase(crystals[i], job.models.back()));
    job.fitted_to.push_back(masters.description(i));
  }
  std::vector<const CrystalModel*> pointers;
  pointers.reserve(job.models.size());
  for (const auto& model : job.models) pointers.push_back(&model);
  job.indexer =
      std::make_unique<MapIndexer>(*job.scan, job.grid, std::move(centres.of_map), std::move(pointers), job.settings);
  return job;
}

}  // namespace zol
