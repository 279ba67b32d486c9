#include <array>

#include "core/number_text.h"
#include "entry/window/input_jcpds_form.h"
#include "reflections/window/main1_form.h"
#include "shell/services/wiring.h"

namespace zol::input_jcpds {
namespace {

constexpr std::array<std::string_view, 4> headers{"I/Io", "H", "K", "L"};

void close(Workbench& bench, InputJcpdsForm& form) {
  form.hide();
  bench.windows.unload(InputJcpdsForm::window_name);
}

void Form_Load(Workbench& bench, InputJcpdsForm& form) {
  const Module1State& state = bench.state;
  constexpr int number_width = 500;
  form.G.set_column_width(0, number_width);
  write_frame(form.G, headers);
  const int rows = state.JcpdsCount.value();
  for (int i = 1; i <= rows; ++i) {
    put_cell(form.G, i, 1, plain_text(state.JcpdsI(i)));
    put_cell(form.G, i, 2, plain_text(state.JcpdsH(i)));
    put_cell(form.G, i, 3, plain_text(state.JcpdsK(i)));
    put_cell(form.G, i, 4, plain_text(state.JcpdsL(i)));
  }
  form.G.set_row(rows < 1 ? 1 : rows + 1);
  form.G.set_column(1);
}

void Form_Activate(InputJcpdsForm& form) { form.G.set_focus(); }

void G_KeyPress(InputJcpdsForm& form, int& key) { type_into_table(form.G, form.Text1, key); }

void Command1_Click(Workbench& bench, InputJcpdsForm& form) {
  auto& main1 = bench.windows.use<Main1Form>();
  Module1State& state = bench.state;
  state.JcpdsCount = filled_rows(form.G);
  main1.Label31.set_caption(Str(state.JcpdsCount));
  for (int i = 1; i <= state.JcpdsCount.value(); ++i) {
    const auto number = [&form, i](int column) { return to_single(Val(form.G.text(i, column))); };
    state.JcpdsI(i) = number(1);
    state.JcpdsH(i) = number(2);
    state.JcpdsK(i) = number(3);
    state.JcpdsL(i) = number(4);
  }
  close(bench, form);
}

void Command2_Click(Workbench& bench, InputJcpdsForm& form) { close(bench, form); }

void Command3_Click(InputJcpdsForm& form) { delete_cell(form.G); }

void Command4_Click(InputJcpdsForm& form) { delete_row(form.G); }

}  // namespace

}  // namespace zol::input_jcpds

namespace zol {

/// What the user does, and what answers it.
void wire(Workbench& bench, InputJcpdsForm& form) {
  using namespace input_jcpds;
  const Wire on(bench, form);
  form.on_activate = on(Form_Activate);
  form.G.on_key_press = on(G_KeyPress);
  form.Command1.on_click = on(Command1_Click);  // "OK"
  form.Command2.on_click = on(Command2_Click);  // "CANCEL"
  form.Command3.on_click = on(Command3_Click);  // "delete a cell"
  form.Command4.on_click = on(Command4_Click);  // "delete a row"
  form.on_load = on(Form_Load);
}

template void add_window<InputJcpdsForm>(Workbench&);

}  // namespace zol
