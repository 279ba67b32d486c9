// The window of the electron spot pattern.
#pragma once

#include "spots/window/spots_form.h"

namespace zol {

/// The picture counts 1/(2d).
struct PatternForm : SpotsForm {
  static constexpr auto window_name = "Pattern";
  static constexpr bool shows_crystal_data = true;

  explicit PatternForm(Workbench& bench) : SpotsForm(bench, window_name, "ED PATTERN", {"u=", "v=", "w="}, 8500, 2) {
    using namespace guard;
    const CrystalState& seen = bench.seen();
    declare(
        [&seen] {
          return first_of({no_cell(seen), no_zone_axis(seen)});
        },
        {&Command5, &Command14, &Command4, &Command13, &Spotsize, &Fsize},
        {{inputs::crystal(), inputs::radiation(),
          inputs::settings({"ZoneU", "ZoneV", "ZoneW", "Level"}, {&Option1, &Option2})}});
    whole_number(Text2);
    reads = {shared::radiation, shared::half_width, shared::zone_axis, shared::turn};
  }

  TextBox Text2{*this, "Text2", "Level="};      // Laue level
  CommandButton Command5{*this, "Command5"};    // the next level
  CommandButton Command14{*this, "Command14"};  // the level before

  // Grey scale
  OptionButton Option1{*this, "Option1", "I"};
  OptionButton Option2{*this, "Option2", "Sqr( I )"};
  Frame Frame1{*this, "Frame1", "Frame1"};
  CommandButton Command4{*this, "Command4", "UP"};
  CommandButton Command13{*this, "Command13", "DWN"};

  MenuItem ISAVE{*this, "ISAVE", "PATTERN SAVE"};
  MenuItem Spotsize{*this, "Spotsize", "Diffraction spot size"};
  MenuItem Rpitch{*this, "Rpitch", "Rotation angle pitch"};
  MenuItem Fsize{*this, "Fsize", "Font size"};
};

}  // namespace zol
