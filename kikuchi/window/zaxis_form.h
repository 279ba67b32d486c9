// The map of zone axes around the present one.
#pragma once

#include <cmath>

#include "shell/services/guards.h"
#include "shell/services/place_text.h"
#include "shell/services/window_services.h"
#include "shell/services/workbench.h"

namespace zol {

struct ZaxisForm : Window {
  static constexpr auto window_name = "Zaxis";
  static constexpr bool shows_crystal_data = true;

  explicit ZaxisForm(Workbench& bench)
      : Window(window_name, "Zone Axis"),
        Picture1(*this, bench.services, "Picture1", 6360, 6360),
        CommonDialog1(*this, bench.services, "CommonDialog1") {
    Picture1.describe_place = [this](double x, double y) {
      const double radius = std::hypot(x, y);
      if (radius > 1) return std::string("beyond the half sphere");
      return direction_text(Check2.checked() ? radius * 90 : std::asin(radius) / degree, x, y);
    };
    Picture1.hint = "Calc of the Kikuchi window fills the map";
    Picture1.geometry =
        PictureGeometry{.direction = [this](double x, double y) { return direction_of_map(x, y, Check2.checked()); },
                        .circle = [this](double angle_deg) { return map_circle(angle_deg, Check2.checked()); }};
    fields().add("KeepMap", KeepMap);
    fields().add("MapScale", MapScale);
    beside = "Pattern2";  // whose drawing shows it
    // As it starts; no event comes of it.
    for (TextBox* limit : {&Text1, &Text2, &Text3}) limit->set_text("1");
    Option1.set_on(true);
    declare(bench.seen());
  }

  TextBox Text1{*this, "Text1", "U Max="};
  TextBox Text2{*this, "Text2", "V Max="};
  TextBox Text3{*this, "Text3", "W Max="};
  TextBox Text4{*this, "Text4", "[uvw]"};  // direction to look up; the caption is for all three
  TextBox Text5{*this, "Text5"};
  TextBox Text6{*this, "Text6"};
  TextBox Text7{*this, "Text7", "Phi"};    // azimuth, degrees
  TextBox Text8{*this, "Text8", "Theta"};  // latitude, degrees
  CommandButton Command1{*this, "Command1", "PLOT"};
  CommandButton Command2{*this, "Command2", "Zoom Up"};
  CommandButton Command3{*this, "Command3", "Zoom Dwn"};
  CheckBox Check1{*this, "Check1", "Draw the southern semisphere"};
  CheckBox Check2{*this, "Check2", "Theta as latitude"};
  CheckBox Check3{*this, "Check3", "Show [uvw] on Kikuchi pattern"};
  OptionButton Option1{*this, "Option1", "Detecter normal"};
  OptionButton Option2{*this, "Option2", "Substrate normal"};
  ControlArray<Label> Label_theta{*this, "Label_theta", 6};  // [100] [010] [001] [110] [101] [011]
  ControlArray<Label> Label_phi{*this, "Label_phi", 6};
  Canvas Picture1;
  MenuItem SaveMap{*this, "SaveMap", "SAVE MAP", "Map"};

  FileDialog CommonDialog1;

  Integer KeepMap;         ///< 1 while the map is drawn over the present picture
  Single MapScale = 1.3F;  ///< half width of the picture; the unit circle has radius 1

 private:
  void declare(const CrystalState& seen) {
    using namespace guard;
    const Reason undrawn = [&seen] { return first_of({no_cell(seen), no_zone_axis(seen)}); };
    warn({&Command3, &Check1, &Check2, &Check3, &Option1, &Option2}, undrawn);
    Command2.warn_when = [this, undrawn] {
      constexpr double least = 0.15;  // the next step of 0.1 would reach 0
      return first_of({undrawn(), when(MapScale < least, "the map cannot be made larger: it would turn over")});
    };
    for (TextBox* limit : {&Text1, &Text2, &Text3}) whole_number(*limit);
    for (TextBox* box : {&Text1, &Text2, &Text3, &Text4, &Text5, &Text6}) {
      box->warn_text = [undrawn, earlier = box->warn_text](const std::string& text) {
        return first_of({undrawn(), earlier ? earlier(text) : ""});
      };
    }
    Picture1.made_from = Origin{{inputs::crystal(), inputs::settings({"ZoneU", "ZoneV", "ZoneW", "PatternAngle",
                                                                      "CamNormal", "OriginH", "OriginK", "OriginL"})}};
    reads = {shared::zone_axis, shared::turn};
  }
};

}  // namespace zol
