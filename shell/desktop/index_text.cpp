#include "shell/desktop/index_text.h"

#include <array>
#include <cstdlib>

namespace zol {
namespace {

constexpr double bar_room = 2;

/// Numbers of two digits stand further apart.
double gap_of(const QFontMetricsF& metrics, const PictureMark& mark) {
  constexpr int digit = 9;
  const bool wide = std::abs(mark.h) > digit || std::abs(mark.k) > digit || std::abs(mark.l) > digit;
  return wide ? metrics.horizontalAdvance(u' ') : 1.5;
}

QString digits(int index) { return QString::number(std::abs(index)); }

}  // namespace

QSizeF index_text_size(const QFontMetricsF& metrics, const PictureMark& mark) {
  double width = 2 * gap_of(metrics, mark);
  for (const int index : {mark.h, mark.k, mark.l}) width += metrics.horizontalAdvance(digits(index));
  return {width, metrics.ascent() + bar_room};
}

void draw_index_text(QPainter& painter, QPointF top_left, const PictureMark& mark) {
  const QFontMetricsF metrics(painter.font());
  QPointF at = top_left + QPointF(0, bar_room + metrics.ascent() - 1);
  const double bar = at.y() - metrics.capHeight() - bar_room;
  for (const int index : {mark.h, mark.k, mark.l}) {
    const double width = metrics.horizontalAdvance(digits(index));
    painter.drawText(at, digits(index));
    if (index < 0) painter.drawLine(QPointF(at.x() + 0.5, bar), QPointF(at.x() + width - 0.5, bar));
    at.rx() += width + gap_of(metrics, mark);
  }
}

}  // namespace zol
