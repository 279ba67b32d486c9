#include <array>
#include <vector>

#include "core/number_text.h"
#include "entry/atom_lists.h"
#include "entry/atom_site.h"
#include "entry/window/input_atom_form.h"
#include "entry/window/table_editor.h"
#include "reflections/scattering.h"
#include "reflections/window/main1_form.h"
#include "reflections/window/main1_operations.h"
#include "shell/services/wiring.h"

namespace zol::input_atom {
namespace {

constexpr std::array<std::string_view, 7> headers{"Site Name", "Element", "Occupancy", "X", "Y", "Z", "Biso"};

/// The sites of the table, moved by the origin shift.
std::vector<AtomSite> sites_in(const InputAtomForm& form) {
  const std::array shift{single_in(form.Text2), single_in(form.Text3), single_in(form.Text4)};
  std::vector<AtomSite> sites;
  const int rows = filled_rows(form.G);
  for (int row = 1; row <= rows; ++row) {
    const auto number = [&form, row](int column) { return Val(form.G.text(row, column)); };
    AtomSite site{form.G.text(row, 1), form.G.text(row, 2), to_single(number(3))};
    int column = 3;
    for (std::size_t i = 0; i < 3; ++i) site.position[i] = to_single(number(++column) + double{shift[i]});
    site.b = to_single(number(++column));
    sites.push_back(site);
  }
  return sites;
}

/// The dialog comes first, then the table is emptied, whether or not a file was chosen.
void import(Workbench& bench, InputAtomForm& form, std::vector<AtomRow> (*read)(const std::string& path, Task& task)) {
  form.CommonDialog1.set_filter(file_filters::atom_lists);
  const std::string path = form.CommonDialog1.open(FileKind::AtomList);
  form.G.clear();
  write_frame(form.G, headers);
  if (path.empty()) return;
  int row = 0;
  WindowTask task(bench.services);
  for (const auto& texts : read(path, task)) put_row(form.G, ++row, texts);
}

void Form_Load(Workbench& bench, InputAtomForm& form) {
  const Module1State& state = bench.state;
  fill_table(form.G, headers, state.NAtom.value(), [&state](int i) {
    return std::vector{state.AtomLabel(i),
                       state.AtomElement(i),
                       plain_text(state.AtomOcc(i)),
                       plain_text(state.AtomPos(i, 1)),
                       plain_text(state.AtomPos(i, 2)),
                       plain_text(state.AtomPos(i, 3)),
                       plain_text(state.AtomB(i))};
  });
}

void Command1_Click(Workbench& bench, InputAtomForm& form) {
  auto& main1 = bench.windows.use<Main1Form>();
  Module1State& state = bench.state;
  const auto sites = sites_in(form);
  state.NAtom = 0;
  for (const auto& site : sites) store_site(state, (state.NAtom += 1).value(), site);
  main1.Label19.set_caption(Str(state.NAtom));
  close_table(bench, form);
  AtomCcalc(bench);
}

void Import_CIF_Click(Workbench& bench, InputAtomForm& form) { import(bench, form, read_bare_atom_list); }

void Import_MINCRYST_Click(Workbench& bench, InputAtomForm& form) { import(bench, form, read_mincryst_list); }

}  // namespace

}  // namespace zol::input_atom

namespace zol {

/// What the user does, and what answers it.
void wire(Workbench& bench, InputAtomForm& form) {
  using namespace input_atom;
  const Wire on(bench, form);
  wire_table(bench, form);
  form.Command1.on_click = on(Command1_Click);  // "OK"
  form.Import_CIF.on_click = on(Import_CIF_Click);
  form.Import_MINCRYST.on_click = on(Import_MINCRYST_Click);
  form.on_load = on(Form_Load);
  form.G.doubt = [&bench, &form](int row, int column) {
    const auto scatters = [&bench](const std::string& element) {
      return find_scatter_row(main1_state(bench), element) != nullptr;
    };
    return site_doubt(texts_of(form.G), scatters, row, column);
  };
}

template void add_window<InputAtomForm>(Workbench&);

}  // namespace zol
