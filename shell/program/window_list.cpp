#include "shell/program/window_list.h"

namespace zol {

template <class Form>
void add_window(Workbench& bench);  // defined beside the table of the window's events

// A window is one line here.
// clang-format off
constexpr void (*window_list[])(Workbench&) = {
    add_window<struct MainMenuForm>,
    add_window<struct Main1Form>,
    add_window<struct InputAtomForm>,
    add_window<struct InputJcpdsForm>,
    add_window<struct Pattern3Form>,
    add_window<struct Pattern2Form>,
    add_window<struct ZaxisForm>,
    add_window<struct CameraParametersForm>,
    add_window<struct AtomDistanceForm>,
    add_window<struct BondsForm>,
    add_window<struct UtilityForm>,
    add_window<struct PatternForm>,
    add_window<struct FiberTextureForm>,
    add_window<struct XdForm>,
    add_window<struct DringForm>,
    add_window<struct AutoIndexForm>,
    add_window<struct MasterPatternForm>,
};
// clang-format on

void add_windows(Workbench& bench) {
  for (const auto add : window_list) add(bench);
}

}  // namespace zol
