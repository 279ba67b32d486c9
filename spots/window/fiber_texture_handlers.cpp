#include "core/number_text.h"
#include "reflections/window/main1_form.h"
#include "shell/services/wiring.h"
#include "spots/window/fiber_texture_form.h"
#include "spots/window/pattern_disp.h"
#include "spots/window/picture_controls.h"

namespace zol::fiber_texture {
namespace {

void Command8_Click(Workbench& bench);

void zoom(Workbench& bench, FiberTextureForm& form, double half_width) {
  set_half_width(bench, form.Text1, half_width);
  PatternDisp3(bench);
}

void rotate_by(Workbench& bench, double angle_rad) {
  turn_pattern(bench, angle_rad);
  PatternDisp3(bench);
}

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

void Text3_KeyPress(FiberTextureForm& form, int& key) { enter_moves_to(form.Text4, key); }
void Text4_KeyPress(FiberTextureForm& form, int& key) { enter_moves_to(form.Text5, key); }
void Text5_KeyPress(Workbench& bench, int& key) {
  if (!swallow_enter(key)) return;
  Command8_Click(bench);
}

void Command8_Click(Workbench& bench) { PatternDisp3(bench); }

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

void Command1_Click(FiberTextureForm& form) { form.hide(); }

// The ending is always added, so that a cancelled dialog writes ".bmp".
void Isave_Click(FiberTextureForm& form) {
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
void Spotsize_Click(Workbench& bench) {
  ask_spot_size(bench);
  PatternDisp(bench);
}

}  // namespace

}  // namespace zol::fiber_texture

namespace zol {

/// What the user does, and what answers it.
void wire(Workbench& bench, FiberTextureForm& form) {
  using namespace fiber_texture;
  const Wire on(bench, form);
  form.Text1.on_change = on(Text1_Change);  // width of the picture
  form.Text2.on_change = on(Text2_Change);  // dispersion
  form.Text3.on_change = on(Text3_Change);  // fiber direction H, and so on to Text5, L
  form.Text4.on_change = on(Text4_Change);
  form.Text5.on_change = on(Text5_Change);
  form.Text3.on_key_press = on(Text3_KeyPress);  // Enter moves on; in Text5 it draws
  form.Text4.on_key_press = on(Text4_KeyPress);
  form.Text5.on_key_press = on(Text5_KeyPress);
  form.Command8.on_click = on(Command8_Click);
  form.Command2.on_click = on(Command2_Click);
  form.Command3.on_click = on(Command3_Click);
  form.Command6.on_click = on(Command6_Click);
  form.Command9.on_click = on(Command9_Click);
  form.Command11.on_click = on(Command11_Click);  // a fifth of it
  form.Command7.on_click = on(Command7_Click);
  form.Command10.on_click = on(Command10_Click);  // five times as far
  form.Command12.on_click = on(Command12_Click);  // a fifth of it
  form.Command5.on_click = on(Command5_Click);
  form.Command1.on_click = on(Command1_Click);
  form.Isave.on_click = on(Isave_Click);
  form.Fsize.on_click = on(Fsize_Click);
  form.Rpitch.on_click = on(Rpitch_Click);
  form.Imagesize.on_click = on(Imagesize_Click);  // "Image Size"
  form.Spotsize.on_click = on(Spotsize_Click);
  form.on_load = on(Form_Load);
}

template void add_window<FiberTextureForm>(Workbench&);

}  // namespace zol
