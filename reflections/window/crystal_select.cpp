// Loading a crystal file, by the menu of Main1 or by the buttons of other windows.
#include <array>

#include "analysis/window/pattern3_form.h"
#include "core/crystal_file.h"
#include "core/number_text.h"
#include "kikuchi/window/pattern2_form.h"
#include "reflections/window/main1_form.h"
#include "reflections/window/main1_operations.h"

namespace zol {
namespace {

/// The two loads differ in what a file that ends behind the cell leaves undone, and in Label31.
enum class LoadBy { Menu, OtherWindow };

void rebuild(Workbench& bench, Main1Form& form, LoadBy by) {
  const CrystalState& state = form.state;
  form.Label19.set_caption(Str(state.NAtom));
  if (state.NAtom > 0) {
    if (by == LoadBy::Menu) form.Label31.set_caption("");
    AtomCcalc(bench);
    calculate(bench);
  } else if (state.NAtom == 0) {
    form.Label31.set_caption(Str(state.JcpdsCount));
    form.List1.clear();
    form.Label20.set_caption("");
    calculate(bench);
  } else {
    form.List1.clear();
    form.List2.clear();
    form.Label20.set_caption("");
    form.Label31.set_caption("");
    form.Label26.set_caption("");
  }
}

void load_crystal(Workbench& bench, LoadBy by) {
  auto& form = bench.windows.use<Main1Form>();
  CrystalState& state = form.state;
  form.CommonDialog1.set_filter(file_filters::crystals);
  state.CrystalFile = form.CommonDialog1.open(FileKind::Crystal);
  if (state.CrystalFile.empty()) return;

  CrystalFileReader file(state.CrystalFile);
  file.read_cell(state);
  show_cell(form, {state.CellA, state.CellB, state.CellC, state.CellAlpha, state.CellBeta, state.CellGamma},
            state.SGNumber, state.AxisSetting);
  const bool has_contents = file.read_contents(state);
  if (has_contents || by == LoadBy::Menu) {
    form.Text17.set_text(state.CrystalFile);
    show_title(bench, form.CommonDialog1.file_title());
  }
  rebuild(bench, form, by);
  bench.saved_crystal = crystal_file_text(state);
}

}  // namespace

void show_cell(Main1Form& form, const std::array<Single, 6>& cell, Integer number, const String& axes) {
  std::size_t constant = 0;
  for (TextBox* box : {&form.Text1, &form.Text2, &form.Text3, &form.Text4, &form.Text5, &form.Text6}) {
    box->set_text(Str(cell[constant++]));
  }
  form.Text7.set_text(Str(number));
  form.Combo2.set_text(axes);
}

void show_title(Workbench& bench, const std::string& title) {
  for (const auto* name : {"Pattern2", "Xd", "Zaxis", "Dring", "FiberTexture", "Pattern"}) {
    bench.windows.use(name).set_caption(title);
  }
  auto& pattern2 = bench.windows.use<Pattern2Form>();
  pattern2.Label18.set_caption(title);
  bench.windows.use<Pattern3Form>().Label6.set_caption(title);
  pattern2.Check4.set_value(0);
}

void CRYSTAL_SELECT(Workbench& bench) { load_crystal(bench, LoadBy::OtherWindow); }

void load_crystal_file(Workbench& bench) { load_crystal(bench, LoadBy::Menu); }

}  // namespace zol
