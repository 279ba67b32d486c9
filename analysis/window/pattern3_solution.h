// What the picture of PATTERN3 shows of a solution beside what is drawn on it.
#pragma once

#include "analysis/window/pattern3_form.h"

namespace zol {

/// The strongest bands that a solution asks for, in the coordinates of the picture; none where the row has none.
[[nodiscard]] PictureMarks bands_of_solution(const CrystalState& seen, const Pattern3Form& form, int row);

/// The gnomonic direction of a place in the picture, whose y counts downward while the plane lies upside down in it.
[[nodiscard]] std::array<double, 3> direction_in_picture(const CrystalState& seen, double x, double y);

/// Circles around the pattern centre there: their unit is that of the gnomonic plane.
[[nodiscard]] CircleFrame circle_frame_of_picture(const CrystalState& seen);

/// Takes the line that was finished last off the picture. @returns false when there is none
[[nodiscard]] bool take_back_line(PickedLines& lines);

}  // namespace zol
