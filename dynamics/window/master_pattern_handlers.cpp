#include "dynamics/window/globe_drag.h"
#include "dynamics/window/master_drawing.h"
#include "shell/services/attempt.h"
#include "shell/services/wiring.h"

namespace zol::master_pattern_window {
namespace {

constexpr auto nothing_drawn = "nothing is drawn yet: press Make";
constexpr auto not_kept = "the pattern was not kept with the picture: press Make, which computes it again";

void draw(Workbench& bench, MasterPatternForm& form, const ShownMaster& shown) {
  const Hourglass hourglass(form);
  WindowTask task(bench.services);
  draw_master(form, shown, task);
  form.Place.set_caption("");
  form.Status.set_caption(master_text(shown));
}

void Make_Click(Workbench& bench, MasterPatternForm& form) {
  attempt(bench, form, [&] {
    const Hourglass hourglass(form);
    draw(bench, form, *make_master(bench, form));
  });
}

/// @throws RunFailure  there is none, or it was drawn in an earlier run of the program
std::shared_ptr<const ShownMaster> present(const MasterPatternForm& form) {
  auto shown = drawn_master(form);
  if (!shown) throw RunFailure(form.drawn.key.empty() ? nothing_drawn : not_kept);
  return shown;
}

/// A choice about the view; before the first pattern it waits for that.
void View_Click(Workbench& bench, MasterPatternForm& form) {
  if (form.drawn.key.empty()) return;
  attempt(bench, form, [&] { draw(bench, form, *present(form)); });
}

void TurnSphere_Click(Workbench& bench, MasterPatternForm& form) {
  attempt(bench, form, [&] {
    const auto shown = present(form);
    form.Globe.set_on(true);
    draw(bench, form, *shown);
  });
}

void Picture_MouseDown(MasterPatternForm& form, Single x, Single y) { form.Place.set_caption(place_text(form, x, y)); }

void SavePicture_Click(Workbench& bench, MasterPatternForm& form) {
  attempt(bench, form, [&] {
    if (form.drawn.key.empty()) throw RunFailure(nothing_drawn);
    form.CommonDialog1.set_filter("Pictures|*.png;*.svg;*.pdf;*.bmp|");
    const NameEnding ending{".png", true};
    const std::string path = form.CommonDialog1.save(FileKind::Picture, ending);
    if (!path.empty()) bench.services.export_picture(form.Picture, ending.added_to(path));
  });
}

/// At first the voltage of the program's electrons.
void Form_Load(Workbench& bench, MasterPatternForm& form) {
  const Single voltage = bench.seen().AccVoltage;
  form.Voltage.set_text(voltage > 0 ? plain_text(voltage) : "20");
}

}  // namespace
}  // namespace zol::master_pattern_window

namespace zol {

void wire(Workbench& bench, MasterPatternForm& form) {
  using namespace master_pattern_window;
  const Wire on(bench, form);
  form.Make.on_click = on(Make_Click);
  for (OptionButton* option : {&form.Stereographic, &form.Lambert, &form.Globe, &form.North, &form.South}) {
    option->on_click = on(View_Click);
  }
  for (CheckBox* box : {&form.ZoneAxes, &form.Bands}) box->on_click = on(View_Click);
  form.TurnSphere.on_click = on(TurnSphere_Click);
  form.Picture.on_mouse_down = on(Picture_MouseDown);
  form.Picture.describe_place = [&form](double x, double y) { return place_text(form, x, y); };
  form.Picture.drag = std::make_unique<GlobeDrag>(form);
  form.SavePicture.on_click = on(SavePicture_Click);
  form.on_load = on(Form_Load);
}

template void add_window<MasterPatternForm>(Workbench&);

}  // namespace zol
