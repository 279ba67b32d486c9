#include "batch/index_command.h"

#include <cmath>
#include <filesystem>
#include <iostream>
#include <memory>
#include <nlohmann/json.hpp>
#include <optional>
#include <set>
#include <thread>

#include "analysis/window/pattern3_form.h"
#include "batch/batch_program.h"
#include "batch/batch_progress.h"
#include "batch/batch_status.h"
#include "batch/figure.h"
#include "batch/index_pictures.h"
#include "batch/number_check.h"
#include "batch/output_guard.h"
#include "batch/words.h"
#include "core/number_text.h"
#include "indexing/index_report.h"
#include "indexing/window/overlay.h"
#include "shell/services/latin1.h"

namespace zol {
namespace {

ReportedSolution report_of(const IndexedPicture& found, double tilt) {
  const auto& best = found.result.solutions.front();
  return {&best.found, found.result.bands, best.matches, found.result.size, found.result.centre, tilt};
}

std::string overlay_path(const IndexWords& words, const std::string& picture) {
  return (std::filesystem::path(words.overlay) / (title_of(picture) + ".png")).string();
}

/// A picture that is told twice has one overlay. @throws CLI::ValidationError  one would take the place of a file
void check_overlays(const IndexWords& words) {
  if (words.overlay.empty()) return;
  std::vector<NamedFile> inputs;
  for (const auto& crystal : words.crystals) inputs.push_back({"--crystal", crystal});
  for (const auto& master : words.master.masters) inputs.push_back({"--master", master});
  for (const auto& picture : words.pictures) inputs.push_back({"PICTURE", picture});
  std::vector<NamedFile> outputs;
  const std::set<std::string> pictures(words.pictures.begin(), words.pictures.end());
  outputs.reserve(pictures.size());
  for (const auto& picture : pictures) outputs.push_back({"--overlay", overlay_path(words, picture)});
  check_outputs(outputs, inputs);
  check_folder(outputs.front().path, MissingFolder::is_made);
}

/// Bands and zone axes over the picture, as the window draws them.
class Overlays {
 public:
  Overlays(const IndexWords& words, BatchProgram& program) : words_(words), program_(program) {}
  void write(const IndexedPicture& found) {
    const std::string path = overlay_path(words_, found.picture);
    BatchProgram::naming(path, [&] {
      make_folder_of(path);
      auto& pattern = program_.window<Pattern3Form>();
      pattern.CommonDialog1.answering(found.picture, [&pattern] { pattern.ImageLoad.click(); });
      if (!words_.flipped) pattern.ImageFlip.click();
      draw_solution(pattern, found.result);
      write_picture(program_, pattern.Picture1, path, 1);
    });
  }

 private:
  const IndexWords& words_;
  BatchProgram& program_;
};

std::array<double, 3> centre_in_words(const IndexedPicture& found, const IndexWords& words) {
  const PictureSize& size = found.result.size;
  return written_centre(upside_down(found.result.centre, size), convention_of(words.convention), size);
}

std::string numbers(const std::array<double, 3>& values, const char* format, const char* between) {
  return Format(values[0], format) + between + Format(values[1], format) + between + Format(values[2], format);
}

std::array<double, 3> euler(const IndexedPicture& found, const IndexWords& words) {
  return bunge_deg(found.result.solutions.front().found.crystal_from_picture * picture_from_sample(words.tilt));
}

std::string kinematic_text(const IndexedPicture& found) {
  if (!found.kinematic) return "";
  return " dynamical, " + Format(*found.kinematic, "0.000") + " kinematic";
}

void write_text(const IndexedPicture& found, const IndexWords& words) {
  const IndexSolution& best = found.result.solutions.front().found;
  std::cout << found.picture << ": " << readable_utf8(best.model->title) << ", Euler angles "
            << numbers(euler(found, words), "0.00", " ") << ", " << best.matched << " of " << found.result.bands.size()
            << " bands, off by " << Format(best.mean_deviation_deg, "0.00") << " deg, correlation "
            << Format(best.correlation, "0.000") << kinematic_text(found) << ", confidence "
            << Format(best.confidence, "0.00");
  if (best.lead) std::cout << ", " << lookalike_text(best);
  if (found.refined) {
    std::cout << ", centre " << numbers(centre_in_words(found, words), "0.00000", " ") << " (" << words.convention
              << ")";
  }
  std::cout << '\n';
}

constexpr auto csv_head =
    "picture,crystal,phi1,Phi,phi2,matched,bands,deviation,correlation,confidence,pc_x,pc_y,pc_z,kinematic\n";

/// In double quotes where it needs them.
std::string csv_field(const std::string& text) {
  if (text.find_first_of(",\"\n") == std::string::npos) return text;
  std::string quoted = "\"";
  for (const char c : text) quoted += c == '"' ? std::string("\"\"") : std::string(1, c);
  return quoted + '"';
}

void write_csv(const IndexedPicture& found, const IndexWords& words) {
  const IndexSolution& best = found.result.solutions.front().found;
  std::cout << csv_field(found.picture) << ',' << csv_field(readable_utf8(best.model->title)) << ','
            << numbers(euler(found, words), "0.0000", ",") << ',' << best.matched << ',' << found.result.bands.size()
            << ',' << Format(best.mean_deviation_deg, "0.0000") << ',' << Format(best.correlation, "0.0000") << ','
            << Format(best.confidence, "0.0000") << ',' << numbers(centre_in_words(found, words), "0.000000", ",")
            << ',' << (found.kinematic ? Format(*found.kinematic, "0.0000") : "") << '\n';
}

nlohmann::ordered_json json_of(const IndexedPicture& found, const IndexWords& words) {
  auto json = nlohmann::ordered_json::parse(report_json(report_of(found, words.tilt)));
  json["picture"] = {{"file", found.picture}, {"width", found.result.size.width}, {"height", found.result.size.height}};
  if (found.kinematic) json["kinematic_correlation"] = *found.kinematic;
  if (found.refined) {
    const auto& errors = found.refined->errors;
    json["pattern_centre_errors_widths"] = {errors[3], errors[4], errors[5]};
  }
  return json;
}

/// All pictures that can be indexed are told; one that cannot fails the command at its end.
int run(const IndexWords& words) {
  (void)centre_of_words(words.centre, words.convention, {1, 1, words.pixel});
  check_overlays(words);
  const int threads =
      words.threads > 0 ? words.threads : static_cast<int>(std::max(1U, std::thread::hardware_concurrency()));
  BatchProgram program;  // starts Qt, before threads read pictures by it
  const PictureModels models(words, threads);
  if (!models.remark().empty()) std::cerr << readable_utf8(models.remark()) << '\n';
  Overlays overlays(words, program);
  BatchProgress progress("pictures");
  auto all = nlohmann::ordered_json::array();
  std::size_t done = 0;
  std::size_t failed = 0;
  if (words.csv) std::cout << csv_head;
  const auto tell = [&](const IndexedPicture& found) {
    if (!found.failure.empty()) throw RunFailure(found.failure);
    if (!words.overlay.empty()) overlays.write(found);
    if (words.json) {
      all.push_back(json_of(found, words));
    } else {
      words.csv ? write_csv(found, words) : write_text(found, words);
    }
  };
  index_pictures(words, models, threads, [&](const IndexedPicture& found) {
    progress.show(done++, words.pictures.size());
    try {
      tell(found);
    } catch (const RunFailure& failure) {
      ++failed;
      std::cerr << "zol-batch: " << readable_utf8(failure.message()) << '\n';
    }
  });
  if (words.json) std::cout << all.dump(2, ' ', false, nlohmann::json::error_handler_t::replace) << '\n';
  return failed == 0 ? batch_done : batch_failed;
}

}  // namespace

void add_index_command(CLI::App& app, int& status) {
  const auto words = std::make_shared<IndexWords>();
  CLI::App* index = app.add_subcommand("index", "find the orientation of the crystal in Kikuchi patterns");
  index->footer("Example:\n  zol-batch index pattern.png -c Ni.cif --pc 0.48,0.28,0.55 --convention bruker");
  index->add_option("PICTURE", words->pictures, "patterns as the detector shows them: .bmp, .png, .jpg, .tif")
      ->required();
  index->add_option("-c,--crystal", words->crystals, "structure file or crystal that is tried; once for each")
      ->required()
      ->allow_extra_args(false);
  const auto* geometry = "Geometry";
  index->add_option("--pc", words->centre, "X,Y,Z of the pattern centre")->required()->group(geometry);
  index->add_option("--convention", words->convention, "of --pc: bruker, edax, oxford, emsoft")
      ->group(geometry)
      ->check(CLI::IsMember({"bruker", "edax", "oxford", "emsoft"}))
      ->capture_default_str();
  index->add_option("--pixel", words->pixel, "size of a pixel on the screen, micrometres; emsoft needs it")
      ->group(geometry)
      ->check(number_from(1e-3, 1e4));
  index->add_option("--tilt", words->tilt, "of the sample, less that of the screen, degrees")
      ->group(geometry)
      ->check(tilt())
      ->capture_default_str();
  index->add_option("--voltage", words->kilovolt, "kV")->group(geometry)->check(kilovolt())->capture_default_str();
  index->add_flag("--flipped", words->flipped, "the pictures are upside down already")->group(geometry);
  index->add_flag("--refine-pc", words->refine, "fit the pattern centre too, on each picture")->group(geometry);
  const auto* indexing = "Indexing";
  index->add_option("--bands", words->bands, "number of bands to look for")
      ->group(indexing)
      ->check(whole_from(3, 30))
      ->capture_default_str();
  index->add_option("--families", words->families, "of planes that vote")
      ->group(indexing)
      ->check(whole_from(1, 100))
      ->capture_default_str();
  index->add_option("--mask", words->mask, "circle: the pattern is round")
      ->group(indexing)
      ->check(CLI::IsMember({"circle"}));
  add_master_options(*index, words->master);
  const auto* results = "Results";
  auto* json = index->add_flag("--json", words->json, "a list of objects")->group(results);
  index->add_flag("--csv", words->csv, "a table with commas")->group(results)->excludes(json);
  index->add_option("--overlay", words->overlay, "folder for pictures with the bands drawn over them, .png")
      ->group(results);
  index->add_option("-j,--threads", words->threads, "0: one for each core")
      ->group("Running")
      ->check(whole_from(0, 4096));
  index->callback([words, &status] { status = run(*words); });
}

}  // namespace zol
