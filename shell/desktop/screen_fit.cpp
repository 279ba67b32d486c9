#include "shell/desktop/screen_fit.h"

#include <algorithm>
#include <vector>

#include <QApplication>
#include <QEvent>
#include <QGroupBox>
#include <QMainWindow>
#include <QMenuBar>
#include <QScreen>
#include <QScrollArea>
#include <QStatusBar>
#include <QTimer>

#include "shell/desktop/desk_layout.h"

namespace zol {
namespace {

constexpr int settled_ms = 100;         // by then a window has its frame and its layout
constexpr int half_a_screen = 676;      // of 1366 pixels, less the frame
constexpr auto size_given = "zolSize";  // by the program; a window of another one was changed by the user

bool is_usual(const QWidget& window) {
  return (window.windowState() & (Qt::WindowMinimized | Qt::WindowMaximized | Qt::WindowFullScreen)) == 0;
}

bool as_given(const QWidget& window) {
  return is_usual(window) && window.size() == window.property(size_given).toSize();
}

void give_size(QWidget& window, const QSize& size) {
  window.resize(size);
  window.setProperty(size_given, window.size());
}

Narrowing narrowing_of(const QWidget& window) {
  const int least = window.minimumSizeHint().expandedTo(window.minimumSize()).width();
  const QSize frame = frame_of(window);
  return {least + frame.width(), {window.pos(), window.size() + frame}};
}

/// Once more where the size has changed since: the window manager takes the place then for that without the frame.
void move_frame(QWidget& window, const QPoint& place) {
  window.move(place);
  QTimer::singleShot(settled_ms, &window, [&window, place] {
    if (window.isVisible() && is_usual(window) && window.pos() != place) window.move(place);
  });
}

bool share(QWidget& window, QWidget& other, const QRect& room) {
  if (!as_given(window) || !as_given(other) || gives_way(other)) return false;
  const auto pair = both_beside(narrowing_of(other), narrowing_of(window), room);
  if (!pair) return false;
  give_size(window, pair->opened.size() - frame_of(window));
  move_frame(window, pair->opened.topLeft());
  give_size(other, pair->opener.size() - frame_of(other));
  move_frame(other, pair->opener.topLeft());
  return true;
}

/// Whether it is made to stand on half a screen.
bool goes_narrow(const QWidget& window) {
  const auto groups = window.findChildren<QGroupBox*>();
  return std::any_of(groups.begin(), groups.end(), [](const QGroupBox* group) {
    return group->property("folds").toString() == QLatin1String("narrow");
  });
}

/// No menu hides behind a sign at the end of the bar: the window does not get narrower than its menu bar, but for those
/// that go down to half a screen. The status line carries that, since a least width of the window itself would stand in
/// place of that of its contents.
class MenuRoom : public QObject {
 public:
  MenuRoom(QMenuBar& bar, QStatusBar& status, bool narrow)
      : QObject(&bar), bar_(bar), status_(status), most_(narrow ? half_a_screen : QWIDGETSIZE_MAX) {
    bar.installEventFilter(this);
    measure();
  }

 protected:
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    switch (event->type()) {
      case QEvent::ActionAdded:
      case QEvent::ActionChanged:
      case QEvent::ActionRemoved:
      case QEvent::FontChange:
      case QEvent::StyleChange:
        QTimer::singleShot(0, this, [this] { measure(); });  // the bar has not seen it yet
        break;
      default:
        break;
    }
    return false;
  }

 private:
  void measure() { status_.setMinimumWidth(std::min(most_, bar_.sizeHint().width())); }

  QMenuBar& bar_;
  QStatusBar& status_;
  int most_;
};

}  // namespace

QSize frame_of(const QWidget& window) {
  return window.isVisible() ? window.frameGeometry().size() - window.size() : usual_frame;
}

bool gives_way(const QWidget& window) { return window.property("givesWay").toBool(); }

void fit_to_screen(QMainWindow& window) {
  new MenuRoom(*window.menuBar(), *window.statusBar(), goes_narrow(window));
  const QSize room = window.screen()->availableSize() - usual_frame;
  const QSize least = window.minimumSizeHint();
  if (least.boundedTo(room) != least) {
    auto* area = new QScrollArea;
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);  // it follows the focus of what is in it
    area->setWidget(window.takeCentralWidget());
    window.setCentralWidget(area);
    window.setMinimumSize(least.boundedTo(room));
  }
  give_size(window, window.size().expandedTo(least).boundedTo(room));
}

void return_to_screen(QWidget& window) {
  QTimer::singleShot(settled_ms, &window, [&window] {
    if (!window.isVisible() || !is_usual(window)) return;
    const QRect place = on_screens(window.frameGeometry(), {window.screen()->availableGeometry()});
    if (place == window.frameGeometry()) return;
    window.resize(place.size() - frame_of(window));
    window.move(place.topLeft());
  });
}

void keep_place(QWidget& window) { window.setProperty(size_given, QSize()); }

void place_beside(QWidget& window, QWidget& other) {
  std::vector<QRect> others;
  for (const QWidget* top : QApplication::topLevelWidgets()) {
    if (top->isVisible() && top != &window && top != &other && top->windowType() == Qt::Window) {
      others.push_back(top->frameGeometry());
    }
  }
  const QRect room = other.screen()->availableGeometry();
  const QRect place = beside(window.size() + usual_frame, other.frameGeometry(), others, room);
  const bool covers = place.intersects(other.frameGeometry());
  if (!covers || !share(window, other, room)) move_frame(window, place.topLeft());
}

}  // namespace zol
