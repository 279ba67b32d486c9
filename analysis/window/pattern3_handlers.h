// What the panels of PATTERN3 share. Each panel ties its own events.
#pragma once

#include "analysis/window/pattern3_form.h"

namespace zol::pattern3 {

void wire_picture(Workbench& bench, Pattern3Form& form);   ///< the picture and the lines on it
void wire_detector(Workbench& bench, Pattern3Form& form);  ///< detector boxes, calibration
void wire_adjust(Workbench& bench, Pattern3Form& form);    ///< adjustment of the detector parameters

void name_lines(Pattern3Form& form);  ///< labels and pens at load
void take_centre(Workbench& bench, Pattern3Form& form, Single x, Single y);
void show_adjustment(Pattern3Form& form, bool shown);
void Command1_Click(Workbench& bench, Pattern3Form& form);  ///< "CALC"
void MatchAngle(Workbench& bench, Pattern3Form& form);

}  // namespace zol::pattern3
