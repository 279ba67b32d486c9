// Dragging over the Kikuchi pattern: a drag tilts by the arrow buttons, a drag with Ctrl turns.
#pragma once

#include <optional>

#include "kikuchi/window/pattern2_form.h"
#include "shell/services/turn_drag.h"

namespace zol {

class Pattern2Drag : public PictureDrag {
 public:
  explicit Pattern2Drag(Pattern2Form& form) : form_(form) {}
  void begin(double x, double y, bool turns) override;
  [[nodiscard]] std::optional<DragStep> next(double x, double y) override;

 private:
  Pattern2Form& form_;
  TurnDrag turn_;
  bool turns_ = false;
  double from_x_ = 0, from_y_ = 0;
};

}  // namespace zol
