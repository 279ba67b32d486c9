// The axes around a curve.
#include <algorithm>
#include <cmath>

#include <QFontMetricsF>

#include "core/number_text.h"
#include "shell/desktop/curve_painter.h"
#include "shell/desktop/qt_text.h"

namespace zol {
namespace {

using curve_room::large_tick;
constexpr double small_tick = 3;  // pixels
using curve_room::gap;

QString title_of(const Axis& axis) { return to_qt(axis.quantity + " (" + axis.unit + ")"); }

/// How many large ticks have room. @param wanted  pixels for one of them
int room_for(double length, double wanted) { return std::max(1, static_cast<int>(length / wanted)); }

}  // namespace

void CurvePainter::paint_x_axis(QPainter& painter) const {
  const QRectF& whole = layout_.whole;
  const double unit = canvas_.x_axis->per_unit;
  const double wanted = 8.0 * QFontMetricsF(font_).horizontalAdvance(u'0');
  painter.drawLine(whole.bottomLeft(), whole.bottomRight());
  for (const Tick& tick : ruler_ticks(look_.x.from * unit, look_.x.to * unit, room_for(whole.width(), wanted))) {
    const double x = layout_.plot.pixel_x(tick.value / unit);
    painter.drawLine(QPointF(x, whole.bottom()),
                     QPointF(x, whole.bottom() + (tick.text.empty() ? small_tick : large_tick)));
    if (tick.text.empty()) continue;
    painter.drawText(QRectF(x - wanted, whole.bottom() + large_tick, 2 * wanted, line_), Qt::AlignCenter,
                     to_qt(tick.text));
  }
  painter.drawText(QRectF(whole.left(), whole.bottom() + large_tick + line_, whole.width(), line_), Qt::AlignCenter,
                   title_of(*canvas_.x_axis));
}

/// Ticks at round numbers of the second quantity, the text only where there is room: it is not laid off evenly.
void CurvePainter::paint_second_axis(QPainter& painter) const {
  const CurveOffer& offer = *canvas_.curve;
  if (!offer.second_at || !offer.place_of_second) return;
  const QRectF& whole = layout_.whole;
  painter.drawLine(whole.topLeft(), whole.topRight());
  painter.drawText(QRectF(whole.left(), whole.top() - large_tick - 2 * line_, whole.width(), line_), Qt::AlignCenter,
                   title_of(offer.second_axis));
  const QFontMetricsF metrics(font_);
  double free_to = whole.right() + line_;
  const auto draw = [&](double x, const std::string& text) {
    const double half = metrics.horizontalAdvance(to_qt(text)) / 2;
    const bool told = x + half + 2 * gap < free_to && x - half > whole.left() - line_;
    painter.drawLine(QPointF(x, whole.top() - (told ? large_tick : small_tick)), QPointF(x, whole.top()));
    if (!told) return;
    painter.drawText(QRectF(x - half, whole.top() - large_tick - line_, 2 * half, line_), Qt::AlignCenter, to_qt(text));
    free_to = x - half;
  };
  // From the right, where the numbers are smallest, in steps that grow with them.
  constexpr double smallest_step = 0.001;
  const auto end = offer.second_at(look_.x.to);
  if (!end || !(*end > 0)) return;
  double last = whole.right() + line_;
  constexpr int most = 1000;
  double value = *end;
  for (int n = 0; n < most; ++n) {
    const auto here = offer.place_of_second(value);
    if (here && *here < look_.x.from) break;
    const double wanted = 3.0 * metrics.horizontalAdvance(QStringLiteral("0.000"));
    const auto beyond = offer.second_at(layout_.plot.user_x(std::max(last - wanted, whole.left())));
    const double apart = beyond ? std::max(*beyond - value, smallest_step) : value;
    const double power = std::pow(10.0, std::floor(std::log10(apart)));
    const double step = apart / power < 2 ? power : (apart / power < 5 ? 2 * power : 5 * power);
    value = (std::floor(value / step + 1e-6) + 1) * step;
    const auto place = offer.place_of_second(value);
    if (!place || *place < look_.x.from) break;
    const double x = layout_.plot.pixel_x(*place);
    constexpr double least_apart = 4;  // pixels
    if (n > 0 && last - x < least_apart) break;
    last = x;
    draw(x, short_text(value, 4));
  }
}

void CurvePainter::paint_y_axis(QPainter& painter) const {
  const CurvePlot& plot = layout_.plot;
  const double unit = canvas_.y_axis->per_unit;
  painter.drawLine(QPointF(plot.left, layout_.whole.top()), QPointF(plot.left, layout_.whole.bottom()));
  double last = plot.top + 2 * plot.height;
  for (const Tick& tick : height_ticks(plot, unit, room_for(plot.height, 2 * line_))) {
    const double y = plot.pixel_y(tick.value / unit);
    const double end = plot.left - (tick.text.empty() ? small_tick : large_tick);
    painter.drawLine(QPointF(end, y), QPointF(plot.left, y));
    if (tick.text.empty() || last - y < line_) continue;
    painter.drawText(QRectF(end - gap - 100, y - line_ / 2, 100, line_), Qt::AlignRight | Qt::AlignVCenter,
                     to_qt(tick.text));
    last = y;
  }
  const std::string how = look_.heights == CurveHeights::Linear
                              ? ""
                              : (look_.heights == CurveHeights::SquareRoot ? ", square root" : ", logarithm");
  painter.save();
  painter.translate(plot.left - margins(canvas_, font_).left(), layout_.whole.bottom());
  painter.rotate(-90);
  painter.drawText(QRectF(0, 0, layout_.whole.height(), line_), Qt::AlignCenter,
                   title_of(*canvas_.y_axis) + to_qt(how));
  painter.restore();
}

}  // namespace zol
