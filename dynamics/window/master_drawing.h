// What the window of master patterns draws, and what its boxes say about the view.
#pragma once

#include "dynamics/window/make_master.h"

namespace zol {

/// As the choices and boxes of the form ask for. @throws RunFailure  the direction in the middle is none
[[nodiscard]] SphereView view_of(const MasterPatternForm& form, const ShownMaster& shown);

/// The pattern that was made, with its names. Nothing where there is none.
/// @throws RunFailure  as view_of
void draw_master(MasterPatternForm& form, Task& task);

/// "[0.50 0.50 1.00]   0.8° from [1 1 2]   35.3° from the middle"; user coordinates of the picture.
[[nodiscard]] std::string place_text(const MasterPatternForm& form, double x, double y);

}  // namespace zol
