#include <array>
#include <cmath>

#include "analysis/window/pattern3_form.h"
#include "indexing/window/show_orientation.h"
#include "kikuchi/window/electron_voltage.h"
#include "kikuchi/window/kikuchi_operations.h"
#include "kikuchi/window/pattern2_drag.h"
#include "kikuchi/window/pattern2_form.h"
#include "reflections/window/main1_form.h"
#include "reflections/window/main1_operations.h"
#include "shell/services/wiring.h"
#include "spots/window/picture_controls.h"
#include "spots/zone_calculation.h"

namespace zol::pattern2 {
namespace {

void Command4_Click(Workbench& bench, Pattern2Form& form);
void Command8_Click(Workbench& bench, Pattern2Form& form);

/// A typed component of the axis. The flag tells that the pattern is not that of the axis.
void take_axis(Workbench& bench, const TextBox& box, Single Main1State::*component) {
  CrystalState& state = main1_state(bench);
  state.PatternFlag = 2;
  state.*component = single_in(box);
}

bool has_axis(const CrystalState& state) { return state.ZoneU != 0 || state.ZoneV != 0 || state.ZoneW != 0; }

/// Shows the axis that was found and the plane normal to it.
void show_new_axis(const CrystalState& state, Pattern2Form& form) {
  form.Text6.set_text(plain_text(state.NewZoneU));
  form.Text7.set_text(plain_text(state.NewZoneV));
  form.Text8.set_text(plain_text(state.NewZoneW));
  const auto percent = normal_plane_percent(state, {state.NewZoneU, state.NewZoneV, state.NewZoneW});
  form.Text16.set_text(plain_text(percent[0]));
  form.Text17.set_text(plain_text(percent[1]));
  form.Text18.set_text(plain_text(percent[2]));
}

void take_mark(Workbench& bench, const Pattern2Form& form) {
  CrystalState& state = main1_state(bench);
  state.MarkH = integer_in(form.Text11);
  state.MarkK = integer_in(form.Text12);
  state.MarkL = integer_in(form.Text13);
}

void zoom(Workbench& bench, Pattern2Form& form, double opening) {
  bench.state.CamAcquisition = to_single(opening);
  form.Text1.set_text(Format(bench.state.CamAcquisition, "##0.###"));
  PatternDisp2(bench);
}

/// Turns the pattern by so many pitches; positive is anticlockwise.
void turn(Workbench& bench, const Pattern2Form& form, double pitches_times, double pitches_by) {
  CrystalState& state = main1_state(bench);
  state.PatternAngle =
      to_single(state.PatternAngle + form.RotationPitch / 180.0 * program_pi * pitches_times / pitches_by);
  PatternDisp2(bench);
}

/// Fixes the grey scale and changes it.
void scale_intensity(Workbench& bench, Pattern2Form& form, double display_scale) {
  form.Check4.set_value(1);
  main1_state(bench).DisplayScale = to_single(display_scale);
  PatternDisp2(bench);
}

void take_angles(Workbench& bench, const Pattern2Form& form) {
  CrystalState& state = main1_state(bench);
  const auto radians = [](double angle_deg) { return to_single(angle_deg * degree); };
  state.TiltPhi = number_in(form.Text22, radians);
  state.TiltTheta = number_in(form.Text23, radians);
}

/// A red disc at the typed direction.
void mark_angles(const CrystalState& state, Pattern2Form& form) {
  using colours::red;
  const double distance = std::tan(program_pi / 2 - state.TiltTheta);
  const Single x = to_single(distance * std::cos(double{state.TiltPhi}));
  const Single y = to_single(distance * std::sin(double{state.TiltPhi}));
  form.Picture1.set_fill_colour(red);
  form.Picture1.circle(x, y, std::atan(Val(form.Text1.text()) * degree) * 0.01, red);
}

void find_axis_of_angles(Workbench& bench, Pattern2Form& form) {
  ZoneCalc2(bench);
  show_new_axis(main1_state(bench), form);
}

void enter_plots_angles(Workbench& bench, Pattern2Form& form, int& key) {
  if (!swallow_enter(key)) return;
  take_angles(bench, form);
  mark_angles(main1_state(bench), form);
  find_axis_of_angles(bench, form);
}

/// Asks for a value; an empty answer changes nothing.
/// @param of_no_use  what 0 does
void ask(Workbench& bench, const std::string& text, const std::string& title, const std::string& of_no_use,
         Single& value) {
  const std::string answer =
      bench.services.ask_text({"[" + plain_text(value) + text, title, "", [of_no_use](const std::string& typed) {
                                 return !typed.empty() && Val(typed) == 0 ? of_no_use : "";
                               }});
  if (!answer.empty()) value = typed_number("the answer to \"" + title + '"', answer, to_single);
}

void Form_Load(Workbench& bench, Pattern2Form& form) {
  form.Option1.set_on(true);
  form.Text14.set_text(plain_text(bench.state.CamXShift));
  form.Text15.set_text(plain_text(bench.state.CamYShift));
  form.Text1.set_text(plain_text(bench.state.CamAcquisition));
  form.RotationPitch = first_pitch_deg;
  form.ShiftPitch = to_single(bench.state.CamAcquisition / 10.0);
  form.ZoomRatio = to_single(1.4142);
  CrystalState& state = main1_state(bench);
  // A product where the voltage box divides; it shows only until the first radiation is set.
  if (state.WaveLength == 0) state.WaveLength = to_single(std::sqrt(150.0 / 20.0 * 1000.0));
}

void Text1_Change(Workbench& bench, Pattern2Form& form) {
  constexpr double widest = 85;
  Module1State& camera = bench.state;
  const auto limit = [&camera, &form](double opening) {
    camera.CamAcquisition = to_single(opening);
    form.Text1.set_text(plain_text(camera.CamAcquisition));
  };
  camera.CamAcquisition = single_in(form.Text1);
  if (double{camera.CamAcquisition} - camera.CamXShift > widest) limit(camera.CamXShift + widest);
  if (double{camera.CamAcquisition} - camera.CamYShift > widest) limit(camera.CamYShift + widest);
  if (double{camera.CamXShift} + camera.CamAcquisition > widest) limit(widest - camera.CamXShift);
  if (double{camera.CamYShift} + camera.CamAcquisition > widest) limit(widest - camera.CamYShift);
}

void Text3_Change(Workbench& bench, Pattern2Form& form) { take_axis(bench, form.Text3, &Main1State::ZoneU); }
void Text4_Change(Workbench& bench, Pattern2Form& form) { take_axis(bench, form.Text4, &Main1State::ZoneV); }
void Text5_Change(Workbench& bench, Pattern2Form& form) { take_axis(bench, form.Text5, &Main1State::ZoneW); }

void Text11_Change(Workbench& bench, Pattern2Form& form) { main1_state(bench).MarkH = integer_in(form.Text11); }
void Text12_Change(Workbench& bench, Pattern2Form& form) { main1_state(bench).MarkK = integer_in(form.Text12); }
void Text13_Change(Workbench& bench, Pattern2Form& form) { main1_state(bench).MarkL = integer_in(form.Text13); }

void Text14_Change(Workbench& bench, Pattern2Form& form) { bench.state.CamXShift = single_in(form.Text14); }
void Text15_Change(Workbench& bench, Pattern2Form& form) { bench.state.CamYShift = single_in(form.Text15); }

void Text19_Change(Workbench& bench, Pattern2Form& form) {
  CrystalState& state = main1_state(bench);
  state.KikuchiRefLimit = long_in(form.Text19);
  if (state.KikuchiRefLimit == 0) state.KikuchiRefLimit = state.RefCount;
}

void Text21_LostFocus(Workbench& bench, Pattern2Form& form) { set_electron_voltage(bench, form.Text21.text()); }

void Text3_KeyPress(Pattern2Form& form, int& key) { enter_moves_to(form.Text4, key); }
void Text4_KeyPress(Pattern2Form& form, int& key) { enter_moves_to(form.Text5, key); }
void Text5_KeyPress(Workbench& bench, Pattern2Form& form, int& key) {
  if (!swallow_enter(key)) return;
  Command8_Click(bench, form);
}
void Text11_KeyPress(Pattern2Form& form, int& key) { enter_moves_to(form.Text12, key); }
void Text12_KeyPress(Pattern2Form& form, int& key) { enter_moves_to(form.Text13, key); }
void Text13_KeyPress(Workbench& bench, int& key) {
  if (!swallow_enter(key)) return;
  Patterndisp4(bench);
}
void Text22_KeyPress(Workbench& bench, Pattern2Form& form, int& key) { enter_plots_angles(bench, form, key); }
void Text23_KeyPress(Workbench& bench, Pattern2Form& form, int& key) { enter_plots_angles(bench, form, key); }

void Command1_Click(Workbench& bench, Pattern2Form& form, int index) {
  constexpr double nearly_zero = 0.00001;  // keeps off the axis, where azimuths have a constant of their own
  CrystalState& state = main1_state(bench);
  const double step = std::tan(form.ShiftPitch * degree);
  const std::array<std::array<double, 2>, 4> tilts{
      {{-step, nearly_zero}, {nearly_zero, -step}, {step, nearly_zero}, {nearly_zero, step}}};
  const auto& [x, y] = tilts.at(static_cast<std::size_t>(index));
  state.TiltX = to_single(x);
  state.TiltY = to_single(y);
  ZoneCalc(bench);
  show_new_axis(state, form);
  Command4_Click(bench, form);
}

void Command2_Click(Workbench& bench, Pattern2Form& form) {
  zoom(bench, form, divide(bench.state.CamAcquisition, form.ZoomRatio, "the zoom increment"));
}
void Command3_Click(Workbench& bench, Pattern2Form& form) {
  zoom(bench, form, double{bench.state.CamAcquisition} * form.ZoomRatio);
}

void Command4_Click(Workbench& bench, Pattern2Form& form) {
  CrystalState& state = main1_state(bench);
  state.PrevZoneU = single_in(form.Text3);
  state.PrevZoneV = single_in(form.Text4);
  state.PrevZoneW = single_in(form.Text5);
  form.Text3.set_text(form.Text6.text());
  form.Text4.set_text(form.Text7.text());
  form.Text5.set_text(form.Text8.text());
  state.PatternFlag = 1;
  PatternDisp2(bench);
  state.PatternFlag = 0;
  state.PatternAngleStep = 0;
}

// The window of the spot pattern is printed, as it always was.
void Command5_Click(Workbench& bench, Pattern2Form& form) {
  form.CommonDialog1.printer_setup();
  bench.services.print_window(bench.windows.use("Pattern"));
}

void Command6_Click(Workbench& bench, Pattern2Form& form) { turn(bench, form, -1, 1); }
void Command7_Click(Workbench& bench, Pattern2Form& form) { turn(bench, form, 1, 1); }

void Command8_Click(Workbench& bench, Pattern2Form& form) {
  CrystalState& state = main1_state(bench);
  if (!has_axis(state)) return;
  state.CamAcquisition = single_in(form.Text1);
  state.CamXShift = single_in(form.Text14);
  state.CamYShift = single_in(form.Text15);
  PatternDisp2(bench);
  state.PatternFlag = 0;
}

void Command9_Click(Workbench& bench, Pattern2Form& form) { turn(bench, form, -10, 1); }
void Command10_Click(Workbench& bench, Pattern2Form& form) { turn(bench, form, 10, 1); }
void Command11_Click(Workbench& bench, Pattern2Form& form) { turn(bench, form, -1, 10); }
void Command12_Click(Workbench& bench, Pattern2Form& form) { turn(bench, form, 1, 10); }

void Command13_Click(Workbench& bench, Pattern2Form& form) {
  take_mark(bench, form);
  Patterndisp4(bench);
}

void Command14_Click(Workbench& bench, Pattern2Form& form) {
  scale_intensity(bench, form, main1_state(bench).DisplayScale / std::sqrt(2.0));
}
void Command15_Click(Workbench& bench, Pattern2Form& form) {
  scale_intensity(bench, form, main1_state(bench).DisplayScale * std::sqrt(2.0));
}

void Command16_Click(Workbench& bench) { CRYSTAL_SELECT(bench); }

void Command17_Click(Workbench& bench, Pattern2Form& form) {
  form.Check1.set_value(form.Check1.checked() ? 0 : 1);
  PatternDisp2(bench);
}

void Command18_Click(Workbench& bench, Pattern2Form& form) {
  constexpr double lowest_marked = 10;
  take_angles(bench, form);
  if (Val(form.Text23.text()) > lowest_marked) mark_angles(main1_state(bench), form);
  find_axis_of_angles(bench, form);
}

void List1_Click(Workbench& bench, Pattern2Form& form) {
  CrystalState& state = main1_state(bench);
  const int row = form.List1.list_index();
  state.MarkH = state.BandHKL(row, 0);
  state.MarkK = state.BandHKL(row, 1);
  state.MarkL = state.BandHKL(row, 2);
  Patterndisp4(bench);
}

void Picture1_MouseDown(Workbench& bench, Pattern2Form& form, Single x, Single y) {
  CrystalState& state = main1_state(bench);
  state.TiltX = x;
  state.TiltY = y;
  ZoneCalc(bench);
  show_new_axis(state, form);
}

void ISAVE_Click(Pattern2Form& form) {
  form.Picture1.save_stored_image(form.CommonDialog1.save_as(FileKind::Picture, {".bmp"}));
}

void Imagesize_Click(Workbench& bench, Pattern2Form& form) {
  if (ask_image_size(bench, form.Picture1) && has_axis(main1_state(bench))) PatternDisp2(bench);
}

void ImageLoad_Click(Workbench& bench, Pattern2Form& form) {
  form.ImageMark = "ON";
  form.Picture1.take_picture(bench.windows.use<Pattern3Form>().Picture1, true);  // y counts downward there
  Command8_Click(bench, form);
}

void ImageClear_Click(Workbench& bench, Pattern2Form& form) {
  form.ImageMark = "";
  form.Picture1.remove_picture();
  Command8_Click(bench, form);
}

void Rpitch_Click(Workbench& bench, Pattern2Form& form) { ask_rotation_pitch(bench, form.RotationPitch); }

void Spitch_Click(Workbench& bench, Pattern2Form& form) {
  ask(bench, "] Input Shift Angle  (deg.)", "Shift Angle Pitch", "with 0 degrees the arrows shift nothing",
      form.ShiftPitch);
}

void Zpitch_Click(Workbench& bench, Pattern2Form& form) {
  ask(bench, "] Input Zoom increment (ratio)", "Zoom increment", "with 0 \"Zoom Up\" ends the program", form.ZoomRatio);
}

void Fsize(Workbench& bench, Pattern2Form& form) {
  ask_font_size(bench, form.Picture1);
  PatternDisp2(bench);
}

void Spotsize(Workbench& bench) {
  ask_spot_size(bench);
  PatternDisp2(bench);
}

}  // namespace

}  // namespace zol::pattern2

namespace zol {

/// What the user does, and what answers it.
void wire(Workbench& bench, Pattern2Form& form) {
  using namespace pattern2;
  const Wire on(bench, form);
  form.Text1.on_change = on(Text1_Change);
  form.Text3.on_change = on(Text3_Change);
  form.Text4.on_change = on(Text4_Change);
  form.Text5.on_change = on(Text5_Change);
  form.Text11.on_change = on(Text11_Change);  // h of the mark
  form.Text12.on_change = on(Text12_Change);  // k
  form.Text13.on_change = on(Text13_Change);  // l
  form.Text14.on_change = on(Text14_Change);  // x shift
  form.Text15.on_change = on(Text15_Change);  // y shift
  form.Text19.on_change = on(Text19_Change);  // number of bands
  form.Text21.on_lost_focus = on(Text21_LostFocus);
  form.Text3.on_key_press = on(Text3_KeyPress);
  form.Text4.on_key_press = on(Text4_KeyPress);
  form.Text5.on_key_press = on(Text5_KeyPress);
  form.Text11.on_key_press = on(Text11_KeyPress);
  form.Text12.on_key_press = on(Text12_KeyPress);
  form.Text13.on_key_press = on(Text13_KeyPress);
  form.Text22.on_key_press = on(Text22_KeyPress);
  form.Text23.on_key_press = on(Text23_KeyPress);
  for (int i = 0; i < form.Command1.count(); ++i) {
    form.Command1(i).on_click = [&bench, &form, i] { Command1_Click(bench, form, i); };
  }
  form.Command2.on_click = on(Command2_Click);
  form.Command3.on_click = on(Command3_Click);
  form.Command4.on_click = on(Command4_Click);
  form.Command5.on_click = on(Command5_Click);
  form.Command6.on_click = on(Command6_Click);
  form.Command7.on_click = on(Command7_Click);
  form.Command8.on_click = on(Command8_Click);
  form.Command9.on_click = on(Command9_Click);
  form.Command10.on_click = on(Command10_Click);
  form.Command11.on_click = on(Command11_Click);
  form.Command12.on_click = on(Command12_Click);
  form.Command13.on_click = on(Command13_Click);
  form.Command14.on_click = on(Command14_Click);
  form.Command15.on_click = on(Command15_Click);
  form.Command16.on_click = on(Command16_Click);
  form.Command17.on_click = on(Command17_Click);
  form.Command18.on_click = on(Command18_Click);
  form.List1.on_click = on(List1_Click);
  form.Picture1.drag = std::make_unique<Pattern2Drag>(form);
  form.Picture1.on_mouse_down = on(Picture1_MouseDown);
  form.Picture1.on_double_click = on(Command4_Click);
  form.ISAVE.on_click = on(ISAVE_Click);
  form.BandsAsPicture.on_click = [&bench] { draw_bands_as_picture(bench, BandLook::Kinematic); };
  form.DynamicalBands.on_click = [&bench] { draw_bands_as_picture(bench, BandLook::Dynamical); };
  form.Imagesize.on_click = on(Imagesize_Click);
  form.ImageLoad.on_click = on(ImageLoad_Click);
  form.ImageClear.on_click = on(ImageClear_Click);
  form.Rpitch.on_click = on(Rpitch_Click);
  form.Spitch.on_click = on(Spitch_Click);
  form.Zpitch.on_click = on(Zpitch_Click);
  form.add_operation("Fsize", on(Fsize));
  form.add_operation("Spotsize", on(Spotsize));
  form.on_load = on(Form_Load);
}

template void add_window<Pattern2Form>(Workbench&);

}  // namespace zol
