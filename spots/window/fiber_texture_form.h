// The window of the electron pattern of a fiber texture.
#pragma once

#include "spots/window/spots_form.h"

namespace zol {

/// The picture counts 1/d.
struct FiberTextureForm : SpotsForm {
  static constexpr auto window_name = "FiberTexture";
  static constexpr bool shows_crystal_data = true;

  explicit FiberTextureForm(Workbench& bench)
      : SpotsForm(bench, window_name, "Fiber Texture Pattern", {"H=", "K=", "L="}, 5760, 1) {}

  TextBox Text2{*this, "Text2", "Dispersion (degree)="};
  CommandButton Command5{*this, "Command5", "Copy"};  // to the printer

  MenuItem Isave{*this, "Isave", "Pattern Save"};
  MenuItem Fsize{*this, "Fsize", "Font size"};
  MenuItem Rpitch{*this, "Rpitch", "Rotation Angle Pitch"};
  MenuItem Imagesize{*this, "Imagesize", "Image Size"};
  MenuItem Spotsize{*this, "Spotsize", "Diffraction Size"};
};

}  // namespace zol
