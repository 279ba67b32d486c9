// The window of the electron pattern of a fiber texture.
#pragma once

#include "spots/window/spots_form.h"

namespace zol {

/// The picture counts 1/d.
struct FiberTextureForm : SpotsForm {
  static constexpr auto window_name = "FiberTexture";
  static constexpr bool shows_crystal_data = true;

  explicit FiberTextureForm(Workbench& bench)
      : SpotsForm(bench, window_name, "Fiber Texture Pattern", {"H=", "K=", "L="}, 5760, 1) {
    using namespace guard;
    const CrystalState& seen = bench.seen();
    const auto direction = [&seen] {
      return when(seen.OriginH == 0 && seen.OriginK == 0 && seen.OriginL == 0, "the fiber direction H, K, L is 0 0 0");
    };
    declare(
        [&seen, direction] {
          return first_of({no_cell(seen), no_reflections(seen, 2), direction()});
        },
        {&Imagesize, &Fsize},
        {.inputs = {inputs::settings({"OriginH", "OriginK", "OriginL", "Dispersion"})}, .by_way_of = "Main1.List2"});
    Spotsize.warn_when = [] { return "it draws the spot pattern, not this one"; };
    for (TextBox* index : {&Text3, &Text4, &Text5}) whole_number(*index);
    reads = {shared::radiation, shared::half_width, shared::fiber_axis, shared::turn, shared::order};
  }

  TextBox Text2{*this, "Text2", "Dispersion (degree)="};
  CommandButton Command5{*this, "Command5", "Copy"};  // to the printer

  MenuItem Isave{*this, "Isave", "Pattern Save"};
  MenuItem Fsize{*this, "Fsize", "Font size"};
  MenuItem Rpitch{*this, "Rpitch", "Rotation Angle Pitch"};
  MenuItem Imagesize{*this, "Imagesize", "Image Size"};
  MenuItem Spotsize{*this, "Spotsize", "Diffraction Size"};
};

}  // namespace zol
