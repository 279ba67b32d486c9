#include <array>
#include <vector>

#include "core/number_text.h"
#include "entry/window/input_jcpds_form.h"
#include "entry/window/table_editor.h"
#include "reflections/window/main1_form.h"
#include "shell/services/wiring.h"

namespace zol::input_jcpds {
namespace {

constexpr std::array<std::string_view, 4> headers{"I/Io", "H", "K", "L"};

using ObservedRow = std::array<Single, 4>;

std::vector<ObservedRow> rows_in(const Grid& grid) {
  std::vector<ObservedRow> rows;
  const int count = filled_rows(grid);
  for (int row = 1; row <= count; ++row) {
    const auto number = [&grid, row](int column) { return to_single(Val(grid.text(row, column))); };
    rows.push_back({number(1), number(2), number(3), number(4)});
  }
  return rows;
}

void Form_Load(Workbench& bench, InputJcpdsForm& form) {
  const Module1State& state = bench.state;
  fill_table(form.G, headers, state.JcpdsCount.value(), [&state](int i) {
    return std::vector{plain_text(state.JcpdsI(i)), plain_text(state.JcpdsH(i)), plain_text(state.JcpdsK(i)),
                       plain_text(state.JcpdsL(i))};
  });
}

void Command1_Click(Workbench& bench, InputJcpdsForm& form) {
  auto& main1 = bench.windows.use<Main1Form>();
  Module1State& state = bench.state;
  const auto rows = rows_in(form.G);
  state.JcpdsCount = 0;
  for (const auto& [intensity, h, k, l] : rows) {
    const int i = (state.JcpdsCount += 1).value();
    state.JcpdsI(i) = intensity;
    state.JcpdsH(i) = h;
    state.JcpdsK(i) = k;
    state.JcpdsL(i) = l;
  }
  main1.Label31.set_caption(Str(state.JcpdsCount));
  close_table(bench, form);
}

}  // namespace

}  // namespace zol::input_jcpds

namespace zol {

/// What the user does, and what answers it.
void wire(Workbench& bench, InputJcpdsForm& form) {
  using namespace input_jcpds;
  const Wire on(bench, form);
  wire_table(bench, form);
  form.Command1.on_click = on(Command1_Click);  // "OK"
  form.on_load = on(Form_Load);
  form.G.doubt = [&form](int row, int column) { return line_doubt(texts_of(form.G), row, column); };
}

template void add_window<InputJcpdsForm>(Workbench&);

}  // namespace zol
