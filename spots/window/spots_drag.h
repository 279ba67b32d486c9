// Dragging over the spot pattern and the fiber texture: a drag tilts from zone axis to zone axis, a drag with Ctrl
// turns.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "shell/services/picture_marks.h"
#include "shell/services/turn_drag.h"
#include "spots/window/spots_form.h"
#include "spots/zone_tilt.h"

namespace zol {

class SpotsDrag : public PictureDrag {
 public:
  /// @param tilts    whether there is a zone axis to be tilted
  /// @param turning  the buttons that turn, in pitches, anticlockwise
  SpotsDrag(Workbench& bench, SpotsForm& form, bool tilts, std::vector<TurnButton> turning)
      : bench_(bench), form_(form), tilts_(tilts), turning_(std::move(turning)) {}
  void begin(double x, double y, bool turns) override;
  [[nodiscard]] std::optional<DragStep> next(double x, double y) override;

 private:
  Workbench& bench_;
  SpotsForm& form_;
  bool tilts_;
  std::vector<TurnButton> turning_;
  TurnDrag turn_;
  bool turns_ = false;
  double from_x_ = 0, from_y_ = 0;
  std::optional<PictureFrame> frame_;
};

}  // namespace zol
