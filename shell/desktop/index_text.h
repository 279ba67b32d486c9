// Indices with a bar over the negative ones.
#pragma once

#include <QFontMetricsF>
#include <QPainter>

#include "shell/services/picture_marks.h"

namespace zol {

[[nodiscard]] QSizeF index_text_size(const QFontMetricsF& metrics, const PictureMark& mark);
/// With the painter's font and pen.
void draw_index_text(QPainter& painter, QPointF top_left, const PictureMark& mark);

}  // namespace zol
