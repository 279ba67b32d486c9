#include "dynamics/window/globe_drag.h"

#include "core/number_text.h"

namespace zol {

void GlobeDrag::begin(double x, double y, bool turns) {
  taken_.reset();
  const auto shown = drawn_master(form_);
  if (!shown || form_.drawn.projection != SphereProjection::Globe) return;
  taken_ = drawn_view(form_, *shown).globe;
  cell_ = shown->master.cell;
  from_ = last_ = {x, y};
  spins_ = turns;
}

std::optional<DragStep> GlobeDrag::next(double x, double y) {
  const std::array<double, 2> to{x, y};
  if (!taken_ || to == last_) return std::nullopt;
  last_ = to;
  const Rotation globe = spins_ ? spun_globe(*taken_, from_, to) : dragged_globe(*taken_, from_, to);
  const Lattice lattice(cell_);
  // The turn counts from the direction as the boxes hold it.
  std::array<std::string, 3> texts;
  std::array<double, 3> typed{};
  const auto components = components_of(lattice, globe.row(2));
  for (std::size_t i = 0; i < 3; ++i) {
    texts[i] = component_text(components[i]);
    typed[i] = Val(texts[i]);
  }
  const double turn_deg = globe_turn_deg(globe, direction_of(lattice, typed));
  return DragStep{{{&form_.MiddleU, texts[0]},
                   {&form_.MiddleV, texts[1]},
                   {&form_.MiddleW, texts[2]},
                   {&form_.TurnAngle, Format(turn_deg, "0.0")}},
                  &form_.TurnSphere};
}

}  // namespace zol
