#include "shell/desktop/long_work.h"

#include <algorithm>
#include <cmath>

#include <QApplication>
#include <QEvent>
#include <QFrame>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMainWindow>
#include <QMouseEvent>
#include <QProgressBar>
#include <QPushButton>
#include <QStatusBar>
#include <QWindow>

#include "shell/desktop/guarded_application.h"
#include "shell/desktop/language/language.h"

namespace zol {
namespace {

constexpr qint64 shown_after_ms = 1000;
constexpr qint64 between_looks_ms = 20;
constexpr qint64 between_words_ms = 200;

GuardedApplication* application() { return dynamic_cast<GuardedApplication*>(QCoreApplication::instance()); }

/// What a user does, apart from moving windows and bringing them to the front.
bool is_input(QEvent::Type type) {
  switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
    case QEvent::InputMethod:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::Close:
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TabletMove:
    case QEvent::TabletPress:
    case QEvent::TabletRelease:
    case QEvent::NativeGesture:
      return true;
    default:
      return false;
  }
}

bool is_escape(const QEvent& event) {
  if (event.type() != QEvent::KeyPress && event.type() != QEvent::ShortcutOverride) return false;
  return dynamic_cast<const QKeyEvent&>(event).key() == Qt::Key_Escape;
}

}  // namespace

QString duration_text(double seconds) {
  constexpr int minute = 60;
  const int whole = static_cast<int>(std::lround(std::clamp(seconds, 0.0, 1e6)));
  if (whole < minute) return QObject::tr("%1 s").arg(whole);
  return QObject::tr("%1 min %2 s").arg(whole / minute).arg(whole % minute, 2, 10, QLatin1Char('0'));
}

LongWork::~LongWork() { hide(); }

void LongWork::begin(const UserEvent& event) {
  event_ = &event;
  stop_ = confirmed_ = false;
  total_ = 0;
  clock_.start();
}

void LongWork::end(bool stopped) {
  QWidget* window = stopped ? window_to_tell() : nullptr;
  event_ = nullptr;
  hide();
  if (!stopped) return;
  constexpr int told_ms = 10000;
  if (auto* top = qobject_cast<QMainWindow*>(window))
    top->statusBar()->showMessage(zol::shown(tr("cancelled")), told_ms);
}

void LongWork::report(int done, int total) {
  if (total != total_ || done < done_) {
    first_done_ = done;
    part_began_ms_ = clock_.elapsed();
  }
  done_ = done;
  total_ = total;
}

bool LongWork::stop_wanted() {
  if (event_ == nullptr || pauses_ > 0 || looking_) return false;
  if (stop_) return true;
  const qint64 now = clock_.elapsed();
  if (!shown_) {
    if (now < shown_after_ms) return false;
    show();
  } else if (now < next_look_ms_) {
    return false;
  }
  look();
  next_look_ms_ = clock_.elapsed() + between_looks_ms;
  return stop_;
}

void LongWork::pause() {
  if (pauses_++ == 0) hide();
}

void LongWork::go_on() {
  if (--pauses_ > 0) return;
  clock_.start();
  total_ = 0;
}

/// The one that the event came from. Where the handler has hidden it, the one in front.
QWidget* LongWork::window_to_tell() const {
  QWidget* own = host_.widget_of(event_->window);
  if (own != nullptr && own->isVisible()) return own;
  if (QWidget* front = QApplication::activeWindow()) return front;
  const auto tops = QApplication::topLevelWidgets();
  const auto seen = std::find_if(tops.begin(), tops.end(), [](const QWidget* top) {
    return top->isVisible() && qobject_cast<const QMainWindow*>(top) != nullptr;
  });
  return seen == tops.end() ? nullptr : *seen;
}

void LongWork::show() {
  shown_ = true;
  next_words_ms_ = 0;
  if (auto* guarded = application()) {
    guarded->set_swallow([this](QObject* receiver, QEvent* event) { return takes(receiver, event); });
  }
}

void LongWork::hide() {
  if (auto* guarded = application(); guarded != nullptr && shown_) guarded->set_swallow({});
  shown_ = false;
  if (bar_ == nullptr) return;
  bar_->window()->removeEventFilter(this);
  bar_->hide();
  bar_->deleteLater();
  bar_ = nullptr;
}

/// Over the foot of the window, so that nothing in it moves.
void LongWork::make_bar(QWidget& window) {
  auto* frame = new QFrame(&window);
  frame->setObjectName(QStringLiteral("longWork"));
  frame->setFrameShape(QFrame::StyledPanel);
  frame->setAutoFillBackground(true);
  frame->setCursor(Qt::ArrowCursor);
  what_ = new QLabel(frame);
  part_ = new QProgressBar(frame);
  time_ = new QLabel(frame);
  cancel_ = new QPushButton(tr("Cancel"), frame);
  cancel_->setObjectName(QStringLiteral("cancelLongWork"));
  cancel_->setToolTip(tr("Stops this and leaves everything as it was before (Esc)"));
  cancel_->setFocusPolicy(Qt::NoFocus);
  connect(cancel_, &QPushButton::clicked, this, [this] { stop_ = true; });
  auto* row = new QHBoxLayout(frame);
  constexpr int margin = 3;
  row->setContentsMargins(margin, margin, margin, margin);
  what_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  row->addWidget(what_, 2);
  row->addWidget(part_, 1);
  row->addWidget(time_);
  row->addWidget(cancel_);
  bar_ = frame;
  window.installEventFilter(this);
}

void LongWork::place_bar() {
  const QSize room = bar_->parentWidget()->size();
  const int height = bar_->sizeHint().height();
  bar_->setGeometry(0, room.height() - height, room.width(), height);
  bar_->raise();
}

bool LongWork::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Resize && bar_ != nullptr && bar_->parentWidget() == watched) place_bar();
  return QObject::eventFilter(watched, event);
}

/// What is shown of the work: by the part that is done where it is reported, else by the time so far.
void LongWork::tell() {
  QWidget* window = window_to_tell();
  if (bar_ != nullptr && bar_->parentWidget() != window) {
    bar_->parentWidget()->removeEventFilter(this);
    bar_->hide();
    bar_->deleteLater();
    bar_ = nullptr;
  }
  if (window == nullptr) return;
  if (bar_ == nullptr) make_bar(*window);
  const qint64 now = clock_.elapsed();
  what_->setText(host_.name_of(*event_));
  constexpr double per_second = 1000.0;
  if (total_ > 0) {
    part_->setRange(0, total_);
    part_->setValue(std::clamp(done_, 0, total_));
  } else {
    part_->setRange(0, 0);
  }
  const auto progress = static_cast<double>(done_ - first_done_);
  if (total_ > 0 && progress > 0) {
    const double left = static_cast<double>(now - part_began_ms_) / per_second * (total_ - done_) / progress;
    time_->setText(tr("%1 left").arg(duration_text(left)));
  } else {
    time_->setText(duration_text(static_cast<double>(now) / per_second));
  }
  place_bar();
  bar_->show();
}

void LongWork::look() {
  const Looking looking(*this);
  if (clock_.elapsed() >= next_words_ms_) {
    tell();
    next_words_ms_ = clock_.elapsed() + between_words_ms;
  }
  QCoreApplication::processEvents();
}

/// Whether an event ends here. Nothing that the user does waits for later.
bool LongWork::takes(QObject* receiver, QEvent* event) {
  if (!is_input(event->type())) return false;
  if (is_escape(*event)) stop_ = true;
  if (event->type() == QEvent::Close) event->ignore();
  return !is_for_button(receiver, *event);
}

/// The mouse on the button, also while it is held down and goes elsewhere.
bool LongWork::is_for_button(const QObject* receiver, const QEvent& event) const {
  if (bar_ == nullptr) return false;
  if (receiver == cancel_) return event.type() != QEvent::KeyPress && event.type() != QEvent::KeyRelease;
  const auto* mouse = dynamic_cast<const QMouseEvent*>(&event);
  if (mouse == nullptr || receiver != bar_->window()->windowHandle()) return false;
  const QPoint place = cancel_->mapFromGlobal(mouse->globalPosition().toPoint());
  return cancel_->isDown() || cancel_->rect().contains(place);
}

}  // namespace zol
