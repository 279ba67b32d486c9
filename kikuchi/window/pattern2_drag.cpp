#include "kikuchi/window/pattern2_drag.h"

#include <cmath>

#include "core/numbers.h"

namespace zol {

void Pattern2Drag::begin(double x, double y, bool turns) {
  turns_ = turns;
  from_x_ = x;
  from_y_ = y;
  if (!turns) return;
  constexpr double coarse = 10;
  constexpr double fine = 0.1;
  turn_.begin(x, y,
              {{&form_.Command9, -coarse},
               {&form_.Command10, coarse},
               {&form_.Command6, -1},
               {&form_.Command7, 1},
               {&form_.Command11, -fine},
               {&form_.Command12, fine}},
              form_.RotationPitch);
}

std::optional<DragStep> Pattern2Drag::next(double x, double y) {
  if (turns_) return turn_.next(x, y);
  const double step = std::tan(form_.ShiftPitch * degree);
  if (!(step > 0)) return std::nullopt;
  enum Arrow { right, up, left, down };
  const double across = (x - from_x_) / step;
  const double upward = (y - from_y_) / step;
  constexpr double enough = 0.5;
  if (std::max(std::abs(across), std::abs(upward)) < enough) return std::nullopt;
  const bool sideways = std::abs(across) >= std::abs(upward);
  const double sign = (sideways ? across : upward) > 0 ? 1 : -1;
  (sideways ? from_x_ : from_y_) += sign * step;
  if (sideways) return DragStep{{}, &form_.Command1(sign > 0 ? right : left)};
  return DragStep{{}, &form_.Command1(sign > 0 ? up : down)};
}

}  // namespace zol
