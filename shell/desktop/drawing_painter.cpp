#include "shell/desktop/drawing_painter.h"

#include <cmath>

#include <QFontMetricsF>
#include <QPainterPath>
#include <QPolygonF>

#include "core/run_failure.h"
#include "shell/desktop/qt_surface.h"
#include "shell/desktop/qt_text.h"
#include "shell/desktop/quick_lines.h"

namespace zol {
namespace {

/// Beyond this many pixels a disc that crosses the picture is not worth a path of its own.
constexpr double largest_radius = 1e6;

enum class Lines { OfFiles, Smooth };

class ListPainter {
 public:
  /// @param scale  in force where it begins, and then where it is
  ListPainter(QPainter& painter, const Canvas& canvas, UserScale& scale, Lines lines)
      : painter_(painter), picture_(0, 0, canvas.pixel_width(), canvas.pixel_height()), scale_(scale), lines_(lines) {}
  /// With lines that are as thin as the image can show them, each written into it at once.
  ListPainter(QPainter& painter, const Canvas& canvas, UserScale& scale, const QuickLines& quick)
      : ListPainter(painter, canvas, scale, Lines::Smooth) {
    quick_ = &quick;
  }

  void operator()(const UserScale& scale) { scale_ = scale; }

  void operator()(const DrawnLine& drawn) {
    gather({x(drawn.x1), y(drawn.y1), x(drawn.x2), y(drawn.y2)}, drawn.colour);
  }
  void draw_gathered() {
    if (gathered_.isEmpty()) return;
    painter_.setPen(pen(gathered_colour_));
    // On a screen of high resolution Qt takes more than ten times as long for a polyline of two points.
    if (gathered_.size() == 2 && lines_ != Lines::OfFiles) {
      painter_.drawLine(gathered_.front(), gathered_.back());
    } else {
      painter_.drawPolyline(gathered_);
    }
    gathered_.clear();
  }

  void operator()(const DrawnCircle& drawn) {
    const double radius = std::abs(drawn.radius * picture_.width() / (scale_.right - scale_.left));
    const QPointF centre(x(drawn.x), y(drawn.y));
    const QRectF box(centre.x() - radius, centre.y() - radius, 2 * radius, 2 * radius);
    if (!box.intersects(picture_) || radius > largest_radius) return;
    draw_gathered();
    if (picture_.contains(box)) {
      painter_.setPen(pen(drawn.colour));
      painter_.setBrush(drawn.fill ? QBrush(to_qt(*drawn.fill)) : QBrush(Qt::NoBrush));
      painter_.drawEllipse(centre, radius, radius);
    } else {
      paint_cut_circle(box, drawn);
    }
  }

  void operator()(const DrawnPoint& drawn) {
    const QPointF place(std::nearbyint(x(drawn.x)), std::nearbyint(y(drawn.y)));
    const QRectF pixel(place, QSizeF(1, 1));
    if (!picture_.contains(pixel)) return;
    draw_gathered();
    painter_.fillRect(pixel, to_qt(drawn.colour));
  }

  void operator()(const DrawnText& drawn) {
    const QPointF place(x(drawn.x), y(drawn.y));
    if (!picture_.contains(place)) return;
    draw_gathered();
    const QFont font = picture_font(drawn.font_size_pt);
    painter_.setFont(font);
    painter_.setPen(to_qt(drawn.colour));
    painter_.drawText(place + QPointF(0, QFontMetricsF(font).ascent()), latin1_to_qt(drawn.text));
  }

 private:
  [[nodiscard]] double x(double user) const {
    return (user - scale_.left) / (scale_.right - scale_.left) * picture_.width();
  }
  [[nodiscard]] double y(double user) const {
    return (user - scale_.top) / (scale_.bottom - scale_.top) * picture_.height();
  }
  [[nodiscard]] static QPen pen(Colour colour) { return {QBrush(to_qt(colour)), 1.0}; }

  /// Lines of one colour, each from where the last one ends, become one line, as a curve is.
  void gather(const QLineF& whole, Colour colour) {
    const auto line = clipped(whole, picture_);
    if (!line) return;
    if (quick_ != nullptr) return quick_->draw(painter_.transform().map(*line), to_qt(colour).rgb());
    // To the bit: Qt's own comparison of points is not.
    const bool goes_on = !gathered_.isEmpty() && gathered_colour_ == colour && gathered_.back().x() == line->x1() &&
                         gathered_.back().y() == line->y1();
    if (!goes_on) {
      draw_gathered();
      gathered_ << line->p1();
      gathered_colour_ = colour;
    }
    gathered_ << line->p2();
  }

  /// The filled part is cut as an area, the outline as a line of short pieces.
  void paint_cut_circle(const QRectF& box, const DrawnCircle& drawn) {
    if (drawn.fill) {
      QPainterPath disc;
      disc.addEllipse(box);
      QPainterPath window;
      window.addRect(picture_);
      painter_.fillPath(disc.intersected(window), to_qt(*drawn.fill));
    }
    constexpr int pieces = 360;
    QPointF last(box.right(), box.center().y());
    for (int i = 1; i <= pieces; ++i) {
      const double angle = 2.0 * M_PI * i / pieces;
      const QPointF next(box.center().x() + box.width() / 2 * std::cos(angle),
                         box.center().y() + box.height() / 2 * std::sin(angle));
      gather({last, next}, drawn.colour);
      last = next;
    }
  }

  QPainter& painter_;
  QRectF picture_;
  UserScale& scale_;
  Lines lines_;
  const QuickLines* quick_ = nullptr;
  QPolygonF gathered_;
  Colour gathered_colour_ = 0;
};

}  // namespace

QColor to_qt(Colour colour) {
  const auto packed = static_cast<unsigned>(colour);
  return {static_cast<int>(packed & 255U), static_cast<int>((packed >> 8U) & 255U),
          static_cast<int>((packed >> 16U) & 255U)};
}

QFont picture_font(double font_size_pt) {
  constexpr double pixels_per_point = 96.0 / 72.0;
  QFont font(QStringLiteral("sans-serif"));
  font.setPixelSize(std::max(1, static_cast<int>(std::lround(font_size_pt * pixels_per_point))));
  return font;
}

std::optional<QLineF> clipped(const QLineF& line, const QRectF& inside) {
  double enter = 0.0;
  double leave = 1.0;
  // Each border: how fast the line approaches it, and how far its start is from it.
  const auto border = [&enter, &leave](double approach, double distance) {
    if (approach == 0.0) return distance >= 0.0;
    const double at = distance / approach;
    if (approach < 0.0) enter = std::max(enter, at);
    if (approach > 0.0) leave = std::min(leave, at);
    return enter <= leave;
  };
  const bool some = border(-line.dx(), line.x1() - inside.left()) && border(line.dx(), inside.right() - line.x1()) &&
                    border(-line.dy(), line.y1() - inside.top()) && border(line.dy(), inside.bottom() - line.y1());
  if (!some) return std::nullopt;
  return QLineF(enter > 0.0 ? line.pointAt(enter) : line.p1(), leave < 1.0 ? line.pointAt(leave) : line.p2());
}

namespace {

/// What lies under the drawing list.
void paint_base(QPainter& painter, Canvas& canvas, const QRectF& picture) {
  if (canvas.has_raster_base() || canvas.has_picture()) {  // it exists as pixels only
    painter.drawImage(picture, dynamic_cast<const QtSurface&>(canvas.stored_image()).image());
  } else {
    painter.fillRect(picture, to_qt(canvas.back_colour()));
  }
}

}  // namespace

void paint_canvas(QPainter& painter, Canvas& canvas, Task& task) {
  if (const std::string reason = canvas.fault(); !reason.empty()) throw RunFailure(reason);
  paint_base(painter, canvas, QRectF(0, 0, canvas.pixel_width(), canvas.pixel_height()));
  UserScale scale = canvas.list_scale();
  ListPainter list(painter, canvas, scale, Lines::OfFiles);
  for (const Primitive& primitive : canvas.drawing()) {
    task.check();
    std::visit(list, primitive.what);
  }
  list.draw_gathered();
}

bool CanvasPainting::go_on(const std::function<bool()>& enough) {
  const bool of_own_size = image_.size() == own_size();
  const bool needs_pixels = of_own_size || canvas_.has_raster_base() || canvas_.has_picture();
  if (needs_pixels && !canvas_.make_some_images(enough)) {
    if (of_own_size) take_pixels();
    return false;
  }
  if (of_own_size) {
    take_pixels();
    return true;
  }
  return draw_list(enough);
}

void CanvasPainting::show_nothing() {
  image_.fill(to_qt(canvas_.back_colour()));
  begun_ = false;
}

void CanvasPainting::take_pixels() {
  QPainter painter(&image_);
  for (const Surface* surface : {&canvas_.stored_so_far(), &canvas_.overlay_so_far()}) {
    painter.drawImage(0, 0, dynamic_cast<const QtSurface&>(*surface).image());
  }
}

/// From where the last time has ended, unless more has changed since than that something was drawn.
bool CanvasPainting::draw_list(const std::function<bool()>& enough) {
  const QuickLines quick(image_);
  QPainter painter(&image_);
  painter.setClipRect(image_.rect());  // Qt draws lines several times as quick with a clip as without
  painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
  painter.scale(1.0 * image_.width() / canvas_.pixel_width(), 1.0 * image_.height() / canvas_.pixel_height());
  if (!begun_ || redrawn_ != canvas_.redrawn()) {
    paint_base(painter, canvas_, QRectF(0, 0, canvas_.pixel_width(), canvas_.pixel_height()));
    begun_ = true;
    redrawn_ = canvas_.redrawn();
    scale_ = canvas_.list_scale();
    drawn_ = 0;
  }
  constexpr std::size_t between_questions = 16;
  ListPainter list =
      rough_ ? ListPainter(painter, canvas_, scale_, quick) : ListPainter(painter, canvas_, scale_, Lines::Smooth);
  bool stops = false;
  for (; drawn_ < canvas_.drawing().size() && !stops; ++drawn_) {
    const auto& what = canvas_.drawing()[drawn_].what;
    if (!scale_.has_area() && !std::holds_alternative<UserScale>(what)) throw RunFailure(canvas_.fault());
    std::visit(list, what);
    stops = drawn_ % between_questions == between_questions - 1 && enough();
  }
  list.draw_gathered();
  return drawn_ == canvas_.drawing().size();
}

}  // namespace zol
