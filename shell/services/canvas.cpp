#include "shell/services/canvas.h"

#include <algorithm>
#include <cmath>

#include "core/number_text.h"
#include "shell/services/services.h"
#include "shell/services/window.h"

namespace zol {
namespace {

constexpr double twips_per_pixel = 15.0;

int to_pixels(int twips) { return static_cast<int>(round_half_even(twips / twips_per_pixel)); }

/// User coordinates onto the pixels of a surface.
struct PixelMap {
  PixelMap(const UserScale& scale, int width, int height)
      : left(scale.left),
        top(scale.top),
        per_x(width / (scale.right - scale.left)),
        per_y(height / (scale.bottom - scale.top)) {}
  [[nodiscard]] double x(double user) const { return (user - left) * per_x; }
  [[nodiscard]] double y(double user) const { return (user - top) * per_y; }
  double left, top, per_x, per_y;
};

bool has_area(const UserScale& scale) { return scale.left != scale.right && scale.top != scale.bottom; }

std::string no_area(const Canvas& canvas, const UserScale& scale) {
  return "division by zero: the scale of the picture " + canvas.path() + " goes from " + plain_text(scale.left) +
         " to " + plain_text(scale.right) + " across and from " + plain_text(scale.top) + " to " +
         plain_text(scale.bottom) + " down, which leaves no room to draw";
}

/// Index of the pixel that a pixel coordinate falls on; none outside any image.
std::optional<int> pixel_index(double coordinate) {
  const double index = round_half_even(coordinate);
  if (!(index >= 0.0 && index < 1e6)) return std::nullopt;
  return static_cast<int>(index);
}

}  // namespace

Canvas::Canvas(Window& window, Services& services, std::string name, int width_twips, int height_twips)
    : Control(window, std::move(name), ControlKind::Canvas, ""),
      services_(services),
      width_(width_twips),
      height_(height_twips),
      scale_{0, 0, static_cast<double>(width_twips), static_cast<double>(height_twips)},
      list_scale_(scale_) {}

Canvas::~Canvas() = default;

void Canvas::clear() {
  if (persistent_) {
    raster_base_ = false;
  } else {
    const bool stored_drawing =
        std::any_of(drawing_.begin(), drawing_.end(), [](const Primitive& entry) { return entry.stored; });
    if (stored_drawing) {
      make_images();  // what was stored stays, though the list forgets it
      raster_base_ = true;
    }
  }
  drawing_.clear();
  list_scale_ = scale_;
  if (stored_) {
    if (persistent_) repaint_stored();
    overlay_->make_transparent();
  }
  changed();
}

void Canvas::scale(double left, double top, double right, double bottom) {
  scale_ = {left, top, right, bottom};
  drawing_.push_back({scale_, persistent_});
}

void Canvas::add(Primitive primitive) {
  primitive.stored = persistent_;
  if (!has_area(scale_) && !raster_base_) {
    stored_.reset();  // to be made anew, which fails for as long as this is on the list
    overlay_.reset();
  } else if (stored_) {
    paint(persistent_ ? *stored_ : *overlay_, scale_, primitive);
  }
  drawing_.push_back(std::move(primitive));
  changed();
}

std::string Canvas::fault() const {
  const UserScale* scale = &list_scale_;
  for (const Primitive& primitive : drawing_) {
    if (const auto* change = std::get_if<UserScale>(&primitive.what)) {
      scale = change;
    } else if (!has_area(*scale)) {
      return no_area(*this, *scale);
    }
  }
  return "";
}

void Canvas::move_to(double x, double y) {
  x_ = x;
  y_ = y;
}

void Canvas::line(double x1, double y1, double x2, double y2, std::optional<Colour> colour) {
  add({DrawnLine{x1, y1, x2, y2, colour.value_or(fore_colour_)}});
  move_to(x2, y2);
}

void Canvas::line_to(double x, double y, std::optional<Colour> colour) { line(x_, y_, x, y, colour); }

void Canvas::circle(double x, double y, double radius, std::optional<Colour> colour) {
  const auto fill = solid_fill_ ? std::optional(fill_colour_) : std::nullopt;
  add({DrawnCircle{x, y, radius, colour.value_or(fore_colour_), fill}});
  move_to(x, y);
}

void Canvas::set_point(double x, double y, std::optional<Colour> colour) {
  add({DrawnPoint{x, y, colour.value_or(fore_colour_)}});
  move_to(x, y);
}

Colour Canvas::point(double x, double y) {
  make_images();
  if (!has_area(scale_)) throw RunFailure(no_area(*this, scale_));
  const PixelMap map(scale_, pixel_width(), pixel_height());
  const auto column = pixel_index(map.x(x));
  const auto row = pixel_index(map.y(y));
  if (!column || !row || *column >= stored_->width() || *row >= stored_->height()) return -1;
  if (const auto above = overlay_->pixel(*column, *row)) return *above;
  return stored_->pixel(*column, *row).value_or(back_colour_);
}

void Canvas::print(std::string_view text) { add({DrawnText{x_, y_, fore_colour_, std::string(text), font_size_}}); }

void Canvas::set_back_colour(Colour colour) {
  back_colour_ = colour;
  if (stored_ && !raster_base_) repaint_stored();
  changed();
}

void Canvas::set_width(int twips) {
  width_ = twips;
  stored_.reset();
  overlay_.reset();
  changed();
}

void Canvas::set_height(int twips) {
  height_ = twips;
  stored_.reset();
  overlay_.reset();
  changed();
}

int Canvas::pixel_width() const { return to_pixels(width_); }
int Canvas::pixel_height() const { return to_pixels(height_); }

void Canvas::load_picture(const std::string& path) {
  auto picture = services_.make_surface(1, 1);
  if (!picture) throw RunFailure("can't load " + path + ": there are no pixel images here");
  picture->load_bitmap(path);
  picture_ = std::move(picture);
  show_picture();
}

void Canvas::take_picture(Canvas& other, bool upside_down) {
  const Surface& source = other.stored_image();
  auto picture = services_.make_surface(source.width(), source.height());
  picture->draw(source, upside_down);
  picture_ = std::move(picture);
  show_picture();
}

void Canvas::remove_picture() {
  picture_.reset();
  show_picture();
}

void Canvas::flip_picture() {
  if (!picture_) return;
  picture_->mirror(false, true);
  show_picture();
}

void Canvas::mirror_picture() {
  if (!picture_) return;
  picture_->mirror(true, false);
  show_picture();
}

void Canvas::edit_picture(const std::function<void(Surface&)>& edit) {
  const Surface& source = stored_image();
  auto picture = services_.make_surface(source.width(), source.height());
  picture->draw(source, false);
  edit(*picture);
  picture_ = std::move(picture);
  show_picture();
}

void Canvas::save_stored_image(const std::string& path) { stored_image().save_bitmap(path); }

void Canvas::save_image_with_overlay(const std::string& path) {
  make_images();
  auto both = services_.make_surface(pixel_width(), pixel_height());
  both->draw(*stored_, false);
  both->draw(*overlay_, false);
  both->save_bitmap(path);
}

void Canvas::set_mouse_pointer(MousePointer pointer) {
  mouse_pointer_ = pointer;
  changed();
}

Surface& Canvas::stored_image() {
  make_images();
  return *stored_;
}

Surface& Canvas::overlay_image() {
  make_images();
  return *overlay_;
}

void Canvas::make_images() {
  if (stored_) return;
  if (const std::string reason = fault(); !reason.empty()) throw RunFailure(reason);
  auto stored = services_.make_surface(pixel_width(), pixel_height());
  auto overlay = services_.make_surface(pixel_width(), pixel_height());
  if (!stored || !overlay) throw RunFailure("the picture " + path() + " has no pixels here");
  stored_ = std::move(stored);
  overlay_ = std::move(overlay);
  repaint_stored();
  overlay_->make_transparent();
  replay(*overlay_, false);
}

void Canvas::repaint_stored() {
  if (!stored_) return;
  stored_->fill(back_colour_);
  if (picture_) stored_->draw(*picture_, false);
  replay(*stored_, true);
}

void Canvas::show_picture() {
  raster_base_ = false;
  std::erase_if(drawing_,
                [](const Primitive& entry) { return entry.stored && !std::holds_alternative<UserScale>(entry.what); });
  repaint_stored();
  changed();
}

void Canvas::replay(Surface& surface, bool stored) const {
  UserScale scale = list_scale_;
  for (const Primitive& primitive : drawing_) {
    if (const auto* change = std::get_if<UserScale>(&primitive.what)) {
      scale = *change;
    } else if (primitive.stored == stored) {
      paint(surface, scale, primitive);
    }
  }
}

void Canvas::paint(Surface& surface, const UserScale& scale, const Primitive& primitive) {
  if (!has_area(scale)) return;
  const PixelMap map(scale, surface.width(), surface.height());
  if (const auto* line = std::get_if<DrawnLine>(&primitive.what)) {
    surface.line(map.x(line->x1), map.y(line->y1), map.x(line->x2), map.y(line->y2), line->colour);
  } else if (const auto* circle = std::get_if<DrawnCircle>(&primitive.what)) {
    surface.circle(map.x(circle->x), map.y(circle->y), std::abs(circle->radius * map.per_x), circle->colour,
                   circle->fill);
  } else if (const auto* point = std::get_if<DrawnPoint>(&primitive.what)) {
    const auto column = pixel_index(map.x(point->x));
    const auto row = pixel_index(map.y(point->y));
    if (column && row && *column < surface.width() && *row < surface.height()) {
      surface.set_pixel(*column, *row, point->colour);
    }
  } else if (const auto* text = std::get_if<DrawnText>(&primitive.what)) {
    surface.text(map.x(text->x), map.y(text->y), text->text, text->colour, text->font_size_pt);
  }
}

}  // namespace zol
