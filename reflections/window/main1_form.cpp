#include "reflections/window/main1_form.h"

#include "shell/services/state_names.h"

namespace zol {

Main1Form::Main1Form(Workbench& bench)
    : Window(window_name, "ZOL "), CommonDialog1(bench.services), state(bench.state) {
  file_drops = {{".cry", &DATA_LOAD, &CommonDialog1}, {".cif", &ImportfromCIF, &CommonDialog1}};
  Text17.holds_file_name = true;
  register_main1_fields(fields(), bench.state);
}

CrystalState& main1_state(Workbench& bench) { return bench.windows.use<Main1Form>().state; }

}  // namespace zol
