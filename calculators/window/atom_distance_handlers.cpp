#include "calculators/window/atom_distance_form.h"
#include "core/number_text.h"
#include "reflections/window/main1_form.h"
#include "shell/services/wiring.h"

namespace zol::atom_distance {
namespace {

void Command1_Click(Workbench& bench, AtomDistanceForm& form);

void Text1_Change(AtomDistanceForm& form) { form.DistanceMax = single_in(form.Text1); }

void Text1_KeyPress(Workbench& bench, AtomDistanceForm& form, int& key) {
  if (!swallow_enter(key)) return;
  Text1_Change(form);
  Command1_Click(bench, form);
}

void Command1_Click(Workbench& bench, AtomDistanceForm& form) {
  const CrystalState& state = main1_state(bench);
  WindowTask task(bench.services);
  const DistanceCell cell = distance_cell(state);
  const auto of_sites = atom_distances(state, cell, form.DistanceMax, task);
  form.cell = cell;
  form.List1.clear();
  form.nearest = 0;
  int site = 0;
  for (const auto& distances : of_sites) {
    ++site;
    task.report(site, state.NAtom.value());
    for (const auto& found : distances) {
      task.check();
      form.List1.add_item(distance_line(state, site, found));
      if (form.nearest == 0 || found.distance < form.nearest) form.nearest = found.distance;
    }
    form.List1.add_item("------------------------");
  }
}

/// A word on atoms that can't stand so near to each other. @returns empty, where none do
std::string doubt_of_distance(double nearest_angstrom) {
  constexpr double too_near_angstrom = 0.7;  // the shortest bond is that of H2, 0.74
  if (nearest_angstrom <= 0 || nearest_angstrom >= too_near_angstrom) return "";
  return "atoms " + short_text(nearest_angstrom, 2) + " Å apart: nearer than any bond";
}

}  // namespace

}  // namespace zol::atom_distance

namespace zol {

/// What the user does, and what answers it.
void wire(Workbench& bench, AtomDistanceForm& form) {
  using namespace atom_distance;
  const Wire on(bench, form);
  form.List1.made_from = {Source::Crystal};
  form.List1.made_by = &form.Command1;
  form.List1.remark = [&form] { return doubt_of_distance(form.nearest); };
  form.Text1.on_change = on(Text1_Change);
  form.Text1.on_key_press = on(Text1_KeyPress);  // Enter calculates
  form.Command1.on_click = on(Command1_Click);
}

template void add_window<AtomDistanceForm>(Workbench&);

}  // namespace zol
