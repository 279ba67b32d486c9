#include "core/cell_geometry.h"
#include "powder/pattern_files.h"
#include "powder/window/curve_operations.h"
#include "powder/window/open_xd.h"
#include "powder/window/xd_form.h"
#include "powder/window/xd_operations.h"
#include "reflections/window/main1_form.h"
#include "shell/services/wiring.h"

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

void Text1_Change(XdForm& form) { take_number(form, form.Text1, form.TwoThetaMin); }
void Text2_Change(XdForm& form) { take_number(form, form.Text2, form.TwoThetaMax); }
void Text3_Change(XdForm& form) { take_number(form, form.Text3, form.HalfWidth); }
void Text4_Change(XdForm& form) { take_number(form, form.Text4, form.GaussianRatio); }
void Text6_Change(XdForm& form) { take_size(form, form.Text6, form.CellsP); }
void Text7_Change(XdForm& form) { take_size(form, form.Text7, form.CellsQ); }
void Text8_Change(XdForm& form) { take_size(form, form.Text8, form.CellsR); }

void Text5_KeyPress(XdForm& form, int& key) {
  if (!swallow_enter(key)) return;
  form.DisplayMax = single_in(form.Text5);
  redraw(form);
}

void Command1_Click(Workbench& bench) { XDCalc(bench); }

void Command2_Click(XdForm& form) {
  form.PeakMax = 0;
  form.Picture1.clear();
}

void Command3_Click(XdForm& form) {
  const NameEnding ending{".XDP", true};
  const std::string& path = form.CommonDialog1.save(FileKind::PowderPattern, ending);
  if (path.empty()) return;
  write_xdp(ending.added_to(path), form.range(), form.line(), form.size(), form.Profile);
}

void Command4_Click(XdForm& form) {
  const NameEnding ending{".BMP", true};
  const std::string& path = form.CommonDialog1.save(FileKind::Picture, ending);
  if (!path.empty()) form.Picture1.save_stored_image(ending.added_to(path));
}

void Command5_Click(Workbench& bench, XdForm& form) {
  form.CommonDialog1.printer_setup();
  bench.services.print_window(form);
}

void Command6_Click(XdForm& form) {
  form.DisplayMax = to_single(double{form.DisplayMax} / 2.0);
  redraw(form);
}

void Command7_Click(XdForm& form) {
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

}  // namespace

}  // namespace zol::xd

namespace zol {

/// What the user does, and what answers it.
void wire(Workbench& bench, XdForm& form) {
  using namespace xd;
  const Wire on(bench, form);
  form.Text1.on_change = on(Text1_Change);
  form.Text2.on_change = on(Text2_Change);
  form.Text3.on_change = on(Text3_Change);
  form.Text4.on_change = on(Text4_Change);
  form.Text6.on_change = on(Text6_Change);
  form.Text7.on_change = on(Text7_Change);
  form.Text8.on_change = on(Text8_Change);
  form.Text5.on_key_press = on(Text5_KeyPress);
  form.Command1.on_click = on(Command1_Click);
  form.Command2.on_click = on(Command2_Click);
  form.Command3.on_click = on(Command3_Click);
  form.Command4.on_click = on(Command4_Click);
  form.Command5.on_click = on(Command5_Click);
  form.Command6.on_click = on(Command6_Click);
  form.Command7.on_click = on(Command7_Click);
  form.Picture1.on_mouse_down = on(Picture1_MouseDown);
  form.add_operation("XDCalc", on(XDCalc));
  wire_curves(bench, form.Curves);
}

template void add_window<XdForm>(Workbench&);

}  // namespace zol
