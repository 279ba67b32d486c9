#include <array>
#include <vector>

#include "core/number_text.h"
#include "entry/atom_lists.h"
#include "entry/window/input_atom_form.h"
#include "reflections/window/main1_form.h"
#include "reflections/window/main1_operations.h"
#include "shell/services/wiring.h"

namespace zol::input_atom {
namespace {

constexpr std::array<std::string_view, 7> headers{"Site Name", "Element", "Occupancy", "X", "Y", "Z", "Biso"};

void put_row(Grid& grid, int row, const AtomRow& texts) {
  int column = 0;
  for (const auto& text : texts) put_cell(grid, row, ++column, text);
}

void close(Workbench& bench, InputAtomForm& form) {
  form.hide();
  bench.windows.unload(InputAtomForm::window_name);
}

/// The sites of the table go into the crystal, moved by the origin shift.
void take_over(Module1State& state, const InputAtomForm& form) {
  const std::array shift{single_in(form.Text2), single_in(form.Text3), single_in(form.Text4)};
  for (int i = 1; i <= state.NAtom.value(); ++i) {
    const auto number = [&form, i](int column) { return Val(form.G.text(i, column)); };
    state.AtomLabel(i) = form.G.text(i, 1);
    state.AtomElement(i) = form.G.text(i, 2);
    state.AtomOcc(i) = to_single(number(3));
    for (int axis = 1; axis <= 3; ++axis) {
      state.AtomPos(i, axis) = to_single(number(axis + 3) + double{shift[static_cast<std::size_t>(axis - 1)]});
    }
    state.AtomB(i) = to_single(number(7));
  }
}

/// The dialog comes first, then the table is emptied, whether or not a file was chosen.
void import(InputAtomForm& form, std::vector<AtomRow> (*read)(const std::string& path)) {
  form.CommonDialog1.set_filter(file_filters::atom_lists);
  const std::string path = form.CommonDialog1.open(FileKind::AtomList);
  form.G.clear();
  write_frame(form.G, headers);
  if (path.empty()) return;
  int row = 0;
  for (const auto& texts : read(path)) put_row(form.G, ++row, texts);
}

void Form_Load(Workbench& bench, InputAtomForm& form) {
  const Module1State& state = bench.state;
  constexpr int number_width = 500;
  form.G.set_column_width(0, number_width);
  write_frame(form.G, headers);
  const int atoms = state.NAtom.value();
  for (int i = 1; i <= atoms; ++i) {
    put_row(form.G, i,
            {state.AtomLabel(i), state.AtomElement(i), plain_text(state.AtomOcc(i)), plain_text(state.AtomPos(i, 1)),
             plain_text(state.AtomPos(i, 2)), plain_text(state.AtomPos(i, 3)), plain_text(state.AtomB(i))});
  }
  form.G.set_row(atoms < 1 ? 1 : atoms + 1);
  form.G.set_column(1);
}

void Form_Activate(InputAtomForm& form) { form.G.set_focus(); }

void G_KeyPress(InputAtomForm& form, int& key) { type_into_table(form.G, form.Text1, key); }

void Command1_Click(Workbench& bench, InputAtomForm& form) {
  auto& main1 = bench.windows.use<Main1Form>();
  Module1State& state = bench.state;
  state.NAtom = filled_rows(form.G);
  main1.Label19.set_caption(Str(state.NAtom));
  take_over(state, form);
  close(bench, form);
  AtomCcalc(bench);
}

void Command2_Click(Workbench& bench, InputAtomForm& form) { close(bench, form); }

void Command3_Click(InputAtomForm& form) { delete_cell(form.G); }

void Command4_Click(InputAtomForm& form) { delete_row(form.G); }

void Import_CIF_Click(InputAtomForm& form) { import(form, read_bare_atom_list); }

void Import_MINCRYST_Click(InputAtomForm& form) { import(form, read_mincryst_list); }

}  // namespace

}  // namespace zol::input_atom

namespace zol {

/// What the user does, and what answers it.
void wire(Workbench& bench, InputAtomForm& form) {
  using namespace input_atom;
  const Wire on(bench, form);
  form.on_activate = on(Form_Activate);
  form.G.on_key_press = on(G_KeyPress);
  form.Command1.on_click = on(Command1_Click);  // "OK"
  form.Command2.on_click = on(Command2_Click);  // "CANCEL"
  form.Command3.on_click = on(Command3_Click);  // "delete a cell"
  form.Command4.on_click = on(Command4_Click);  // "delete a row"
  form.Import_CIF.on_click = on(Import_CIF_Click);
  form.Import_MINCRYST.on_click = on(Import_MINCRYST_Click);
  form.on_load = on(Form_Load);
}

template void add_window<InputAtomForm>(Workbench&);

}  // namespace zol
