// The window that shows the dynamical master pattern of the crystal: flat, or as a globe that the mouse turns.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "dynamics/sphere_names.h"
#include "dynamics/sphere_view.h"
#include "shell/services/window_services.h"
#include "shell/services/workbench.h"

namespace zol {

/// A master pattern that was made, and what is written over it.
struct ShownMaster {
  std::string key;    ///< of all that it was made of
  std::string title;  ///< of the crystal
  MasterPattern master;
  std::vector<NamedBand> bands;
  std::vector<NamedAxis> axes;        ///< written into the picture
  std::vector<NamedAxis> known_axes;  ///< that places are told by
};

/// What is in the picture; kept with the window.
struct DrawnMaster {
  std::string key;  ///< of its pattern; empty: nothing is drawn
  SphereProjection projection = SphereProjection::Stereographic;
  bool south = false;
  std::array<double, 3> middle{0, 0, 1};  ///< of the globe, u v w
  double turn_deg = 0;
  bool operator==(const DrawnMaster&) const = default;
};

struct MasterPatternForm : Window {
  static constexpr auto window_name = "MasterPattern";
  static constexpr bool shows_crystal_data = true;

  explicit MasterPatternForm(Workbench& bench);

  TextBox Voltage{*this, "Voltage", "Voltage (kV):"};
  TextBox Depth{*this, "Depth", "Mean depth (nm):"};
  TextBox Points{*this, "Points", "Points along a side:"};
  CommandButton Make{*this, "Make", "Make"};
  OptionButton Stereographic{*this, "Stereographic", "Stereographic", "projection"};
  OptionButton Lambert{*this, "Lambert", "Equal area (square)", "projection"};
  OptionButton Globe{*this, "Globe", "Sphere", "projection"};
  OptionButton North{*this, "North", "North", "half"};
  OptionButton South{*this, "South", "South", "half"};
  CheckBox ZoneAxes{*this, "ZoneAxes", "Zone axes"};
  CheckBox Bands{*this, "Bands", "Bands"};
  TextBox MiddleU{*this, "MiddleU", "u="};
  TextBox MiddleV{*this, "MiddleV", "v="};
  TextBox MiddleW{*this, "MiddleW", "w="};
  TextBox TurnAngle{*this, "TurnAngle", "Turned by (deg):"};
  CommandButton TurnSphere{*this, "TurnSphere", "Turn"};
  Label Status{*this, "Status"};  // what is drawn, or why not
  Label Place{*this, "Place"};    // the direction that was clicked
  Canvas Picture;
  MenuItem SavePicture{*this, "SavePicture", "Save picture...", "Picture"};

  FileDialog CommonDialog1;

  DrawnMaster drawn;
  std::vector<std::shared_ptr<const ShownMaster>> ready;  ///< the last one first; made again where it is missing
};

}  // namespace zol
