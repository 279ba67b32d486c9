#include <utility>

#include "calculators/bonds.h"
#include "calculators/window/bonds_form.h"
#include "core/number_text.h"
#include "core/trimmed.h"
#include "reflections/window/main1_form.h"
#include "shell/services/wiring.h"

namespace zol::bonds {
namespace {

constexpr std::size_t most_for_angles = 24;  // bonds of one atom

/// The number in a box, or what an empty one stands for. @throws RunFailure  it is no number above 0
double number_above_0(const TextBox& box, double empty) {
  const auto text = trimmed(box.text());
  if (text.empty()) return empty;
  const auto number = strict_number(text);
  if (!number || !(*number > 0)) {
    throw RunFailure(box.described() + " is \"" + box.text() + "\"; expected is a number above 0, or nothing");
  }
  return *number;
}

BondSettings settings_of(const BondsForm& form) {
  const BondSettings usual;
  constexpr double percent = 100;
  constexpr double farthest = 15;  // angstroms: beyond, each atom has a thousand neighbours and more
  const double limit = number_above_0(form.Limit, 0);
  if (limit > farthest) {
    throw RunFailure(form.Limit.described() + " is \"" + form.Limit.text() + "\"; expected is at most 15 angstroms");
  }
  return {limit, number_above_0(form.Gap, usual.gap * percent) / percent};
}

/// Lines of all three lists.
struct BondLines {
  std::vector<std::string> sites, bonds, angles;
  int without_angles = 0;  ///< sites of too many bonds
};

void add_site(BondLines& lines, const BondedCrystal& crystal, const BondAtom& site, const Coordination& found,
              Task& task) {
  lines.sites.push_back(coordination_line(site, found));
  for (const Bond& bond : found.bonds) {
    task.check();
    lines.bonds.push_back(bond_line(crystal, site, bond));
  }
  if (found.bonds.size() > most_for_angles) {
    ++lines.without_angles;
    return;
  }
  for (const BondAngle& angle : bond_angles(found)) lines.angles.push_back(angle_line(crystal, site, found, angle));
}

std::string counts(const BondLines& lines) {
  const auto count = [](std::size_t n, const char* what) { return std::to_string(n) + " " + what; };
  std::string text = count(lines.sites.size(), "sites, ") + count(lines.bonds.size(), "bonds, ") +
                     count(lines.angles.size(), "angles");
  if (lines.without_angles > 0) {
    text += "; " + std::to_string(lines.without_angles) + " sites have more than " + std::to_string(most_for_angles) +
            " bonds, whose angles are left out";
  }
  return text;
}

void calculate(Workbench& bench, BondsForm& form) {
  if (bench.seen().NAtom < 1) throw RunFailure("there are no atoms");
  const CrystalState& state = main1_state(bench);
  const BondSettings settings = settings_of(form);
  const BondedCrystal crystal = bonded_crystal(state);
  WindowTask task(bench.services);
  const auto found = coordinations(crystal, settings, task);
  BondLines lines;
  for (std::size_t i = 0; i < found.size(); ++i) add_site(lines, crystal, crystal.sites[i], found[i], task);
  form.Status.set_caption(counts(lines));
  form.Sites.add_items(std::move(lines.sites), task);
  form.BondList.add_items(std::move(lines.bonds), task);
  form.Angles.add_items(std::move(lines.angles), task);
}

void Calc_Click(Workbench& bench, BondsForm& form) {
  for (ListBox* list : {&form.Sites, &form.BondList, &form.Angles}) list->clear();
  try {
    calculate(bench, form);
  } catch (const RunFailure& failure) {
    form.Status.set_caption(failure.message());
  }
}

/// At once of the crystal as it is, where there is one.
void Form_Load(Workbench& bench, BondsForm& form) {
  if (bench.seen().NAtom > 0) Calc_Click(bench, form);
}

void Box_KeyPress(Workbench& bench, BondsForm& form, int& key) {
  if (swallow_enter(key)) Calc_Click(bench, form);
}

}  // namespace
}  // namespace zol::bonds

namespace zol {

void wire(Workbench& bench, BondsForm& form) {
  using namespace bonds;
  const Wire on(bench, form);
  form.Calc.on_click = on(Calc_Click);
  form.Limit.on_key_press = on(Box_KeyPress);
  form.Gap.on_key_press = on(Box_KeyPress);
  form.on_load = on(Form_Load);
}

template void add_window<BondsForm>(Workbench&);

}  // namespace zol
