#include "spots/window/spots_handlers.h"

#include "core/number_text.h"
#include "reflections/window/main1_form.h"
#include "shell/services/wiring.h"
#include "spots/window/pattern_disp.h"
#include "spots/window/picture_controls.h"
#include "spots/window/spots_drag.h"

namespace zol::spots {
namespace {

constexpr double zoom_factor = 1.4142;

/// Half the width goes into the state; the box gets the whole width and rounds it.
void zoom(Workbench& bench, SpotsForm& form, double half_width, Draw draw) {
  bench.state.CamAcquisition = to_single(half_width);
  form.Text1.set_text(Format(2.0 * bench.state.CamAcquisition, "##0.###"));
  draw(bench);
}

/// A button that turns the pattern by so many pitches.
struct Turn {
  CommandButton& button;
  double pitches_times;
  double pitches_by;
};

void turn(Workbench& bench, const SpotsForm& form, double pitches_times, double pitches_by) {
  CrystalState& state = main1_state(bench);
  state.PatternAngle =
      to_single(state.PatternAngle + form.RotationPitch / 180.0 * program_pi * pitches_times / pitches_by);
}

void Text1_Change(Workbench& bench, SpotsForm& form) {
  bench.state.CamAcquisition = number_in(form.Text1, [](double width) { return to_single(width / 2.0); });
}

void Text3_KeyPress(SpotsForm& form, int& key) { enter_moves_to(form.Text4, key); }
void Text4_KeyPress(SpotsForm& form, int& key) { enter_moves_to(form.Text5, key); }

void Command1_Click(SpotsForm& form) { form.hide(); }

}  // namespace

void set_first_values(Workbench& bench, SpotsForm& form) {
  form.RotationPitch = first_pitch_deg;
  if (bench.state.CamAcquisition != 0) return;
  bench.state.CamAcquisition = 1;
  form.Text1.set_text(plain_text(2.0 * bench.state.CamAcquisition));
}

void save_picture(SpotsForm& form) {
  form.Picture1.save_stored_image(form.CommonDialog1.save_as(FileKind::Picture, {".bmp"}));
}

void change_spot_size(Workbench& bench) {
  ask_spot_size(bench);
  PatternDisp(bench);
}

void change_font_size(Workbench& bench, SpotsForm& form, Draw draw) {
  ask_font_size(bench, form.Picture1);
  draw(bench);
}

void change_image_size(Workbench& bench, SpotsForm& form, Draw draw) {
  if (ask_image_size(bench, form.Picture1)) draw(bench);
}

void wire_spots(Workbench& bench, SpotsForm& form, Draw draw, double clockwise, bool tilts) {
  const Wire on(bench, form);
  form.Text1.on_change = on(Text1_Change);
  form.Text3.on_key_press = on(Text3_KeyPress);  // Enter moves on; in Text5 it draws
  form.Text4.on_key_press = on(Text4_KeyPress);
  form.Text5.on_key_press = [&bench, draw](int& key) {
    if (swallow_enter(key)) draw(bench);
  };
  form.Command8.on_click = on(draw);
  form.Command2.on_click = [&bench, &form, draw] { zoom(bench, form, bench.state.CamAcquisition / zoom_factor, draw); };
  form.Command3.on_click = [&bench, &form, draw] { zoom(bench, form, bench.state.CamAcquisition * zoom_factor, draw); };
  const std::array turns{Turn{form.Command6, clockwise, 1},       Turn{form.Command9, 5 * clockwise, 1},
                         Turn{form.Command11, clockwise, 5},      Turn{form.Command7, -clockwise, 1},
                         Turn{form.Command10, -5 * clockwise, 1}, Turn{form.Command12, -clockwise, 5}};
  std::vector<TurnButton> turning;
  for (const auto& [button, times, by] : turns) {
    turning.push_back({&button, (clockwise > 0 ? -1 : 1) * times / by});
    button.on_click = [&bench, &form, draw, pitches_times = times, pitches_by = by] {
      turn(bench, form, pitches_times, pitches_by);
      draw(bench);
    };
  }
  form.Picture1.drag = std::make_unique<SpotsDrag>(bench, form, tilts, std::move(turning));
  form.Command1.on_click = on(Command1_Click);
}

}  // namespace zol::spots
