// The window in which a measured Kikuchi pattern is indexed.
#pragma once

#include "analysis/band_matching.h"
#include "analysis/band_measurement.h"
#include "analysis/detector_geometry.h"
#include "analysis/picked_lines.h"
#include "analysis/triple_table.h"
#include "shell/services/window_services.h"
#include "shell/services/workbench.h"

namespace zol {

struct Pattern3Form : Window {
  static constexpr auto window_name = "PATTERN3";
  static constexpr bool shows_crystal_data = true;

  explicit Pattern3Form(Workbench& bench);

  // The picture and the lines on it
  Canvas Picture1;
  CommandButton Command2{*this, "Command2", "Clear"};
  CommandButton Command3{*this, "Command3", "Redraw"};
  CommandButton Command4{*this, "Command4", "CORRECTOR"};
  CommandButton Command6{*this, "Command6", "Grid"};

  // The crystal and its triple table
  CommandButton Command5{*this, "Command5", "CRYSTAL SELECT"};
  Label Label6{*this, "Label6"};  // title of the crystal file
  TextBox Text2{*this, "Text2", "Nhkl="};
  Label Label8{*this, "Label8"};  // NhklUsed
  TextBox Text5{*this, "Text5", "Acc. Vol (kv)="};

  // The detector in degrees and millimetres
  TextBox Text3{*this, "Text3", "Area (deg.)="};
  TextBox Text14{*this, "Text14", "X-shift(deg)="};
  TextBox Text15{*this, "Text15", "Y-shift(deg)="};
  TextBox Text12{*this, "Text12", "Detector Position (mm) ="};
  TextBox Text13{*this, "Text13", "X-shift(mm)="};
  TextBox Text16{*this, "Text16", "Y-shift(mm)="};
  Label Label4{*this, "Label4", "(enter required)"};
  TextBox Text4{*this, "Text4", "WD change (mm) ="};
  TextBox Text7{*this, "Text7", "Detector incline (deg)="};

  // Calibration on Si(001)
  Frame Frame1{*this, "Frame1"};
  OptionButton Option1{*this, "Option1", "<001>"};
  OptionButton Option2{*this, "Option2", "<112>"};
  OptionButton Option3{*this, "Option3", "<111>"};
  CommandButton Command9{*this, "Command9", "Calc"};
  ControlArray<CommandButton> Command10{*this, "Command10", 4};  // marker down, left, right, up

  // Matching
  TextBox Text1{*this, "Text1", "Tolerance(deg.)="};
  CheckBox Check1{*this, "Check1", "Omit eqivalent. direction"};
  CheckBox Check2{*this, "Check2", "Consider band width (6 lines required))"};
  Label Label16{*this, "Label16", "Width tolerance (%) ="};
  TextBox Text17{*this, "Text17", "Width tolerance (%) ="};
  CommandButton Command1{*this, "Command1", "CALC"};
  ControlArray<Label> Label1{*this, "Label1", 3};               // the bands, or the rotation that each asks for
  Label Heading{*this, "Heading", solution_heading(0, false)};  // of the columns of List1
  ListBox List1{*this, "List1"};                                // solutions, then their number
  ProgressBar ProgressBar1{*this, "ProgressBar1"};
  ProgressBar ProgressBar2{*this, "ProgressBar2"};

  // Adjustment of the detector parameters
  TextBox Text6{*this, "Text6"};                // AcqStep
  CommandButton Command7{*this, "Command7"};    // acquisition angle up
  CommandButton Command8{*this, "Command8"};    // acquisition angle down
  TextBox Text8{*this, "Text8"};                // XShiftStep
  CommandButton Command11{*this, "Command11"};  // x shift up
  CommandButton Command12{*this, "Command12"};  // x shift down
  TextBox Text9{*this, "Text9"};                // YShiftStep
  CommandButton Command13{*this, "Command13"};  // y shift up
  CommandButton Command14{*this, "Command14"};  // y shift down
  TextBox Text10{*this, "Text10"};              // AdjustSteps
  TextBox Text11{*this, "Text11"};              // AdjustSolution
  CommandButton Command15{*this, "Command15", "Search"};

  MenuItem ImageLoad{*this, "ImageLoad", "LOAD", "Image"};
  MenuItem ImageSAve{*this, "ImageSAve", "SAVE", "Image"};
  MenuItem Imageclear{*this, "Imageclear", "CLEAR", "Image"};
  MenuItem ImageFlip{*this, "ImageFlip", "FLIP", "Image"};
  MenuItem ImageMirror{*this, "ImageMirror", "MIRROR", "Image"};
  MenuItem Imatch{*this, "Imatch", "Matching Method", "Option"};
  MenuItem CorrectFile{*this, "CorrectFile", "Correct File", "Option"};
  MenuItem AutomaticIndexing{*this, "AutomaticIndexing", "Automatic indexing", "Option"};
  MenuItem CPS_Si001{*this, "CPS_Si001", "Si(001)", "Camera_Parameters_Set"};
  MenuItem CP_Setting_Show{*this, "CP_Setting_Show", "Parameter_Adjust", "Camera_Parameters_Set"};
  MenuItem CenterPosition{*this, "CenterPosition", "Center Position ", "Camera_Parameters_Set"};

  FileDialog CommonDialog1;

  Single NhklWanted = 0;  ///< reflections that the user asks for
  Single NhklUsed = 0;    ///< reflections that are taken: the wanted ones extended over ties
  TripleTable triples;

  PickedLines lines;
  BoundedArray<String> LineLabel{"LineLabel", 11};  ///< line i has entries 2i and 2i + 1
  BoundedArray<Colour> LineColor{"LineColor", 5};
  Integer Dragging;           ///< 1 between mouse down and up
  Integer DragEnd, DragLine;  ///< the end being moved
  Integer SiMode;             ///< 1 while clicks set the markers of the calibration
  Integer CenterMode;         ///< 1 while a click sets the pattern centre
  String ImageFile;
  String CorrectorFile;

  MeasuredBands bands;
  Single AngleTol = 0;  ///< degrees
  Integer MatchMode;    ///< 0 triangle and direction, 1 only triangle
  Integer EquivMode;    ///< asked for and kept; nothing reads it
  SolutionTable solutions;

  Double AcqStep = 0;  ///< degrees, like the two below
  Double XShiftStep = 0;
  Single YShiftStep = 0;
  Integer AdjustSteps;     ///< of the search, to each side
  Integer AdjustSolution;  ///< number of the solution that is adjusted for
  Integer AdjustShown;     ///< 1 while matching looks only for that solution
  Single BestError = 0;    ///< squared degrees

  WorkingDistance working_distance;
  SiMarkers markers;
  SiCalibration calibration;

 private:
  void name_fields();
  void declare_guards(const Workbench& bench);
  [[nodiscard]] std::shared_ptr<const ListColumns> solution_table(const CrystalState& seen) const;
  [[nodiscard]] std::string lines_missing() const;
  /// An element of a triple table under its name.
  template <auto element>
  void add_triples(const char* name) {
    fields().add_computed(name, 2,
                          [this](std::span<const int> at) { return shown_text((triples.*element)(at[0], at[1])); });
  }
};

}  // namespace zol
