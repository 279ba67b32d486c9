#include "shell/services/canvas.h"

#include <cmath>

#include "core/number_text.h"
#include "core/run_aside.h"
#include "shell/services/services.h"
#include "shell/services/window.h"
#include "shell/services/workbench.h"

namespace zol {
namespace {

std::string no_area(const Canvas& canvas, const UserScale& scale) {
  return "division by zero: the scale of the picture " + canvas.path() + " goes from " + plain_text(scale.left) +
         " to " + plain_text(scale.right) + " across and from " + plain_text(scale.top) + " to " +
         plain_text(scale.bottom) + " down, which leaves no room to draw";
}

}  // namespace

Canvas::Canvas(Window& window, Services& services, std::string name, int width_twips, int height_twips)
    : Control(window, std::move(name), ControlKind::Canvas, ""),
      services_(services),
      drawing_(width_twips, height_twips),
      raster_(services) {}

Canvas::~Canvas() = default;

Canvas::Contents Canvas::contents() const {
  std::shared_ptr<const Surface> stored;
  if (raster_.has_base() && raster_.made()) stored = raster_.copy_of(raster_.stored());
  return {drawing_, raster_.picture(), raster_.has_base(), stored, mouse_pointer_, marks_};
}

void Canvas::set_contents(const Contents& contents) {
  ++redrawn_;
  drawing_ = contents.drawing;
  raster_.set_picture(contents.picture);
  raster_.drop();
  raster_.set_base(contents.raster_base);
  if (contents.stored && raster_.make_some(drawing_, [] { return false; })) {
    raster_.stored().draw(*contents.stored, false);
  }
  mouse_pointer_ = contents.mouse_pointer;
  marks_ = contents.marks;
  changed();
}

void Canvas::clear() {
  ++redrawn_;
  const bool persistent = drawing_.pens.persistent;
  if (persistent) {
    raster_.set_base(false);
  } else if (drawing_.holds_stored()) {
    make_images();  // what was stored stays, though the list forgets it
    raster_.set_base(true);
  }
  drawing_.clear();
  marks_.clear();
  ++begun_;
  if (raster_.made()) {
    if (persistent) raster_.repaint_stored(drawing_);
    raster_.clear_overlay();
  } else {
    raster_.drop();  // half made
  }
  changed();
}

void Canvas::scale(double left, double top, double right, double bottom) {
  drawing_.set_scale({left, top, right, bottom});
  touched();
}

/// The last entry of the list is new.
void Canvas::drawn() {
  if (!drawing_.scale.has_area() && !raster_.has_base()) {
    raster_.drop();  // to be made anew, which fails for as long as this is on the list
  } else if (raster_.made()) {
    raster_.paint_last(drawing_);
  }
  changed();
}

std::string Canvas::fault() const {
  const auto scale = drawing_.scale_without_area();
  return scale ? no_area(*this, *scale) : "";
}

void Canvas::move_to(double x, double y) {
  drawing_.move_to(x, y);
  touched();
}

void Canvas::line(double x1, double y1, double x2, double y2, std::optional<Colour> colour) {
  drawing_.line(x1, y1, x2, y2, colour);
  drawn();
}

void Canvas::line_to(double x, double y, std::optional<Colour> colour) { line(drawing_.x, drawing_.y, x, y, colour); }

void Canvas::circle(double x, double y, double radius, std::optional<Colour> colour) {
  drawing_.circle(x, y, radius, colour);
  drawn();
}

void Canvas::set_point(double x, double y, std::optional<Colour> colour) {
  drawing_.set_point(x, y, colour);
  drawn();
}

Colour Canvas::point(double x, double y) {
  make_images();
  if (!drawing_.scale.has_area()) throw RunFailure(no_area(*this, drawing_.scale));
  const PixelMap map(drawing_.scale, pixel_width(), pixel_height());
  const auto column = pixel_index(map.x(x));
  const auto row = pixel_index(map.y(y));
  const Surface& stored = raster_.stored();
  if (!column || !row || *column >= stored.width() || *row >= stored.height()) return -1;
  if (const auto above = raster_.overlay().pixel(*column, *row)) return *above;
  return stored.pixel(*column, *row).value_or(drawing_.pens.back);
}

void Canvas::print(std::string_view text) {
  drawing_.print(std::string(text));
  drawn();
}

void Canvas::set_back_colour(Colour colour) {
  ++redrawn_;
  drawing_.pens.back = colour;
  if (!raster_.has_base()) raster_.repaint_stored(drawing_);
  changed();
}

void Canvas::set_width(int twips) {
  ++redrawn_;
  drawing_.width_twips = twips;
  raster_.drop();
  changed();
}

void Canvas::set_height(int twips) {
  ++redrawn_;
  drawing_.height_twips = twips;
  raster_.drop();
  changed();
}

void Canvas::load_picture(const std::string& path) {
  auto picture = services_.make_surface(1, 1);
  if (!picture) throw RunFailure("cannot load " + path + ": there are no pixel images here");
  WindowTask task(services_);
  const auto loaded = run_aside<std::shared_ptr<Surface>>(task, [path, picture = std::shared_ptr(std::move(picture))] {
    picture->load(path);
    return picture;
  });
  raster_.set_picture(loaded);
  show_picture();
}

void Canvas::take_picture(Canvas& other, bool upside_down) {
  const Surface& source = other.stored_image();
  auto picture = services_.make_surface(source.width(), source.height());
  picture->draw(source, upside_down);
  raster_.set_picture(std::move(picture));
  show_picture();
}

void Canvas::remove_picture() {
  raster_.set_picture(nullptr);
  show_picture();
}

void Canvas::flip_picture() { turn_picture(false, true); }
void Canvas::mirror_picture() { turn_picture(true, false); }

void Canvas::turn_picture(bool left_to_right, bool upside_down) {
  if (!has_picture()) return;
  WindowTask task(services_);
  raster_.set_picture(run_aside<std::shared_ptr<const Surface>>(task, [=, picture = raster_.picture()] {
    return std::shared_ptr<const Surface>(picture->mirrored(left_to_right, upside_down));
  }));
  show_picture();
}

void Canvas::edit_picture(const std::function<void(Surface&)>& edit) {
  auto picture = raster_.copy_of(stored_image());
  edit(*picture);
  raster_.set_picture(std::move(picture));
  show_picture();
}

void Canvas::save_stored_image(const std::string& path) { stored_image().save_bitmap(path); }

void Canvas::save_image_with_overlay(const std::string& path) {
  const Surface& stored = stored_image();
  auto both = services_.make_surface(pixel_width(), pixel_height());
  both->draw(stored, false);
  both->draw(overlay_image(), false);
  both->save_bitmap(path);
}

void Canvas::set_mouse_pointer(MousePointer pointer) {
  mouse_pointer_ = pointer;
  changed();
}

Surface& Canvas::stored_image() {
  make_images();
  return raster_.stored();
}

Surface& Canvas::overlay_image() {
  make_images();
  return raster_.overlay();
}

bool Canvas::make_some_images(const std::function<bool()>& enough) {
  if (raster_.made()) return true;
  if (raster_.begun()) return raster_.make_some(drawing_, enough) && raster_.made();
  if (const std::string reason = fault(); !reason.empty()) throw RunFailure(reason);
  if (!raster_.make_some(drawing_, enough)) throw RunFailure("the picture " + path() + " has no pixels here");
  return raster_.made();
}

void Canvas::make_images() {
  if (raster_.made()) return;
  if (const std::string reason = fault(); !reason.empty()) throw RunFailure(reason);
  if (!raster_.make(drawing_)) throw RunFailure("the picture " + path() + " has no pixels here");
}

void Canvas::show_picture() {
  ++redrawn_;
  raster_.set_base(false);
  drawing_.forget_stored();
  raster_.repaint_stored(drawing_);
  changed();
}

}  // namespace zol
