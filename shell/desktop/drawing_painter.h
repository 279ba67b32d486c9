// Draws the list of a picture with a painter: for screens of any resolution and for vector files.
#pragma once

#include <optional>

#include <QColor>
#include <QFont>
#include <QLineF>
#include <QPainter>
#include <QRectF>

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
void paint_canvas(QPainter& painter, Canvas& canvas);

}  // namespace zol
