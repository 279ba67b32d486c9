// Handlers of Pattern2.
#pragma once

#include "kikuchi/pattern2_form.h"

namespace zol::pattern2 {

void Form_Load(Workbench& bench, Pattern2Form& form);

// Boxes
void Text1_Change(Workbench& bench, Pattern2Form& form);   // half width of the picture
void Text3_Change(Workbench& bench, Pattern2Form& form);   // u
void Text4_Change(Workbench& bench, Pattern2Form& form);   // v
void Text5_Change(Workbench& bench, Pattern2Form& form);   // w
void Text11_Change(Workbench& bench, Pattern2Form& form);  // h of the mark
void Text12_Change(Workbench& bench, Pattern2Form& form);  // k
void Text13_Change(Workbench& bench, Pattern2Form& form);  // l
void Text14_Change(Workbench& bench, Pattern2Form& form);  // x shift
void Text15_Change(Workbench& bench, Pattern2Form& form);  // y shift
void Text19_Change(Workbench& bench, Pattern2Form& form);  // number of bands
void Text21_LostFocus(Workbench& bench, Pattern2Form& form);
void Text3_KeyPress(Workbench& bench, Pattern2Form& form, int& key);
void Text4_KeyPress(Workbench& bench, Pattern2Form& form, int& key);
void Text5_KeyPress(Workbench& bench, Pattern2Form& form, int& key);
void Text11_KeyPress(Workbench& bench, Pattern2Form& form, int& key);
void Text12_KeyPress(Workbench& bench, Pattern2Form& form, int& key);
void Text13_KeyPress(Workbench& bench, Pattern2Form& form, int& key);
void Text22_KeyPress(Workbench& bench, Pattern2Form& form, int& key);
void Text23_KeyPress(Workbench& bench, Pattern2Form& form, int& key);

// Buttons
void Command1_Click(Workbench& bench, Pattern2Form& form, int index);  // arrows: right, up, left, down
void Command2_Click(Workbench& bench, Pattern2Form& form);             // "Zoom Up"
void Command3_Click(Workbench& bench, Pattern2Form& form);             // "Zoom Dwn"
void Command4_Click(Workbench& bench, Pattern2Form& form);             // "Transfer"
void Command5_Click(Workbench& bench, Pattern2Form& form);             // "Copy"
void Command6_Click(Workbench& bench, Pattern2Form& form);             // "CW"
void Command7_Click(Workbench& bench, Pattern2Form& form);             // "ACW"
void Command8_Click(Workbench& bench, Pattern2Form& form);             // "Calc"
void Command9_Click(Workbench& bench, Pattern2Form& form);             // clockwise, coarse
void Command10_Click(Workbench& bench, Pattern2Form& form);            // anticlockwise, coarse
void Command11_Click(Workbench& bench, Pattern2Form& form);            // clockwise, fine
void Command12_Click(Workbench& bench, Pattern2Form& form);            // anticlockwise, fine
void Command13_Click(Workbench& bench, Pattern2Form& form);            // "Display"
void Command14_Click(Workbench& bench, Pattern2Form& form);            // "UP"
void Command15_Click(Workbench& bench, Pattern2Form& form);            // "DOWN"
void Command16_Click(Workbench& bench, Pattern2Form& form);            // "Crystal Select"
void Command17_Click(Workbench& bench, Pattern2Form& form);            // "Grid"
void Command18_Click(Workbench& bench, Pattern2Form& form);            // "plot"

// List, picture, menu
void List1_Click(Workbench& bench, Pattern2Form& form);
void Picture1_MouseDown(Workbench& bench, Pattern2Form& form, Single x, Single y);
void ISAVE_Click(Workbench& bench, Pattern2Form& form);
void Imagesize_Click(Workbench& bench, Pattern2Form& form);
void ImageLoad_Click(Workbench& bench, Pattern2Form& form);
void ImageClear_Click(Workbench& bench, Pattern2Form& form);
void Rpitch_Click(Workbench& bench, Pattern2Form& form);
void Spitch_Click(Workbench& bench, Pattern2Form& form);
void Zpitch_Click(Workbench& bench, Pattern2Form& form);

// Public operations outside the menus
void Fsize(Workbench& bench, Pattern2Form& form);
void Spotsize(Workbench& bench, Pattern2Form& form);

}  // namespace zol::pattern2
