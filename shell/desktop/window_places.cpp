#include "shell/desktop/window_places.h"

#include <utility>
#include <vector>

#include <QEvent>
#include <QGuiApplication>
#include <QMainWindow>
#include <QScreen>
#include <QSettings>

#include "shell/desktop/desk_layout.h"
#include "shell/desktop/screen_fit.h"
#include "shell/services/window.h"

namespace zol {
namespace {

constexpr auto name_of = "zolPlace";  // property of the top level

QString key(const QString& window) { return QStringLiteral("places/") + window; }

std::vector<QRect> screens() {
  std::vector<QRect> rooms{QGuiApplication::primaryScreen()->availableGeometry()};
  for (const QScreen* screen : QGuiApplication::screens()) rooms.push_back(screen->availableGeometry());
  return rooms;
}

}  // namespace

WindowPlaces::WindowPlaces(QSettings* settings) : settings_(settings) {
  constexpr int wait_ms = 500;  // while it is dragged it moves often
  soon_.setSingleShot(true);
  soon_.setInterval(wait_ms);
  connect(&soon_, &QTimer::timeout, this, [this] { write(); });
}

WindowPlaces::~WindowPlaces() { write(); }

void WindowPlaces::follow(const Window& window, QMainWindow& top) {
  if (settings_ == nullptr) return;
  const QString name = QString::fromStdString(window.name());
  const auto unwritten = moved_.find(name);  // it was unloaded a moment ago
  const QRect kept = unwritten != moved_.end() ? unwritten->second : settings_->value(key(name)).toRect();
  if (kept.isValid()) {
    const QRect place = on_screens({kept.topLeft(), kept.size() + usual_frame}, screens());
    top.resize(place.size() - usual_frame);
    top.move(place.topLeft());
    keep_place(top);
  }
  top.setProperty(name_of, name);
  top.installEventFilter(this);
}

/// The place is that of the frame, the size that of what it frames.
bool WindowPlaces::eventFilter(QObject* watched, QEvent* event) {
  const bool moves = event->type() == QEvent::Move || event->type() == QEvent::Resize;
  const auto* top = qobject_cast<const QWidget*>(watched);
  if (!moves || top == nullptr || !top->isVisible()) return false;
  if ((top->windowState() & (Qt::WindowMinimized | Qt::WindowMaximized | Qt::WindowFullScreen)) != 0) return false;
  moved_[top->property(name_of).toString()] = {top->pos(), top->size()};
  soon_.start();
  return false;
}

void WindowPlaces::write() {
  for (const auto& [name, place] : std::exchange(moved_, {})) settings_->setValue(key(name), place);
}

}  // namespace zol
