// What the window of automatic indexing draws: bands over the measured picture, and the two pictures beside each other.
#pragma once

#include "analysis/window/pattern3_form.h"
#include "indexing/window/auto_index_form.h"

namespace zol {

/// The computed bands and zone axes of the picked solution over the picture of PATTERN3; nothing else remains there.
void draw_solution(Pattern3Form& pattern, const IndexResult& result);

/// Marks one measured band over what is drawn.
void draw_band(Pattern3Form& pattern, const IndexResult& result, std::size_t band);

/// Three bands as picked lines, six edges where PATTERN3 takes two for each band. @returns false with fewer bands
bool take_lines(Pattern3Form& pattern, const IndexResult& result);

/// The simulated picture and the measured one as the form's choice of view says.
/// @throws Cancelled  the task stops
void draw_simulated(AutoIndexForm& form, const PictureView& measured, Task& task);

}  // namespace zol
