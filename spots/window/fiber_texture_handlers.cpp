#include "reflections/window/main1_form.h"
#include "shell/services/wiring.h"
#include "spots/window/fiber_texture_form.h"
#include "spots/window/pattern_disp.h"
#include "spots/window/picture_controls.h"
#include "spots/window/spots_handlers.h"

namespace zol::fiber_texture {
namespace {

void Form_Load(Workbench& bench, FiberTextureForm& form) { spots::set_first_values(bench, form); }

void Text2_Change(Workbench& bench, FiberTextureForm& form) { main1_state(bench).Dispersion = single_in(form.Text2); }
void Text3_Change(Workbench& bench, FiberTextureForm& form) { main1_state(bench).OriginH = integer_in(form.Text3); }
void Text4_Change(Workbench& bench, FiberTextureForm& form) { main1_state(bench).OriginK = integer_in(form.Text4); }
void Text5_Change(Workbench& bench, FiberTextureForm& form) { main1_state(bench).OriginL = integer_in(form.Text5); }

void Command5_Click(Workbench& bench, FiberTextureForm& form) {
  form.CommonDialog1.printer_setup();
  bench.services.print_window(form);
}

void Isave_Click(FiberTextureForm& form) { spots::save_picture(form); }
void Fsize_Click(Workbench& bench, FiberTextureForm& form) { spots::change_font_size(bench, form, PatternDisp3); }
void Rpitch_Click(Workbench& bench, FiberTextureForm& form) { ask_rotation_pitch(bench, form.RotationPitch); }
void Imagesize_Click(Workbench& bench, FiberTextureForm& form) { spots::change_image_size(bench, form, PatternDisp3); }
void Spotsize_Click(Workbench& bench) { spots::change_spot_size(bench); }

}  // namespace

}  // namespace zol::fiber_texture

namespace zol {

/// What the user does, and what answers it.
void wire(Workbench& bench, FiberTextureForm& form) {
  using namespace fiber_texture;
  const Wire on(bench, form);
  spots::wire_spots(bench, form, PatternDisp3, -1, false);
  form.Text2.on_change = on(Text2_Change);  // dispersion
  form.Text3.on_change = on(Text3_Change);  // fiber direction H, and so on to Text5, L
  form.Text4.on_change = on(Text4_Change);
  form.Text5.on_change = on(Text5_Change);
  form.Command5.on_click = on(Command5_Click);
  form.Isave.on_click = on(Isave_Click);
  form.Fsize.on_click = on(Fsize_Click);
  form.Rpitch.on_click = on(Rpitch_Click);
  form.Imagesize.on_click = on(Imagesize_Click);  // "Image Size"
  form.Spotsize.on_click = on(Spotsize_Click);
  form.on_load = on(Form_Load);
}

template void add_window<FiberTextureForm>(Workbench&);

}  // namespace zol
