#include "powder/dring_handlers.h"

#include "powder/open_dring.h"
#include "powder/pattern_files.h"

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

}  // namespace

void Text2_Change(Workbench& /*bench*/, DringForm& form) { take_number(form, form.Text2, form.DStarMax); }
void Text3_Change(Workbench& /*bench*/, DringForm& form) { take_number(form, form.Text3, form.HalfWidth); }
void Text5_Change(Workbench& /*bench*/, DringForm& form) { take_number(form, form.Text5, form.DisplayMax); }
void Text6_Change(Workbench& /*bench*/, DringForm& form) { take_size(form, form.Text6, form.CellsP); }
void Text7_Change(Workbench& /*bench*/, DringForm& form) { take_size(form, form.Text7, form.CellsQ); }
void Text8_Change(Workbench& /*bench*/, DringForm& form) { take_size(form, form.Text8, form.CellsR); }

void Check1_Click(Workbench& /*bench*/, DringForm& form) { ask_for_scale(form); }
void Check2_Click(Workbench& /*bench*/, DringForm& form) { ask_for_scale(form); }
void Check3_Click(Workbench& /*bench*/, DringForm& form) { ask_for_scale(form); }

void Command1_Click(Workbench& bench, DringForm& /*form*/) { DRCalc(bench); }
void Command2_Click(Workbench& /*bench*/, DringForm& form) { ask_for_scale(form); }

void Command3_Click(Workbench& /*bench*/, DringForm& form) {
  const NameEnding ending{".BMP", true};
  const std::string& path = form.CommonDialog1.save(FileKind::Picture, ending);
  if (!path.empty()) form.Picture2.save_stored_image(ending.added_to(path));
}

void Command4_Click(Workbench& /*bench*/, DringForm& form) {
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

void Picture1_MouseDown(Workbench& /*bench*/, DringForm& form, Single x, Single /*y*/) {
  if (x == 0) return;
  form.Label4.set_caption("d(A)=" + Format(divide(1.0, x, "1/d"), "##0.000"));
  const Single height = form.Profile(nearest_ring_sample(form.DStarMax, x));
  constexpr std::string_view name = "the intensity at full height (DisplayMax, which \"Clear\" sets to 0)";
  form.Label5.set_caption("I(%)=" + Format(relative_height(height, form.DisplayMax, name) * 100.0, "##0.00"));
}

void Picture2_MouseDown(Workbench& /*bench*/, DringForm& form, Single x, Single y) {
  if (x == 0 && y == 0) return;
  form.Label1.set_caption("d(A)=" + Format(spacing_at_point(x, y), "##0.000"));
}

}  // namespace zol::dring
