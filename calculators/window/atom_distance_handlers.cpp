#include <string>
#include <utility>
#include <vector>

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
  std::size_t count = of_sites.size();
  for (const auto& distances : of_sites) count += distances.size();
  std::vector<std::string> lines;
  lines.reserve(count);
  int site = 0;
  for (const auto& distances : of_sites) {
    ++site;
    task.report(site, state.NAtom.value());
    for (const auto& found : distances) {
      task.check();
      lines.push_back(distance_line(state, site, found));
    }
    lines.emplace_back("------------------------");
  }
  form.List1.clear();
  form.List1.add_items(std::move(lines), task);
}

}  // namespace

}  // namespace zol::atom_distance

namespace zol {

/// What the user does, and what answers it.
void wire(Workbench& bench, AtomDistanceForm& form) {
  using namespace atom_distance;
  const Wire on(bench, form);
  form.Text1.on_change = on(Text1_Change);
  form.Text1.on_key_press = on(Text1_KeyPress);  // Enter calculates
  form.Command1.on_click = on(Command1_Click);
  form.BondsAndAngles.on_click = [&bench] { bench.windows.use("Bonds").show(); };
}

template void add_window<AtomDistanceForm>(Workbench&);

}  // namespace zol
