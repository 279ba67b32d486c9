#include "kikuchi/zaxis_handlers.h"

#include <cmath>

#include "kikuchi/kikuchi_operations.h"
#include "kikuchi/zone_map.h"

namespace zol::zaxis {
namespace {

void zoom(Workbench& bench, ZaxisForm& form, double step) {
  form.MapScale = to_single(form.MapScale + step);
  Calc(bench);
}

}  // namespace

void Form_Load(Workbench& /*bench*/, ZaxisForm& form) {
  form.KeepMap = 0;
  form.MapScale = to_single(1.3);
}

void redraw(Workbench& bench, ZaxisForm& /*form*/) { Calc(bench); }

void direction_Change(Workbench& bench, ZaxisForm& form) {
  form.KeepMap = 1;
  Calc(bench);
  form.KeepMap = 0;
}

void Text4_KeyPress(Workbench& /*bench*/, ZaxisForm& form, int& key) { enter_moves_to(form.Text5, key); }
void Text5_KeyPress(Workbench& /*bench*/, ZaxisForm& form, int& key) { enter_moves_to(form.Text6, key); }
void Text6_KeyPress(Workbench& bench, ZaxisForm& form, int& key) {
  if (!swallow_enter(key)) return;
  Command1_Click(bench, form);
}

void Command1_Click(Workbench& /*bench*/, ZaxisForm& form) {
  using colours::red;
  constexpr double disc = 0.012;
  const Single phi = number_in(form.Text7, [](double deg) { return to_single(deg * degree); });
  const Single theta = number_in(form.Text8, [](double deg) { return to_single((90.0 - deg) * degree); });
  const double radius = map_radius(theta, form.Check2.checked());
  form.Picture1.set_solid_fill(true);
  form.Picture1.set_fill_colour(red);
  form.Picture1.circle(radius * std::cos(double{phi}), radius * std::sin(double{phi}), form.MapScale * disc, red);
}

void Command2_Click(Workbench& bench, ZaxisForm& form) { zoom(bench, form, -0.1); }
void Command3_Click(Workbench& bench, ZaxisForm& form) { zoom(bench, form, 0.1); }

void SaveMap_Click(Workbench& /*bench*/, ZaxisForm& form) {
  form.Picture1.save_stored_image(form.CommonDialog1.save_as(FileKind::Picture, {".bmp"}));
}

}  // namespace zol::zaxis
