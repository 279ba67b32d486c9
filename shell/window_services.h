// Windows, controls, pictures and what the program asks of its surroundings: everything that handlers talk to.
#pragma once

#include "shell/canvas.h"    // IWYU pragma: export
#include "shell/controls.h"  // IWYU pragma: export
#include "shell/services.h"  // IWYU pragma: export
#include "shell/window.h"    // IWYU pragma: export
