#include "kikuchi/window/electron_voltage.h"

#include "analysis/window/pattern3_form.h"
#include "kikuchi/window/pattern2_form.h"
#include "reflections/window/main1_form.h"

namespace zol {

void set_electron_voltage(Workbench& bench, const std::string& text) {
  auto& main1 = bench.windows.use<Main1Form>();
  CrystalState& state = main1.state;
  state.AccVoltage = to_single(Val(text));
  if (!(state.AccVoltage > 0)) return;
  main1.Combo1.set_text(text);
  bench.windows.use<Pattern3Form>().Text5.set_text(text);
  bench.windows.use<Pattern2Form>().Text21.set_text(text);
  main1.Option2.set_on(true);
  state.WaveLength = to_single(square_root(150.0 / state.AccVoltage / 1000.0, "150 / voltage"));
  main1.Text16.set_text(plain_text(state.WaveLength));
  state.MassRatio = 1;
}

}  // namespace zol
