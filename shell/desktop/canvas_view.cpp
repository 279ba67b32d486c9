#include "shell/desktop/canvas_view.h"

#include <algorithm>
#include <variant>

#include <QBackingStore>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QInputDialog>
#include <QMenu>
#include <QPaintEngine>
#include <QPainter>
#include <QTimer>

#include "core/number_text.h"
#include "core/run_failure.h"
#include "shell/desktop/drawing_painter.h"
#include "shell/desktop/language/language.h"
#include "shell/desktop/look/look.h"
#include "shell/desktop/look/look_style.h"
#include "shell/desktop/picture_choices.h"
#include "shell/desktop/picture_export.h"
#include "shell/desktop/qt_surface.h"
#include "shell/desktop/qt_text.h"
#include "shell/services/ruler.h"
#include "shell/services/workbench.h"

namespace zol {
namespace {

constexpr double large_tick = 6;  // pixels
constexpr double small_tick = 3;
constexpr double gap = 3;

QString title_of(const Axis& axis) { return shown(to_qt(axis.quantity + " (" + axis.unit + ")")); }

/// How many large ticks have room. @param wanted  pixels for one of them
int room_for(double length, double wanted) { return std::max(1, static_cast<int>(length / wanted)); }

}  // namespace

CanvasView::CanvasView(QWidget* parent) : QWidget(parent) {
  setMouseTracking(true);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void CanvasView::attach(Canvas& canvas, UserEvents& events) {
  canvas_ = &canvas;
  events_ = &events;
  tools_ = std::make_unique<PictureTools>(
      canvas, events, *this,
      [this] {
        return PicturePlace{canvas_, picture_rect()};
      },
      [this](const QString& words) { emit pointed_at(words); });
  refresh();
}

void CanvasView::refresh() {
  up_to_date_ = false;
  before_ = {};
  if (canvas_ != nullptr && canvas_->window().mouse_pointer() != MousePointer::Hourglass) {
    setCursor(canvas_->mouse_pointer() == MousePointer::CrossHair ? Qt::CrossCursor : Qt::ArrowCursor);
  }
  updateGeometry();
  update();
  emit refreshed();
}

QSize CanvasView::sizeHint() const {
  if (canvas_ == nullptr) return {256, 256};
  return QSize(canvas_->pixel_width(), canvas_->pixel_height()).grownBy(ruler_margins().toMargins());
}

QRectF CanvasView::picture_rect() const {
  if (canvas_ == nullptr) return rect();
  const QSizeF picture(canvas_->pixel_width(), canvas_->pixel_height());
  const QRectF room = QRectF(rect()).adjusted(0, note_room_, 0, 0).marginsRemoved(ruler_margins());
  if (picture.isEmpty()) return {room.topLeft(), QSizeF()};  // an image size below one pixel
  QRectF place({}, picture.scaled(room.size(), Qt::KeepAspectRatio));
  // Whole pixels, so that a picture in its own size is shown pixel by pixel.
  place.moveTopLeft(QPointF(std::floor(room.left() + (room.width() - place.width()) / 2),
                            std::floor(room.top() + (room.height() - place.height()) / 2)));
  return place;
}

QPointF CanvasView::user_position(const QPointF& position) const {
  const QRectF place = picture_rect();
  const auto& scale = canvas_->user_scale();
  return {scale.left + (position.x() - place.left()) / place.width() * (scale.right - scale.left),
          scale.top + (position.y() - place.top()) / place.height() * (scale.bottom - scale.top)};
}

/// Some of what is not there yet: a long list takes many repaints, between which the windows answer. A picture that
/// follows the pointer is whole before it moves on.
void CanvasView::draw_some(bool all) {
  painting_->set_rough(tools_->dragging());
  const qint64 at_once_ms = tools_->dragging() ? 200 : 20;
  QElapsedTimer clock;
  clock.start();
  try {
    up_to_date_ = painting_->go_on([&clock, all, at_once_ms] { return !all && clock.elapsed() > at_once_ms; });
  } catch (const RunFailure&) {  // no room to draw, or too large an image: nothing to show, and no event to fail
    painting_->show_nothing();
    up_to_date_ = true;
  }
  constexpr int pause_ms = 2;
  if (up_to_date_) before_ = {};
  if (!up_to_date_) QTimer::singleShot(pause_ms, this, qOverload<>(&QWidget::update));
}

void CanvasView::paintEvent(QPaintEvent* /*event*/) {
  if (canvas_ != nullptr) events_->guard([this] { paint(); });
}

void CanvasView::paint() {
  const QRectF place = picture_rect();
  const QSize device_size = (place.size() * devicePixelRatioF()).toSize();
  if (device_size.isEmpty()) return;
  if (!painting_ || painting_->image().size() != device_size) {
    painting_.emplace(*canvas_, device_size);
    before_ = {};
    up_to_date_ = false;
  }
  QPainter painter(this);
  // What is printed or saved has to be whole.
  const bool on_screen =
      backingStore() != nullptr && painter.paintEngine()->paintDevice() == backingStore()->paintDevice();
  if (on_screen) paint_mat(painter);
  if (!up_to_date_) draw_some(!on_screen);
  painter.drawImage(place, before_.isNull() ? painting_->image() : before_, QRectF(QPointF(), QSizeF(device_size)));
  paint_layers(painter, place);
  painter.setPen(palette().color(QPalette::WindowText));
  if (canvas_->x_axis) draw_x_ruler(painter, place);
  if (canvas_->y_axis) draw_y_ruler(painter, place);
}

/// Where the picture does not fill its view. Curves, with their rulers, stand on the ground of the window.
void CanvasView::paint_mat(QPainter& painter) const {
  if (look_in_use() == Look::Plain || canvas_->x_axis || canvas_->y_axis) return;
  constexpr double corner = 6;
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(to_colour("well", shade_of(look_in_use())));
  painter.drawRoundedRect(QRectF(rect()).adjusted(0, note_room_, 0, 0), corner, corner);
  painter.setRenderHint(QPainter::Antialiasing, false);
}

void CanvasView::paint_layers(QPainter& painter, const QRectF& place) {
  if (!shows_something()) {
    if (!canvas_->hint.empty()) PictureLayers::paint_hint(painter, place, *canvas_, shown(to_qt(canvas_->hint)));
    return;
  }
  const PicturePlace at{canvas_, place};
  tools_->layers().paint(painter, at);
  if (canvas_->loupe && pressed_) tools_->layers().paint_loupe(painter, at, painting_->image());
}

/// A scale alone draws nothing.
bool CanvasView::shows_something() const {
  if (canvas_ == nullptr) return false;
  const auto& list = canvas_->drawing();
  return canvas_->has_picture() || std::any_of(list.begin(), list.end(), [](const Primitive& entry) {
           return !std::holds_alternative<UserScale>(entry.what);
         });
}

QMarginsF CanvasView::ruler_margins() const {
  const QFontMetricsF metrics(font());
  QMarginsF margins;
  if (canvas_->y_axis) {
    margins.setLeft(metrics.height() + metrics.horizontalAdvance(QStringLiteral("100")) + 3 * gap + large_tick);
    margins.setTop(std::ceil(metrics.height() / 2));
  }
  if (canvas_->x_axis) {
    margins.setBottom(2 * metrics.height() + gap + large_tick);
    margins.setRight(metrics.horizontalAdvance(QStringLiteral("100")));
  }
  return margins;
}

void CanvasView::draw_x_ruler(QPainter& painter, const QRectF& place) const {
  const auto& scale = canvas_->user_scale();
  const double unit = canvas_->x_axis->per_unit;
  const double width_per_value = place.width() / ((scale.right - scale.left) * unit);
  const double line = painter.fontMetrics().height();
  const double wanted = 4.0 * painter.fontMetrics().horizontalAdvance(u'0') * 2;
  painter.drawLine(place.bottomLeft(), place.bottomRight());
  if (shows_something()) {
    for (const Tick& tick : ruler_ticks(scale.left * unit, scale.right * unit, room_for(place.width(), wanted))) {
      const double x = place.left() + (tick.value - scale.left * unit) * width_per_value;
      painter.drawLine(QPointF(x, place.bottom()),
                       QPointF(x, place.bottom() + (tick.text.empty() ? small_tick : large_tick)));
      painter.drawText(QRectF(x - wanted, place.bottom() + large_tick, 2 * wanted, line), Qt::AlignCenter,
                       to_qt(tick.text));
    }
  }
  painter.drawText(QRectF(place.left(), place.bottom() + large_tick + line, place.width(), line), Qt::AlignCenter,
                   title_of(*canvas_->x_axis));
}

void CanvasView::draw_y_ruler(QPainter& painter, const QRectF& place) const {
  const auto& scale = canvas_->user_scale();
  const double unit = canvas_->y_axis->per_unit;
  const double height_per_value = place.height() / ((scale.bottom - scale.top) * unit);
  const double line = painter.fontMetrics().height();
  painter.drawLine(place.topLeft(), place.bottomLeft());
  if (shows_something()) {
    for (const Tick& tick : ruler_ticks(scale.top * unit, scale.bottom * unit, room_for(place.height(), 2 * line))) {
      const double y = place.top() + (tick.value - scale.top * unit) * height_per_value;
      const double end = place.left() - (tick.text.empty() ? small_tick : large_tick);
      painter.drawLine(QPointF(end, y), QPointF(place.left(), y));
      painter.drawText(QRectF(0, y - line / 2, end - gap, line), Qt::AlignRight | Qt::AlignVCenter, to_qt(tick.text));
    }
  }
  painter.save();
  painter.translate(place.left() - ruler_margins().left(), place.bottom());
  painter.rotate(-90);
  painter.drawText(QRectF(0, 0, place.height(), line), Qt::AlignCenter, title_of(*canvas_->y_axis));
  painter.restore();
}

// The margin beside a picture that does not fill its view is no part of it.
bool CanvasView::begins(const QMouseEvent& event) {
  if (event.button() == Qt::RightButton) return false;
  pressed_ = canvas_ != nullptr && picture_rect().contains(event.position());
  return pressed_;
}

UserEvent CanvasView::mouse_event(const char* name, const QPointF& position,
                                  void (Canvas::*fire)(double, double) const) {
  const QPointF at = user_position(position);
  return operation({name, canvas_->path(), plain_text(to_single(at.x())), plain_text(to_single(at.y()))},
                   [this, at, fire] { (canvas_->*fire)(at.x(), at.y()); });
}

void CanvasView::set_note_room(int pixels) {
  if (std::exchange(note_room_, pixels) != pixels) update();
}

void CanvasView::set_menu(QMenu& menu) { menu_ = &menu; }

void CanvasView::press_at(const QPointF& position) {
  const QPointF at = user_position(position);
  events_->act(canvas_->window(), mouse_event("press", position, &Canvas::press),
               {[this, at] { return canvas_->reason_against(at.x(), at.y()); }, [this] { pressed_ = false; }});
}

/// What would be of no use as a click waits for the pointer to move.
void CanvasView::mousePressEvent(QMouseEvent* event) {
  if (!begins(*event)) return;
  if (tools_->press(*event)) return;
  tools_->layers().loupe_at = event->position();
  if (canvas_->warn_click && !canvas_->warn_click().empty()) {
    held_press_ = event->position();
  } else {
    press_at(event->position());
  }
}

void CanvasView::mouseMoveEvent(QMouseEvent* event) {
  if (canvas_ == nullptr || picture_rect().isEmpty()) return;
  if (tools_->move(*event)) return;
  tools_->layers().loupe_at = event->position();
  if (canvas_->loupe && pressed_) update();
  if (held_press_ && pressed_ && (event->position() - *held_press_).manhattanLength() >= 1) {
    press_at(*std::exchange(held_press_, std::nullopt));
  }
  const bool inside = picture_rect().contains(event->position());
  point_at(event->position());
  if (!canvas_->on_mouse_move || !(inside || pressed_)) return;
  UserEvent move = mouse_event("move", event->position(), &Canvas::move);
  move.stoppable = false;
  events_->enter(canvas_->window(), std::move(move));
}

/// The status line tells what lies there.
void CanvasView::point_at(const QPointF& position) {
  const QPointF at = user_position(position);
  const bool inside = picture_rect().contains(position);
  const bool tells = inside && shows_something();
  tools_->point_at(tells ? std::optional(position) : std::nullopt);
  if (!canvas_->describe_place) return;
  events_->guard([&] {
    QString place = tells ? to_qt(canvas_->describe_place(at.x(), at.y())) : QString();
    const auto add = [&place](const QString& words) {
      if (!words.isEmpty()) place += (place.isEmpty() ? QString() : QStringLiteral("   ")) + words;
    };
    if (tells) add(tools_->words());
    if (const auto reason = inside ? canvas_->reason_against(at.x(), at.y()) : ""; !reason.empty()) {
      add(u'(' + to_qt(reason) + u')');
    }
    emit pointed_at(place);
  });
}

void CanvasView::leaveEvent(QEvent* /*event*/) {
  if (tools_) tools_->point_at(std::nullopt);
  emit pointed_at({});
}

void CanvasView::keyPressEvent(QKeyEvent* event) {
  if (!tools_ || !tools_->key(*event)) QWidget::keyPressEvent(event);
}

void CanvasView::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::RightButton || !std::exchange(pressed_, false) || picture_rect().isEmpty()) return;
  if (canvas_->loupe) update();
  if (tools_->release(*event)) return smooth();
  if (const auto held = tools_->take_held()) {  // no drag came of it
    pressed_ = true;
    press_at(*held);
    if (!std::exchange(pressed_, false)) return;
  }
  if (const auto held = std::exchange(held_press_, std::nullopt)) {
    UserEvent click = mouse_event("press", *held, &Canvas::press);
    UserEvent release = mouse_event("release", *held, &Canvas::release);
    click.script += '\n' + release.script;
    click.run = [press = std::move(click.run), rest = std::move(release.run)] {
      press();
      rest();
    };
    return events_->act(canvas_->window(), std::move(click), {canvas_->warn_click});
  }
  events_->enter(canvas_->window(), mouse_event("release", event->position(), &Canvas::release));
}

/// Behind a drag; what was drawn shows until all is smooth.
void CanvasView::smooth() {
  if (!up_to_date_ || !painting_ || !painting_->rough()) return;
  before_ = painting_->image();
  up_to_date_ = false;
  update();
}

void CanvasView::mouseDoubleClickEvent(QMouseEvent* event) {
  if (!begins(*event)) return;
  events_->act(canvas_->window(), operation({"doubleclick", canvas_->path()}, [this] { canvas_->double_click(); }),
               {canvas_->warn_when});
}

void CanvasView::contextMenuEvent(QContextMenuEvent* event) {
  if (canvas_ == nullptr) return;
  auto* menu = new QMenu(this);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  tools_->add_entries(*menu);
  menu->addAction(tr("&Copy"), this, &CanvasView::copy_to_clipboard);
  menu->addSeparator();
  add_exports(*menu);
  if (menu_ != nullptr) {
    menu->addSeparator();
    menu->addMenu(menu_);
  }
  menu->popup(event->globalPos());
}

void CanvasView::add_exports(QMenu& menu) {
  menu.addAction(tr("Export &PNG..."), this, [this] { ask_export(1.0, ".png"); });
  menu.addAction(tr("Export PNG, dou&ble size..."), this, [this] { ask_export(2.0, ".png"); });
  menu.addAction(tr("Export PNG, &four times..."), this, [this] { ask_export(4.0, ".png"); });
  menu.addAction(tr("Export PNG, resol&ution..."), this, &CanvasView::ask_resolution);
  menu.addAction(tr("Export &SVG..."), this, [this] { ask_export(1.0, ".svg"); });
  menu.addAction(tr("Export P&DF..."), this, [this] { ask_export(1.0, ".pdf"); });
  menu.addSeparator();
  const auto add = [&menu](const QString& text, PictureChoices::Choice choice) {
    QAction* entry = menu.addAction(text);
    entry->setCheckable(true);
    entry->setChecked(PictureChoices::of_program().on(choice));
    connect(entry, &QAction::toggled, entry, [choice](bool on) { PictureChoices::of_program().set(choice, on); });
  };
  if (caption_) add(tr("&With caption"), PictureChoices::Caption);
  if (canvas_->geometry) add(tr("With scale and labels"), PictureChoices::LayersInExports);
}

/// The picture keeps its size of 96 dots to the inch.
void CanvasView::ask_resolution() {
  constexpr double own = 96;
  constexpr int proposed = 300;
  constexpr int most = 1200;
  bool wanted = false;
  const int dots = QInputDialog::getInt(this, tr("Export PNG"), tr("Resolution (dots per inch):"), proposed,
                                        static_cast<int>(own), most, 1, &wanted);
  if (wanted) ask_export(dots / own, ".png");
}

void CanvasView::copy_to_clipboard() const {
  try {
    QGuiApplication::clipboard()->setImage(stand_in_.image ? stand_in_.image() : picture_image(*canvas_));
  } catch (const RunFailure& failure) {
    canvas_->services().message(failure.message(), "Copy");
  }
}

// A copy that cannot be written is no failure of the run: the program knows nothing of it.
void CanvasView::ask_export(double factor, const char* ending) {
  const auto ask = [this, factor, suffix = NameEnding{ending}] {
    Services& services = canvas_->services();
    FileDialog dialog(services);
    if (const std::string name = file_name_ ? file_name_() : ""; !name.empty()) dialog.set_file_name(name);
    const std::string answer = dialog.save(FileKind::Export, suffix);
    if (answer.empty()) return;
    try {
      WindowTask task(services);
      const PictureChoices& choices = PictureChoices::of_program();
      const std::string path = suffix.added_to(answer);
      ExportExtras extras;
      if (choices.on(PictureChoices::Caption) && caption_) extras.caption = caption_();
      if (stand_in_.write) return stand_in_.write(path, factor, task, extras.caption);
      if (choices.on(PictureChoices::LayersInExports)) {
        extras.above = [this](QPainter& painter) {
          const QRectF all(0, 0, canvas_->pixel_width(), canvas_->pixel_height());
          tools_->layers().paint_wanted(painter, PicturePlace{canvas_, all});
        };
      }
      export_picture(*canvas_, path, factor, task, extras);
    } catch (const RunFailure& failure) {
      services.message(failure.message(), "Export");
    }
  };
  events_->act(canvas_->window(), {canvas_->path() + " was exported", "", ask});
}

}  // namespace zol
