// What the handlers of Xd share.
#pragma once

#include "powder/window/xd_form.h"

namespace zol::xd {

/// For messages.
inline constexpr std::string_view peak_max = "the largest intensity (PeakMax, which \"Clear\" sets to 0)";

/// Sets the scale, shows the value at full height as a whole number and draws the curve with it.
/// @param name  of that value, for the message when it is 0
void draw(XdForm& form, Single full_height, std::string_view name);

/// Draws the curve again with DisplayMax, without calculating.
void redraw(XdForm& form);

}  // namespace zol::xd
