// Handlers of PATTERN3. Those of the picture and of the detector boxes stand in sources of their own.
#pragma once

#include "analysis/pattern3_form.h"

namespace zol::pattern3 {

void Form_Load(Workbench& bench, Pattern3Form& form);

void Text1_Change(Workbench& bench, Pattern3Form& form);
void Text2_LostFocus(Workbench& bench, Pattern3Form& form);
void Text5_LostFocus(Workbench& bench, Pattern3Form& form);
void Command1_Click(Workbench& bench, Pattern3Form& form);
void Command5_Click(Workbench& bench, Pattern3Form& form);
void Imatch_Click(Workbench& bench, Pattern3Form& form);
void EquivSet(Workbench& bench, Pattern3Form& form);
void MatchAngle(Workbench& bench, Pattern3Form& form);
void List1_Click(Workbench& bench, Pattern3Form& form);

// Picture: analysis/pattern3_picture.cpp
void Picture1_MouseDown(Workbench& bench, Pattern3Form& form, Single x, Single y);
void Picture1_MouseMove(Workbench& bench, Pattern3Form& form, Single x, Single y);
void Picture1_MouseUp(Workbench& bench, Pattern3Form& form, Single x, Single y);
void Check2_Click(Workbench& bench, Pattern3Form& form);
void Command2_Click(Workbench& bench, Pattern3Form& form);
void Command3_Click(Workbench& bench, Pattern3Form& form);
void Command4_Click(Workbench& bench, Pattern3Form& form);
void Command6_Click(Workbench& bench, Pattern3Form& form);
void Command10_Click(Pattern3Form& form, int index);
void ImageLoad_Click(Workbench& bench, Pattern3Form& form);
void ImageSAve_Click(Workbench& bench, Pattern3Form& form);
void Imageclear_Click(Workbench& bench, Pattern3Form& form);
void ImageFlip_Click(Workbench& bench, Pattern3Form& form);
void ImageMirror_Click(Workbench& bench, Pattern3Form& form);
void CorrectFile_Click(Workbench& bench, Pattern3Form& form);
void name_lines(Pattern3Form& form);  ///< labels and pens at load

// Detector: analysis/pattern3_detector.cpp
void Text3_Change(Workbench& bench, Pattern3Form& form);
void Text14_Change(Workbench& bench, Pattern3Form& form);
void Text15_Change(Workbench& bench, Pattern3Form& form);
void Text12_KeyPress(Workbench& bench, Pattern3Form& form, int& key);
void Text13_KeyPress(Workbench& bench, Pattern3Form& form, int& key);
void Text16_KeyPress(Workbench& bench, Pattern3Form& form, int& key);
void Text4_Change(Workbench& bench, Pattern3Form& form);
void Text7_Change(Workbench& bench, Pattern3Form& form);
void Command9_Click(Workbench& bench, Pattern3Form& form);
void CPS_Si001_Click(Workbench& bench, Pattern3Form& form);
void CenterPosition_Click(Workbench& bench, Pattern3Form& form);
void take_centre(Workbench& bench, Pattern3Form& form, Single x, Single y);

// Adjustment: analysis/pattern3_adjust.cpp
void CP_Setting_Show_Click(Workbench& bench, Pattern3Form& form);
void show_adjustment(Pattern3Form& form, bool shown);
void Text6_Change(Workbench& bench, Pattern3Form& form);
void Text8_Change(Workbench& bench, Pattern3Form& form);
void Text9_Change(Workbench& bench, Pattern3Form& form);
void Text10_Change(Workbench& bench, Pattern3Form& form);
void Text11_Change(Workbench& bench, Pattern3Form& form);
void Command7_Click(Workbench& bench, Pattern3Form& form);
void Command8_Click(Workbench& bench, Pattern3Form& form);
void Command11_Click(Workbench& bench, Pattern3Form& form);
void Command12_Click(Workbench& bench, Pattern3Form& form);
void Command13_Click(Workbench& bench, Pattern3Form& form);
void Command14_Click(Workbench& bench, Pattern3Form& form);
void Command15_Click(Workbench& bench, Pattern3Form& form);

}  // namespace zol::pattern3
