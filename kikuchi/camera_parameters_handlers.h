// Handlers of CameraParameters.
#pragma once

#include "kikuchi/camera_parameters_form.h"

namespace zol::camera_parameters {

void Form_Load(Workbench& bench, CameraParametersForm& form);
void Text1_Change(Workbench& bench, CameraParametersForm& form);    // acquisition angle
void Text2_Change(Workbench& bench, CameraParametersForm& form);    // x shift
void Text3_Change(Workbench& bench, CameraParametersForm& form);    // y shift
void Text5_Change(Workbench& bench, CameraParametersForm& form);    // detector edge
void Text6_Change(Workbench& bench, CameraParametersForm& form);    // xy ratio
void Text7_Change(Workbench& bench, CameraParametersForm& form);    // substrate normal
void Command1_Click(Workbench& bench, CameraParametersForm& form);  // "Load"
void Command2_Click(Workbench& bench, CameraParametersForm& form);  // "Save"
void Command3_Click(Workbench& bench, CameraParametersForm& form);  // "Close"

}  // namespace zol::camera_parameters
