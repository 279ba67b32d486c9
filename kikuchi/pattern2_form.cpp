#include "kikuchi/pattern2_form.h"

namespace zol {

Pattern2Form::Pattern2Form(Workbench& bench)
    : Window(window_name, "KIKUCHI PATTERN"),
      Picture1(*this, bench.services, "Picture1", 7740, 7740),
      CommonDialog1(bench.services) {
  fields().add("ImageMark", ImageMark);
  fields().add("RotationPitch", RotationPitch);
  fields().add("ShiftPitch", ShiftPitch);
  fields().add("ZoomRatio", ZoomRatio);
}

}  // namespace zol
