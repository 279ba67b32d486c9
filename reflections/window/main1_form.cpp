#include "reflections/window/main1_form.h"

namespace zol {

Main1Form::Main1Form(Workbench& bench)
    : Window(window_name, "ZOL "), CommonDialog1(*this, bench.services, "CommonDialog1"), state(bench.crystal_) {
  file_drops = {{".cry", &DATA_LOAD, &CommonDialog1}, {"", &ImportStructure, &CommonDialog1}};
  Text17.holds_file_name = true;
  crystal_file = &Text17;
  fields().add_fields<Main1State>(state);
}

CrystalState& main1_state(Workbench& bench) { return bench.windows.use<Main1Form>().state; }

}  // namespace zol
