// Windows, controls, pictures and what the program asks of its surroundings: everything that handlers talk to.
#pragma once

#include "shell/services/canvas.h"    // IWYU pragma: export
#include "shell/services/controls.h"  // IWYU pragma: export
#include "shell/services/services.h"  // IWYU pragma: export
#include "shell/services/window.h"    // IWYU pragma: export
