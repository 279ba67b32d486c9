#include "reflections/window/main1_operations.h"

#include <utility>

#include "analysis/window/hkl3make.h"
#include "core/cell_geometry.h"
#include "core/number_text.h"
#include "core/space_group.h"
#include "core/unit_cell.h"
#include "reflections/reflection_list.h"
#include "reflections/window/main1_form.h"
#include "shell/services/guards.h"

namespace zol {
namespace {

constexpr std::string_view star_edge_pattern = "##0.####";
constexpr std::string_view star_angle_pattern = "####.###";

/// Asks for Dmin, which is what its box holds, until it is positive.
void settle_dmin(Workbench& bench, Main1Form& form) {
  CrystalState& state = form.state;
  while (!(state.Dmin > 0)) {
    const std::string answer = bench.services.ask_text(
        {"Input D-value Minimum", "D-value Minimum", "Angstroms, above 0; the list grows with 1/d cubed.",
         [](const std::string& typed) {
           return guard::when(!(Val(typed) > 0), "without a number above 0 the question comes again, without end");
         }});
    state.Dmin = typed_number("the smallest d", answer, to_single);
    form.Text15.set_text(plain_text(state.Dmin));
  }
}

/// A box for a fixed index counts when it is not empty, blanks included.
std::optional<Integer> fixed_index(const TextBox& box) {
  if (box.text().empty()) return std::nullopt;
  return integer_in(box);
}

EnumerationSettings enumeration_settings(const Main1Form& form) {
  EnumerationSettings settings;
  settings.negative = {form.Check1.checked(), form.Check2.checked(), form.Check3.checked()};
  settings.fixed = {fixed_index(form.Text18), fixed_index(form.Text19), fixed_index(form.Text20)};
  settings.k_mod_3_zero = form.Check4.checked();
  settings.h_minus_k_mod_3_zero = form.Check5.checked();
  settings.k_mod_3_not_zero = form.Check6.checked();
  settings.h_minus_k_mod_3_not_zero = form.Check7.checked();
  settings.h_mod_3_zero = form.Check8.checked();
  settings.h_mod_3_not_zero = form.Check9.checked();
  return settings;
}

}  // namespace

void CalcCell(Workbench& bench) {
  auto& form = bench.windows.use<Main1Form>();
  const CrystalState& state = form.state;
  if (!calc_cell(form.state)) return;
  form.Text8.set_text(Format(state.AStar, star_edge_pattern));
  form.Text9.set_text(Format(state.BStar, star_edge_pattern));
  form.Text10.set_text(Format(state.CStar, star_edge_pattern));
  form.Text11.set_text(Format(state.AlphaStar, star_angle_pattern));
  form.Text12.set_text(Format(state.BetaStar, star_angle_pattern));
  form.Text13.set_text(Format(state.GammaStar, star_angle_pattern));
  form.Text14.set_text(Format(state.CellVolume, "######.##"));
}

void AtomCcalc(Workbench& bench) {
  auto& form = bench.windows.use<Main1Form>();
  CrystalState& state = form.state;
  form.List1.clear();
  if (state.SGFile.empty()) throw RunFailure("the unit cell needs a space group, none has been chosen");
  WindowTask task(bench.services);
  commit(state, expand_unit_cell(state, read_space_group(state.SGFile), task));
  form.Label20.set_caption(unit_cell_summary(state));
  for (int m = 1; m <= state.NCell.value(); ++m) form.List1.add_item(unit_cell_line(state, m));
}

void LoadSGNames(Workbench& bench) {
  CrystalState& state = main1_state(bench);
  for (int number = 1; number <= space_group_files; ++number) {
    const std::string path = bench.data.path("SpaceGr/No" + Format(number, "000") + ".dat");
    state.SGNames(number) = read_space_group_name(path).symbol;
  }
}

void CalcReflections(Workbench& bench) {
  auto& form = bench.windows.use<Main1Form>();
  CrystalState& state = form.state;
  form.List2.clear();
  state.ScatterMissing = 0;
  settle_dmin(bench, form);
  state.LatticeLetter = state.SGName.substr(0, 1);

  const Hourglass hourglass(form);
  WindowTask task(bench.services);
  auto list = reflection_list(state, enumeration_settings(form), {form.Option1.on(), form.Option2.on()}, task);
  auto lines = std::move(list.lines);
  commit(state, std::move(list));
  form.List2.add_items(std::move(lines), task);
  if (state.ScatterMissing == 1) {
    bench.services.message("No Scattering factor table", "Error");
    form.List2.clear();
    state.RefCount = 0;
  }
  form.Label26.set_caption(plain_text(state.RefCount));
}

void calculate(Workbench& bench) {
  CalcReflections(bench);
  Hkl3make(bench);
}

}  // namespace zol
