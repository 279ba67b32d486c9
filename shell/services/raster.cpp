#include "shell/services/raster.h"

#include <cmath>
#include <utility>
#include <variant>

#include "core/run_aside.h"
#include "core/run_failure.h"
#include "shell/services/services.h"
#include "shell/services/workbench.h"

namespace zol {
namespace {

void paint(Surface& surface, const UserScale& scale, const Primitive& primitive) {
  if (!scale.has_area()) return;
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

void replay(Surface& surface, const Drawing& drawing, bool stored) {
  UserScale scale = drawing.list_scale;
  for (const Primitive& primitive : drawing.list) {
    if (const auto* change = std::get_if<UserScale>(&primitive.what)) {
      scale = *change;
    } else if (primitive.stored == stored) {
      paint(surface, scale, primitive);
    }
  }
}

}  // namespace

void Stored<std::shared_ptr<const Surface>>::store(StoreWriter& out, const std::shared_ptr<const Surface>& image) {
  zol::store(out, image != nullptr);
  if (image) image->store(out);
}

std::shared_ptr<const Surface> Stored<std::shared_ptr<const Surface>>::load(StoreReader& in) {
  if (!zol::load<bool>(in)) return nullptr;
  auto image = in.services() == nullptr ? nullptr : in.services()->make_surface(1, 1);
  if (!image) throw RunFailure("there are no pixel images here");
  image->load(in);
  return image;
}

PixelMap::PixelMap(const UserScale& scale, int width, int height)
    : left(scale.left),
      top(scale.top),
      per_x(width / (scale.right - scale.left)),
      per_y(height / (scale.bottom - scale.top)) {}

std::optional<int> pixel_index(double coordinate) {
  const double index = round_half_even(coordinate);
  if (!(index >= 0.0 && index < 1e6)) return std::nullopt;
  return static_cast<int>(index);
}

std::unique_ptr<Surface> Raster::copy_of(const Surface& image) const {
  auto copy = services_.make_surface(image.width(), image.height());
  copy->draw(image, false);
  return copy;
}

void Raster::set_picture(std::shared_ptr<const Surface> picture) {
  if (picture == picture_) return;
  picture_ = std::move(picture);
  grey_.reset();
}

std::shared_ptr<const GreyPicture> Raster::grey_picture() {
  if (grey_ || !picture_) return grey_;
  WindowTask task(services_);
  grey_ = run_aside<std::shared_ptr<const GreyPicture>>(
      task, [picture = picture_] { return std::make_shared<const GreyPicture>(picture->grey()); });
  return grey_;
}

bool Raster::make(const Drawing& drawing) {
  return make_some(drawing, [this] {
    if (services_.stop_wanted()) throw Cancelled();
    return false;
  });
}

bool Raster::make_some(const Drawing& drawing, const std::function<bool()>& enough) {
  if (made()) return true;
  if (!stored_) {
    auto stored = services_.make_surface(drawing.pixel_width(), drawing.pixel_height());
    auto overlay = services_.make_surface(drawing.pixel_width(), drawing.pixel_height());
    if (!stored || !overlay) return false;
    stored_ = std::move(stored);
    overlay_ = std::move(overlay);
    paint_base(drawing);
    overlay_->make_transparent();
    painted_ = 0;
    painted_scale_ = drawing.list_scale;
  }
  constexpr std::size_t between_questions = 16;
  for (; painted_ < drawing.list.size(); ++painted_) {
    if (painted_ % between_questions == between_questions - 1 && enough()) return true;
    const Primitive& primitive = drawing.list[painted_];
    if (const auto* change = std::get_if<UserScale>(&primitive.what)) {
      painted_scale_ = *change;
    } else {
      paint(primitive.stored ? *stored_ : *overlay_, painted_scale_, primitive);
    }
  }
  complete_ = true;
  return true;
}

void Raster::drop() {
  stored_.reset();
  overlay_.reset();
  complete_ = false;
}

void Raster::paint_base(const Drawing& drawing) {
  stored_->fill(drawing.pens.back);
  if (picture_) stored_->draw(*picture_, false);
}

void Raster::repaint_stored(const Drawing& drawing) {
  if (!made()) return drop();
  paint_base(drawing);
  replay(*stored_, drawing, true);
}

void Raster::clear_overlay() {
  if (overlay_) overlay_->make_transparent();
}

void Raster::paint_last(const Drawing& drawing) {
  const Primitive& primitive = drawing.list.back();
  paint(primitive.stored ? *stored_ : *overlay_, drawing.scale, primitive);
}

}  // namespace zol
