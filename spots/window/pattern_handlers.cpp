#include "core/number_text.h"
#include "reflections/window/main1_form.h"
#include "shell/services/wiring.h"
#include "spots/window/pattern_disp.h"
#include "spots/window/pattern_form.h"
#include "spots/window/picture_controls.h"
#include "spots/window/spots_handlers.h"

namespace zol::pattern {
namespace {

void step_level(Workbench& bench, PatternForm& form, double step) {
  form.Text2.set_text(plain_text(Val(form.Text2.text()) + step));
  PatternDisp(bench);
}

void scale_greys(Workbench& bench, double factor) {
  CrystalState& state = main1_state(bench);
  state.DisplayScale = to_single(state.DisplayScale * factor);
  PatternDisp(bench);
}

void Form_Load(Workbench& bench, PatternForm& form) {
  form.Option2.set_on(true);
  spots::set_first_values(bench, form);
}

void Text2_Change(Workbench& bench, PatternForm& form) { main1_state(bench).Level = integer_in(form.Text2); }
void Text3_Change(Workbench& bench, PatternForm& form) { main1_state(bench).ZoneU = single_in(form.Text3); }
void Text4_Change(Workbench& bench, PatternForm& form) { main1_state(bench).ZoneV = single_in(form.Text4); }
void Text5_Change(Workbench& bench, PatternForm& form) { main1_state(bench).ZoneW = single_in(form.Text5); }

void Command5_Click(Workbench& bench, PatternForm& form) { step_level(bench, form, 1.0); }
void Command14_Click(Workbench& bench, PatternForm& form) { step_level(bench, form, -1.0); }

void Command4_Click(Workbench& bench) { scale_greys(bench, 0.5); }
void Command13_Click(Workbench& bench) { scale_greys(bench, 2.0); }

void ISAVE_Click(PatternForm& form) { spots::save_picture(form); }
void Spotsize_Click(Workbench& bench) { spots::change_spot_size(bench); }
void Rpitch_Click(Workbench& bench, PatternForm& form) { ask_rotation_pitch(bench, form.RotationPitch); }
void Fsize_Click(Workbench& bench, PatternForm& form) { spots::change_font_size(bench, form, PatternDisp); }
void Imagesize(Workbench& bench, PatternForm& form) { spots::change_image_size(bench, form, PatternDisp); }

}  // namespace

}  // namespace zol::pattern

namespace zol {

/// What the user does, and what answers it.
void wire(Workbench& bench, PatternForm& form) {
  using namespace pattern;
  const Wire on(bench, form);
  spots::wire_spots(bench, form, PatternDisp, 1, true);
  form.Text2.on_change = on(Text2_Change);  // Laue level
  form.Text3.on_change = on(Text3_Change);  // zone axis u, and so on to Text5, w
  form.Text4.on_change = on(Text4_Change);
  form.Text5.on_change = on(Text5_Change);
  form.Command5.on_click = on(Command5_Click);
  form.Command14.on_click = on(Command14_Click);  // the level before
  form.Command4.on_click = on(Command4_Click);
  form.Command13.on_click = on(Command13_Click);  // "DWN": lighter
  form.ISAVE.on_click = on(ISAVE_Click);
  form.Spotsize.on_click = on(Spotsize_Click);  // "Diffraction spot size"
  form.Rpitch.on_click = on(Rpitch_Click);
  form.Fsize.on_click = on(Fsize_Click);
  form.add_operation("Imagesize", on(Imagesize));
  form.on_load = on(Form_Load);
}

template void add_window<PatternForm>(Workbench&);

}  // namespace zol
