// Draws the list of a picture with a painter: for screens of any resolution and for vector files.
#pragma once

#include <functional>
#include <optional>
#include <utility>

#include <QColor>
#include <QFont>
#include <QImage>
#include <QLineF>
#include <QPainter>
#include <QRectF>

#include "core/task.h"
#include "shell/services/canvas.h"

namespace zol {

[[nodiscard]] QColor to_qt(Colour colour);

/// The font of texts in pictures, in canvas pixels (96 to the inch).
[[nodiscard]] QFont picture_font(double font_size_pt);

/// The part of a line inside a rectangle; none when nothing of it is.
/// Source: Liang & Barsky, ACM Transactions on Graphics 3 (1984) 1.
[[nodiscard]] std::optional<QLineF> clipped(const QLineF& line, const QRectF& inside);

/// Draws background, picture and all of the drawing list in canvas pixels; the painter's transformation does the rest.
/// Everything is clipped by geometry, since not every paint device clips.
/// @throws Cancelled  the task stops
void paint_canvas(QPainter& painter, Canvas& canvas, Task& task);

/// A picture for a view, drawn bit by bit and brought up to date when something was drawn besides: in its own size the
/// stored image and the overlay, otherwise the list at the resolution of the view.
class CanvasPainting {
 public:
  /// @param size  of the view
  CanvasPainting(Canvas& canvas, const QSize& size) : canvas_(canvas), image_(size, QImage::Format_RGB32) {}

  /// For pictures that follow the pointer: where the view does not show the picture in its own size, lines have no
  /// smoothing and are as thin as the screen can show them, which is many times as quick. They are drawn anew when that
  /// ends.
  void set_rough(bool rough) {
    if (std::exchange(rough_, rough && image_.size() != own_size()) && !rough) begun_ = false;
  }
  [[nodiscard]] bool rough() const { return rough_; }
  /// Draws until all is there or the answer is true. @returns whether all is there
  /// @throws RunFailure  the picture has a fault
  bool go_on(const std::function<bool()>& enough);
  /// The bare ground, for a picture that has a fault.
  void show_nothing();
  [[nodiscard]] const QImage& image() const { return image_; }

 private:
  [[nodiscard]] QSize own_size() const { return {canvas_.pixel_width(), canvas_.pixel_height()}; }
  void take_pixels();
  bool draw_list(const std::function<bool()>& enough);

  Canvas& canvas_;
  QImage image_;
  bool begun_ = false;
  bool rough_ = false;
  unsigned redrawn_ = 0;   ///< Canvas::redrawn() when the list was begun
  std::size_t drawn_ = 0;  ///< entries of the list
  UserScale scale_;        ///< in force after those
};

}  // namespace zol
