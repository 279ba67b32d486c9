#include "shell/desktop/screen_fit.h"

#include <algorithm>
#include <vector>

#include <QApplication>
#include <QMainWindow>
#include <QProxyStyle>
#include <QScreen>
#include <QScrollArea>

#include "shell/desktop/desk_layout.h"

namespace zol {
namespace {

constexpr int small_screen = 640;  // lines

class CompactStyle : public QProxyStyle {
 public:
  CompactStyle() : QProxyStyle(QStringLiteral("Fusion")) {}
  int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override {
    const int usual = QProxyStyle::pixelMetric(metric, option, widget);
    constexpr int narrow = 3;
    constexpr int at_side = 5;
    switch (metric) {
      case PM_LayoutTopMargin:
      case PM_LayoutBottomMargin:
      case PM_LayoutVerticalSpacing:
        return std::min(usual, narrow);
      case PM_LayoutLeftMargin:
      case PM_LayoutRightMargin:
      case PM_LayoutHorizontalSpacing:
        return std::min(usual, at_side);
      default:
        return usual;
    }
  }
};

}  // namespace

void use_fitting_style() {
  if (QGuiApplication::primaryScreen()->availableSize().height() < small_screen) {
    QApplication::setStyle(new CompactStyle);  // the application owns it
  } else {
    QApplication::setStyle(QStringLiteral("Fusion"));
  }
}

void fit_to_screen(QMainWindow& window) {
  const QSize room = window.screen()->availableSize() - usual_frame;
  const QSize least = window.minimumSizeHint();
  if (least.boundedTo(room) != least) {
    auto* area = new QScrollArea;
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
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
