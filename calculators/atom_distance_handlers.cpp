#include "calculators/atom_distance_handlers.h"

#include "core/number_text.h"
#include "reflections/main1_form.h"

namespace zol::atom_distance {

void Text1_Change(Workbench& /*bench*/, AtomDistanceForm& form) { form.DistanceMax = single_in(form.Text1); }

void Text1_KeyPress(Workbench& bench, AtomDistanceForm& form, int& key) {
  if (!swallow_enter(key)) return;
  Text1_Change(bench, form);
  Command1_Click(bench, form);
}

void Command1_Click(Workbench& bench, AtomDistanceForm& form) {
  const CrystalState& state = main1_state(bench);
  form.cell = distance_cell(state);
  form.List1.clear();
  for (int i = 1; i <= state.NAtom.value(); ++i) {
    for (const auto& found : distances_from(state, form.cell, i, form.DistanceMax)) {
      form.List1.add_item(distance_line(state, i, found));
    }
    form.List1.add_item("------------------------");
  }
}

}  // namespace zol::atom_distance
