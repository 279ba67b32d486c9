// Turning a picture after the pointer by the buttons that turn it.
#pragma once

#include <optional>
#include <vector>

#include "shell/services/picture_marks.h"

namespace zol {

class TurnDrag {
 public:
  /// @param buttons    their degrees in pitches
  /// @param pitch_deg  with 0 nothing turns
  void begin(double x, double y, std::vector<TurnButton> buttons, double pitch_deg);
  /// The next click towards this place, around the origin.
  [[nodiscard]] std::optional<DragStep> next(double x, double y);

 private:
  std::vector<TurnButton> buttons_;
  double at_deg_ = 0;    ///< azimuth of the pointer
  double left_deg_ = 0;  ///< still to be turned
};

}  // namespace zol
