#include "shell/desktop/picture_layers.h"

#include <algorithm>
#include <array>
#include <cmath>

#include <QPainterPath>

#include "core/number_text.h"
#include "shell/desktop/drawing_painter.h"
#include "shell/desktop/index_text.h"
#include "shell/desktop/picture_choices.h"
#include "shell/desktop/qt_text.h"

namespace zol {
namespace {

const QColor accent(0xd1, 0x3b, 0x00);
const QColor behind_text(255, 255, 255, 215);

QFont layer_font() {
  constexpr int pixels = 12;
  QFont font(QStringLiteral("sans-serif"));
  font.setPixelSize(pixels);
  return font;
}

/// Words on a pale ground, inside the room as far as they fit.
void draw_words(QPainter& painter, QPointF at, const QString& words, const QRectF& room) {
  constexpr double margin = 3;
  const QFontMetricsF metrics(painter.font());
  QRectF box(at, QSizeF(metrics.horizontalAdvance(words) + 2 * margin, metrics.height() + 2));
  box.moveLeft(std::max(room.left(), std::min(box.left(), room.right() - box.width())));
  box.moveTop(std::max(room.top(), std::min(box.top(), room.bottom() - box.height())));
  painter.fillRect(box, behind_text);
  painter.drawText(box, Qt::AlignCenter, words);
}

std::optional<QLineF> line_in_view(const PictureMark& mark, const PicturePlace& place) {
  const QPointF foot = place.to_view(mark.x, mark.y);
  const QPointF beside = place.to_view(mark.x + mark.along_x, mark.y + mark.along_y);
  QLineF line(foot, beside);
  if (!(line.length() > 0)) return std::nullopt;
  const double reach = place.rect.width() + place.rect.height() + QLineF(foot, place.rect.center()).length();
  line.setLength(reach);
  line.setP1(foot - (line.p2() - foot));
  return clipped(line, place.rect);
}

void draw_mark(QPainter& painter, const PictureMark& mark, const PicturePlace& place, const QColor& colour) {
  painter.setPen(QPen(colour, 2));
  painter.setBrush(Qt::NoBrush);
  if (mark.is_line()) {
    if (const auto line = line_in_view(mark, place)) painter.drawLine(*line);
  } else if (mark.radius > 0) {
    const double radius = place.pixels(mark.radius);
    painter.drawEllipse(place.to_view(0, 0), radius, radius);
  } else {
    constexpr double around = 8;
    painter.drawEllipse(place.to_view(mark.x, mark.y), around, around);
  }
}

/// Where a label wants to stand: bands are told apart best near the border.
std::optional<QPointF> label_point(const PictureMark& mark, const PicturePlace& place) {
  if (mark.is_line()) {
    constexpr double along = 0.82;
    const auto line = line_in_view(mark, place);
    return line ? std::optional(line->pointAt(along)) : std::nullopt;
  }
  if (mark.radius > 0) return place.to_view(mark.radius * M_SQRT1_2, mark.radius * M_SQRT1_2);
  return place.to_view(mark.x, mark.y);
}

void paint_bar(QPainter& painter, const PicturePlace& place) {
  constexpr double share = 0.3;  // of the width
  constexpr double margin = 10;
  const UserScale& scale = place.canvas->user_scale();
  const double per_unit = place.canvas->geometry->per_unit;
  const double length = round_length(share * std::abs(scale.right - scale.left) * per_unit);
  if (length <= 0) return;
  const double width = place.pixels(length / per_unit);
  const QPointF left = place.rect.bottomLeft() + QPointF(margin, -margin);
  const QFontMetricsF metrics(painter.font());
  const QString words = to_qt(plain_text(length) + " Å⁻¹");
  const QRectF ground(left.x() - 4, left.y() - metrics.height() - 6,
                      std::max(width, metrics.horizontalAdvance(words)) + 8, metrics.height() + 10);
  painter.fillRect(ground, behind_text);
  painter.setPen(QPen(Qt::black, 3, Qt::SolidLine, Qt::FlatCap));
  painter.drawLine(left, left + QPointF(width, 0));
  painter.drawText(left + QPointF(0, -5), words);
}

void paint_circle(QPainter& painter, const PicturePlace& place) {
  constexpr double share = 0.4;  // of the smaller side
  const PictureGeometry& geometry = *place.canvas->geometry;
  const double room = share * std::min(place.rect.width(), place.rect.height());
  const CircleFrame frame = geometry.circle_frame ? geometry.circle_frame() : CircleFrame{};
  const QPointF centre = place.to_view(frame.x, frame.y);
  const QPointF unit = place.to_view(frame.x + frame.unit_x, frame.y + frame.unit_y) - centre;
  const double longer = std::max(std::abs(unit.x()), std::abs(unit.y()));
  const double angle = longer > 0 ? circle_angle(geometry, room / longer) : 0;
  if (angle <= 0) return;
  const double across = std::abs(unit.x()) * geometry.circle(angle);
  const double radius = std::abs(unit.y()) * geometry.circle(angle);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(accent, 1.5, Qt::DashLine));
  painter.drawEllipse(centre, across, radius);
  painter.drawLine(centre - QPointF(5, 0), centre + QPointF(5, 0));
  painter.drawLine(centre - QPointF(0, 5), centre + QPointF(0, 5));
  draw_words(painter, centre + QPointF(3, radius - 7), to_qt(plain_text(angle) + "°"), place.rect);
}

void paint_scale(QPainter& painter, const PicturePlace& place) {
  if (!place.canvas->geometry) return;
  if (place.canvas->geometry->per_unit > 0) return paint_bar(painter, place);
  if (place.canvas->geometry->circle) paint_circle(painter, place);
}

/// Lines of red, green or blue are hard to see on grey: once more, over a dark one three times as wide.
void paint_halos(QPainter& painter, const PicturePlace& place) {
  constexpr std::size_t most = 400;  // those of a user, not of a whole pattern
  const auto& drawn = place.canvas->drawing();
  if (drawn.size() > most) return;
  for (const double width : {3.0, 1.0}) {
    for (const Primitive& primitive : drawn) {
      const auto* line = std::get_if<DrawnLine>(&primitive.what);
      if (line == nullptr) continue;
      const QColor colour = to_qt(line->colour);
      constexpr int pure = 200;  // of 255
      if (colour.saturation() < pure) continue;
      painter.setPen(QPen(width > 1 ? QColor(0, 0, 0, 190) : colour, width, Qt::SolidLine, Qt::RoundCap));
      painter.drawLine(place.to_view(line->x1, line->y1), place.to_view(line->x2, line->y2));
    }
  }
}

void paint_measurement(QPainter& painter, const PicturePlace& place, const PictureLayers::Place& from,
                       const std::optional<PictureLayers::Place>& to) {
  constexpr double dot = 4;
  const QPointF first = place.to_view(from[0], from[1]);
  painter.setPen(QPen(accent, 1.5));
  painter.setBrush(Qt::NoBrush);
  painter.drawEllipse(first, dot, dot);
  if (!to) return;
  const QPointF second = place.to_view((*to)[0], (*to)[1]);
  painter.drawEllipse(second, dot, dot);
  painter.drawLine(first, second);
  painter.setPen(Qt::black);
  const QString words = to_qt(distance_text(distance_between(*place.canvas->geometry, from, *to)));
  draw_words(painter, second + QPointF(8, 8), words, place.rect);
}

}  // namespace

QPointF PicturePlace::to_view(double x, double y) const {
  const UserScale& scale = canvas->user_scale();
  return {rect.left() + (x - scale.left) / (scale.right - scale.left) * rect.width(),
          rect.top() + (y - scale.top) / (scale.bottom - scale.top) * rect.height()};
}

QPointF PicturePlace::to_user(const QPointF& position) const {
  const UserScale& scale = canvas->user_scale();
  return {scale.left + (position.x() - rect.left()) / rect.width() * (scale.right - scale.left),
          scale.top + (position.y() - rect.top()) / rect.height() * (scale.bottom - scale.top)};
}

double PicturePlace::pixels(double length) const {
  const UserScale& scale = canvas->user_scale();
  return std::abs(length / (scale.right - scale.left)) * rect.width();
}

QColor family_colour(int family) {
  constexpr std::array<QRgb, family_colours> colours{0xff0060c8, 0xff802010, 0xff008550, 0xff9c4a7c,
                                                     0xff807400, 0xff202080, 0xff000000};
  return QColor::fromRgb(colours.at(static_cast<std::size_t>(family) % colours.size()));
}

double circle_angle(const PictureGeometry& geometry, double most) {
  double best = 0;
  for (const double angle : {0.1, 0.2, 0.5, 1.0, 2.0, 5.0, 10.0, 20.0, 30.0, 45.0, 60.0}) {
    if (geometry.circle(angle) <= most) best = angle;
  }
  return best;
}

void PictureLayers::paint(QPainter& painter, const PicturePlace& place) {
  if (!place.canvas->user_scale().has_area()) return;
  painter.save();
  painter.setClipRect(place.rect);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setFont(layer_font());
  if (PictureChoices::of_program().on(PictureChoices::Halos) && place.canvas->has_picture())
    paint_halos(painter, place);
  const QColor amber(0xff, 0xb0, 0x00);
  for (const PictureMark& mark : row_marks) draw_mark(painter, mark, place, amber);
  for (const PictureMark& mark : linked ? place.canvas->marks() : PictureMarks()) {
    if (mark.is_of(*linked)) draw_mark(painter, mark, place, amber);
  }
  paint_wanted(painter, place);
  const auto& marks = place.canvas->marks();
  if (lit >= 0 && lit < static_cast<int>(marks.size())) {
    draw_mark(painter, marks[static_cast<std::size_t>(lit)], place, accent);
  }
  if (from && place.canvas->geometry) paint_measurement(painter, place, *from, to);
  painter.restore();
}

void PictureLayers::paint_wanted(QPainter& painter, const PicturePlace& place) {
  const PictureChoices& choices = PictureChoices::of_program();
  painter.setFont(layer_font());
  if (choices.on(PictureChoices::Labels)) paint_labels(painter, place);
  if (choices.on(PictureChoices::Scale) && (place.canvas->has_picture() || !place.canvas->drawing().empty()))
    paint_scale(painter, place);
}

void PictureLayers::place_all(const QPainter& painter, const PicturePlace& place) {
  const PictureMarks& marks = place.canvas->marks();
  if (placed_of_ == marks && placed_in_ == place.rect && placed_scale_ == place.canvas->user_scale()) return;
  placed_of_ = marks;
  placed_in_ = place.rect;
  placed_scale_ = place.canvas->user_scale();
  families_ = families(marks);
  std::vector<LabelWish> wishes;
  const QFontMetricsF metrics(painter.font());
  std::vector<int> wanted;
  for (std::size_t i = 0; i < marks.size(); ++i) {
    const auto point = label_point(marks[i], place);
    if (!point || !place.rect.contains(*point)) continue;
    const QPointF at = *point - place.rect.topLeft();
    const QSizeF size = index_text_size(metrics, marks[i]);
    wishes.push_back({at.x(), at.y(), size.width(), size.height(), marks[i].intensity});
    wanted.push_back(static_cast<int>(i));
  }
  constexpr double gap = 4;
  places_ = place_labels(wishes, place.rect.width(), place.rect.height(), gap);
  for (LabelPlace& label : places_) label.wish = wanted[static_cast<std::size_t>(label.wish)];
}

void PictureLayers::paint_labels(QPainter& painter, const PicturePlace& place) {
  place_all(painter, place);
  const bool by_family = PictureChoices::of_program().on(PictureChoices::Families);
  const QFontMetricsF metrics(painter.font());
  for (const LabelPlace& label : places_) {
    const auto index = static_cast<std::size_t>(label.wish);
    const PictureMark& mark = placed_of_[index];
    const QPointF at = place.rect.topLeft() + QPointF(label.left, label.top);
    painter.fillRect(QRectF(at, index_text_size(metrics, mark)), behind_text);
    painter.setPen(by_family ? family_colour(families_[index]) : QColor(Qt::black));
    draw_index_text(painter, at, mark);
  }
}

/// Four times as large, beside the pointer, in the corner where it hides nothing that is drawn.
void PictureLayers::paint_loupe(QPainter& painter, const PicturePlace& place, const QImage& image) const {
  if (!loupe_at) return;
  constexpr double size = 128;
  constexpr double factor = 4;
  constexpr double away = 24;
  const double per_pixel = image.width() / place.rect.width();
  const QPointF centre = (*loupe_at - place.rect.topLeft()) * per_pixel;
  const QSizeF part = QSizeF(size, size) / factor * per_pixel;
  const QRectF source(centre - QPointF(part.width() / 2, part.height() / 2), part);
  QRectF target(*loupe_at + QPointF(away, -away - size), QSizeF(size, size));
  if (target.right() > place.rect.right()) target.moveRight(loupe_at->x() - away);
  if (target.top() < place.rect.top()) target.moveTop(loupe_at->y() + away);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  QPainterPath round;
  round.addEllipse(target);
  painter.setClipPath(round);
  painter.fillRect(target, Qt::lightGray);
  painter.drawImage(target, image, source);
  painter.setPen(QPen(accent, 1));
  painter.drawLine(target.center() - QPointF(size / 8, 0), target.center() + QPointF(size / 8, 0));
  painter.drawLine(target.center() - QPointF(0, size / 8), target.center() + QPointF(0, size / 8));
  painter.setClipping(false);
  painter.setPen(QPen(Qt::darkGray, 2));
  painter.drawEllipse(target);
  painter.restore();
}

void PictureLayers::paint_hint(QPainter& painter, const QRectF& room, const Canvas& canvas, const QString& words) {
  constexpr double margin = 24;
  painter.save();
  QFont font = layer_font();
  constexpr int pixels = 15;
  font.setPixelSize(pixels);
  painter.setFont(font);
  const QColor ground = to_qt(canvas.back_colour());
  painter.setPen(ground.lightness() > 127 ? QColor(0x55, 0x55, 0x55) : QColor(0xcc, 0xcc, 0xcc));
  painter.drawText(room.adjusted(margin, margin, -margin, -margin), Qt::AlignCenter | Qt::TextWordWrap, words);
  painter.restore();
}

}  // namespace zol
