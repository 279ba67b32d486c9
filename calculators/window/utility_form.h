// The window of five small calculators.
#pragma once

#include "shell/services/window_services.h"
#include "shell/services/workbench.h"

namespace zol {

struct UtilityForm : Window {
  static constexpr auto window_name = "Utility";
  static constexpr bool shows_crystal_data = true;

  explicit UtilityForm(Workbench& bench);

  // "Deternmination of direction from two SEM photographs with different rotations.": by azimuths
  TextBox Text1{*this, "Text1", "phi-1(deg.) = "};
  TextBox Text2{*this, "Text2", "rotate-1(deg.) = "};
  TextBox Text3{*this, "Text3", "phi-2(deg.) = "};
  TextBox Text4{*this, "Text4", "rotate-1(deg.) = "};
  CommandButton Command1{*this, "Command1", "Calc."};
  Label Label5{*this, "Label5"};  // azimuth found
  Label Label6{*this, "Label6"};  // elevation found
  Label Label9{*this, "Label9"};  // apparent azimuths of what was found
  Label Label11{*this, "Label11"};

  // The same by lengths
  TextBox Text9{*this, "Text9", "length_1 = "};
  TextBox Text8{*this, "Text8", "rotate-1(deg.) = "};
  TextBox Text7{*this, "Text7", "length_2 = "};
  TextBox Text6{*this, "Text6", "rotate-1(deg.) = "};
  CommandButton Command3{*this, "Command3", "Calc."};
  Label Label15{*this, "Label15"};  // half plane
  Label Label14{*this, "Label14"};  // angle in it

  // "Inverse Matrix Calculation": nine cells row by row
  ControlArray<TextBox> Text5{*this, "Text5", 9};
  ControlArray<Label> Label10{*this, "Label10", 9};
  CommandButton Command2{*this, "Command2", "Calc"};

  // "Equivalent vector"
  TextBox Text10{*this, "Text10", "u, v, w ="};  // the caption is before all three
  TextBox Text11{*this, "Text11"};
  TextBox Text12{*this, "Text12"};
  CommandButton Command4{*this, "Command4", "Calc"};  // h, k, l from u, v, w
  TextBox Text13{*this, "Text13", "h, k, l = "};
  TextBox Text14{*this, "Text14"};
  TextBox Text15{*this, "Text15"};
  CommandButton Command5{*this, "Command5", "Calc"};  // u, v, w from h, k, l

  // "Angle between two vectors"
  OptionButton Option1{*this, "Option1", "[u,v,w]"};
  OptionButton Option2{*this, "Option2", "h,k,l"};
  OptionButton Option3{*this, "Option3", "(h,k,l)"};
  TextBox Text46{*this, "Text46"};  // first vector
  TextBox Text47{*this, "Text47"};
  TextBox Text48{*this, "Text48"};
  TextBox Text49{*this, "Text49"};  // second vector
  TextBox Text50{*this, "Text50"};
  TextBox Text51{*this, "Text51"};
  TextBox Text52{*this, "Text52", "Angle(deg.)="};

  Single Phi1 = 0, Phi2 = 0;        ///< degrees
  Single Rotate1 = 0, Rotate2 = 0;  ///< degrees
  Single Length1 = 0, Length2 = 0;  ///< any unit
  Single& LengthRotate1 = Rotate1;  ///< the block of lengths writes the rotations of the other one
  Single& LengthRotate2 = Rotate2;
  BoundedTable<Single> MatrixCells{"MatrixCells", 3, 3};
  Single VectorU = 0, VectorV = 0, VectorW = 0;
  Single VectorH = 0, VectorK = 0, VectorL = 0;
  Single Angle1 = 0, Angle2 = 0, Angle3 = 0;  ///< first vector of the angle block
  Single Angle4 = 0, Angle5 = 0, Angle6 = 0;  ///< second vector

 private:
  void declare_guards(const CrystalState& seen);
};

}  // namespace zol
