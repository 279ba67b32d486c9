#include "calculators/direction_search.h"
#include "calculators/vector_calculations.h"
#include "calculators/window/utility_form.h"
#include "core/cell_geometry.h"
#include "core/number_text.h"
#include "reflections/window/main1_form.h"
#include "shell/services/guards.h"
#include "shell/services/wiring.h"

namespace zol {

UtilityForm::UtilityForm(Workbench& bench) : Window(window_name, "Utility") {
  const std::pair<const char*, Single*> singles[] = {{"Phi1", &Phi1},       {"Rotate1", &Rotate1},
                                                     {"Phi2", &Phi2},       {"Rotate2", &Rotate2},
                                                     {"Length1", &Length1}, {"LengthRotate1", &LengthRotate1},
                                                     {"Length2", &Length2}, {"LengthRotate2", &LengthRotate2},
                                                     {"VectorU", &VectorU}, {"VectorV", &VectorV},
                                                     {"VectorW", &VectorW}, {"VectorH", &VectorH},
                                                     {"VectorK", &VectorK}, {"VectorL", &VectorL},
                                                     {"Angle1", &Angle1},   {"Angle2", &Angle2},
                                                     {"Angle3", &Angle3},   {"Angle4", &Angle4},
                                                     {"Angle5", &Angle5},   {"Angle6", &Angle6}};
  for (const auto& [name, field] : singles) fields().add(name, *field);
  fields().add("MatrixCells", MatrixCells);
  declare_guards(bench.seen());
}

void UtilityForm::declare_guards(const CrystalState& seen) {
  using namespace guard;
  warn({&Command3, &Text6}, [this] { return when(Val(Text9.text()) == 0, "length_1 is 0"); });
  Command4.warn_when = [this, &seen] {
    return first_of({no_cell(seen), when(VectorU == 0 && VectorV == 0 && VectorW == 0, "u, v, w are 0 0 0")});
  };
  Command5.warn_when = [this, &seen] {
    return first_of({no_cell(seen), when(VectorH == 0 && VectorK == 0 && VectorL == 0, "h, k, l are 0 0 0")});
  };
}

namespace utility {
namespace {

void Command1_Click(Workbench& bench, UtilityForm& form);
void Command3_Click(UtilityForm& form);

/// Writes an azimuth folded into its box. The field takes what stands there.
void fold(TextBox& box, Single& azimuth_deg) {
  box.set_text(Str(folded_azimuth(azimuth_deg)));
  azimuth_deg = single_in(box);
}

void show_angle(Workbench& bench, UtilityForm& form) {
  const auto kind = form.Option1.on() ? AngleOf::Directions : (form.Option2.on() ? AngleOf::Normals : AngleOf::Planes);
  const auto angle = vector_angle(main1_state(bench), kind, {form.Angle1, form.Angle2, form.Angle3},
                                  {form.Angle4, form.Angle5, form.Angle6});
  if (angle) form.Text52.set_text(plain_text(*angle));
}

void take_component(Workbench& bench, UtilityForm& form, const TextBox& box, Single& field) {
  field = single_in(box);
  show_angle(bench, form);
}

void Form_Load(UtilityForm& form) { form.Option1.set_on(true); }

void Text1_Change(UtilityForm& form) { form.Phi1 = single_in(form.Text1); }
void Text2_Change(UtilityForm& form) { form.Rotate1 = single_in(form.Text2); }
void Text3_Change(UtilityForm& form) { form.Phi2 = single_in(form.Text3); }
void Text4_Change(UtilityForm& form) { form.Rotate2 = single_in(form.Text4); }

void Text1_KeyPress(UtilityForm& form, int& key) { enter_moves_to(form.Text2, key); }
void Text2_KeyPress(UtilityForm& form, int& key) { enter_moves_to(form.Text3, key); }
void Text3_KeyPress(UtilityForm& form, int& key) { enter_moves_to(form.Text4, key); }
void Text4_KeyPress(Workbench& bench, UtilityForm& form, int& key) {
  if (!swallow_enter(key)) return;
  Command1_Click(bench, form);
}

void Command1_Click(Workbench& bench, UtilityForm& form) {
  fold(form.Text1, form.Phi1);
  fold(form.Text3, form.Phi2);
  WindowTask task(bench.services);
  const auto found = search_direction({form.Phi1, form.Rotate1, form.Phi2, form.Rotate2}, task).answer();
  form.Label5.set_caption("Phi_0=" + Format(found.azimuth, "##0.00"));
  form.Label6.set_caption("Theta_0=" + Format(90.0 - double{found.polar}, "##0.00"));
  form.Label9.set_caption("Phi-1 calc=" + Format(found.phi_1, "##0.00"));
  form.Label11.set_caption("Phi-2 calc=" + Format(found.phi_2, "##0.00"));
}

void Text9_KeyPress(UtilityForm& form, int& key) { enter_moves_to(form.Text8, key); }
void Text8_KeyPress(UtilityForm& form, int& key) { enter_moves_to(form.Text7, key); }
void Text7_KeyPress(UtilityForm& form, int& key) { enter_moves_to(form.Text6, key); }
void Text6_KeyPress(UtilityForm& form, int& key) {
  if (!swallow_enter(key)) return;
  Command3_Click(form);
}

void Command3_Click(UtilityForm& form) {
  form.Length1 = single_in(form.Text9);
  form.LengthRotate1 = single_in(form.Text8);
  form.Length2 = single_in(form.Text7);
  form.LengthRotate2 = single_in(form.Text6);
  const auto found = direction_from_lengths({form.Length1, form.LengthRotate1, form.Length2, form.LengthRotate2});
  form.Label15.set_caption("Phi=" + Str(found.phi));
  form.Label14.set_caption("Theta=" + Str(found.theta));
}

void Text5_KeyPress(UtilityForm& form, int index, int& key) {
  if (index + 1 < form.Text5.count()) {
    enter_moves_to(form.Text5(index + 1), key);
  } else {
    swallow_enter(key);
  }
}

void Command2_Click(Workbench& bench, UtilityForm& form) {
  const auto cell = [&form](int i) -> Single& { return form.MatrixCells(i / 3 + 1, i % 3 + 1); };
  for (int i = 0; i < form.Text5.count(); ++i) cell(i) = single_in(form.Text5(i));
  if (!Matrix(3, form.MatrixCells)) bench.services.message("DET=0", "ERROR");
  for (int i = 0; i < form.Label10.count(); ++i) form.Label10(i).set_caption(Str(cell(i)));
}

void Text10_Change(UtilityForm& form) { form.VectorU = single_in(form.Text10); }
void Text11_Change(UtilityForm& form) { form.VectorV = single_in(form.Text11); }
void Text12_Change(UtilityForm& form) { form.VectorW = single_in(form.Text12); }
void Text13_Change(UtilityForm& form) { form.VectorH = single_in(form.Text13); }
void Text14_Change(UtilityForm& form) { form.VectorK = single_in(form.Text14); }
void Text15_Change(UtilityForm& form) { form.VectorL = single_in(form.Text15); }

void Text10_KeyPress(UtilityForm& form, int& key) { enter_moves_to(form.Text11, key); }
void Text11_KeyPress(UtilityForm& form, int& key) { enter_moves_to(form.Text12, key); }
void Text12_KeyPress(UtilityForm& form, int& key) { enter_moves_to(form.Text13, key); }
void Text13_KeyPress(UtilityForm& form, int& key) { enter_moves_to(form.Text14, key); }
void Text14_KeyPress(UtilityForm& form, int& key) { enter_moves_to(form.Text15, key); }
void Text15_KeyPress(UtilityForm& /*form*/, int& key) { swallow_enter(key); }

void Command4_Click(Workbench& bench, UtilityForm& form) {
  const auto [h, k, l] = reciprocal_equivalent(main1_state(bench), {form.VectorU, form.VectorV, form.VectorW});
  form.Text13.set_text(Str(h));
  form.Text14.set_text(Str(k));
  form.Text15.set_text(Str(l));
}

void Command5_Click(Workbench& bench, UtilityForm& form) {
  const auto [u, v, w] = direct_equivalent(main1_state(bench), {form.VectorH, form.VectorK, form.VectorL});
  form.Text10.set_text(Str(u));
  form.Text11.set_text(Str(v));
  form.Text12.set_text(Str(w));
}

void Option1_Click(Workbench& bench, UtilityForm& form) { show_angle(bench, form); }
void Option2_Click(Workbench& bench, UtilityForm& form) { show_angle(bench, form); }
void Option3_Click(Workbench& bench, UtilityForm& form) { show_angle(bench, form); }

void Text46_Change(Workbench& bench, UtilityForm& form) { take_component(bench, form, form.Text46, form.Angle1); }
void Text47_Change(Workbench& bench, UtilityForm& form) { take_component(bench, form, form.Text47, form.Angle2); }
void Text48_Change(Workbench& bench, UtilityForm& form) { take_component(bench, form, form.Text48, form.Angle3); }
void Text49_Change(Workbench& bench, UtilityForm& form) { take_component(bench, form, form.Text49, form.Angle4); }
void Text50_Change(Workbench& bench, UtilityForm& form) { take_component(bench, form, form.Text50, form.Angle5); }
void Text51_Change(Workbench& bench, UtilityForm& form) { take_component(bench, form, form.Text51, form.Angle6); }

void Text46_KeyPress(UtilityForm& form, int& key) { enter_moves_to(form.Text47, key); }
void Text47_KeyPress(UtilityForm& form, int& key) { enter_moves_to(form.Text48, key); }
void Text48_KeyPress(UtilityForm& form, int& key) { enter_moves_to(form.Text49, key); }
void Text49_KeyPress(UtilityForm& form, int& key) { enter_moves_to(form.Text50, key); }
void Text50_KeyPress(UtilityForm& form, int& key) { enter_moves_to(form.Text51, key); }
void Text51_KeyPress(UtilityForm& /*form*/, int& key) { swallow_enter(key); }

}  // namespace

}  // namespace utility

/// What the user does, and what answers it.
void wire(Workbench& bench, UtilityForm& form) {
  using namespace utility;
  const Wire on(bench, form);
  form.Text1.on_change = on(Text1_Change);
  form.Text2.on_change = on(Text2_Change);
  form.Text3.on_change = on(Text3_Change);
  form.Text4.on_change = on(Text4_Change);
  form.Text10.on_change = on(Text10_Change);  // u, and so on to Text15, l
  form.Text11.on_change = on(Text11_Change);
  form.Text12.on_change = on(Text12_Change);
  form.Text13.on_change = on(Text13_Change);
  form.Text14.on_change = on(Text14_Change);
  form.Text15.on_change = on(Text15_Change);
  form.Text46.on_change = on(Text46_Change);  // first vector, Text46 to Text48
  form.Text47.on_change = on(Text47_Change);
  form.Text48.on_change = on(Text48_Change);
  form.Text49.on_change = on(Text49_Change);  // second vector, Text49 to Text51
  form.Text50.on_change = on(Text50_Change);
  form.Text51.on_change = on(Text51_Change);
  form.Text1.on_key_press = on(Text1_KeyPress);
  form.Text2.on_key_press = on(Text2_KeyPress);
  form.Text3.on_key_press = on(Text3_KeyPress);
  form.Text4.on_key_press = on(Text4_KeyPress);
  form.Text9.on_key_press = on(Text9_KeyPress);
  form.Text8.on_key_press = on(Text8_KeyPress);
  form.Text7.on_key_press = on(Text7_KeyPress);
  form.Text6.on_key_press = on(Text6_KeyPress);
  form.Text10.on_key_press = on(Text10_KeyPress);
  form.Text11.on_key_press = on(Text11_KeyPress);
  form.Text12.on_key_press = on(Text12_KeyPress);
  form.Text13.on_key_press = on(Text13_KeyPress);
  form.Text14.on_key_press = on(Text14_KeyPress);
  form.Text15.on_key_press = on(Text15_KeyPress);
  form.Text46.on_key_press = on(Text46_KeyPress);
  form.Text47.on_key_press = on(Text47_KeyPress);
  form.Text48.on_key_press = on(Text48_KeyPress);
  form.Text49.on_key_press = on(Text49_KeyPress);
  form.Text50.on_key_press = on(Text50_KeyPress);
  form.Text51.on_key_press = on(Text51_KeyPress);
  for (int i = 0; i < form.Text5.count(); ++i) {
    form.Text5(i).on_key_press = [i, &form](int& key) { Text5_KeyPress(form, i, key); };
  }
  form.Command1.on_click = on(Command1_Click);
  form.Command2.on_click = on(Command2_Click);
  form.Command3.on_click = on(Command3_Click);
  form.Command4.on_click = on(Command4_Click);  // h, k, l from u, v, w
  form.Command5.on_click = on(Command5_Click);  // u, v, w from h, k, l
  form.Option1.on_click = on(Option1_Click);
  form.Option2.on_click = on(Option2_Click);
  form.Option3.on_click = on(Option3_Click);
  form.on_load = on(Form_Load);
}

template void add_window<UtilityForm>(Workbench&);

}  // namespace zol
