// What the handlers of the spot pattern and of the fiber texture share.
#pragma once

#include "spots/window/spots_form.h"

namespace zol::spots {

using Draw = void (*)(Workbench&);  ///< the operation that draws a window's picture

/// Ties what both windows have. @param clockwise  sign of the pattern's angle in a clockwise turn
/// @param tilts  a drag tilts the zone axis of the state
void wire_spots(Workbench& bench, SpotsForm& form, Draw draw, double clockwise, bool tilts);

/// As a window comes up: pitch and width.
void set_first_values(Workbench& bench, SpotsForm& form);

// Menu items
/// The ending is always added, so that a cancelled dialog writes ".bmp".
void save_picture(SpotsForm& form);
/// Draws the spot pattern again, also from the other window: the size belongs to its spots.
void change_spot_size(Workbench& bench);
void change_font_size(Workbench& bench, SpotsForm& form, Draw draw);
void change_image_size(Workbench& bench, SpotsForm& form, Draw draw);

}  // namespace zol::spots
