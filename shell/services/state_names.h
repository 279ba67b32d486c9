// The public fields and arrays of the crystal state under their names, for scripts and views.
#pragma once

#include "core/crystal_state.h"
#include "shell/services/window.h"

namespace zol {

void register_main1_fields(NamedValues& values, const Main1State& state);
void register_module1_fields(NamedValues& values, const Module1State& state);

}  // namespace zol
