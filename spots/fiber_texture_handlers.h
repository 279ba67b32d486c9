// Handlers of FiberTexture, named after control and event.
#pragma once

#include "spots/fiber_texture_form.h"

namespace zol::fiber_texture {

void Form_Load(Workbench& bench, FiberTextureForm& form);

// Values
void Text1_Change(Workbench& bench, FiberTextureForm& form);  // width of the picture
void Text2_Change(Workbench& bench, FiberTextureForm& form);  // dispersion
void Text3_Change(Workbench& bench, FiberTextureForm& form);  // fiber direction H, and so on to Text5, L
void Text4_Change(Workbench& bench, FiberTextureForm& form);
void Text5_Change(Workbench& bench, FiberTextureForm& form);
void Text3_KeyPress(Workbench& bench, FiberTextureForm& form, int& key);  // Enter moves on; in Text5 it draws
void Text4_KeyPress(Workbench& bench, FiberTextureForm& form, int& key);
void Text5_KeyPress(Workbench& bench, FiberTextureForm& form, int& key);

// Pictures
void Command8_Click(Workbench& bench, FiberTextureForm& form);   // "Calc"
void Command2_Click(Workbench& bench, FiberTextureForm& form);   // "Zoom Up"
void Command3_Click(Workbench& bench, FiberTextureForm& form);   // "Zoom Dwn"
void Command6_Click(Workbench& bench, FiberTextureForm& form);   // "CW"
void Command9_Click(Workbench& bench, FiberTextureForm& form);   // five times as far
void Command11_Click(Workbench& bench, FiberTextureForm& form);  // a fifth of it
void Command7_Click(Workbench& bench, FiberTextureForm& form);   // "ACW"
void Command10_Click(Workbench& bench, FiberTextureForm& form);  // five times as far
void Command12_Click(Workbench& bench, FiberTextureForm& form);  // a fifth of it
void Command5_Click(Workbench& bench, FiberTextureForm& form);   // "Copy": prints the window
void Command1_Click(Workbench& bench, FiberTextureForm& form);   // "close"

// Menus
void Isave_Click(Workbench& bench, FiberTextureForm& form);      // "Pattern Save"
void Fsize_Click(Workbench& bench, FiberTextureForm& form);      // "Font size"
void Rpitch_Click(Workbench& bench, FiberTextureForm& form);     // "Rotation Angle Pitch"
void Imagesize_Click(Workbench& bench, FiberTextureForm& form);  // "Image Size"
void Spotsize_Click(Workbench& bench, FiberTextureForm& form);   // "Diffraction Size"

}  // namespace zol::fiber_texture
