#include <cmath>

#include "kikuchi/window/kikuchi_operations.h"
#include "kikuchi/window/zaxis_form.h"
#include "kikuchi/zone_map.h"
#include "shell/services/wiring.h"

namespace zol::zaxis {
namespace {

void Command1_Click(ZaxisForm& form);

void zoom(Workbench& bench, ZaxisForm& form, double step) {
  form.MapScale = to_single(form.MapScale + step);
  Calc(bench);
}

void Form_Load(ZaxisForm& form) {
  form.KeepMap = 0;
  form.MapScale = to_single(1.3);
}

void redraw(Workbench& bench) { Calc(bench); }

void direction_Change(Workbench& bench, ZaxisForm& form) {
  form.KeepMap = 1;
  Calc(bench);
  form.KeepMap = 0;
}

void Text4_KeyPress(ZaxisForm& form, int& key) { enter_moves_to(form.Text5, key); }
void Text5_KeyPress(ZaxisForm& form, int& key) { enter_moves_to(form.Text6, key); }
void Text6_KeyPress(ZaxisForm& form, int& key) {
  if (!swallow_enter(key)) return;
  Command1_Click(form);
}

void Command1_Click(ZaxisForm& form) {
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

void SaveMap_Click(ZaxisForm& form) {
  form.Picture1.save_stored_image(form.CommonDialog1.save_as(FileKind::Picture, {".bmp"}));
}

}  // namespace

}  // namespace zol::zaxis

namespace zol {

/// What the user does, and what answers it.
void wire(Workbench& bench, ZaxisForm& form) {
  using namespace zaxis;
  const Wire on(bench, form);
  for (TextBox* limit : {&form.Text1, &form.Text2, &form.Text3}) limit->on_change = on(redraw);
  for (CheckBox* box : {&form.Check1, &form.Check2, &form.Check3}) box->on_click = on(redraw);
  for (OptionButton* option : {&form.Option1, &form.Option2}) option->on_click = on(redraw);
  for (TextBox* index : {&form.Text4, &form.Text5, &form.Text6}) index->on_change = on(direction_Change);
  form.Text4.on_key_press = on(Text4_KeyPress);
  form.Text5.on_key_press = on(Text5_KeyPress);
  form.Text6.on_key_press = on(Text6_KeyPress);
  form.Command1.on_click = on(Command1_Click);  // "PLOT"
  form.Command2.on_click = on(Command2_Click);  // "Zoom Up"
  form.Command3.on_click = on(Command3_Click);  // "Zoom Dwn"
  form.SaveMap.on_click = on(SaveMap_Click);
  form.add_operation("Calc", on(Calc));
  form.add_operation("Redraw", on(Calc));
  form.on_load = on(Form_Load);
}

template void add_window<ZaxisForm>(Workbench&);

}  // namespace zol
