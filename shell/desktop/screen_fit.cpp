#include "shell/desktop/screen_fit.h"

#include <algorithm>
#include <vector>

#include <QApplication>
#include <QMainWindow>
#include <QScreen>
#include <QScrollArea>

#include "shell/desktop/desk_layout.h"

namespace zol {

void fit_to_screen(QMainWindow& window) {
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
  window.resize(window.size().expandedTo(least).boundedTo(room));
}

void place_beside(QWidget& window, const QWidget& other) {
  std::vector<QRect> others;
  for (const QWidget* top : QApplication::topLevelWidgets()) {
    if (top->isVisible() && top != &window && top != &other && top->windowType() == Qt::Window) {
      others.push_back(top->frameGeometry());
    }
  }
  const QRect room = other.screen()->availableGeometry();
  window.move(beside(window.size() + usual_frame, other.frameGeometry(), others, room).topLeft());
}

}  // namespace zol
