// Ties of what shows: labels, frames, progress bars and pictures.
#include <algorithm>
#include <cmath>

#include <QGroupBox>
#include <QLabel>
#include <QMainWindow>
#include <QProgressBar>
#include <QStatusBar>

#include "shell/desktop/canvas_view.h"
#include "shell/desktop/control_tie.h"
#include "shell/desktop/qt_text.h"

namespace zol {
namespace {

class LabelTie : public ControlTie {
 public:
  LabelTie(const TiedWindow& owner, Label& label, QLabel& view)
      : ControlTie(owner, label, &view), label_(label), shown_(view) {}
  void show() override { shown_.setText(to_qt(label_.caption())); }

 private:
  Label& label_;
  QLabel& shown_;
};

class FrameTie : public ControlTie {
 public:
  FrameTie(const TiedWindow& owner, Control& frame, QGroupBox& view) : ControlTie(owner, frame, &view) {}
  void show() override {}
};

class ProgressTie : public ControlTie {
 public:
  ProgressTie(const TiedWindow& owner, ProgressBar& bar, QProgressBar& view)
      : ControlTie(owner, bar, &view), bar_(bar), shown_(view) {
    shown_.setRange(0, steps);
  }
  void show() override {
    const double range = double{bar_.maximum()} - double{bar_.minimum()};
    const double part = range > 0 ? (double{bar_.value()} - double{bar_.minimum()}) / range : 0.0;
    const int step = static_cast<int>(std::lround(std::clamp(part, 0.0, 1.0) * steps));
    if (step == shown_.value()) return;
    shown_.setValue(step);
    if (shown_.isVisible()) shown_.repaint();
  }

 private:
  static constexpr int steps = 200;
  ProgressBar& bar_;
  QProgressBar& shown_;
};

class CanvasTie : public ControlTie {
 public:
  CanvasTie(const TiedWindow& owner, Canvas& canvas, CanvasView& view) : ControlTie(owner, canvas, &view), view_(view) {
    view.attach(canvas, owner.events);
    if (auto* top = qobject_cast<QMainWindow*>(&owner.top)) {
      connect(&view, &CanvasView::pointed_at, top->statusBar(),
              [top](const QString& place) { top->statusBar()->showMessage(place); });
    }
  }
  void show() override { view_.refresh(); }

 private:
  CanvasView& view_;
};

}  // namespace

std::unique_ptr<ControlTie> make_display_tie(const TiedWindow& owner, Control& control) {
  switch (control.kind()) {
    case ControlKind::Label:
      return tie_by_name<LabelTie, Label, QLabel>(owner, control);
    case ControlKind::Frame:
      return tie_by_name<FrameTie, Control, QGroupBox>(owner, control);
    case ControlKind::ProgressBar:
      return tie_by_name<ProgressTie, ProgressBar, QProgressBar>(owner, control);
    case ControlKind::Canvas:
      return tie_by_name<CanvasTie, Canvas, CanvasView>(owner, control);
    default:
      return nullptr;
  }
}

}  // namespace zol
