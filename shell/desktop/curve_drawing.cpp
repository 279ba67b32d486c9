#include "shell/desktop/curve_drawing.h"

#include <QFontMetricsF>

namespace zol {

FileDrawing curve_drawing(const Canvas& canvas, const CurveScene& scene, const CurveLook& look, QFont font,
                          const QString& caption) {
  constexpr int pixels = 12;
  font.setPixelSize(pixels);
  const QFontMetricsF metrics(font);
  const QMarginsF margins = CurvePainter::margins(canvas, font);
  const QRectF picture(margins.left(), margins.top(), canvas.pixel_width(), canvas.pixel_height());
  QSizeF size = picture.marginsAdded(margins).size();
  const QRectF words = caption.isEmpty() ? QRectF()
                                         : metrics.boundingRect(QRectF(0, size.height(), size.width(), size.height()),
                                                                Qt::TextWordWrap, caption);
  size.rheight() += words.height();
  return {size, QString::fromStdString(canvas.path()),
          [&canvas, &scene, &look, font, picture, words, caption](QPainter& to) {
            CurvePainter(canvas, scene, look, picture, font).paint(to, Qt::black);
            to.setPen(Qt::black);
            to.setFont(font);
            if (!caption.isEmpty()) to.drawText(words, Qt::TextWordWrap, caption);
          }};
}

}  // namespace zol
