#include "analysis/pattern3_handlers.h"

#include "analysis/hkl3make.h"
#include "reflections/main1_form.h"

namespace zol::pattern3 {
namespace {

void allocate_for_wanted(Pattern3Form& form) {
  const int rows = triple_rows(form.NhklWanted);
  form.triples.TripleHKL.allocate(rows, 8);
  form.triples.TripleAngle.allocate(rows, 2);
}

}  // namespace

void Form_Load(Workbench& bench, Pattern3Form& form) {
  const CrystalState& state = main1_state(bench);
  form.Text5.set_text(state.AccVoltage == 0 ? "20" : plain_text(state.AccVoltage));
  form.Text2.set_text("50");
  form.NhklWanted = 50;
  allocate_for_wanted(form);
  if (state.RefCount > 0) Hkl3make(bench);
}

void Text2_LostFocus(Workbench& bench, Pattern3Form& form) {
  const CrystalState& state = main1_state(bench);
  form.NhklWanted = to_single(Val(form.Text2.text()));
  const Single count = to_single(state.RefCount.value());
  if (form.NhklWanted > count) {
    form.NhklWanted = count;
    form.Text2.set_text(plain_text(form.NhklWanted));
  }
  allocate_for_wanted(form);
  Hkl3make(bench);
}

}  // namespace zol::pattern3
