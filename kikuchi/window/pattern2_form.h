// The window of the simulated Kikuchi pattern, a gnomonic projection on a plane at unit distance.
#pragma once

#include "shell/services/window_services.h"
#include "shell/services/workbench.h"

namespace zol {

struct Pattern2Form : Window {
  static constexpr auto window_name = "Pattern2";
  static constexpr bool shows_crystal_data = true;

  explicit Pattern2Form(Workbench& bench);

  // Zone axis at the centre
  TextBox Text3{*this, "Text3", "u="};
  TextBox Text4{*this, "Text4", "v="};
  TextBox Text5{*this, "Text5", "w="};
  CommandButton Command8{*this, "Command8", "Calc"};

  // What is drawn
  TextBox Text1{*this, "Text1", "area(deg.)="};
  TextBox Text14{*this, "Text14", "X-shift(deg)="};
  TextBox Text15{*this, "Text15", "Y-shift(deg)="};
  TextBox Text2{*this, "Text2", "Intensity Min. (0-255)="};
  TextBox Text19{*this, "Text19", "Number of band ="};
  TextBox Text9{*this, "Text9", "Radius (deg.)="};
  TextBox Text21{*this, "Text21", "Acc. Vol (kv)="};
  OptionButton Option1{*this, "Option1", "I"};
  OptionButton Option2{*this, "Option2", "Sqr( I )"};
  Frame Frame1{*this, "Frame1", "CONTRAST"};
  TextBox Text10{*this, "Text10"};  // exponent of the grey scale
  CheckBox Check1{*this, "Check1", "Grid"};
  CheckBox Check2{*this, "Check2", "Zone Axis Map"};
  CheckBox Check3{*this, "Check3", "Express as Line"};
  CheckBox Check4{*this, "Check4", "Intensity Fix"};
  CheckBox Check5{*this, "Check5", "Center Position"};
  CheckBox Check6{*this, "Check6", "Nomal Position"};
  CommandButton Command14{*this, "Command14", "UP"};
  CommandButton Command15{*this, "Command15", "DOWN"};
  CommandButton Command17{*this, "Command17", "Grid"};

  // The axis that was found, not yet in the pattern
  TextBox Text6{*this, "Text6", "uvw="};
  TextBox Text7{*this, "Text7"};
  TextBox Text8{*this, "Text8"};
  TextBox Text16{*this, "Text16", "hkl ="};  // plane normal to it, percent of the sum of the indices
  TextBox Text17{*this, "Text17"};
  TextBox Text18{*this, "Text18"};
  CommandButton Command4{*this, "Command4", "Transfer"};
  Label Label9{*this, "Label9"};    // step of rotation, degrees
  Label Label10{*this, "Label10"};  // reference reflection of the new axis

  // Walking, zooming, turning
  ControlArray<CommandButton> Command1{*this, "Command1", 4};  // right, up, left, down
  CommandButton Command2{*this, "Command2", "Zoom Up"};
  CommandButton Command3{*this, "Command3", "Zoom Dwn"};
  CommandButton Command6{*this, "Command6", "CW"};
  CommandButton Command7{*this, "Command7", "ACW"};
  CommandButton Command9{*this, "Command9"};    // clockwise, ten times the pitch
  CommandButton Command10{*this, "Command10"};  // anticlockwise, ten times
  CommandButton Command11{*this, "Command11"};  // clockwise, a tenth
  CommandButton Command12{*this, "Command12"};  // anticlockwise, a tenth

  // Marks
  TextBox Text11{*this, "Text11"};  // h
  TextBox Text12{*this, "Text12"};  // k
  TextBox Text13{*this, "Text13"};  // l
  CommandButton Command13{*this, "Command13", "Display"};
  TextBox Text22{*this, "Text22"};  // azimuth of a direction, degrees
  TextBox Text23{*this, "Text23"};  // its latitude, degrees
  CommandButton Command18{*this, "Command18", "plot"};

  ListBox List1{*this, "List1"};  // the bands
  Canvas Picture1;
  CommandButton Command16{*this, "Command16", "Crystal Select"};
  Label Label18{*this, "Label18"};  // title of the crystal file
  CommandButton Command5{*this, "Command5", "Copy"};

  MenuItem ISAVE{*this, "ISAVE", "PATTERN SAVE", "Image"};
  MenuItem BandsAsPicture{*this, "BandsAsPicture", "Bands as a picture", "Image"};
  MenuItem DynamicalBands{*this, "DynamicalBands", "Dynamical bands as a picture", "Image"};
  MenuItem Imagesize{*this, "Imagesize", "Image size", "Image"};
  MenuItem ImageLoad{*this, "ImageLoad", "Superpose", "Image"};
  MenuItem ImageClear{*this, "ImageClear", "Clear", "Image"};
  MenuItem Rpitch{*this, "Rpitch", "Rotation angle pitch", "Option"};
  MenuItem Spitch{*this, "Spitch", "Sfhift angle pitch", "Option"};
  MenuItem Zpitch{*this, "Zpitch", "Zoom pitch", "Option"};

  FileDialog CommonDialog1;

  String ImageMark;          ///< "ON" while a measured image lies under the pattern
  Single RotationPitch = 0;  ///< degrees
  Single ShiftPitch = 0;     ///< degrees
  Single ZoomRatio = 0;

 private:
  void declare_guards(const CrystalState& seen);
  void declare_results();
};

}  // namespace zol
