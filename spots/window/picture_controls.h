// What windows with patterns ask and set. Each prompt shows the present value in square brackets.
#pragma once

#include "shell/services/workbench.h"

namespace zol {

/// Font size of the labels in points. @throws RunFailure  the answer is not a number, or cancelled
void ask_font_size(Workbench& bench, Canvas& picture);

/// Spot size in percent; an empty answer gives 0, for which the next drawing takes its default.
void ask_spot_size(Workbench& bench);

/// Step of the rotation buttons in degrees; an empty answer changes nothing.
void ask_rotation_pitch(Workbench& bench, Single& pitch);

/// Width and height of a square picture in twips. @returns false for 0 or an empty answer, which change nothing
[[nodiscard]] bool ask_image_size(Workbench& bench, Canvas& picture);

inline constexpr Single first_pitch_deg = 5;  ///< step of the rotation buttons when a window is loaded

/// The exponent of a grey scale; none when the box is empty, 0 when it holds no number.
[[nodiscard]] std::optional<double> exponent_in(const TextBox& box);

}  // namespace zol
