// What both powder windows do with what lies beside their curves.
#pragma once

#include "powder/window/curve_form.h"
#include "shell/services/workbench.h"

namespace zol {

/// Ties the events of the controls.
void wire_curves(Workbench& bench, CurveControls& curves);

/// Notes what a calculation was made with, its reflections and its radiation, and makes the second radiation again.
void curve_calculated(Workbench& bench, CurveControls& curves, const CalculatedWith& with);

}  // namespace zol
