#include "shell/services/turn_drag.h"

#include <cmath>
#include <numbers>
#include <utility>

namespace zol {
namespace {

double azimuth_deg(double x, double y) { return std::atan2(y, x) * 180 / std::numbers::pi; }

}  // namespace

void TurnDrag::begin(double x, double y, std::vector<TurnButton> buttons, double pitch_deg) {
  buttons_ = std::move(buttons);
  for (TurnButton& turn : buttons_) turn.degrees *= pitch_deg;
  at_deg_ = azimuth_deg(x, y);
  left_deg_ = 0;
}

std::optional<DragStep> TurnDrag::next(double x, double y) {
  constexpr double whole_turn = 360;
  const double to_deg = azimuth_deg(x, y);
  left_deg_ += std::remainder(to_deg - at_deg_, whole_turn);
  at_deg_ = to_deg;
  const TurnButton* turn = button_towards(buttons_, left_deg_);
  if (turn == nullptr) return std::nullopt;
  left_deg_ -= turn->degrees;
  return DragStep{{}, turn->button};
}

}  // namespace zol
