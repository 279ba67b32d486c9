#include "powder/pattern_files.h"
#include "powder/window/curve_operations.h"
#include "powder/window/dring_form.h"
#include "powder/window/open_dring.h"
#include "shell/services/wiring.h"

namespace zol::dring {
namespace {

void clear_pictures(DringForm& form) {
  form.Picture1.clear();
  form.Picture2.clear();
}

void take_number(DringForm& form, const TextBox& box, Single& field) {
  field = single_in(box);
  clear_pictures(form);
}

/// An empty box leaves the size, which must not be 0.
void take_size(DringForm& form, const TextBox& box, Single& field) {
  if (!box.text().empty()) field = single_in(box);
  form.Picture1.clear();
}

/// The next calculation scales by its largest sample.
void ask_for_scale(DringForm& form) {
  form.DisplayMax = 0;
  clear_pictures(form);
}

void Text2_Change(DringForm& form) { take_number(form, form.Text2, form.DStarMax); }
void Text3_Change(DringForm& form) { take_number(form, form.Text3, form.HalfWidth); }
void Text5_Change(DringForm& form) { take_number(form, form.Text5, form.DisplayMax); }
void Text6_Change(DringForm& form) { take_size(form, form.Text6, form.CellsP); }
void Text7_Change(DringForm& form) { take_size(form, form.Text7, form.CellsQ); }
void Text8_Change(DringForm& form) { take_size(form, form.Text8, form.CellsR); }

void Check1_Click(DringForm& form) { ask_for_scale(form); }
void Check2_Click(DringForm& form) { ask_for_scale(form); }
void Check3_Click(DringForm& form) { ask_for_scale(form); }

void Command1_Click(Workbench& bench) { DRCalc(bench); }
void Command2_Click(DringForm& form) { ask_for_scale(form); }

void Command3_Click(DringForm& form) {
  const NameEnding ending{".BMP", true};
  const std::string& path = form.CommonDialog1.save(FileKind::Picture, ending);
  if (!path.empty()) form.Picture2.save_stored_image(ending.added_to(path));
}

void Command4_Click(DringForm& form) {
  const NameEnding ending{".EDP", true};
  const std::string& path = form.CommonDialog1.save(FileKind::RingProfile, ending);
  if (!path.empty()) write_edp(ending.added_to(path), form.DStarMax, form.Profile);
}

void Command5_Click(Workbench& bench, DringForm& form) {
  form.CommonDialog1.printer_setup();
  bench.services.print_window(form);
}

void Command6_Click(Workbench& bench, DringForm& form) {
  form.DisplayMax = to_single(double{form.DisplayMax} / 2.0);
  DRCalc(bench);
}

void Command7_Click(Workbench& bench, DringForm& form) {
  form.DisplayMax = to_single(double{form.DisplayMax} * 2.0);
  DRCalc(bench);
}

void Picture1_MouseDown(DringForm& form, Single x, Single /*y*/) {
  if (x == 0) return;
  form.Label4.set_caption("d(A)=" + Format(divide(1.0, x, "1/d"), "##0.000"));
  const Single height = form.Profile(nearest_ring_sample(form.DStarMax, x));
  constexpr std::string_view name = "the intensity at full height (DisplayMax, which \"Clear\" sets to 0)";
  form.Label5.set_caption("I(%)=" + Format(relative_height(height, form.DisplayMax, name) * 100.0, "##0.00"));
}

void Picture2_MouseDown(DringForm& form, Single x, Single y) {
  if (x == 0 && y == 0) return;
  form.Label1.set_caption("d(A)=" + Format(spacing_at_point(x, y), "##0.000"));
}

}  // namespace

}  // namespace zol::dring

namespace zol {

/// What the user does, and what answers it.
void wire(Workbench& bench, DringForm& form) {
  using namespace dring;
  const Wire on(bench, form);
  form.Text2.on_change = on(Text2_Change);
  form.Text3.on_change = on(Text3_Change);
  form.Text5.on_change = on(Text5_Change);
  form.Text6.on_change = on(Text6_Change);
  form.Text7.on_change = on(Text7_Change);
  form.Text8.on_change = on(Text8_Change);
  form.Check1.on_click = on(Check1_Click);
  form.Check2.on_click = on(Check2_Click);
  form.Check3.on_click = on(Check3_Click);
  form.Command1.on_click = on(Command1_Click);
  form.Command2.on_click = on(Command2_Click);
  form.Command3.on_click = on(Command3_Click);
  form.Command4.on_click = on(Command4_Click);
  form.Command5.on_click = on(Command5_Click);
  form.Command6.on_click = on(Command6_Click);
  form.Command7.on_click = on(Command7_Click);
  form.Picture1.on_mouse_down = on(Picture1_MouseDown);
  form.Picture2.on_mouse_down = on(Picture2_MouseDown);
  form.add_operation("DRCalc", on(DRCalc));
  wire_curves(bench, form.Curves);
}

template void add_window<DringForm>(Workbench&);

}  // namespace zol
