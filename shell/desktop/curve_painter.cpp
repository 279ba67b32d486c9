#include "shell/desktop/curve_painter.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include <QFontMetricsF>

#include "core/number_text.h"
#include "shell/desktop/drawing_painter.h"
#include "shell/desktop/qt_text.h"
#include "shell/services/label_places.h"

namespace zol {
namespace {

using curve_room::gap;
using curve_room::large_tick;
constexpr double reflection_tick = 9;
constexpr double share_below = 0.2;  // of the picture, for the strip below the curve
constexpr double swatch = 18;
constexpr double between_labels = 10;  // of which one stands over the other

/// Black is the colour of a curve that nobody chose.
QColor curve_colour(Colour colour) { return to_qt(colour == colours::black ? curve_colours::calculated : colour); }

/// Lines through points, as long as they lie inside a rectangle, each piece as one line.
void draw_lines(QPainter& painter, const std::vector<CurvePoint>& points, const CurvePlot& plot, const QRectF& inside) {
  QPolygonF piece;
  const auto finish = [&] {
    if (!piece.isEmpty()) painter.drawPolyline(piece);
    piece.clear();
  };
  QPointF last;
  for (std::size_t i = 0; i < points.size(); ++i) {
    const QPointF next(plot.pixel_x(points[i].x), plot.pixel_y(points[i].y));
    const auto line = i == 0 ? std::nullopt : clipped({last, next}, inside);
    last = next;
    if (!line) continue;
    const bool goes_on = !piece.isEmpty() && piece.back().x() == line->x1() && piece.back().y() == line->y1();
    if (!goes_on) {
      finish();
      piece << line->p1();
    }
    piece << line->p2();
  }
  finish();
}

QPen layer_pen(const CurveLayer& layer) {
  QPen pen(to_qt(layer.colour), 1.0);
  if (layer.stroke == CurveStroke::Dashed) pen.setStyle(Qt::DashLine);
  if (layer.stroke == CurveStroke::Sticks) pen.setWidthF(1.5);
  if (layer.stroke == CurveStroke::Dots) pen = QPen(to_qt(layer.colour), 2.5, Qt::SolidLine, Qt::RoundCap);
  return pen;
}

}  // namespace

CurvePainter::CurvePainter(const Canvas& canvas, const CurveScene& scene, const CurveLook& look, const QRectF& picture,
                           const QFont& font)
    : canvas_(canvas), scene_(scene), look_(look), font_(font), small_font_(font), line_(QFontMetricsF(font).height()) {
  constexpr double smaller = 0.9;
  if (font.pointSizeF() > 0) small_font_.setPointSizeF(font.pointSizeF() * smaller);
  lay_out(picture);
}

QMarginsF CurvePainter::margins(const Canvas& canvas, const QFont& font) {
  const QFontMetricsF metrics(font);
  const double number = metrics.horizontalAdvance(QStringLiteral("100"));
  return {canvas.y_axis ? metrics.height() + number + 3 * gap + large_tick : number, std::ceil(metrics.height() / 2),
          number, 2 * metrics.height() + gap + large_tick};
}

void CurvePainter::lay_out(const QRectF& picture) {
  layout_.whole = picture;
  if (look_.second_axis) layout_.whole.setTop(picture.top() + 2 * line_ + large_tick);
  QRectF plot = layout_.whole;
  const bool has_below =
      std::any_of(scene_.layers.begin(), scene_.layers.end(), [](const CurveLayer& layer) { return layer.below; });
  if (has_below) {
    layout_.below = plot;
    layout_.below.setTop(plot.bottom() - share_below * plot.height());
    plot.setBottom(layout_.below.top());
  }
  if (look_.ticks) {
    layout_.ticks = plot;
    layout_.ticks.setTop(plot.bottom() - reflection_tick - 2 * gap);
    plot.setBottom(layout_.ticks.top());
  }
  CurvePlot& to = layout_.plot;
  to = {plot.left(), plot.top(), plot.width(), plot.height(), look_.x, {}, look_.heights};
  const CurveRange all = scene_.all();
  const CurveRange told{std::min(scene_.scale.bottom, scene_.scale.top),
                        std::max(scene_.scale.bottom, scene_.scale.top)};
  const bool follows = look_.follows_height && look_.x != all;
  const double highest = scene_.highest(look_.x);
  constexpr double air = 1.05;
  to.y.to = follows && highest > 0 ? highest * air : told.to;
  to.y.from = look_.heights == CurveHeights::Logarithm ? least_logarithm : told.from * to.y.to / told.to;
  if (look_.heights == CurveHeights::Logarithm) to.y.to = std::max(to.y.to, 10 * least_logarithm);
  if (look_.indices) {  // room for labels over the highest peak
    const double wanted = QFontMetricsF(small_font_).horizontalAdvance(QStringLiteral("-1 10 10")) + 4 * gap;
    const double share = std::min(wanted / std::max(to.height, 1.0), 0.5);
    const double bottom = laid_off(to.y.from, look_.heights);
    to.y.to = height_of(bottom + (laid_off(to.y.to, look_.heights) - bottom) / (1 - share), look_.heights);
  }
}

void CurvePainter::paint(QPainter& painter, const QColor& ink) const {
  painter.fillRect(layout_.whole, to_qt(canvas_.back_colour()));
  painter.setFont(font_);
  painter.setBrush(Qt::NoBrush);
  const QRectF plot(layout_.plot.left, layout_.plot.top, layout_.plot.width, layout_.plot.height);
  for (const auto& layer : scene_.layers) {
    if (!layer.below) paint_layer(painter, layer, layout_.plot, plot);
  }
  paint_curves(painter);
  if (look_.marked && look_.x.holds(*look_.marked)) {
    const double x = layout_.plot.pixel_x(*look_.marked);
    painter.setPen(QPen(to_qt(curve_colours::ticks), 1.0, Qt::DotLine));
    painter.drawLine(QPointF(x, plot.top()), QPointF(x, plot.bottom()));
  }
  if (look_.ticks) paint_ticks(painter);
  if (!layout_.below.isEmpty()) paint_below(painter);
  if (look_.indices) paint_labels(painter);
  paint_legend(painter);
  painter.setFont(font_);
  painter.setPen(ink);
  if (canvas_.x_axis) paint_x_axis(painter);
  if (canvas_.y_axis) paint_y_axis(painter);
  if (look_.second_axis) paint_second_axis(painter);
}

void CurvePainter::paint_curves(QPainter& painter) const {
  const CurvePlot& plot = layout_.plot;
  for (const auto& curve : scene_.curves) {
    painter.setPen(QPen(curve_colour(curve.colour), 1.0));
    draw_lines(painter, curve.points, plot, {plot.left, plot.top, plot.width, plot.height});
  }
}

void CurvePainter::paint_layer(QPainter& painter, const CurveLayer& layer, const CurvePlot& plot,
                               const QRectF& inside) const {
  painter.setPen(layer_pen(layer));
  if (layer.stroke == CurveStroke::Solid || layer.stroke == CurveStroke::Dashed) {
    return draw_lines(painter, layer.points, plot, inside);
  }
  const double base = plot.pixel_y(std::max(0.0, plot.y.from));
  QPolygonF dots;
  for (const auto& point : layer.points) {
    const QPointF top(plot.pixel_x(point.x), plot.pixel_y(point.y));
    if (layer.stroke == CurveStroke::Dots) {
      const bool shown = plot.heights != CurveHeights::Logarithm || point.y > plot.y.from;
      if (shown && inside.contains(top)) dots << top;
    } else if (const auto stick = clipped({QPointF(top.x(), base), top}, inside)) {
      painter.drawLine(*stick);
    }
  }
  if (!dots.isEmpty()) painter.drawPoints(dots);
}

CurvePlot CurvePainter::plot_below() const {
  double most = 0;
  for (const auto& layer : scene_.layers) {
    for (const auto& point : layer.points) {
      if (layer.below && look_.x.holds(point.x)) most = std::max(most, std::abs(point.y));
    }
  }
  constexpr double air = 1.1;
  const double half = most > 0 ? most * air : 1;
  const QRectF& place = layout_.below;
  return {place.left(), place.top(), place.width(), place.height(), look_.x, {-half, half}};
}

void CurvePainter::paint_below(QPainter& painter) const {
  const QRectF& place = layout_.below;
  const CurvePlot plot = plot_below();
  painter.setPen(QPen(to_qt(curve_colours::ticks), 0.5));
  painter.drawLine(place.topLeft(), place.topRight());
  painter.drawLine(QPointF(place.left(), place.center().y()), QPointF(place.right(), place.center().y()));
  for (const auto& layer : scene_.layers) {
    if (layer.below) paint_layer(painter, layer, plot, place);
  }
  const double unit = canvas_.y_axis ? canvas_.y_axis->per_unit : 1;
  painter.setPen(to_qt(curve_colours::difference));
  painter.setFont(small_font_);
  painter.drawText(place.adjusted(2 * gap, 0, 0, 0), Qt::AlignLeft | Qt::AlignTop,
                   QStringLiteral("±") + to_qt(short_text(plot.y.to * unit, 1)));
}

void CurvePainter::paint_ticks(QPainter& painter) const {
  painter.setPen(QPen(to_qt(curve_colours::ticks), 1.0));
  const double top = layout_.ticks.top() + gap;
  double last = -std::numeric_limits<double>::infinity();
  for (const auto& tick : scene_.reflections) {
    const double x = layout_.plot.pixel_x(tick.x);
    constexpr double apart = 0.25;  // pixels
    if (!look_.x.holds(tick.x) || x - last < apart) continue;
    painter.drawLine(QPointF(x, top), QPointF(x, top + reflection_tick));
    last = x;
  }
}

std::vector<CurvePainter::Label> CurvePainter::labels() const {
  const QFontMetricsF metrics(small_font_);
  const CurvePlot& plot = layout_.plot;
  std::vector<CurveTick> seen;
  for (const auto& tick : scene_.reflections) {
    if (look_.x.holds(tick.x) && scene_.height_at(tick.x) > plot.y.from) seen.push_back(tick);
  }
  constexpr std::size_t most = 400;
  std::stable_sort(seen.begin(), seen.end(),
                   [](const CurveTick& a, const CurveTick& b) { return a.weight > b.weight; });
  if (seen.size() > most) seen.resize(most);
  const QRectF legend = legend_place();
  std::vector<WantedLabel> wanted{
      {{legend.left(), legend.top(), legend.width(), legend.height()}, std::numeric_limits<double>::infinity()}};
  for (const auto& tick : seen) {
    const double height = metrics.horizontalAdvance(to_qt(tick.label)) + between_labels;
    const double bottom = std::min(plot.pixel_y(scene_.height_at(tick.x)), plot.top + plot.height) - gap;
    wanted.push_back(
        {{plot.pixel_x(tick.x) - metrics.height() / 2, bottom - height, metrics.height(), height}, tick.weight});
  }
  const auto places = label_places(wanted, {plot.left, plot.top, plot.width, plot.height});
  std::vector<Label> labels;
  for (std::size_t i = 0; i < seen.size(); ++i) {
    const auto& box = places[i + 1];
    if (box) labels.push_back({{box->left, box->top, box->width, box->height}, seen[i].label});
  }
  return labels;
}

void CurvePainter::paint_labels(QPainter& painter) const {
  painter.setFont(small_font_);
  painter.setPen(to_qt(curve_colours::calculated));
  for (const auto& [place, text] : labels()) {
    painter.save();
    painter.translate(place.bottomLeft());
    painter.rotate(-90);
    painter.drawText(QRectF(0, 0, place.height(), place.width()), Qt::AlignCenter, to_qt(text));
    painter.restore();
  }
}

std::vector<CurvePainter::LegendLine> CurvePainter::legend() const {
  std::vector<LegendLine> lines;
  if (look_.radiation && !scene_.radiation.empty()) lines.push_back({scene_.radiation});
  for (const auto& layer : scene_.layers) lines.push_back({layer.name, &layer});
  return lines;
}

QRectF CurvePainter::legend_place() const {
  const QFontMetricsF metrics(small_font_);
  const auto lines = legend();
  double width = 0;
  for (const auto& [text, layer] : lines) {
    width = std::max(width, metrics.horizontalAdvance(to_qt(text)) + (layer == nullptr ? 0 : swatch + gap));
  }
  width = std::min(width + 2 * gap, layout_.plot.width);
  const double height = lines.empty() ? 0 : metrics.height() * static_cast<double>(lines.size()) + gap;
  return {layout_.plot.left + layout_.plot.width - width, layout_.plot.top + gap, lines.empty() ? 0 : width, height};
}

void CurvePainter::paint_legend(QPainter& painter) const {
  const auto lines = legend();
  if (lines.empty()) return;
  painter.setFont(small_font_);
  const double line = QFontMetricsF(small_font_).height();
  const QRectF place = legend_place();
  QColor ground = to_qt(canvas_.back_colour());
  constexpr int nearly_solid = 220;
  ground.setAlpha(nearly_solid);
  painter.fillRect(place, ground);
  double top = place.top();
  for (const auto& [text, layer] : lines) {
    const double middle = top + line / 2;
    const double left = place.left() + (layer == nullptr ? 0 : swatch + gap);
    if (layer != nullptr) {
      painter.setPen(layer_pen(*layer));
      if (layer->stroke == CurveStroke::Dots) {
        painter.drawPoints(
            QPolygonF{{place.left() + 3, middle}, {place.left() + 9, middle}, {place.left() + 15, middle}});
      } else {
        painter.drawLine(QPointF(place.left(), middle), QPointF(place.left() + swatch, middle));
      }
    }
    painter.setPen(to_qt(curve_colours::calculated));
    painter.drawText(QRectF(left, top, place.right() - left, line), Qt::AlignLeft | Qt::AlignVCenter, to_qt(text));
    top += line;
  }
}

}  // namespace zol
