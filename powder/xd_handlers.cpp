#include "powder/xd_handlers.h"

#include "core/cell_geometry.h"
#include "powder/open_xd.h"
#include "powder/pattern_files.h"
#include "powder/xd_operations.h"
#include "reflections/main1_form.h"

namespace zol::xd {
namespace {

void take_number(XdForm& form, const TextBox& box, Single& field) {
  field = single_in(box);
  form.Picture1.clear();
}

/// An empty box leaves the size, which must not be 0.
void take_size(XdForm& form, const TextBox& box, Single& field) {
  if (!box.text().empty()) field = single_in(box);
  form.Picture1.clear();
}

}  // namespace

void Text1_Change(Workbench& /*bench*/, XdForm& form) { take_number(form, form.Text1, form.TwoThetaMin); }
void Text2_Change(Workbench& /*bench*/, XdForm& form) { take_number(form, form.Text2, form.TwoThetaMax); }
void Text3_Change(Workbench& /*bench*/, XdForm& form) { take_number(form, form.Text3, form.HalfWidth); }
void Text4_Change(Workbench& /*bench*/, XdForm& form) { take_number(form, form.Text4, form.GaussianRatio); }
void Text6_Change(Workbench& /*bench*/, XdForm& form) { take_size(form, form.Text6, form.CellsP); }
void Text7_Change(Workbench& /*bench*/, XdForm& form) { take_size(form, form.Text7, form.CellsQ); }
void Text8_Change(Workbench& /*bench*/, XdForm& form) { take_size(form, form.Text8, form.CellsR); }

void Text5_KeyPress(Workbench& /*bench*/, XdForm& form, int& key) {
  if (!swallow_enter(key)) return;
  form.DisplayMax = single_in(form.Text5);
  redraw(form);
}

void Command1_Click(Workbench& bench, XdForm& /*form*/) { XDCalc(bench); }

void Command2_Click(Workbench& /*bench*/, XdForm& form) {
  form.PeakMax = 0;
  form.Picture1.clear();
}

void Command3_Click(Workbench& /*bench*/, XdForm& form) {
  const NameEnding ending{".XDP", true};
  const std::string& path = form.CommonDialog1.save(FileKind::PowderPattern, ending);
  if (path.empty()) return;
  write_xdp(ending.added_to(path), form.range(), form.line(), form.size(), form.Profile);
}

void Command4_Click(Workbench& /*bench*/, XdForm& form) {
  const NameEnding ending{".BMP", true};
  const std::string& path = form.CommonDialog1.save(FileKind::Picture, ending);
  if (!path.empty()) form.Picture1.save_stored_image(ending.added_to(path));
}

void Command5_Click(Workbench& bench, XdForm& form) {
  form.CommonDialog1.printer_setup();
  bench.services.print_window(form);
}

void Command6_Click(Workbench& /*bench*/, XdForm& form) {
  form.DisplayMax = to_single(double{form.DisplayMax} / 2.0);
  redraw(form);
}

void Command7_Click(Workbench& /*bench*/, XdForm& form) {
  form.DisplayMax = to_single(double{form.DisplayMax} * 2.0);
  redraw(form);
}

void Picture1_MouseDown(Workbench& bench, XdForm& form, Single x, Single /*y*/) {
  if (x == 0) return;
  form.Label5.set_caption("2-Theta=" + Format(x, "##0.00"));
  form.Label6.set_caption("d(A)=" + Format(Bragg(main1_state(bench), x), "#0.000"));
  const Single height = form.Profile(form.range().nearest(x));
  form.Label7.set_caption("I(%)=" + Format(relative_height(height, form.PeakMax, peak_max) * 100.0, "##0.00"));
}

}  // namespace zol::xd
