#include "spots/window/spots_drag.h"

#include <cmath>
#include <numbers>

#include "core/number_text.h"
#include "core/run_failure.h"

namespace zol {

void SpotsDrag::begin(double x, double y, bool turns) {
  turns_ = turns;
  from_x_ = x;
  from_y_ = y;
  frame_.reset();
  if (turns) return turn_.begin(x, y, turning_, form_.RotationPitch);
  if (!tilts_) return;
  try {
    frame_ = picture_frame(bench_.seen());
  } catch (const RunFailure&) {  // no cell, no axis: nothing to tilt
  }
}

std::optional<DragStep> SpotsDrag::next(double x, double y) {
  if (turns_) return turn_.next(x, y);
  const CrystalState& state = bench_.seen();
  const double half_width = state.CamAcquisition;
  if (!frame_ || !(half_width > 0)) return std::nullopt;
  constexpr double tilt_of_half_width = std::numbers::pi / 4;
  const double scale = tilt_of_half_width / half_width;
  const auto axis = axis_of_tilt(state, *frame_, scale * (x - from_x_), scale * (y - from_y_));
  if (axis == std::array<double, 3>{state.ZoneU, state.ZoneV, state.ZoneW}) return std::nullopt;
  return DragStep{
      {{&form_.Text3, plain_text(axis[0])}, {&form_.Text4, plain_text(axis[1])}, {&form_.Text5, plain_text(axis[2])}},
      &form_.Command8};
}

}  // namespace zol
