#include "analysis/window/pattern3_handlers.h"
// PATTERN3: the boxes of the detector, the pattern centre, the calibration on Si(001). The cascades of box writes are
// the rule here: each write runs its change handler before the next one.

#include "core/camera_file.h"
#include "kikuchi/window/camera_parameters_form.h"
#include "reflections/window/main1_form.h"
#include "shell/services/wiring.h"

namespace zol::pattern3 {
namespace {

constexpr auto two_decimals = "###.##";

void write_acquisition(Pattern3Form& form, Module1State& camera, double value) {
  camera.CamAcquisition = to_single(value);
  form.Text3.set_text(plain_text(camera.CamAcquisition));
}

/// No edge of the picture may lie 85 degrees or more off the pattern centre. The sum with the y shift is not tested.
void limit_acquisition(Pattern3Form& form, Module1State& camera) {
  constexpr double limit_deg = 85.0;
  const double largest = limit_deg;
  const auto acquisition = [&camera] { return double{camera.CamAcquisition}; };
  if (acquisition() - camera.CamXShift > largest) write_acquisition(form, camera, camera.CamXShift + largest);
  if (acquisition() - camera.CamYShift > largest) write_acquisition(form, camera, camera.CamYShift + largest);
  if (camera.CamXShift + acquisition() > largest) write_acquisition(form, camera, largest - camera.CamXShift);
  if (camera.CamXShift + acquisition() > largest) write_acquisition(form, camera, largest - camera.CamXShift);
}

void acquisition_from_mm(Pattern3Form& form, const Module1State& camera) {
  const Single position = single_in(form.Text12);
  form.Text3.set_text(plain_text(truncated(acquisition_deg(camera, position), 1000)));
}

void x_shift_from_mm(Pattern3Form& form, const Module1State& camera) {
  form.Text14.set_text(plain_text(truncated(shift_deg(camera, Val(form.Text13.text())), 100)));
}

void y_shift_from_mm(Pattern3Form& form, const Module1State& camera) {
  form.Text15.set_text(plain_text(truncated(shift_deg(camera, Val(form.Text16.text())), 100)));
}

/// Working distance and incline count from the stored calibration.
void change_working_distance(Workbench& bench, Pattern3Form& form) {
  Module1State& camera = main1_state(bench);
  form.working_distance.WdChange = single_in(form.Text4);
  form.working_distance.DetIncline = single_in(form.Text7);
  read_camera_file(camera.CameraFile, camera);
  form.Text12.set_text(plain_text(truncated(position_after(camera, form.working_distance), 100)));
  form.Text16.set_text(plain_text(truncated(y_shift_after(camera, form.working_distance), 100)));
  acquisition_from_mm(form, camera);
  x_shift_from_mm(form, camera);
  y_shift_from_mm(form, camera);
}

void show_calibration(Pattern3Form& form, bool shown) {
  form.Frame1.set_visible(shown);
  for (int i = 0; i < form.Command10.count(); ++i) form.Command10(i).set_visible(shown);
}

void Text3_Change(Workbench& bench, Pattern3Form& form) {
  Module1State& camera = main1_state(bench);
  camera.CamAcquisition = single_in(form.Text3);
  limit_acquisition(form, camera);
  if (camera.CamAcquisition > 0) form.Text12.set_text(plain_text(truncated(detector_position_mm(camera), 100)));
  bench.windows.use<CameraParametersForm>().Text1.set_text(form.Text3.text());
}

void Text14_Change(Workbench& bench, Pattern3Form& form) {
  Module1State& camera = main1_state(bench);
  camera.CamXShift = single_in(form.Text14);
  form.Text13.set_text(plain_text(truncated(shift_mm(camera, camera.CamXShift), 1000)));
  bench.windows.use<CameraParametersForm>().Text2.set_text(form.Text14.text());
}

void Text15_Change(Workbench& bench, Pattern3Form& form) {
  Module1State& camera = main1_state(bench);
  camera.CamYShift = single_in(form.Text15);
  form.Text16.set_text(plain_text(truncated(shift_mm(camera, camera.CamYShift), 100)));
  bench.windows.use<CameraParametersForm>().Text3.set_text(form.Text15.text());
}

void Text12_KeyPress(Workbench& bench, Pattern3Form& form, int& key) {
  if (!swallow_enter(key)) return;
  const Module1State& camera = main1_state(bench);
  acquisition_from_mm(form, camera);
  x_shift_from_mm(form, camera);
  y_shift_from_mm(form, camera);
}

void Text13_KeyPress(Workbench& bench, Pattern3Form& form, int& key) {
  if (swallow_enter(key)) x_shift_from_mm(form, main1_state(bench));
}

void Text16_KeyPress(Workbench& bench, Pattern3Form& form, int& key) {
  if (swallow_enter(key)) y_shift_from_mm(form, main1_state(bench));
}

void Text4_Change(Workbench& bench, Pattern3Form& form) { change_working_distance(bench, form); }
void Text7_Change(Workbench& bench, Pattern3Form& form) { change_working_distance(bench, form); }

void Command9_Click(Workbench& bench, Pattern3Form& form) {
  Module1State& camera = main1_state(bench);
  const auto calibrated = calibrate(form.markers, camera.CamNormal);
  form.calibration = calibrated.pattern;
  camera.CamAcquisition = calibrated.acquisition_deg;
  camera.CamXShift = calibrated.x_shift_deg;
  camera.CamYShift = calibrated.y_shift_deg;
  form.Text3.set_text(Format(camera.CamAcquisition, two_decimals));
  form.Text14.set_text(Format(camera.CamXShift, two_decimals));
  form.Text15.set_text(Format(camera.CamYShift, two_decimals));
}

void CPS_Si001_Click(Pattern3Form& form) {
  form.CenterMode = 0;
  form.SiMode = form.SiMode == 0 ? 1 : 0;
  show_calibration(form, form.SiMode == 1);
}

void CenterPosition_Click(Pattern3Form& form) {
  form.SiMode = 0;
  form.CenterMode = form.CenterMode == 0 ? 1 : 0;
}

}  // namespace

void take_centre(Workbench& bench, Pattern3Form& form, Single x, Single y) {
  Module1State& camera = main1_state(bench);
  camera.CamXShift = centre_shift_deg(camera, x);
  camera.CamYShift = centre_shift_deg(camera, y);
  form.Text14.set_text(Format(camera.CamXShift, two_decimals));
  form.Text15.set_text(Format(camera.CamYShift, two_decimals));
}

void wire_detector(Workbench& bench, Pattern3Form& form) {
  const Wire on(bench, form);
  form.Text3.on_change = on(Text3_Change);
  form.Text4.on_change = on(Text4_Change);
  form.Text7.on_change = on(Text7_Change);
  form.Text12.on_key_press = on(Text12_KeyPress);
  form.Text13.on_key_press = on(Text13_KeyPress);
  form.Text14.on_change = on(Text14_Change);
  form.Text15.on_change = on(Text15_Change);
  form.Text16.on_key_press = on(Text16_KeyPress);
  form.Command9.on_click = on(Command9_Click);
  form.CPS_Si001.on_click = on(CPS_Si001_Click);
  form.CenterPosition.on_click = on(CenterPosition_Click);
}

}  // namespace zol::pattern3
