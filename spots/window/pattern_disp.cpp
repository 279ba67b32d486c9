#include "spots/window/pattern_disp.h"

#include "core/cell_geometry.h"
#include "core/number_text.h"
#include "reflections/window/main1_form.h"
#include "spots/index_label.h"
#include "spots/spot_pattern.h"
#include "spots/window/pattern_form.h"
#include "spots/window/picture_controls.h"

namespace zol {
namespace {

/// What has to be there before a picture can be drawn.
void settle_values(PatternForm& form, CrystalState& state) {
  if (state.Level == 0) form.Text2.set_text("0");
  if (state.CamAcquisition == 0) {
    state.CamAcquisition = 1;
    form.Text1.set_text(plain_text(state.CamAcquisition));  // its handler halves it: the first width is 1, not 2
  }
  if (state.SpotScale == 0) state.SpotScale = to_single(0.015);
}

void draw_direct_beam(PatternForm& form, const CrystalState& state) {
  form.Picture1.circle(0, 0, double{state.CamAcquisition} * double{state.SpotScale}, RGB(0, 0, 0));
  if (form.Check3.checked()) form.Picture1.print("0 0 0");
}

void draw_spot(PatternForm& form, const CrystalState& state, const DiffractionSpot& spot) {
  const int grey = spot_grey(spot.intensity, state.DisplayScale, {form.Option2.on(), exponent_in(form.Text6)});
  if (grey == 255) return;
  const Colour colour = RGB(grey, grey, grey);
  form.Picture1.set_fill_colour(colour);
  form.Picture1.circle(spot.x, spot.y, double{state.SpotScale} / 2.0 * double{state.CamAcquisition}, colour);
  if (form.Check3.checked()) form.Picture1.print(index_label(spot.h, spot.k, spot.l));
  form.Picture1.mark({.h = spot.h.value(),
                      .k = spot.k.value(),
                      .l = spot.l.value(),
                      .x = spot.x,
                      .y = spot.y,
                      .d = 1 / double{DHKL(state, spot.h, spot.k, spot.l)},
                      .intensity = spot.intensity});
}

}  // namespace

void PatternDisp(Workbench& bench) {
  const auto& main1 = bench.windows.use<Main1Form>();
  CrystalState& state = main1.state;
  auto& form = bench.windows.use<PatternForm>();
  settle_values(form, state);

  const Hourglass hourglass(form);
  WindowTask task(bench.services);
  const auto pattern = diffraction_spots(state, {main1.Option1.on(), main1.Option2.on()}, task);
  const double half_width = state.CamAcquisition;
  form.Picture1.clear();
  form.Picture1.scale(-half_width, half_width, half_width, -half_width);
  form.Picture1.set_fill_colour(RGB(0, 0, 0));
  if (state.Level == 0) draw_direct_beam(form, state);

  leave_last_spot(pattern, state);
  if (state.DisplayScale == 0) state.DisplayScale = strongest_intensity(pattern.spots);
  for (const auto& spot : pattern.spots) {
    task.check();
    draw_spot(form, state, spot);
  }
}

}  // namespace zol
