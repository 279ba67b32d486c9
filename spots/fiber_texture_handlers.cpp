#include "spots/fiber_texture_handlers.h"

#include "core/number_text.h"
#include "reflections/main1_form.h"
#include "spots/pattern_disp.h"
#include "spots/picture_controls.h"

namespace zol::fiber_texture {
namespace {

void zoom(Workbench& bench, FiberTextureForm& form, double half_width) {
  set_half_width(bench, form.Text1, half_width);
  PatternDisp3(bench);
}

void rotate_by(Workbench& bench, double angle_rad) {
  turn_pattern(bench, angle_rad);
  PatternDisp3(bench);
}

}  // namespace

void Form_Load(Workbench& bench, FiberTextureForm& form) {
  form.RotationPitch = first_pitch_deg;
  set_first_width(bench, form.Text1);
}

void Text1_Change(Workbench& bench, FiberTextureForm& form) {
  bench.state.CamAcquisition = number_in(form.Text1, [](double width) { return to_single(width / 2.0); });
}
void Text2_Change(Workbench& bench, FiberTextureForm& form) { main1_state(bench).Dispersion = single_in(form.Text2); }
void Text3_Change(Workbench& bench, FiberTextureForm& form) { main1_state(bench).OriginH = integer_in(form.Text3); }
void Text4_Change(Workbench& bench, FiberTextureForm& form) { main1_state(bench).OriginK = integer_in(form.Text4); }
void Text5_Change(Workbench& bench, FiberTextureForm& form) { main1_state(bench).OriginL = integer_in(form.Text5); }

void Text3_KeyPress(Workbench& /*bench*/, FiberTextureForm& form, int& key) { enter_moves_to(form.Text4, key); }
void Text4_KeyPress(Workbench& /*bench*/, FiberTextureForm& form, int& key) { enter_moves_to(form.Text5, key); }
void Text5_KeyPress(Workbench& bench, FiberTextureForm& form, int& key) {
  if (!swallow_enter(key)) return;
  Command8_Click(bench, form);
}

void Command8_Click(Workbench& bench, FiberTextureForm& /*form*/) { PatternDisp3(bench); }

void Command2_Click(Workbench& bench, FiberTextureForm& form) {
  zoom(bench, form, bench.state.CamAcquisition / zoom_factor);
}
void Command3_Click(Workbench& bench, FiberTextureForm& form) {
  zoom(bench, form, bench.state.CamAcquisition * zoom_factor);
}

// The angle runs the other way than in the spot pattern.
void Command6_Click(Workbench& bench, FiberTextureForm& form) { rotate_by(bench, -pitch_rad(form.RotationPitch)); }
void Command9_Click(Workbench& bench, FiberTextureForm& form) {
  rotate_by(bench, -pitch_rad(form.RotationPitch) * 5.0);
}
void Command11_Click(Workbench& bench, FiberTextureForm& form) {
  rotate_by(bench, -pitch_rad(form.RotationPitch) / 5.0);
}
void Command7_Click(Workbench& bench, FiberTextureForm& form) { rotate_by(bench, pitch_rad(form.RotationPitch)); }
void Command10_Click(Workbench& bench, FiberTextureForm& form) {
  rotate_by(bench, pitch_rad(form.RotationPitch) * 5.0);
}
void Command12_Click(Workbench& bench, FiberTextureForm& form) {
  rotate_by(bench, pitch_rad(form.RotationPitch) / 5.0);
}

void Command5_Click(Workbench& bench, FiberTextureForm& form) {
  form.CommonDialog1.printer_setup();
  bench.services.print_window(form);
}

void Command1_Click(Workbench& /*bench*/, FiberTextureForm& form) { form.hide(); }

// The ending is always added, so that a cancelled dialog writes ".bmp".
void Isave_Click(Workbench& /*bench*/, FiberTextureForm& form) {
  form.Picture1.save_stored_image(form.CommonDialog1.save_as(FileKind::Picture, {".bmp"}));
}

void Fsize_Click(Workbench& bench, FiberTextureForm& form) {
  ask_font_size(bench, form.Picture1);
  PatternDisp3(bench);
}

void Rpitch_Click(Workbench& bench, FiberTextureForm& form) { ask_rotation_pitch(bench, form.RotationPitch); }

void Imagesize_Click(Workbench& bench, FiberTextureForm& form) {
  if (ask_image_size(bench, form.Picture1)) PatternDisp3(bench);
}

// Draws the spot pattern anew, not this one: the size belongs to its spots.
void Spotsize_Click(Workbench& bench, FiberTextureForm& /*form*/) {
  ask_spot_size(bench);
  PatternDisp(bench);
}

}  // namespace zol::fiber_texture
