#include "shell/services/drawing.h"

#include <algorithm>
#include <utility>

namespace zol {
namespace {

constexpr double twips_per_pixel = 15.0;

int to_pixels(int twips) { return static_cast<int>(round_half_even(twips / twips_per_pixel)); }

}  // namespace

Drawing::Drawing(int width, int height)
    : width_twips(width),
      height_twips(height),
      scale{0, 0, static_cast<double>(width), static_cast<double>(height)},
      list_scale(scale) {}

int Drawing::pixel_width() const { return to_pixels(width_twips); }
int Drawing::pixel_height() const { return to_pixels(height_twips); }

void Drawing::clear() {
  list.clear();
  list_scale = scale;
}

void Drawing::set_scale(const UserScale& next) {
  scale = next;
  list.push_back({scale, pens.persistent});
}

void Drawing::move_to(double to_x, double to_y) {
  x = to_x;
  y = to_y;
}

void Drawing::line(double x1, double y1, double x2, double y2, std::optional<Colour> colour) {
  list.push_back({DrawnLine{x1, y1, x2, y2, colour.value_or(pens.fore)}, pens.persistent});
  move_to(x2, y2);
}

void Drawing::circle(double at_x, double at_y, double radius, std::optional<Colour> colour) {
  const auto fill = pens.solid_fill ? std::optional(pens.fill) : std::nullopt;
  list.push_back({DrawnCircle{at_x, at_y, radius, colour.value_or(pens.fore), fill}, pens.persistent});
  move_to(at_x, at_y);
}

void Drawing::set_point(double at_x, double at_y, std::optional<Colour> colour) {
  list.push_back({DrawnPoint{at_x, at_y, colour.value_or(pens.fore)}, pens.persistent});
  move_to(at_x, at_y);
}

void Drawing::print(std::string text) {
  list.push_back({DrawnText{x, y, pens.fore, std::move(text), pens.font_size_pt}, pens.persistent});
}

void Drawing::forget_stored() {
  std::erase_if(list.own(),
                [](const Primitive& entry) { return entry.stored && !std::holds_alternative<UserScale>(entry.what); });
}

bool Drawing::holds_stored() const {
  return std::any_of(list.begin(), list.end(), [](const Primitive& entry) { return entry.stored; });
}

std::optional<UserScale> Drawing::scale_without_area() const {
  const UserScale* in_force = &list_scale;
  for (const Primitive& primitive : list) {
    if (const auto* change = std::get_if<UserScale>(&primitive.what)) {
      in_force = change;
    } else if (!in_force->has_area()) {
      return *in_force;
    }
  }
  return std::nullopt;
}

}  // namespace zol
