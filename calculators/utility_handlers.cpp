#include "calculators/utility_handlers.h"

#include "calculators/direction_search.h"
#include "calculators/vector_calculations.h"
#include "core/cell_geometry.h"
#include "core/number_text.h"
#include "reflections/main1_form.h"

namespace zol {

UtilityForm::UtilityForm(Workbench& /*bench*/) : Window(window_name, "Utility") {
  const std::pair<const char*, const Single*> singles[] = {{"Phi1", &Phi1},       {"Rotate1", &Rotate1},
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
}

namespace utility {
namespace {

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

}  // namespace

void Form_Load(Workbench& /*bench*/, UtilityForm& form) { form.Option1.set_on(true); }

void Text1_Change(Workbench& /*bench*/, UtilityForm& form) { form.Phi1 = single_in(form.Text1); }
void Text2_Change(Workbench& /*bench*/, UtilityForm& form) { form.Rotate1 = single_in(form.Text2); }
void Text3_Change(Workbench& /*bench*/, UtilityForm& form) { form.Phi2 = single_in(form.Text3); }
void Text4_Change(Workbench& /*bench*/, UtilityForm& form) { form.Rotate2 = single_in(form.Text4); }

void Text1_KeyPress(Workbench& /*bench*/, UtilityForm& form, int& key) { enter_moves_to(form.Text2, key); }
void Text2_KeyPress(Workbench& /*bench*/, UtilityForm& form, int& key) { enter_moves_to(form.Text3, key); }
void Text3_KeyPress(Workbench& /*bench*/, UtilityForm& form, int& key) { enter_moves_to(form.Text4, key); }
void Text4_KeyPress(Workbench& bench, UtilityForm& form, int& key) {
  if (!swallow_enter(key)) return;
  Command1_Click(bench, form);
}

void Command1_Click(Workbench& /*bench*/, UtilityForm& form) {
  fold(form.Text1, form.Phi1);
  fold(form.Text3, form.Phi2);
  const auto found = search_direction({form.Phi1, form.Rotate1, form.Phi2, form.Rotate2}).answer();
  form.Label5.set_caption("Phi_0=" + Format(found.azimuth, "##0.00"));
  form.Label6.set_caption("Theta_0=" + Format(90.0 - double{found.polar}, "##0.00"));
  form.Label9.set_caption("Phi-1 calc=" + Format(found.phi_1, "##0.00"));
  form.Label11.set_caption("Phi-2 calc=" + Format(found.phi_2, "##0.00"));
}

void Text9_KeyPress(Workbench& /*bench*/, UtilityForm& form, int& key) { enter_moves_to(form.Text8, key); }
void Text8_KeyPress(Workbench& /*bench*/, UtilityForm& form, int& key) { enter_moves_to(form.Text7, key); }
void Text7_KeyPress(Workbench& /*bench*/, UtilityForm& form, int& key) { enter_moves_to(form.Text6, key); }
void Text6_KeyPress(Workbench& bench, UtilityForm& form, int& key) {
  if (!swallow_enter(key)) return;
  Command3_Click(bench, form);
}

void Command3_Click(Workbench& /*bench*/, UtilityForm& form) {
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

void Text10_Change(Workbench& /*bench*/, UtilityForm& form) { form.VectorU = single_in(form.Text10); }
void Text11_Change(Workbench& /*bench*/, UtilityForm& form) { form.VectorV = single_in(form.Text11); }
void Text12_Change(Workbench& /*bench*/, UtilityForm& form) { form.VectorW = single_in(form.Text12); }
void Text13_Change(Workbench& /*bench*/, UtilityForm& form) { form.VectorH = single_in(form.Text13); }
void Text14_Change(Workbench& /*bench*/, UtilityForm& form) { form.VectorK = single_in(form.Text14); }
void Text15_Change(Workbench& /*bench*/, UtilityForm& form) { form.VectorL = single_in(form.Text15); }

void Text10_KeyPress(Workbench& /*bench*/, UtilityForm& form, int& key) { enter_moves_to(form.Text11, key); }
void Text11_KeyPress(Workbench& /*bench*/, UtilityForm& form, int& key) { enter_moves_to(form.Text12, key); }
void Text12_KeyPress(Workbench& /*bench*/, UtilityForm& form, int& key) { enter_moves_to(form.Text13, key); }
void Text13_KeyPress(Workbench& /*bench*/, UtilityForm& form, int& key) { enter_moves_to(form.Text14, key); }
void Text14_KeyPress(Workbench& /*bench*/, UtilityForm& form, int& key) { enter_moves_to(form.Text15, key); }
void Text15_KeyPress(Workbench& /*bench*/, UtilityForm& /*form*/, int& key) { swallow_enter(key); }

void Command4_Click(Workbench& bench, UtilityForm& form) {
  const Vector hkl = reciprocal_equivalent(main1_state(bench), {form.VectorU, form.VectorV, form.VectorW});
  form.Text13.set_text(Str(hkl.x));
  form.Text14.set_text(Str(hkl.y));
  form.Text15.set_text(Str(hkl.z));
}

void Command5_Click(Workbench& bench, UtilityForm& form) {
  const Vector uvw = direct_equivalent(main1_state(bench), {form.VectorH, form.VectorK, form.VectorL});
  form.Text10.set_text(Str(uvw.x));
  form.Text11.set_text(Str(uvw.y));
  form.Text12.set_text(Str(uvw.z));
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

void Text46_KeyPress(Workbench& /*bench*/, UtilityForm& form, int& key) { enter_moves_to(form.Text47, key); }
void Text47_KeyPress(Workbench& /*bench*/, UtilityForm& form, int& key) { enter_moves_to(form.Text48, key); }
void Text48_KeyPress(Workbench& /*bench*/, UtilityForm& form, int& key) { enter_moves_to(form.Text49, key); }
void Text49_KeyPress(Workbench& /*bench*/, UtilityForm& form, int& key) { enter_moves_to(form.Text50, key); }
void Text50_KeyPress(Workbench& /*bench*/, UtilityForm& form, int& key) { enter_moves_to(form.Text51, key); }
void Text51_KeyPress(Workbench& /*bench*/, UtilityForm& /*form*/, int& key) { swallow_enter(key); }

}  // namespace utility
}  // namespace zol
