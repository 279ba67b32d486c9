#include "kikuchi/window/pattern2_form.h"

#include <cmath>

#include "shell/services/guards.h"
#include "shell/services/list_columns.h"
#include "shell/services/place_text.h"

namespace zol {

Pattern2Form::Pattern2Form(Workbench& bench)
    : Window(window_name, "KIKUCHI PATTERN"),
      Picture1(*this, bench.services, "Picture1", 7740, 7740),
      CommonDialog1(*this, bench.services, "CommonDialog1") {
  Picture1.describe_place = [](double x, double y) {
    return direction_text(std::atan(std::hypot(x, y)) / degree, x, y);
  };
  Picture1.hint = "Type a direction and press Calc";
  const CrystalState& seen = bench.seen();
  Picture1.geometry = PictureGeometry{.direction = direction_of_gnomonic,
                                      .circle = [](double angle_deg) { return std::tan(angle_deg * degree); },
                                      .wavelength = [&seen] { return double{seen.WaveLength}; }};
  Picture1.rows = &List1;
  fields().add("ImageMark", ImageMark);
  fields().add("RotationPitch", RotationPitch);
  fields().add("ShiftPitch", ShiftPitch);
  fields().add("ZoomRatio", ZoomRatio);
  declare_guards(bench.seen());
  declare_results();
}

void Pattern2Form::declare_guards(const CrystalState& seen) {
  using namespace guard;
  const Reason undrawn = [&seen] { return first_of({no_cell(seen), no_reflections(seen), no_zone_axis(seen)}); };
  warn({&Command8, &Command3, &Command6, &Command7, &Command9, &Command10, &Command11, &Command12, &Command14,
        &Command15, &Command17, &Text5, &Imagesize},
       undrawn);
  Command2.warn_when = [this, undrawn] {
    return first_of({undrawn(), when(ZoomRatio == 0, "the zoom pitch is 0 (Option, Zoom pitch)")});
  };
  const Reason untilted = [&seen, undrawn] {
    const bool unmarked = seen.OriginH == 0 && seen.OriginK == 0 && seen.OriginL == 0;
    return first_of({undrawn(), when(unmarked, "nothing is drawn yet: \"Calc\" first")});
  };
  for (int i = 0; i < Command1.count(); ++i) Command1(i).warn_when = untilted;
  warn({&Command18, &Text22, &Text23, &Picture1}, untilted);
  Command4.warn_when = [this, &seen] {
    return first_of({no_cell(seen), no_reflections(seen),
                     when(all_zero({&Text6, &Text7, &Text8}), "no axis has been found: click the picture first")});
  };
  warn({&Command13, &Text13}, [this, undrawn] {
    return first_of({undrawn(), when(all_zero({&Text11, &Text12, &Text13}), "h, k, l of the mark are 0 0 0")});
  });
  List1.warn_row = [&seen](int row) {
    const auto& bands = seen.BandHKL;
    const bool known =
        row >= 0 && row <= bands.upper_row() && (bands(row, 0) != 0 || bands(row, 1) != 0 || bands(row, 2) != 0);
    return when(!known, "the bands are those of a list that is gone: draw them again");
  };
  for (TextBox* box : {&Text2, &Text11, &Text12, &Text13}) whole_number(*box);
}

void Pattern2Form::declare_results() {
  const Origin drawn{
      {inputs::settings(
          {"CamAcquisition", "CamXShift", "CamYShift", "CamXYRatio", "PatternAngle", "ZoneU", "ZoneV", "ZoneW"},
          {&Text2, &Text19, &Text9, &Text10, &Option1, &Option2, &Check1, &Check3, &Check5, &Check6})},
      {&Command8},
      "Main1.List2"};
  Picture1.made_from = drawn;
  List1.made_from = drawn.without_button();
  List1.table = std::make_shared<const ListColumns>(ListColumns{"Bands", always({{"number", "", 4},
                                                                                 {"h", "", 4},
                                                                                 {"k", "", 4},
                                                                                 {"l", "", 4},
                                                                                 {"latitude", "°", 6},
                                                                                 {"azimuth", "°", 6},
                                                                                 {"grey", "", 4}})});
  reads = {shared::radiation, shared::half_angle, shared::shifts, shared::zone_axis, shared::turn, shared::order};
}

}  // namespace zol
