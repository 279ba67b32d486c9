#include "analysis/window/pattern3_handlers.h"

#include "analysis/window/hkl3make.h"
#include "kikuchi/window/electron_voltage.h"
#include "kikuchi/window/kikuchi_operations.h"
#include "kikuchi/window/pattern2_form.h"
#include "reflections/window/main1_form.h"
#include "reflections/window/main1_operations.h"
#include "shell/services/wiring.h"

namespace zol::pattern3 {
namespace {

using namespace colours;

MatchSettings match_settings(const Pattern3Form& form) {
  MatchSettings settings;
  settings.angle_tolerance = form.AngleTol;
  settings.only_triangle = form.MatchMode == 1;
  settings.omit_equivalents = form.Check1.checked();
  if (form.Check2.checked()) settings.width_tolerance_percent = single_in(form.Text17);
  if (form.AdjustShown == 1) {
    settings.first_row = form.solutions.SolutionTriple(form.AdjustSolution.value()).value();
    settings.stop_at_first_solution = true;
  }
  return settings;
}

/// A direction that was not solved stands in red.
void list_solution(Pattern3Form& form, const Solution& solution) {
  const bool unsure = solution.solved_by == SolvedBy::Inversion && solution.status > match_status::inverted;
  form.List1.set_fore_colour(unsure ? red : black);
  form.List1.add_item(solution_line(form.triples, solution));
  form.List1.set_fore_colour(black);
}

/// Hands the axis over to the simulation, over the measured picture if one is wanted there.
void show_in_simulation(Workbench& bench, Pattern3Form& form, const SingleTriple& direction) {
  const CrystalState& state = main1_state(bench);
  auto& pattern2 = bench.windows.use<Pattern2Form>();
  pattern2.show();
  pattern2.Text1.set_text(plain_text(state.CamAcquisition));
  pattern2.Text14.set_text(plain_text(state.CamXShift));
  pattern2.Text15.set_text(plain_text(state.CamYShift));
  pattern2.Text3.set_text(plain_text(direction[0]));
  pattern2.Text4.set_text(plain_text(direction[1]));
  pattern2.Text5.set_text(plain_text(direction[2]));
  // The picture counts y downward, the simulation upward.
  if (pattern2.ImageMark == "ON") pattern2.Picture1.take_picture(form.Picture1, true);
  PatternDisp2(bench);
}

void mark(Workbench& bench, Integer h, Integer k, Integer l) {
  CrystalState& state = main1_state(bench);
  state.MarkH = h;
  state.MarkK = k;
  state.MarkL = l;
  Patterndisp4(bench);
}

void Form_Load(Workbench& bench, Pattern3Form& form) {
  const CrystalState& state = main1_state(bench);
  form.Picture1.set_persistent(false);
  form.Picture1.scale(0, 0, 511, 511);
  form.CorrectorFile = bench.data.path("Corrector_Standard");
  name_lines(form);
  form.Frame1.set_visible(false);
  for (int i = 0; i < form.Command10.count(); ++i) form.Command10(i).set_visible(false);
  show_adjustment(form, false);

  form.Text5.set_text(state.AccVoltage == 0 ? "20" : plain_text(state.AccVoltage));
  form.Text1.set_text("2.0");
  form.Text2.set_text("50");
  form.Text17.set_text("25");
  form.NhklWanted = 50;
  form.Text14.set_text(plain_text(state.CamXShift));
  form.Text15.set_text(plain_text(state.CamYShift));
  form.Text3.set_text(plain_text(state.CamAcquisition));
  form.triples.empty_indices_and_angles(triple_rows(form.NhklWanted));
  if (state.RefCount > 0) Hkl3make(bench);
}

void Text1_Change(Pattern3Form& form) { form.AngleTol = single_in(form.Text1); }

void Text2_LostFocus(Workbench& bench, Pattern3Form& form) {
  const CrystalState& state = main1_state(bench);
  form.NhklWanted = single_in(form.Text2);
  const Single count = to_single(state.RefCount.value());
  if (form.NhklWanted > count) {
    form.NhklWanted = count;
    form.Text2.set_text(plain_text(form.NhklWanted));
  }
  form.triples.empty_indices_and_angles(triple_rows(form.NhklWanted));
  Hkl3make(bench);
}

void Text5_LostFocus(Workbench& bench, Pattern3Form& form) { set_electron_voltage(bench, form.Text5.text()); }

void Command5_Click(Workbench& bench) {
  CRYSTAL_SELECT(bench);
  Hkl3make(bench);
}

void Imatch_Click(Workbench& bench, Pattern3Form& form) {
  const std::string answer = bench.services.prompt(
      "[" + plain_text(form.MatchMode) + "] Input matching method (0:triangle and direction 1:only triangle)",
      "Matching Method");
  if (!answer.empty()) form.MatchMode = typed_number("the matching method", answer, Integer::rounded);
}

void EquivSet(Workbench& bench, Pattern3Form& form) {
  const std::string answer = bench.services.prompt(
      "[" + plain_text(form.EquivMode) + "] Equivalent solution (0:Display 1:Omitt)", "Equivale solution");
  if (!answer.empty()) form.EquivMode = typed_number("the choice of solutions", answer, Integer::rounded);
}

void List1_Click(Workbench& bench, Pattern3Form& form) {
  CrystalState& state = main1_state(bench);
  const int number = form.List1.list_index() + 1;
  const int row = form.solutions.SolutionTriple(number).value();
  const auto& directions = form.solutions.SolutionDir;
  const SingleTriple direction{directions(number, 1), directions(number, 2), directions(number, 3)};
  const auto rotations = in_plane_rotations(state, form.triples, form.bands, row, direction);
  for (int i = 0; i < form.Label1.count(); ++i) {
    form.Label1(i).set_caption(plain_text(double{rotations.rotation[static_cast<std::size_t>(i)]} / degree));
  }
  state.PatternAngle = rotations.mean();
  show_in_simulation(bench, form, direction);
  for (const auto& [h, k, l] : row_planes(form.triples, row)) {
    mark(bench, h, k, l);
    mark(bench, -h, -k, -l);
  }
}

}  // namespace

void Command1_Click(Workbench& bench, Pattern3Form& form) {
  CrystalState& state = main1_state(bench);
  if (state.RefCount < 3) return;
  state.CamAcquisition = single_in(form.Text3);
  state.CamXShift = single_in(form.Text14);
  state.CamYShift = single_in(form.Text15);
  form.bands = measure_bands(state, form.lines, form.Check2.checked(), form.bands);
  for (int band = 0; band < form.Label1.count(); ++band) {
    form.Label1(band).set_caption(band_text(form.bands, band, form.Check2.checked()));
  }
  form.List1.clear();
  MatchAngle(bench, form);
}

void MatchAngle(Workbench& bench, Pattern3Form& form) {
  form.ProgressBar1.set_range(0, to_single(triples_of(form.NhklUsed)));
  WindowTask task(bench.services, form.ProgressBar1);
  const auto found =
      match_bands(main1_state(bench), form.triples, form.NhklUsed, form.bands, match_settings(form), task);
  take_solutions(found, form.solutions);
  form.Heading.set_caption(solution_heading(form.solutions.SolutionCount.value(), form.Check2.checked()));
  for (const Solution& solution : found.solutions) {
    task.check();
    list_solution(form, solution);
  }
  form.List1.add_item("    No. of solution = " + plain_text(form.solutions.SolutionCount));
}

}  // namespace zol::pattern3

namespace zol {

/// What the user does, and what answers it.
void wire(Workbench& bench, Pattern3Form& form) {
  using namespace pattern3;
  const Wire on(bench, form);
  form.Text1.on_change = on(Text1_Change);
  form.Text2.on_lost_focus = on(Text2_LostFocus);
  form.Text5.on_lost_focus = on(Text5_LostFocus);
  form.Command1.on_click = on(Command1_Click);
  form.Command5.on_click = on(Command5_Click);
  form.List1.on_click = on(List1_Click);
  form.Imatch.on_click = on(Imatch_Click);
  form.AutomaticIndexing.on_click = [&bench] { bench.windows.use("AutoIndex").show(); };
  form.add_operation("Hkl3make", on(Hkl3make));
  form.add_operation("MatchAngle", on(MatchAngle));
  form.add_operation("EquivSet", on(EquivSet));
  form.on_load = on(Form_Load);
  wire_picture(bench, form);
  wire_detector(bench, form);
  wire_adjust(bench, form);
}

template void add_window<Pattern3Form>(Workbench&);

}  // namespace zol
