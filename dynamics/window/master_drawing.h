// What the window of master patterns draws, and what its boxes say about the view.
#pragma once

#include "dynamics/window/make_master.h"

namespace zol {

/// A pattern with its names, as choices and boxes of the form ask for.
/// @throws RunFailure  the direction in the middle is none
void draw_master(MasterPatternForm& form, const ShownMaster& shown, Task& task);

/// Of the picture. @param shown  the pattern in it
[[nodiscard]] SphereView drawn_view(const MasterPatternForm& form, const ShownMaster& shown);

/// "0.500", of what rounds to 0 without a sign.
[[nodiscard]] std::string component_text(double component);

/// "[0.50 0.50 1.00]   0.8° from [1 1 2]   35.3° from the middle"; user coordinates of the picture. Empty where nothing
/// is drawn.
[[nodiscard]] std::string place_text(const MasterPatternForm& form, double x, double y);

}  // namespace zol
