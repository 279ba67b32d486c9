#include "core/number_text.h"
#include "reflections/window/main1_form.h"
#include "spots/fiber_texture.h"
#include "spots/index_label.h"
#include "spots/window/fiber_texture_form.h"
#include "spots/window/pattern_disp.h"
#include "spots/window/picture_controls.h"

namespace zol {
namespace {

/// What has to be there before a picture can be drawn.
void settle_values(FiberTextureForm& form, CrystalState& state) {
  if (state.CamAcquisition == 0) {
    state.CamAcquisition = 2;
    form.Text1.set_text(plain_text(state.CamAcquisition));  // its handler halves it
  }
  if (state.SpotScale == 0) state.SpotScale = to_single(0.01);
  if (state.Dispersion == 0) {
    state.Dispersion = 0.5;
    form.Text2.set_text(plain_text(state.Dispersion));
  }
}

void draw_direct_beam(FiberTextureForm& form, const CrystalState& state) {
  form.Picture1.circle(0, 0, state.SpotScale, RGB(0, 0, 0));
  if (form.Check3.checked()) form.Picture1.print("0 0 0");
}

void draw_arcs(Canvas& picture, const FiberArcs& arcs, Task& task) {
  for (const auto& point : arcs.points) {
    task.check();
    const int grey = darkened_grey(point.darkness, picture.point(point.x, point.y));
    picture.set_point(point.x, point.y, RGB(grey, grey, grey));
  }
}

void mark_ring(Canvas& picture, const CrystalState& state, int i) {
  const double radius = 2 * double{state.RefS(i)};
  picture.mark({.h = state.RefH(i).value(),
                .k = state.RefK(i).value(),
                .l = state.RefL(i).value(),
                .radius = radius,
                .d = 1 / radius,
                .intensity = state.RefI(i)});
}

}  // namespace

void PatternDisp3(Workbench& bench) {
  CrystalState& state = main1_state(bench);
  auto& form = bench.windows.use<FiberTextureForm>();
  Canvas& picture = form.Picture1;
  settle_values(form, state);

  const Hourglass hourglass(form);
  WindowTask task(bench.services);
  reorder(state, order_by_intensity(state, task), task);
  const double half_width = state.CamAcquisition;
  picture.clear();
  picture.scale(-half_width, half_width, half_width, -half_width);
  picture.set_fill_colour(RGB(0, 0, 0));
  draw_direct_beam(form, state);

  FiberPicture settings{picture.pixel_width(), picture.pixel_height(), exponent_in(form.Text6)};
  settings.is_black = [&picture](const PicturePixel& pixel) {
    return picture.stored_image().pixel(pixel.column, pixel.row) == colours::black;
  };
  task.expect(effort_of_arcs(state, settings, task));
  for (int i = 2; i <= state.RefCount.value(); ++i) {
    task.report(i, state.RefCount.value());
    task.check();
    const auto arcs = fiber_arcs(state, i, settings, task);
    if (!arcs) continue;
    draw_arcs(picture, *arcs, task);
    mark_ring(picture, state, i);
    if (!form.Check3.checked()) continue;
    picture.move_to(arcs->label_x, arcs->label_y);
    picture.print(index_label(state.RefH(i), state.RefK(i), state.RefL(i)));
  }
}

}  // namespace zol
