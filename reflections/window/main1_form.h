// The main window: the crystal is entered here and its reflection list computed.
#pragma once

#include "shell/services/window_services.h"
#include "shell/services/workbench.h"

namespace zol {

struct Main1Form : Window {
  static constexpr auto window_name = "Main1";
  static constexpr bool shows_crystal_data = true;

  explicit Main1Form(Workbench& bench);

  // Cell constants in angstroms and degrees
  TextBox Text1{*this, "Text1", "a="};
  TextBox Text2{*this, "Text2", "b="};
  TextBox Text3{*this, "Text3", "c="};
  TextBox Text4{*this, "Text4", "alpha="};
  TextBox Text5{*this, "Text5", "beta="};
  TextBox Text6{*this, "Text6", "gamma="};

  // Space group
  TextBox Text7{*this, "Text7", "   S.G="};
  Label Label16{*this, "Label16"};  // symbol
  Label Label17{*this, "Label17"};  // crystal system word
  ListBox List3{*this, "List3"};    // all space group files
  ComboBox Combo2{*this, "Combo2", "axis change"};

  // Reciprocal cell, written by CalcCell
  TextBox Text8{*this, "Text8", "a="};
  TextBox Text9{*this, "Text9", "b="};
  TextBox Text10{*this, "Text10", "c="};
  TextBox Text11{*this, "Text11", "alpha="};
  TextBox Text12{*this, "Text12", "beta="};
  TextBox Text13{*this, "Text13", "gamma="};
  TextBox Text14{*this, "Text14", "V="};

  // Radiation
  ComboBox Combo1{*this, "Combo1", "Acc. Vol.(kV) ="};
  OptionButton Option1{*this, "Option1", "X-ray"};
  OptionButton Option2{*this, "Option2", "Electron"};
  TextBox Text16{*this, "Text16", "Wave Length(A)="};

  // What the list holds
  TextBox Text15{*this, "Text15", "Dmin(A)="};
  CheckBox Check1{*this, "Check1", "-H calc"};
  CheckBox Check2{*this, "Check2", "-K calc"};
  CheckBox Check3{*this, "Check3", "-L calc"};
  TextBox Text18{*this, "Text18", "h       k       l"};  // fixed h; the caption is over all three
  TextBox Text19{*this, "Text19"};                       // fixed k
  TextBox Text20{*this, "Text20"};                       // fixed l
  CheckBox Check4{*this, "Check4", " k mod 3=0"};
  CheckBox Check5{*this, "Check5", "(h-k) mod 3=0"};
  CheckBox Check6{*this, "Check6", "k mod 3<>0"};
  CheckBox Check7{*this, "Check7", "(h-k) mod 3<>0"};
  CheckBox Check8{*this, "Check8", "h mod 3=0"};
  CheckBox Check9{*this, "Check9", "h mod 3<>0"};
  CommandButton Command6{*this, "Command6", "Calc"};

  // Atoms of the unit cell
  CommandButton Command1{*this, "Command1", "Atomic Coordinates"};
  CommandButton Command15{*this, "Command15", "JCPDS reflections"};
  Label Label19{*this, "Label19", "", "No. of atom="};
  Label Label20{*this, "Label20", "", "No. of atom in a cell ="};
  Label Label31{*this, "Label31", "", "No. of ref.="};  // observed reflections
  ListBox List1{*this, "List1"};
  CommandButton Command2{*this, "Command2", "print to file"};
  CommandButton Command3{*this, "Command3", "Print out"};

  // Reflections
  Label Label26{*this, "Label26", "", "No. of Ref.="};
  Label Label24{*this, "Label24", "    H   K   L     k/2    D(A)   2-Theta     A       B       F      I(powder)"};
  ListBox List2{*this, "List2"};
  CommandButton Command4{*this, "Command4", "print to file"};
  CommandButton Command5{*this, "Command5", "Print out"};

  // What is made of them
  CommandButton Command7{*this, "Command7", "Powder XRD Pattern"};
  CommandButton Command8{*this, "Command8", "Electron Debye-ring"};
  CommandButton Command9{*this, "Command9", "Single Crystal"};
  CommandButton Command10{*this, "Command10", "KP CALC"};
  CommandButton Command11{*this, "Command11", "Atom Distance"};
  CommandButton Command12{*this, "Command12", "Fiber Pattern"};
  CommandButton Command13{*this, "Command13", "KP ANALYSIS(A)"};

  TextBox Text17{*this, "Text17"};  // path of the crystal file

  MenuItem DATA_LOAD{*this, "DATA_LOAD", "LOAD", "Crystal_Data"};
  MenuItem DATA_SAVE{*this, "DATA_SAVE", "SAVE", "Crystal_Data"};
  MenuItem ImportStructure{*this, "ImportStructure", "Open structure file...", "Crystal_Data"};
  MenuItem ExportStructure{*this, "ExportStructure", "Save as CIF...", "Crystal_Data"};
  MenuItem ImportFromICSD{*this, "ImportFromICSD", "Import from icsd.txt", "Crystal_Data"};
  MenuItem ImportfromCIF{*this, "ImportfromCIF", "Import from CIF", "Crystal_Data"};
  MenuItem OWARI{*this, "OWARI", "END", "Crystal_Data"};
  MenuItem RefselectON{*this, "RefselectON", "REF SELECT FOR SHEET SILICATES", "OPTION"};
  MenuItem Show_utility{*this, "Show_utility", "Utility"};

  FileDialog CommonDialog1;

  CrystalState& state;  ///< the fields that live on this window are part of it

 private:
  void declare_guards(const Workbench& bench);
  void declare_results();
};

/// The state by way of the window that its fields live on: the first use loads the tables and sets the radiation.
[[nodiscard]] CrystalState& main1_state(Workbench& bench);

}  // namespace zol
