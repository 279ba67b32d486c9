// The master pattern that the boxes of its window ask for.
#pragma once

#include "dynamics/window/master_pattern_form.h"

namespace zol {

/// Of the present crystal, made or taken from what is ready; the first one that is ready from then on.
/// @throws RunFailure  the crystal has no such pattern, or a box does not do; the message tells which
[[nodiscard]] std::shared_ptr<const ShownMaster> make_master(Workbench& bench, MasterPatternForm& form);

/// The one in the picture; a null pointer where there is none.
[[nodiscard]] std::shared_ptr<const ShownMaster> drawn_master(const MasterPatternForm& form);

/// "Si.cry at 20 kV: 401 x 401 points, 64 beams, ...".
[[nodiscard]] std::string master_text(const ShownMaster& shown);

}  // namespace zol
