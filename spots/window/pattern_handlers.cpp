#include "core/number_text.h"
#include "reflections/window/main1_form.h"
#include "shell/services/wiring.h"
#include "spots/window/pattern_disp.h"
#include "spots/window/pattern_form.h"
#include "spots/window/picture_controls.h"

namespace zol::pattern {
namespace {

void Command8_Click(Workbench& bench);

void zoom(Workbench& bench, PatternForm& form, double half_width) {
  set_half_width(bench, form.Text1, half_width);
  PatternDisp(bench);
}

void step_level(Workbench& bench, PatternForm& form, double step) {
  form.Text2.set_text(plain_text(Val(form.Text2.text()) + step));
  PatternDisp(bench);
}

void rotate_by(Workbench& bench, double angle_rad) {
  turn_pattern(bench, angle_rad);
  PatternDisp(bench);
}

void scale_greys(Workbench& bench, double factor) {
  CrystalState& state = main1_state(bench);
  state.DisplayScale = to_single(state.DisplayScale * factor);
  PatternDisp(bench);
}

void Form_Load(Workbench& bench, PatternForm& form) {
  form.Option2.set_on(true);
  form.RotationPitch = first_pitch_deg;
  set_first_width(bench, form.Text1);
}

void Text1_Change(Workbench& bench, PatternForm& form) {
  bench.state.CamAcquisition = number_in(form.Text1, [](double width) { return to_single(width / 2.0); });
}
void Text2_Change(Workbench& bench, PatternForm& form) { main1_state(bench).Level = integer_in(form.Text2); }
void Text3_Change(Workbench& bench, PatternForm& form) { main1_state(bench).ZoneU = single_in(form.Text3); }
void Text4_Change(Workbench& bench, PatternForm& form) { main1_state(bench).ZoneV = single_in(form.Text4); }
void Text5_Change(Workbench& bench, PatternForm& form) { main1_state(bench).ZoneW = single_in(form.Text5); }

void Text3_KeyPress(PatternForm& form, int& key) { enter_moves_to(form.Text4, key); }
void Text4_KeyPress(PatternForm& form, int& key) { enter_moves_to(form.Text5, key); }
void Text5_KeyPress(Workbench& bench, int& key) {
  if (!swallow_enter(key)) return;
  Command8_Click(bench);
}

void Command8_Click(Workbench& bench) { PatternDisp(bench); }

void Command5_Click(Workbench& bench, PatternForm& form) { step_level(bench, form, 1.0); }
void Command14_Click(Workbench& bench, PatternForm& form) { step_level(bench, form, -1.0); }

void Command2_Click(Workbench& bench, PatternForm& form) {
  zoom(bench, form, bench.state.CamAcquisition / zoom_factor);
}
void Command3_Click(Workbench& bench, PatternForm& form) {
  zoom(bench, form, bench.state.CamAcquisition * zoom_factor);
}

void Command6_Click(Workbench& bench, PatternForm& form) { rotate_by(bench, pitch_rad(form.RotationPitch)); }
void Command9_Click(Workbench& bench, PatternForm& form) { rotate_by(bench, pitch_rad(form.RotationPitch) * 5.0); }
void Command11_Click(Workbench& bench, PatternForm& form) { rotate_by(bench, pitch_rad(form.RotationPitch) / 5.0); }
void Command7_Click(Workbench& bench, PatternForm& form) { rotate_by(bench, -pitch_rad(form.RotationPitch)); }
void Command10_Click(Workbench& bench, PatternForm& form) { rotate_by(bench, -pitch_rad(form.RotationPitch) * 5.0); }
void Command12_Click(Workbench& bench, PatternForm& form) { rotate_by(bench, -pitch_rad(form.RotationPitch) / 5.0); }

void Command4_Click(Workbench& bench) { scale_greys(bench, 0.5); }
void Command13_Click(Workbench& bench) { scale_greys(bench, 2.0); }

void Command1_Click(PatternForm& form) { form.hide(); }

// The ending is always added, so that a cancelled dialog writes ".bmp".
void ISAVE_Click(PatternForm& form) {
  form.Picture1.save_stored_image(form.CommonDialog1.save_as(FileKind::Picture, {".bmp"}));
}

void Spotsize_Click(Workbench& bench) {
  ask_spot_size(bench);
  PatternDisp(bench);
}

void Rpitch_Click(Workbench& bench, PatternForm& form) { ask_rotation_pitch(bench, form.RotationPitch); }

void Fsize_Click(Workbench& bench, PatternForm& form) {
  ask_font_size(bench, form.Picture1);
  PatternDisp(bench);
}

void Imagesize(Workbench& bench, PatternForm& form) {
  if (ask_image_size(bench, form.Picture1)) PatternDisp(bench);
}

}  // namespace

}  // namespace zol::pattern

namespace zol {

/// What the user does, and what answers it.
void wire(Workbench& bench, PatternForm& form) {
  using namespace pattern;
  const Wire on(bench, form);
  form.Text1.on_change = on(Text1_Change);  // width of the picture
  form.Text2.on_change = on(Text2_Change);  // Laue level
  form.Text3.on_change = on(Text3_Change);  // zone axis u, and so on to Text5, w
  form.Text4.on_change = on(Text4_Change);
  form.Text5.on_change = on(Text5_Change);
  form.Text3.on_key_press = on(Text3_KeyPress);  // Enter moves on; in Text5 it draws
  form.Text4.on_key_press = on(Text4_KeyPress);
  form.Text5.on_key_press = on(Text5_KeyPress);
  form.Command8.on_click = on(Command8_Click);
  form.Command5.on_click = on(Command5_Click);
  form.Command14.on_click = on(Command14_Click);  // the level before
  form.Command2.on_click = on(Command2_Click);
  form.Command3.on_click = on(Command3_Click);
  form.Command6.on_click = on(Command6_Click);
  form.Command9.on_click = on(Command9_Click);
  form.Command11.on_click = on(Command11_Click);  // a fifth of it
  form.Command7.on_click = on(Command7_Click);
  form.Command10.on_click = on(Command10_Click);  // five times as far
  form.Command12.on_click = on(Command12_Click);  // a fifth of it
  form.Command4.on_click = on(Command4_Click);
  form.Command13.on_click = on(Command13_Click);  // "DWN": lighter
  form.Command1.on_click = on(Command1_Click);
  form.ISAVE.on_click = on(ISAVE_Click);
  form.Spotsize.on_click = on(Spotsize_Click);  // "Diffraction spot size"
  form.Rpitch.on_click = on(Rpitch_Click);
  form.Fsize.on_click = on(Fsize_Click);
  form.add_operation("Imagesize", on(Imagesize));
  form.on_load = on(Form_Load);
}

template void add_window<PatternForm>(Workbench&);

}  // namespace zol
