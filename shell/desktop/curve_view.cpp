#include "shell/desktop/curve_view.h"

#include <algorithm>
#include <cmath>

#include <QCoreApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include "shell/desktop/curve_drawing.h"
#include "shell/desktop/qt_text.h"

namespace zol {

CurveView::CurveView(CanvasView& view, Canvas& canvas, UserEvents& events)
    : QObject(&view), view_(view), canvas_(canvas), events_(events), band_(QRubberBand::Rectangle, &view) {
  view.installEventFilter(this);
  connect(&view, &CanvasView::refreshed, this, [this] {
    if (canvas_.window().mouse_pointer() != MousePointer::Hourglass) look_again();
  });
  view.set_stand_in({[this] { return drawn_image(drawing({}), 1.0); },
                     [this](const std::string& path, double factor, Task& /*task*/, const QString& caption) {
                       write_drawing(drawing(caption), path, factor);
                     }});
}

void CurveView::look_again() {
  const UserScale before = scene_.scale;
  scene_ = scene_of(canvas_);
  if (scene_.scale != before) {
    look_.x = scene_.all();
    look_.marked.reset();
  }
  view_.update();
  emit looked_again();
}

void CurveView::set_look(const CurveLook& look) {
  const CurveRange x = look_.x;
  look_ = look;
  look_.x = x;
  view_.update();
}

void CurveView::set_x(const CurveRange& x) {
  look_.x = x;
  view_.update();
}

void CurveView::zoom(double factor) {
  if (has_curve()) set_x(zoomed(look_.x, (look_.x.from + look_.x.to) / 2, factor, scene_.all()));
}

void CurveView::show_all() {
  look_.marked.reset();
  set_x(scene_.all());
}

void CurveView::go_to(double x) {
  const CurveRange all = scene_.all();
  if (!has_curve() || !all.holds(x)) return;
  constexpr double part = 8;
  const double width = look_.x == all ? all.width() / part : look_.x.width();
  look_.marked = x;
  set_x(moved({x - width / 2, x + width / 2}, 0, all));
}

bool CurveView::has_curve() const { return !scene_.curves.empty() && scene_.scale.has_area(); }

bool CurveView::in_use() const {
  const bool wanted = look_.indices || look_.ticks || look_.second_axis || look_.radiation ||
                      look_.heights != CurveHeights::Linear || look_.marked;
  return has_curve() && (wanted || !scene_.layers.empty() || look_.x != scene_.all());
}

CurvePainter CurveView::painter() const { return {canvas_, scene_, look_, view_.picture_rect(), view_.font()}; }

CurvePoint CurveView::user_place(const QPointF& position) const {
  const CurvePlot plot = painter().layout().plot;
  const double y = std::clamp(position.y(), plot.top, plot.top + plot.height);
  return {plot.user_x(position.x()), plot.user_y(y)};
}

void CurveView::paint() {
  QPainter to(&view_);
  to.setRenderHint(QPainter::Antialiasing);
  painter().paint(to, view_.palette().color(QPalette::WindowText));
}

FileDrawing CurveView::drawing(const QString& caption) const {
  return curve_drawing(canvas_, scene_, look_, view_.font(), caption);
}

bool CurveView::eventFilter(QObject* watched, QEvent* event) {
  if (watched != &view_ || handing_on_) return false;
  switch (event->type()) {
    case QEvent::Paint:
      if (!in_use()) return false;
      events_.guard([this] { paint(); });
      return true;
    case QEvent::Wheel:
      return wheel(dynamic_cast<const QWheelEvent&>(*event));
    case QEvent::MouseButtonPress:
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
      return has_curve() && mouse(dynamic_cast<QMouseEvent&>(*event));
    default:
      return false;
  }
}

bool CurveView::wheel(const QWheelEvent& event) {
  const CurveLayout layout = painter().layout();
  if (!has_curve() || !layout.whole.contains(event.position())) return false;
  constexpr double notch = 120;
  constexpr double factor = 1.25;
  constexpr double step = 0.1;  // of what is seen
  const QPoint turned = event.angleDelta();
  const double notches = (turned.y() != 0 ? turned.y() : turned.x()) / notch;
  if (event.modifiers() & Qt::ShiftModifier) {
    set_x(moved(look_.x, -notches * step * look_.x.width(), scene_.all()));
  } else {
    set_x(zoomed(look_.x, layout.plot.user_x(event.position().x()), std::pow(factor, notches), scene_.all()));
  }
  return true;
}

bool CurveView::mouse(QMouseEvent& event) {
  const bool left = event.button() == Qt::LeftButton;
  if (event.type() == QEvent::MouseButtonDblClick && left && look_.x != scene_.all()) {
    pressed_.reset();
    show_all();
    return true;
  }
  if (event.type() == QEvent::MouseButtonPress && left && painter().layout().whole.contains(event.position())) {
    pressed_ = event.position();
  }
  if (event.type() == QEvent::MouseMove && pressed_) drag(event);
  const CurveLook before = look_;
  if (event.type() == QEvent::MouseButtonRelease && left) end_drag(event.position());
  return (in_use() || before.x != look_.x) && hand_on(event);
}

void CurveView::drag(const QMouseEvent& event) {
  constexpr double least = 6;  // pixels
  const QRectF whole = painter().layout().whole;
  if (!(event.buttons() & Qt::LeftButton)) return pressed_.reset();
  if (!band_.isVisible() && std::abs(event.position().x() - pressed_->x()) < least) return;
  const double x = std::clamp(event.position().x(), whole.left(), whole.right());
  band_.setGeometry(QRectF(QPointF(pressed_->x(), whole.top()), QPointF(x, whole.bottom())).normalized().toRect());
  band_.show();
}

bool CurveView::end_drag(const QPointF& position) {
  const auto from = std::exchange(pressed_, std::nullopt);
  const bool dragged = from && band_.isVisible();
  band_.hide();
  if (!dragged) return false;
  const CurveLayout layout = painter().layout();
  const double end = std::clamp(position.x(), layout.whole.left(), layout.whole.right());
  const double a = layout.plot.user_x(from->x());
  const double b = layout.plot.user_x(end);
  const CurveRange wanted{std::min(a, b), std::max(a, b)};
  if (!(wanted.width() > 0)) return false;
  set_x(zoomed(wanted, (a + b) / 2, 1.0, scene_.all()));
  return true;
}

bool CurveView::hand_on(const QMouseEvent& event) {
  const QRectF told = view_.picture_rect();
  const QRectF whole = painter().layout().whole;
  QPointF at = event.position();
  if (whole.contains(at)) {
    const CurvePoint place = user_place(at);
    const UserScale& scale = scene_.scale;
    const double across = (place.x - scale.left) / (scale.right - scale.left);
    const double down = (place.y - scale.top) / (scale.bottom - scale.top);
    at = {told.left() + std::clamp(across, 0.0, 1.0) * told.width(),
          told.top() + std::clamp(down, 0.0, 1.0) * told.height()};
  } else {
    at = {told.left() - 1, told.top() - 1};  // an axis is no place of the picture
  }
  QMouseEvent moved_event(event.type(), at, view_.mapToGlobal(at), event.button(), event.buttons(), event.modifiers());
  handing_on_ = true;
  QCoreApplication::sendEvent(&view_, &moved_event);
  handing_on_ = false;
  return true;
}

}  // namespace zol
