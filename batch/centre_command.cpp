#include "batch/centre_command.h"

#include <cmath>
#include <iostream>
#include <memory>
#include <nlohmann/json.hpp>
#include <optional>

#include "batch/batch_progress.h"
#include "batch/crystal_source.h"
#include "batch/grey_image.h"
#include "batch/words.h"
#include "core/number_text.h"
#include "core/run_failure.h"
#include "scans/centre_plane.h"
#include "shell/program/data_folders.h"

namespace zol {
namespace {

struct CentreWords {
  std::string scan;
  std::vector<std::string> crystals;
  std::string centre, convention = "bruker", size, dataset, background = "auto", average = "nlpar", mask;
  std::optional<double> tilt, camera, kilovolt;
  int points = 25, bands = 9, families = 6;
  bool flip = false, raw = false, json = false, csv = false;
};

constexpr auto places6 = "0.000000";

/// The plane in the numbers of a maker: they are linear in those of the plane.
class MakersPlane {
 public:
  MakersPlane(const CentrePlane& plane, CentreConvention convention, const PictureSize& size)
      : plane_(plane), convention_(convention), size_(size) {}

  [[nodiscard]] std::array<double, 3> centre(const PatternCentre& widths) const {
    return written_centre(widths, convention_, size_);
  }
  [[nodiscard]] std::array<double, 3> middle() const { return centre(point(plane_.middle)); }
  /// What the numbers grow by where x, y, z in widths grow by these.
  [[nodiscard]] std::array<double, 3> growth(const std::array<double, 3>& widths) const {
    const auto from = centre({0, 0, 0});
    auto to = centre(point(widths));
    for (std::size_t i = 0; i < 3; ++i) to[i] -= from[i];
    return to;
  }
  [[nodiscard]] std::array<double, 3> errors(const std::array<double, 3>& widths) const {
    auto numbers = growth(widths);
    for (double& number : numbers) number = std::abs(number);
    return numbers;
  }

 private:
  static PatternCentre point(const std::array<double, 3>& widths) { return {widths[0], widths[1], widths[2]}; }
  const CentrePlane& plane_;
  CentreConvention convention_;
  PictureSize size_;
};

std::string listed(const std::array<double, 3>& numbers, const char* between = " ") {
  return Format(numbers[0], places6) + between + Format(numbers[1], places6) + between + Format(numbers[2], places6);
}

void write_text(const CentrePlane& plane, const MakersPlane& made, const CentreWords& words) {
  const auto left_out = std::count_if(plane.points.begin(), plane.points.end(), [](auto& p) { return p.left_out; });
  std::cout << "pattern centre (" << words.convention << ") of the middle of the map\n"
            << "  at the middle  " << listed(made.middle()) << "\n"
            << "  a column adds  " << listed(made.growth(plane.per_column)) << "\n"
            << "  a row adds     " << listed(made.growth(plane.per_row)) << "\n"
            << "standard errors\n"
            << "  at the middle  " << listed(made.errors(plane.middle_error)) << "\n"
            << "  of a column    " << listed(made.errors(plane.per_column_error)) << "\n"
            << "  of a row       " << listed(made.errors(plane.per_row_error)) << "\n"
            << "points about the plane: " << listed(made.errors(plane.scatter)) << "\n"
            << plane.points.size() << " clear points, " << left_out << " left out\n"
            << "--pc " << listed(made.middle(), ",") << " --convention " << words.convention << "\n";
}

void write_csv(const CentrePlane& plane, const MakersPlane& made) {
  std::cout << "column,row,x,y,z,correlation,left_out\n";
  for (const auto& point : plane.points) {
    std::cout << point.column << ',' << point.row << ',' << listed(made.centre(point.centre), ",") << ','
              << Format(point.correlation, "0.0000") << ',' << (point.left_out ? 1 : 0) << '\n';
  }
}

void write_json(const CentrePlane& plane, const MakersPlane& made, const CentreWords& words) {
  nlohmann::ordered_json json{{"scan", words.scan},
                              {"convention", words.convention},
                              {"middle", made.middle()},
                              {"per_column", made.growth(plane.per_column)},
                              {"per_row", made.growth(plane.per_row)},
                              {"middle_error", made.errors(plane.middle_error)},
                              {"per_column_error", made.errors(plane.per_column_error)},
                              {"per_row_error", made.errors(plane.per_row_error)},
                              {"scatter", made.errors(plane.scatter)}};
  json["points"] = nlohmann::ordered_json::array();
  for (const auto& point : plane.points) {
    json["points"].push_back({{"column", point.column},
                              {"row", point.row},
                              {"centre", made.centre(point.centre)},
                              {"correlation", point.correlation},
                              {"left_out", point.left_out}});
  }
  std::cout << json.dump(2, ' ', false, nlohmann::json::error_handler_t::replace) << '\n';
}

std::unique_ptr<Scan> opened(const CentreWords& words) {
  OpenScanSettings open;
  open.dataset = words.dataset;
  open.raw = words.raw;
  open.read_image = read_grey_image;
  if (!words.size.empty()) {
    const auto numbers = numbers_of<2>("--size", words.size, 'x');
    open.size = std::array{static_cast<int>(numbers[0]), static_cast<int>(numbers[1])};
  }
  return open_scan(words.scan, open);
}

/// Where the fit starts. @throws RunFailure  neither the words nor the scan tell it
PatternCentre start_of(const CentreWords& words, const ScanHeader& header, const PictureSize& size) {
  if (!words.centre.empty()) return centre_of_words(words.centre, words.convention, size);
  if (header.centres.empty()) {
    throw RunFailure(words.scan + " tells no pattern centre to start from: tell it by --pc X,Y,Z and --convention");
  }
  const StoredCentre& middle = header.centres[header.centres.size() / 2];
  return read_centre(middle.numbers, middle.convention, size);
}

MapSettings settings_of(const CentreWords& words, const ScanHeader& header) {
  MapSettings settings;
  settings.geometry.sample_tilt_deg = words.tilt.value_or(header.sample_tilt_deg.value_or(70));
  settings.geometry.detector_tilt_deg = words.camera.value_or(header.detector_tilt_deg.value_or(0));
  settings.index.band_count = words.bands;
  settings.index.candidates_fitted = 3;
  settings.index.preparation.circle = words.mask == "circle";
  settings.background = words.background == "auto"     ? Background::automatic
                        : words.background == "static" ? Background::stored
                        : words.background == "none"   ? Background::none
                                                       : Background::dynamic;
  settings.averaging = words.average == "none"  ? Averaging::none
                       : words.average == "3x3" ? Averaging::plain
                                                : Averaging::likeness;
  settings.flip = words.flip;
  return settings;
}

void run(const CentreWords& words) {
  BatchProgress progress("points");
  BatchTask task(&progress);
  BatchTask quiet;
  const auto scan = opened(words);
  const ScanHeader& header = scan->header();
  if (!header.grid) {
    throw RunFailure(words.scan + " holds " + std::to_string(header.points) +
                     " patterns and does not tell the size of the map: tell it by --size COLUMNSxROWS");
  }
  const PictureSize size{header.width, header.height, header.pixel_micrometre.value_or(1)};
  const MapSettings settings = settings_of(words, header);
  const MapCentres start(start_of(words, header, size), settings.geometry, *header.grid);

  const DataRoot data = find_data_root(data_places());
  constexpr double usual_kilovolt = 20;
  const double kilovolt = words.kilovolt.value_or(header.kilovolt.value_or(usual_kilovolt));
  std::vector<CrystalModel> models;
  models.reserve(words.crystals.size());
  for (const auto& path : words.crystals) {
    models.push_back(indexing_model(load_crystal(path, data, quiet), kilovolt, words.families, quiet));
  }
  std::vector<const CrystalModel*> pointers;
  pointers.reserve(models.size());
  for (const auto& model : models) pointers.push_back(&model);

  MapIndexer indexer(*scan, *header.grid, start, pointers, settings);
  indexer.prepare(quiet);
  const CentrePlane plane = [&] {
    try {
      return fit_centre_plane(indexer, words.points, task);
    } catch (const RunFailure& failure) {
      throw RunFailure(words.scan + ": " + failure.message());
    }
  }();
  const MakersPlane made(plane, convention_of(words.convention), size);
  if (words.json) return write_json(plane, made, words);
  if (words.csv) return write_csv(plane, made);
  write_text(plane, made, words);
}

}  // namespace

void add_centre_command(CLI::App& app) {
  const auto words = std::make_shared<CentreWords>();
  CLI::App* centre = app.add_subcommand("centre", "fit the pattern centre of a scan on its clear points");
  centre->footer("Example:\n  zol-batch centre scan.h5 -c Ni.cif --pc 0.48,0.28,0.55 --convention bruker");
  centre->add_option("SCAN", words->scan, "scan: .h5, .oh5, .h5oina, .up1, .up2, .ebsp, Pattern.dat, a folder")
      ->required();
  centre->add_option("-c,--crystal", words->crystals, "structure file or crystal of a phase; once for each")
      ->required()
      ->allow_extra_args(false);
  centre->add_option("--points", words->points, "fields of the map that a clear point is taken from")
      ->check(CLI::Range(5, 10000))
      ->capture_default_str();
  const auto* geometry = "Geometry";
  centre->add_option("--pc", words->centre, "X,Y,Z to start from; left out: the scan's own")->group(geometry);
  centre->add_option("--convention", words->convention, "of --pc and of the result: bruker, edax, oxford, emsoft")
      ->group(geometry)
      ->check(CLI::IsMember({"bruker", "edax", "oxford", "emsoft"}));
  centre->add_option("--tilt", words->tilt, "of the sample, degrees")->group(geometry);
  centre->add_option("--camera", words->camera, "tilt of the screen, degrees")->group(geometry);
  centre->add_option("--size", words->size, "COLUMNSxROWS where the scan does not tell it")->group(geometry);
  centre->add_flag("--flip", words->flip, "patterns stand upside down in the file")->group(geometry);
  centre->add_option("--voltage", words->kilovolt, "kV; left out: the scan's own, else 20")->group(geometry);
  const auto* patterns = "Patterns";
  centre->add_option("--background", words->background, "auto, static, dynamic, none")
      ->group(patterns)
      ->check(CLI::IsMember({"auto", "static", "dynamic", "none"}));
  centre->add_option("--average", words->average, "nlpar, 3x3, none")
      ->group(patterns)
      ->check(CLI::IsMember({"nlpar", "3x3", "none"}));
  centre->add_option("--mask", words->mask, "circle")->group(patterns)->check(CLI::IsMember({"circle"}));
  centre->add_option("--dataset", words->dataset, "name of the scan in a file of several")->group(patterns);
  centre->add_flag("--raw", words->raw, "unprocessed patterns where there are both")->group(patterns);
  const auto* indexing = "Indexing";
  centre->add_option("--bands", words->bands, "that are looked for")->group(indexing)->check(CLI::Range(3, 40));
  centre->add_option("--families", words->families, "of planes that vote")->group(indexing)->check(CLI::Range(1, 100));
  const auto* results = "Results";
  auto* json = centre->add_flag("--json", words->json, "plane and points as JSON")->group(results);
  centre->add_flag("--csv", words->csv, "the points, as a table with commas")->group(results)->excludes(json);
  centre->callback([words] { run(*words); });
}

}  // namespace zol
