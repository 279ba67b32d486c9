#include "spots/pattern_handlers.h"

#include "core/number_text.h"
#include "reflections/main1_form.h"
#include "spots/pattern_disp.h"
#include "spots/picture_controls.h"

namespace zol::pattern {
namespace {

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

}  // namespace

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

void Text3_KeyPress(Workbench& /*bench*/, PatternForm& form, int& key) { enter_moves_to(form.Text4, key); }
void Text4_KeyPress(Workbench& /*bench*/, PatternForm& form, int& key) { enter_moves_to(form.Text5, key); }
void Text5_KeyPress(Workbench& bench, PatternForm& form, int& key) {
  if (!swallow_enter(key)) return;
  Command8_Click(bench, form);
}

void Command8_Click(Workbench& bench, PatternForm& /*form*/) { PatternDisp(bench); }

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

void Command4_Click(Workbench& bench, PatternForm& /*form*/) { scale_greys(bench, 0.5); }
void Command13_Click(Workbench& bench, PatternForm& /*form*/) { scale_greys(bench, 2.0); }

void Command1_Click(Workbench& /*bench*/, PatternForm& form) { form.hide(); }

// The ending is always added, so that a cancelled dialog writes ".bmp".
void ISAVE_Click(Workbench& /*bench*/, PatternForm& form) {
  form.Picture1.save_stored_image(form.CommonDialog1.save_as(FileKind::Picture, {".bmp"}));
}

void Spotsize_Click(Workbench& bench, PatternForm& /*form*/) {
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

}  // namespace zol::pattern
