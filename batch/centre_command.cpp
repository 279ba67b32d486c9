#include "batch/centre_command.h"

#include <cmath>
#include <iostream>
#include <memory>
#include <nlohmann/json.hpp>

#include "batch/batch_progress.h"
#include "batch/map_job.h"
#include "batch/number_check.h"
#include "batch/words.h"
#include "core/number_text.h"
#include "core/run_failure.h"
#include "scans/centre_plane.h"

namespace zol {
namespace {

struct CentreWords {
  MapWords map;
  int points = 25;
  bool json = false, csv = false;
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
  std::cout << "pattern centre (" << words.map.convention << ") of the middle of the map\n"
            << "  at the middle  " << listed(made.middle()) << "\n"
            << "  a column adds  " << listed(made.growth(plane.per_column)) << "\n"
            << "  a row adds     " << listed(made.growth(plane.per_row)) << "\n"
            << "standard errors\n"
            << "  at the middle  " << listed(made.errors(plane.middle_error)) << "\n"
            << "  of a column    " << listed(made.errors(plane.per_column_error)) << "\n"
            << "  of a row       " << listed(made.errors(plane.per_row_error)) << "\n"
            << "points about the plane: " << listed(made.errors(plane.scatter)) << "\n"
            << plane.points.size() << " clear points, " << left_out << " left out\n"
            << "--pc " << listed(made.middle(), ",") << " --convention " << words.map.convention << "\n";
}

void write_csv(const CentrePlane& plane, const MakersPlane& made) {
  std::cout << "column,row,x,y,z,correlation,left_out\n";
  for (const auto& point : plane.points) {
    std::cout << point.column << ',' << point.row << ',' << listed(made.centre(point.centre), ",") << ','
              << Format(point.correlation, "0.0000") << ',' << (point.left_out ? 1 : 0) << '\n';
  }
}

void write_json(const CentrePlane& plane, const MakersPlane& made, const CentreWords& words) {
  nlohmann::ordered_json json{{"scan", words.map.scan},
                              {"convention", words.map.convention},
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

void run(const CentreWords& words) {
  BatchProgress progress("points");
  BatchTask task(&progress);
  BatchTask quiet;
  const MapJob job = make_map_job(words.map, quiet);
  job.indexer->prepare(quiet);
  const CentrePlane plane = [&] {
    try {
      return fit_centre_plane(*job.indexer, words.points, task);
    } catch (const RunFailure& failure) {
      throw RunFailure(words.map.scan + ": " + failure.message());
    }
  }();
  const ScanHeader& header = job.scan->header();
  const PictureSize size{header.width, header.height, header.pixel_micrometre.value_or(1)};
  const MakersPlane made(plane, convention_of(words.map.convention), size);
  if (words.json) return write_json(plane, made, words);
  if (words.csv) return write_csv(plane, made);
  write_text(plane, made, words);
}

}  // namespace

void add_centre_command(CLI::App& app) {
  const auto words = std::make_shared<CentreWords>();
  words->map.master.masters = {"none"};
  CLI::App* centre = app.add_subcommand("centre", "fit the pattern centre of a scan on its clear points");
  centre->footer("Example:\n  zol-batch centre scan.h5 -c Ni.cif --pc 0.48,0.28,0.55 --convention bruker");
  add_scan_words(*centre, words->map);
  centre->add_option("--points", words->points, "fields of the map that a clear point is taken from")
      ->check(whole_from(5, 10000))
      ->capture_default_str();
  add_band_words(*centre, words->map);
  const auto* results = "Results";
  auto* json = centre->add_flag("--json", words->json, "plane and points as JSON")->group(results);
  centre->add_flag("--csv", words->csv, "the points, as a table with commas")->group(results)->excludes(json);
  centre->callback([words] { run(*words); });
}

}  // namespace zol
