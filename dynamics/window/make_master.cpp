#include "dynamics/window/make_master.h"

#include <algorithm>

#include "core/number_text.h"
#include "core/space_group.h"
#include "dynamics/master_view.h"
#include "indexing/crystal_reflectors.h"
#include "reflections/window/main1_form.h"

namespace zol {
namespace {

constexpr std::size_t most_ready = 4;

MasterSettings settings_of(const MasterPatternForm& form) {
  MasterSettings settings = usual_master_settings(Val(form.Voltage.text()));
  settings.size = integer_in(form.Points).value();
  settings.depth_nm = Val(form.Depth.text());
  return settings;
}

std::string key_of(const DynamicCrystal& crystal, const MasterSettings& settings) {
  const auto& [a, b, c, alpha, beta, gamma] = crystal.cell;
  std::vector<double> numbers{a, b, c, alpha, beta, gamma, settings.kilovolts.front(), settings.depth_nm};
  for (const DynamicAtom& atom : crystal.atoms) {
    const AtomKind& kind = crystal.kinds[atom.kind];
    numbers.insert(numbers.end(), {1.0 * kind.atomic_number, kind.b_iso, atom.occupancy});
    numbers.insert(numbers.end(), atom.position.begin(), atom.position.end());
  }
  std::string key = std::to_string(crystal.space_group) + ' ' + std::to_string(settings.size);
  for (const double number : numbers) key += ' ' + plain_text(number);
  return key;
}

/// The atoms of the cell may be those of the crystal before.
void check_atoms(const CrystalState& state) {
  if (state.NAtom > 0 && state.NCell > 0) return;
  throw RunFailure(state.JcpdsCount > 0
                       ? "the crystal has observed reflections and no atoms: a master pattern is computed from atoms"
                       : "there is no crystal with atoms: load one in the main window");
}

std::string title_of(const Main1Form& main1) {
  const std::string& path = main1.Text17.text();
  const std::string title = path.substr(path.rfind('/') + 1);
  return title.empty() ? "present crystal" : title;
}

ReflectorSet reflectors_of(const CrystalState& state, const SpaceGroup& group, double kilovolt, Task& task) {
  CrystalState own = state;
  own.LatticeLetter = group.symbol.substr(0, 1);
  return crystal_reflectors(own, &group, kilovolt, task);
}

}  // namespace

std::shared_ptr<const ShownMaster> make_master(Workbench& bench, MasterPatternForm& form) {
  constexpr int most_bands = 20;
  constexpr int most_axes = 80;
  constexpr int most_known = 400;
  const auto& main1 = bench.windows.use<Main1Form>();
  const CrystalState& state = main1.state;
  check_atoms(state);
  const SpaceGroup group =
      read_space_group(bench.data.path("SpaceGr/No" + Format(state.SGNumber.value(), "000") + ".dat"));
  const DynamicCrystal crystal = dynamic_crystal(state, &group);
  const MasterSettings settings = settings_of(form);
  (void)master_choice(crystal, settings);  // whether the boxes do
  auto shown = std::make_shared<ShownMaster>();
  shown->key = key_of(crystal, settings);
  shown->title = title_of(main1);
  const auto known = std::find_if(form.ready.begin(), form.ready.end(),
                                  [&shown](const auto& other) { return other->key == shown->key; });
  if (known != form.ready.end()) {
    shown = std::make_shared<ShownMaster>(**known);
    shown->title = title_of(main1);
    form.ready.erase(known);
  } else {
    WindowTask task(bench.services);
    const ReflectorSet reflectors = reflectors_of(state, group, settings.kilovolts.front(), task);
    shown->bands = named_bands(reflectors, most_bands);
    shown->axes = named_axes(reflectors, most_axes);
    shown->known_axes = named_axes(reflectors, most_known);
    shown->master = kept_master(crystal, settings, task);
  }
  form.ready.insert(form.ready.begin(), shown);
  if (form.ready.size() > most_ready) form.ready.pop_back();
  return shown;
}

std::shared_ptr<const ShownMaster> drawn_master(const MasterPatternForm& form) {
  const auto known = std::find_if(form.ready.begin(), form.ready.end(),
                                  [&form](const auto& shown) { return shown->key == form.drawn.key; });
  return known == form.ready.end() ? nullptr : *known;
}

std::string master_text(const ShownMaster& shown) {
  const MasterPattern& master = shown.master;
  const std::string size = std::to_string(master.size);
  return shown.title + " at " + plain_text(master.kilovolts.front()) + " kV: " + size + " x " + size + " points, " +
         std::to_string(master.choice.beams) + " beams, spacings down to " +
         Format(master.choice.smallest_spacing, "0.00") + " angstroms, mean depth " +
         Format(master.choice.depth_nm, "0.0") + " nm";
}

}  // namespace zol
