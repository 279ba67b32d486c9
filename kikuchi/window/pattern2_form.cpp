#include "kikuchi/window/pattern2_form.h"

#include <cmath>

#include "shell/services/place_text.h"

namespace zol {

Pattern2Form::Pattern2Form(Workbench& bench)
    : Window(window_name, "KIKUCHI PATTERN"),
      Picture1(*this, bench.services, "Picture1", 7740, 7740),
      CommonDialog1(*this, bench.services, "CommonDialog1") {
  Picture1.describe_place = [](double x, double y) {
    return direction_text(std::atan(std::hypot(x, y)) / degree, x, y);
  };
  fields().add("ImageMark", ImageMark);
  fields().add("RotationPitch", RotationPitch);
  fields().add("ShiftPitch", ShiftPitch);
  fields().add("ZoomRatio", ZoomRatio);
}

}  // namespace zol
