#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

#include "dynamics/master_sphere.h"
#include "indexing/index_report.h"
#include "indexing/window/auto_index_form.h"
#include "indexing/window/crystal_models.h"
#include "indexing/window/overlay.h"
#include "indexing/window/show_orientation.h"
#include "reflections/window/main1_form.h"
#include "shell/services/attempt.h"
#include "shell/services/wiring.h"

namespace zol::auto_index {
namespace {

constexpr double per_radian = 180 / std::numbers::pi;
constexpr auto no_solution = "there is no solution yet: press Index";

Pattern3Form& pattern3(Workbench& bench) { return bench.windows.use<Pattern3Form>(); }

/// The file's own pixels as they stand in PATTERN3.
std::shared_ptr<const GreyPicture> measured_picture(Workbench& bench) {
  auto picture = pattern3(bench).Picture1.grey_picture();
  if (!picture) throw RunFailure("there is no picture: load one in PATTERN3 (Image, LOAD)");
  return picture;
}

PictureView view_of(const GreyPicture& picture) { return {picture.values, picture.width, picture.height}; }

IndexSettings settings_of(const AutoIndexForm& form) {
  constexpr int most_bands = 30;
  IndexSettings settings;
  settings.band_count = std::clamp<int>(integer_in(form.BandCount).value(), 3, most_bands);
  settings.preparation.circle = form.CircleMask.checked();
  return settings;
}

ReportedSolution reported(const AutoIndexForm& form, const IndexResult::Solution& solution) {
  ReportedSolution report{&solution.found,  form.result.bands,  solution.matches,
                          form.result.size, form.result.centre, Val(form.SampleTilt.text())};
  if (solution.dynamical) report.kinematic = solution.kinematic;
  return report;
}

std::string signed_field(double value, std::size_t width, const char* format) {
  return right_field(Format(value, format), width);
}

void show_bands(AutoIndexForm& form) {
  const int picked = form.Bands.list_index();
  form.Bands.clear();
  const auto* solution = form.result.solution();
  for (std::size_t i = 0; i < form.result.bands.size(); ++i) {
    const DetectedBand& band = form.result.bands[i];
    std::string line = right_field(std::to_string(i + 1), 3) + signed_field(band.azimuth_rad * per_radian, 9, "0.00") +
                       signed_field(band.distance_rad * per_radian, 9, "0.00") +
                       signed_field(2 * band.half_width_rad * per_radian, 7, "0.00") +
                       signed_field(band.strength, 9, "0.0");
    if (solution != nullptr && solution->matches[i].plane >= 0) {
      const MatchedBand& match = solution->matches[i];
      const auto& hkl = solution->model->table->planes()[static_cast<std::size_t>(match.plane)].hkl;
      line += " ";
      for (const int index : hkl) line += right_field(std::to_string(index), 3);
      line += signed_field(match.deviation_deg, 6, "0.00");
    }
    form.Bands.add_item(line);
  }
  if (picked < form.Bands.list_count()) form.Bands.set_list_index(picked);
}

void show_solutions(AutoIndexForm& form) {
  form.Solutions.clear();
  const bool compared = form.result.compared();
  form.SolutionsHeading.set_caption(compared ? AutoIndexForm::compared_heading : AutoIndexForm::solutions_heading);
  int rank = 0;
  for (const auto& solution : form.result.solutions) {
    const ReportedSolution report = reported(form, solution);
    const auto uvw = middle_direction(report);
    const auto euler = bunge_deg(solution.found.crystal_from_picture * picture_from_sample(report.sample_tilt_deg));
    std::string line =
        right_field(std::to_string(++rank), 2) +
        right_field(std::to_string(solution.found.matched) + "/" + std::to_string(form.result.bands.size()), 6) +
        signed_field(solution.found.mean_deviation_deg, 7, "0.00") +
        signed_field(solution.found.correlation, 7, "0.000");
    if (compared) line += signed_field(solution.kinematic, 7, "0.000");
    line += signed_field(solution.found.confidence, 6, "0.00");
    for (const double component : uvw) line += signed_field(component, 7, "0.000");
    for (const double angle : euler) line += signed_field(angle, 7, "0.0");
    if (form.result.solutions.size() > 1 && !form.crystal_files.empty()) line += "  " + solution.model->title;
    form.Solutions.add_item(line);
  }
}

/// A result that comes from a file has drawn bands alone: crystals that are still there get their patterns again.
void renew_dynamical(Workbench& bench, AutoIndexForm& form) {
  IndexResult& result = form.result;
  const auto missing = [](const auto& solution) { return solution.dynamical && !solution.model->sphere->continuous(); };
  if (std::none_of(result.solutions.begin(), result.solutions.end(), missing)) return;
  try {
    const auto present = dynamical_models(bench, form, crystal_models(bench, form),
                                          fitted_pixel_deg(result.size.width, result.centre.z));
    for (auto& solution : result.solutions) {
      const auto same = std::find_if(present.models.begin(), present.models.end(), [&solution](const auto& model) {
        return model->title == solution.model->title && model->reflectors.cell == solution.model->reflectors.cell;
      });
      if (!missing(solution) || same == present.models.end()) continue;
      auto renewed = std::make_shared<CrystalModel>(*solution.model);
      renewed->sphere = (*same)->sphere;
      solution.model = std::move(renewed);
      solution.found.model = solution.model.get();
    }
  } catch (const RunFailure&) {  // its crystals are gone: the drawn bands do
    return;
  }
}

/// What belongs to the picked solution.
void show_picked(Workbench& bench, AutoIndexForm& form) {
  show_bands(form);
  draw_solution(pattern3(bench), form.result);
  renew_dynamical(bench, form);
  WindowTask task(bench.services);
  if (const auto picture = pattern3(bench).Picture1.grey_picture()) draw_simulated(form, view_of(*picture), task);
}

/// "0.56", of a dynamical fit "0.56 dynamical, 0.44 kinematic".
std::string correlation_text(const IndexResult& result, const IndexResult::Solution& solution) {
  const std::string correlation = Format(solution.found.correlation, "0.00");
  if (solution.dynamical) return correlation + " dynamical, " + Format(solution.kinematic, "0.00") + " kinematic";
  return correlation + (result.drawn_instead.empty() ? "" : " kinematic");
}

std::string drawn_instead_text(const IndexResult& result) {
  std::string text;
  for (const auto& crystal : result.drawn_instead) text += "; " + crystal;
  return text;
}

void show_result(Workbench& bench, AutoIndexForm& form) {
  show_families(form);
  show_solutions(form);
  show_picked(bench, form);
  const auto* best = form.result.solution();
  if (best == nullptr) {
    form.Status.set_caption(std::to_string(form.result.bands.size()) +
                            " bands, but no orientation explains three of them");
    return;
  }
  form.Status.set_caption(best->model->title + ": " + std::to_string(best->found.matched) + " of " +
                          std::to_string(form.result.bands.size()) + " bands, off by " +
                          Format(best->found.mean_deviation_deg, "0.00") + " deg, correlation " +
                          correlation_text(form.result, *best) + ", confidence " +
                          Format(best->found.confidence, "0.00") + (best->found.lead ? ", " : "") +
                          lookalike_text(best->found) + drawn_instead_text(form.result));
}

/// What was found, with the crystals that it belongs to.
void keep_result(const AutoIndexForm& form, IndexResult& result,
                 std::span<const std::shared_ptr<const CrystalModel>> models, std::span<const IndexSolution> solutions,
                 const IndexSettings& settings) {
  const auto bands = form.indexer.bands();
  result.bands.assign(bands.begin(), bands.end());
  for (const IndexSolution& solution : solutions) {
    const auto model = std::find_if(models.begin(), models.end(),
                                    [&solution](const auto& known) { return known.get() == solution.model; });
    result.solutions.push_back({*model, solution, form.indexer.matches(solution, settings.vote.tolerance_deg)});
  }
}

/// What the drawn bands would give in the place of the dynamical patterns.
void compare_with_bands(AutoIndexForm& form, IndexResult& result,
                        std::span<const std::shared_ptr<const CrystalModel>> tried,
                        std::span<const std::shared_ptr<const CrystalModel>> drawn, const IndexSettings& settings) {
  for (auto& solution : result.solutions) {
    solution.dynamical = solution.model->sphere->continuous();
    solution.kinematic = solution.found.correlation;
    if (!solution.dynamical || solution.found.correlation == 0) continue;
    const auto number = std::find(tried.begin(), tried.end(), solution.model) - tried.begin();
    const CrystalModel& bands = *drawn[static_cast<std::size_t>(number)];
    solution.kinematic =
        form.indexer.fit(bands, solution.found.crystal_from_picture, result.centre, settings).correlation;
  }
}

/// The last steps of the fit to a dynamical pattern.
void settle(AutoIndexForm& form, IndexSolution& solution, const PatternCentre& centre, const IndexSettings& settings) {
  PictureFit fit;
  fit.crystal_from_picture = solution.crystal_from_picture;
  fit.centre = centre;
  fit.correlation = solution.correlation;
  const PictureFit settled = form.indexer.settle(*solution.model, fit, centre, settings);
  solution.crystal_from_picture = settled.crystal_from_picture;
  solution.correlation = settled.correlation;
}

/// Indexes the picture with the centre that the boxes of PATTERN3 tell. Where that fails, the result before it stands.
/// @returns the models that were tried
std::vector<std::shared_ptr<const CrystalModel>> index_picture(Workbench& bench, AutoIndexForm& form,
                                                               const PictureView& picture) {
  const IndexSettings settings = settings_of(form);
  const Pattern3Form& pattern = pattern3(bench);
  const DetectorAngles angles{Val(pattern.Text3.text()), Val(pattern.Text14.text()), Val(pattern.Text15.text())};
  if (!(angles.half_width_deg > 0 && angles.half_width_deg < 89)) {
    throw RunFailure("the half angle of PATTERN3, Area (deg.), is " + plain_text(angles.half_width_deg) +
                     "; it must lie between 0 and 89");
  }
  IndexResult result;
  result.size = {picture.width, picture.height, 1};
  result.centre = centre_of(angles, result.size);
  const bool dynamical = form.Dynamical.checked();
  const auto drawn = crystal_models(bench, form);
  DynamicalModels tried{drawn, {}};
  if (dynamical) {
    tried = dynamical_models(bench, form, drawn, fitted_pixel_deg(picture.width, result.centre.z));
  }
  result.drawn_instead = tried.drawn_instead;
  std::vector<const CrystalModel*> plain;
  plain.reserve(tried.models.size());
  for (const auto& model : tried.models) plain.push_back(model.get());
  WindowTask task(bench.services);
  const auto found = form.indexer.index(picture, result.centre, plain, settings, task);
  keep_result(form, result, tried.models, found, settings);
  if (dynamical && !result.solutions.empty()) {
    compare_with_bands(form, result, tried.models, drawn, settings);
    settle(form, result.solutions.front().found, result.centre, settings);
  }
  form.result = std::move(result);
  return tried.models;
}

void Index_Click(Workbench& bench, AutoIndexForm& form) {
  attempt(bench, form, [&] {
    const Hourglass hourglass(form);
    const auto picture = measured_picture(bench);
    index_picture(bench, form, view_of(*picture));
    show_result(bench, form);
  });
}

/// Writes a centre into the boxes of PATTERN3, which go on as if they had been typed.
void write_centre(Workbench& bench, const PatternCentre& centre, const PictureSize& size) {
  const DetectorAngles angles = angles_of(centre, size);
  Pattern3Form& pattern = pattern3(bench);
  pattern.Text3.set_text(plain_text(to_single(angles.half_width_deg)));
  pattern.Text14.set_text(plain_text(to_single(angles.x_shift_deg)));
  pattern.Text15.set_text(plain_text(to_single(angles.y_shift_deg)));
}

/// The centre goes to the boxes of PATTERN3, and the picture is indexed again with what they make of it.
void RefineCentre_Click(Workbench& bench, AutoIndexForm& form) {
  attempt(bench, form, [&] {
    const Hourglass hourglass(form);
    const auto picture = measured_picture(bench);
    const auto models = index_picture(bench, form, view_of(*picture));
    const auto* best = form.result.solution();
    if (best == nullptr) throw RunFailure("no orientation was found to refine the centre with");
    const PictureFit fit = form.indexer.refine_centre(best->found, form.result.centre, settings_of(form));
    write_centre(bench, fit.centre, form.result.size);
    index_picture(bench, form, view_of(*picture));
    show_result(bench, form);
    form.Status.set_caption(form.Status.caption() + "; centre good to " + Format(100 * fit.errors[3], "0.00") + ", " +
                            Format(100 * fit.errors[4], "0.00") + ", " + Format(100 * fit.errors[5], "0.00") +
                            " % of the width");
  });
}

/// "bruker 0.5 0.25 0.6", for emsoft with the pixel size in micrometres behind. @throws RunFailure  it is none
PatternCentre typed_centre(const std::string& text, PictureSize size) {
  constexpr auto form = R"(a maker and its numbers are expected, as "bruker 0.5 0.25 0.6", or )"
                        R"("emsoft 10 -20 15000 70" with the size of a pixel in micrometres)";
  std::string word;
  std::vector<std::string> words;
  for (const char c : text + " ") {
    if (c != ' ' && c != ',' && c != '\t') {
      word += c;
    } else if (!word.empty()) {
      words.push_back(std::exchange(word, {}));
    }
  }
  const auto convention = words.empty() ? std::nullopt : centre_convention(words.front());
  const bool has_pixel = convention == CentreConvention::Emsoft;
  if (!convention || words.size() != (has_pixel ? 5U : 4U))
    throw RunFailure("\"" + text + "\" is not a pattern centre: " + form);
  std::array<double, 4> numbers{0, 0, 0, 1};
  for (std::size_t i = 1; i < words.size(); ++i) {
    const auto number = strict_number(words[i]);
    if (!number) throw RunFailure("\"" + words[i] + "\" is not a number: " + form);
    numbers[i - 1] = *number;
  }
  size.pixel_micrometre = numbers[3];
  const PatternCentre centre = read_centre({numbers[0], numbers[1], numbers[2]}, *convention, size);
  if (!(centre.z > 0.05 && centre.z < 20 && size.pixel_micrometre > 0)) {
    throw RunFailure("the specimen would be " + plain_text(centre.z) +
                     " widths from the screen; expected are 0.05 to 20");
  }
  constexpr double most_off = 3;  // widths: beyond, a number stands in the wrong place or unit
  if (!(std::abs(centre.x) < most_off && std::abs(centre.y) < most_off)) {
    throw RunFailure("the pattern centre would lie " + plain_text(centre.x) + ", " + plain_text(centre.y) +
                     " widths from the upper left corner; expected are less than 3");
  }
  return upside_down(centre, size);
}

/// The numbers of the detector's software, of the picture before it is turned.
void MakerCentre_Click(Workbench& bench, AutoIndexForm& form) {
  attempt(bench, form, [&] {
    const auto picture = measured_picture(bench);
    const std::string answer = bench.services.prompt(
        "Pattern centre of the detector software: bruker, edax, oxford or emsoft and its three numbers, "
        "as edax 0.52 0.76 0.80",
        form.caption());
    if (answer.empty()) return;
    const PictureSize size{picture->width, picture->height, 1};
    write_centre(bench, typed_centre(answer, size), size);
  });
}

const IndexResult::Solution& picked_solution(const AutoIndexForm& form) {
  const auto* solution = form.result.solution();
  if (solution == nullptr) throw RunFailure(no_solution);
  return *solution;
}

void Show_Click(Workbench& bench, AutoIndexForm& form) {
  attempt(bench, form, [&] { show_orientation(bench, picked_solution(form).found.crystal_from_picture); });
}

void TakeLines_Click(Workbench& bench, AutoIndexForm& form) {
  attempt(bench, form, [&] {
    if (form.result.bands.empty()) throw RunFailure(no_solution);
    if (!take_lines(pattern3(bench), form.result)) {
      throw RunFailure("fewer than three bands are clear enough to be taken");
    }
  });
}

void CopyReport_Click(Workbench& bench, AutoIndexForm& form) {
  attempt(bench, form, [&] {
    const ReportedSolution report = reported(form, picked_solution(form));
    auto lines = report_lines(report);
    std::string line;
    for (const char c : report_json(report) + "\n") {
      if (c != '\n') {
        line += c;
        continue;
      }
      lines.push_back(line);
      line.clear();
    }
    bench.services.copy_text(lines, form.caption());
  });
}

void Solutions_Click(Workbench& bench, AutoIndexForm& form) {
  const int index = form.Solutions.list_index();
  if (index < 0 || static_cast<std::size_t>(index) >= form.result.solutions.size()) return;
  form.result.picked = static_cast<std::size_t>(index);
  show_picked(bench, form);
}

void Bands_Click(Workbench& bench, AutoIndexForm& form) {
  draw_solution(pattern3(bench), form.result);
  if (form.Bands.list_index() < 0) return;
  draw_band(pattern3(bench), form.result, static_cast<std::size_t>(form.Bands.list_index()));
}

void ToggleFamily_Click(Workbench& bench, AutoIndexForm& form) {
  const int index = form.Families.list_index();
  if (index < 0) return form.Status.set_caption("pick a family in the list first");
  const auto family = static_cast<std::size_t>(index);
  if (family >= form.families_taken.size()) form.families_taken.resize(family + 1, false);
  form.families_taken[family] = !form.families_taken[family];
  if (form.ready.empty()) (void)present_crystal_model(bench, form);  // the window was put back from a file
  show_families(form);
}

void show_crystals(AutoIndexForm& form) {
  form.Crystals.clear();
  for (const auto& path : form.crystal_files) form.Crystals.add_item(path.substr(path.rfind('/') + 1));
}

void AddCrystal_Click(AutoIndexForm& form) {
  form.CommonDialog1.set_filter(file_filters::crystals);
  const std::string path = form.CommonDialog1.open(FileKind::Crystal);
  if (path.empty()) return;
  form.crystal_files.push_back(path);
  show_crystals(form);
}

void RemoveCrystal_Click(AutoIndexForm& form) {
  const int index = form.Crystals.list_index();
  if (index < 0) return form.Status.set_caption("pick a crystal in the list first");
  form.crystal_files.erase(form.crystal_files.begin() + index);
  show_crystals(form);
}

void redraw_simulated(Workbench& bench, AutoIndexForm& form) {
  renew_dynamical(bench, form);
  WindowTask task(bench.services);
  if (const auto picture = pattern3(bench).Picture1.grey_picture()) draw_simulated(form, view_of(*picture), task);
}

void Simulated_MouseDown(Workbench& bench, AutoIndexForm& form, Single /*x*/, Single /*y*/) {
  if (!form.Alternating.on()) return;
  form.measured_in_front = !form.measured_in_front;
  redraw_simulated(bench, form);
}

void SaveSimulated_Click(Workbench& bench, AutoIndexForm& form) {
  attempt(bench, form, [&] {
    picked_solution(form);
    form.CommonDialog1.set_filter(file_filters::bitmaps);
    const NameEnding ending{".bmp", true};
    const std::string path = form.CommonDialog1.save(FileKind::Picture, ending);
    if (!path.empty()) form.Simulated.save_stored_image(ending.added_to(path));
  });
}

/// Where the crystal is known already, its families stand there before the first picture.
void Form_Load(Workbench& bench, AutoIndexForm& form) {
  form.Simulated.set_persistent(true);
  try {
    if (main1_state(bench).NCell > 0) {
      (void)crystal_models(bench, form);
      show_families(form);
    }
  } catch (const RunFailure& failure) {
    form.Status.set_caption(failure.message());
  }
}

}  // namespace
}  // namespace zol::auto_index

namespace zol {

void wire(Workbench& bench, AutoIndexForm& form) {
  using namespace auto_index;
  const Wire on(bench, form);
  form.Index.on_click = on(Index_Click);
  form.RefineCentre.on_click = on(RefineCentre_Click);
  form.Show.on_click = on(Show_Click);
  form.TakeLines.on_click = on(TakeLines_Click);
  form.CopyReport.on_click = on(CopyReport_Click);
  form.Solutions.on_click = on(Solutions_Click);
  form.Bands.on_click = on(Bands_Click);
  form.ToggleFamily.on_click = on(ToggleFamily_Click);
  form.AddCrystal.on_click = on(AddCrystal_Click);
  form.RemoveCrystal.on_click = on(RemoveCrystal_Click);
  form.Beside.on_click = on(redraw_simulated);
  form.Over.on_click = on(redraw_simulated);
  form.Alternating.on_click = on(redraw_simulated);
  form.Blend.on_change = on(redraw_simulated);
  form.Simulated.on_mouse_down = on(Simulated_MouseDown);
  form.MakerCentre.on_click = on(MakerCentre_Click);
  form.SaveSimulated.on_click = on(SaveSimulated_Click);
  form.on_load = on(Form_Load);
}

template void add_window<AutoIndexForm>(Workbench&);

}  // namespace zol
