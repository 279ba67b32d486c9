#include "shell/desktop/look/picture_alone.h"

#include <QAction>
#include <QCoreApplication>
#include <QLayout>
#include <QMainWindow>
#include <QMenu>
#include <QPointer>

#include "shell/desktop/canvas_view.h"
#include "shell/desktop/look/look.h"

namespace zol {
namespace {

/// While the picture is alone another widget keeps its place, so that the controls around are as they were: the program
/// goes on showing and hiding them.
class PictureAlone : public QObject {
 public:
  PictureAlone(QMainWindow& window, CanvasView& picture) : QObject(&window), window_(window), picture_(picture) {}

  void set(bool alone) {
    if (alone == (contents_ != nullptr)) return;
    alone ? take() : put_back();
  }

 private:
  [[nodiscard]] static bool replace(QWidget& from, QWidget& to) {
    QWidget* around = from.parentWidget();
    delete around->layout()->replaceWidget(&from, &to);
    return to.parentWidget() == around;
  }
  void take() {
    auto* keeper = new QWidget;
    if (!replace(picture_, *keeper)) {
      delete keeper;
      return;
    }
    keeper_ = keeper;
    least_ = window_.minimumSize();
    contents_ = window_.takeCentralWidget();
    contents_->setParent(&window_);
    contents_->hide();
    window_.setCentralWidget(&picture_);
    window_.setMinimumSize(0, 0);
    picture_.show();
  }
  void put_back() {
    window_.takeCentralWidget();
    window_.setCentralWidget(contents_);
    contents_->show();
    if (replace(*keeper_, picture_)) picture_.show();
    delete keeper_;
    contents_ = nullptr;
    window_.setMinimumSize(least_);
  }

  QMainWindow& window_;
  CanvasView& picture_;
  QPointer<QWidget> contents_;
  QPointer<QWidget> keeper_;
  QSize least_;
};

}  // namespace

void offer_picture_alone(QMainWindow& window) {
  auto* picture = window.findChild<CanvasView*>();
  if (picture == nullptr) return;
  auto* alone = new PictureAlone(window, *picture);
  auto* action = view_menu(window).addAction(QCoreApplication::translate("zol", "Picture alone"));
  action->setCheckable(true);
  action->setShortcut(Qt::Key_F9);
  window.addAction(action);
  QObject::connect(action, &QAction::toggled, alone, &PictureAlone::set);
}

}  // namespace zol
