#include "analysis/window/pattern3_handlers.h"
// PATTERN3: adjustment of the detector parameters for one solution.

#include <algorithm>
#include <cmath>

#include "core/put_back.h"
#include "reflections/window/main1_form.h"
#include "shell/services/wiring.h"

namespace zol::pattern3 {
namespace {

/// A parameter goes to a new value, its box follows, and the pattern is measured anew.
void step(Workbench& bench, Pattern3Form& form, Single& parameter, double by, TextBox& box) {
  parameter = to_single(double{parameter} + by);
  box.set_text(plain_text(parameter));
  Command1_Click(bench, form);
}

/// Steps from the start of the search, in acquisition angle, x shift and y shift.
struct GridPoint {
  int acquisition = 0;
  int x_shift = 0;
  int y_shift = 0;
};

struct CameraStart {
  Single acquisition, x_shift, y_shift;
};

void go_to(const Pattern3Form& form, const CameraStart& start, const GridPoint& point, Module1State& camera) {
  camera.CamAcquisition = to_single(double{start.acquisition} + point.acquisition * form.AcqStep);
  camera.CamXShift = to_single(double{start.x_shift} + point.x_shift * form.XShiftStep);
  camera.CamYShift = to_single(double{start.y_shift} + point.y_shift * double{form.YShiftStep});
}

/// Measures at every grid point. Each measurement takes the parameters from the boxes, which stand still, so that the
/// first point stays the best one.
GridPoint best_grid_point(Workbench& bench, Pattern3Form& form, const CameraStart& start, Task& task) {
  Module1State& camera = main1_state(bench);
  const int steps = form.AdjustSteps.value();
  constexpr double of_measurement = 1.5e-5;
  task.expect({std::pow(std::max(0, 2 * steps + 1), 4) * of_measurement, 0});
  form.BestError = 10000;
  GridPoint best;
  for (int i = -steps; i <= steps; ++i) {
    task.report(steps + i, 2 * steps);
    for (int idle = -steps; idle <= steps; ++idle) {
      for (int j = -steps; j <= steps; ++j) {
        for (int k = -steps; k <= steps; ++k) {
          task.check();
          go_to(form, start, {i, j, k}, camera);
          Command1_Click(bench, form);
          if (!(form.solutions.AngleError < form.BestError)) continue;
          form.BestError = form.solutions.AngleError;
          best = {i, j, k};
        }
      }
    }
  }
  return best;
}

void CP_Setting_Show_Click(Pattern3Form& form) {
  form.AdjustShown = form.AdjustShown == 0 ? 1 : 0;
  show_adjustment(form, form.AdjustShown == 1);
  if (form.AdjustShown == 0) return;
  form.AcqStep = 0.1;
  form.XShiftStep = 0.1;
  form.YShiftStep = 0.1F;
  form.AdjustSolution = 1;
  form.AdjustSteps = 2;
  form.Text6.set_text(plain_text(form.AcqStep));
  form.Text8.set_text(plain_text(form.XShiftStep));
  form.Text9.set_text(plain_text(form.YShiftStep));
  form.Text10.set_text(plain_text(form.AdjustSteps));
  form.Text11.set_text(plain_text(form.AdjustSolution));
}

void Text6_Change(Pattern3Form& form) { form.AcqStep = Val(form.Text6.text()); }
void Text8_Change(Pattern3Form& form) { form.XShiftStep = Val(form.Text8.text()); }
void Text9_Change(Pattern3Form& form) { form.YShiftStep = single_in(form.Text9); }
void Text10_Change(Pattern3Form& form) { form.AdjustSteps = integer_in(form.Text10); }
void Text11_Change(Pattern3Form& form) { form.AdjustSolution = integer_in(form.Text11); }

void Command7_Click(Workbench& bench, Pattern3Form& form) {
  step(bench, form, main1_state(bench).CamAcquisition, form.AcqStep, form.Text3);
}
void Command8_Click(Workbench& bench, Pattern3Form& form) {
  step(bench, form, main1_state(bench).CamAcquisition, -form.AcqStep, form.Text3);
}
void Command11_Click(Workbench& bench, Pattern3Form& form) {
  step(bench, form, main1_state(bench).CamXShift, form.XShiftStep, form.Text14);
}
void Command12_Click(Workbench& bench, Pattern3Form& form) {
  step(bench, form, main1_state(bench).CamXShift, -form.XShiftStep, form.Text14);
}
void Command13_Click(Workbench& bench, Pattern3Form& form) {
  step(bench, form, main1_state(bench).CamYShift, form.YShiftStep, form.Text15);
}
void Command14_Click(Workbench& bench, Pattern3Form& form) {
  step(bench, form, main1_state(bench).CamYShift, -double{form.YShiftStep}, form.Text15);
}

void Command15_Click(Workbench& bench, Pattern3Form& form) {
  Module1State& camera = main1_state(bench);
  constexpr double wide = 1000.0;  // the chosen row passes all tests of angles
  const PutBack tolerance(form.AngleTol);
  form.AngleTol = to_single(double{form.AngleTol} * wide);
  PutBack before(camera.CamAcquisition, camera.CamXShift, camera.CamYShift, form.BestError);
  const CameraStart start{camera.CamAcquisition, camera.CamXShift, camera.CamYShift};
  form.ProgressBar2.set_range(0, to_single(2 * form.AdjustSteps.value()));
  const Hourglass hourglass(form);
  WindowTask task(bench.services, form.ProgressBar2);
  go_to(form, start, best_grid_point(bench, form, start, task), camera);
  before.keep();
  form.Text3.set_text(plain_text(camera.CamAcquisition));
  form.Text14.set_text(plain_text(camera.CamXShift));
  form.Text15.set_text(plain_text(camera.CamYShift));
  Command1_Click(bench, form);
}

}  // namespace

void show_adjustment(Pattern3Form& form, bool shown) {
  for (TextBox* box : {&form.Text6, &form.Text8, &form.Text9, &form.Text10, &form.Text11}) box->set_visible(shown);
  for (CommandButton* button : {&form.Command7, &form.Command8, &form.Command11, &form.Command12, &form.Command13,
                                &form.Command14, &form.Command15}) {
    button->set_visible(shown);
  }
}

void wire_adjust(Workbench& bench, Pattern3Form& form) {
  const Wire on(bench, form);
  form.Text6.on_change = on(Text6_Change);
  form.Text8.on_change = on(Text8_Change);
  form.Text9.on_change = on(Text9_Change);
  form.Text10.on_change = on(Text10_Change);
  form.Text11.on_change = on(Text11_Change);
  form.Command7.on_click = on(Command7_Click);
  form.Command8.on_click = on(Command8_Click);
  form.Command11.on_click = on(Command11_Click);
  form.Command12.on_click = on(Command12_Click);
  form.Command13.on_click = on(Command13_Click);
  form.Command14.on_click = on(Command14_Click);
  form.Command15.on_click = on(Command15_Click);
  form.CP_Setting_Show.on_click = on(CP_Setting_Show_Click);
}

}  // namespace zol::pattern3
