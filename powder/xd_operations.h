// What the handlers of Xd share.
#pragma once

#include "powder/xd_form.h"

namespace zol::xd {

/// Sets the scale, shows the value at full height as a whole number and draws the curve with it.
void draw(XdForm& form, Single full_height);

/// Draws the curve anew with DisplayMax, without calculating.
void redraw(XdForm& form);

}  // namespace zol::xd
