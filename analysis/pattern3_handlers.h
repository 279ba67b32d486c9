// Handlers of PATTERN3.
#pragma once

#include "analysis/pattern3_form.h"

namespace zol::pattern3 {

void Form_Load(Workbench& bench, Pattern3Form& form);
void Text2_LostFocus(Workbench& bench, Pattern3Form& form);

}  // namespace zol::pattern3
