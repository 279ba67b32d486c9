#include "shell/desktop/screen_fit.h"

#include <algorithm>

#include <QMainWindow>
#include <QScreen>
#include <QScrollArea>

namespace zol {
namespace {

constexpr QSize window_frame(8, 34);

}  // namespace

void fit_to_screen(QMainWindow& window) {
  const QSize room = window.screen()->availableSize() - window_frame;
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
  window.resize(window.size().expandedTo(least).boundedTo(room));
}

void place_beside(QWidget& window, const QWidget& other) {
  const QRect room = other.screen()->availableGeometry();
  const QRect taken = other.frameGeometry();
  const QSize size = window.size() + window_frame;
  QRect best;
  qint64 least = -1;
  for (const QPoint at :
       {QPoint(taken.right() + 1, taken.top()), QPoint(taken.left() - size.width(), taken.top()),
        QPoint(taken.left(), taken.bottom() + 1), QPoint(taken.left(), taken.top() - size.height())}) {
    const QPoint farthest = room.bottomRight() - QPoint(size.width(), size.height());
    const QRect place(QPoint(std::max(room.left(), std::min(at.x(), farthest.x())),
                             std::max(room.top(), std::min(at.y(), farthest.y()))),
                      size);
    const QRect covered = place.intersected(taken);
    const qint64 area = qint64{covered.width()} * covered.height();
    if (least >= 0 && area >= least) continue;
    least = area;
    best = place;
  }
  window.move(best.topLeft());
}

}  // namespace zol
