#include "shell/desktop/binder.h"

#include <stdexcept>

#include "shell/desktop/control_tie.h"
#include "shell/desktop/qt_text.h"
#include "shell/desktop/screen_fit.h"

namespace zol {

Binder::Binder(Window& window, QWidget& widget, UserEvents& events) : window_(window), widget_(widget) {
  widget.setAttribute(Qt::WA_ShowWithoutActivating, !window.beside.empty());
  for (Control* control : window.controls()) {
    auto made = make_tie({window, widget, events}, *control);
    if (!made) throw std::logic_error(control->path() + " has no widget");
    ties_.push_back(std::move(made));
  }
}

Binder::~Binder() = default;

ControlTie* Binder::tie_of(const Control& control) const {
  for (const auto& tie : ties_) {
    if (&tie->control() == &control) return tie.get();
  }
  return nullptr;
}

void Binder::control_changed(Control& control) {
  if (control.kind() == ControlKind::ProgressBar) {  // shown at once, in the middle of a handler
    if (ControlTie* tie = tie_of(control)) tie->show();
    return;
  }
  changed_.insert(&control);
}

void Binder::window_changed() {
  window_changed_ = true;
  show_hourglass();
}

/// The hourglass stands over all of the window, boxes and pictures with pointers of their own included.
void Binder::show_hourglass() {
  const bool waits = window_.mouse_pointer() == MousePointer::Hourglass;
  if (waits != pointers_under_hourglass_.empty()) return;
  if (!waits) {
    for (const auto& [part, pointer] : std::exchange(pointers_under_hourglass_, {})) {
      if (part != nullptr) part->setCursor(pointer);
    }
    widget_.unsetCursor();
    return;
  }
  pointers_under_hourglass_.emplace_back(&widget_, QCursor());
  for (auto* part : widget_.findChildren<QWidget*>()) {
    if (part->testAttribute(Qt::WA_SetCursor)) pointers_under_hourglass_.emplace_back(part, part->cursor());
  }
  for (const auto& [part, pointer] : pointers_under_hourglass_) part->setCursor(Qt::WaitCursor);
}

void Binder::set_title_end(const QString& end, bool unsaved) {
  if (end != title_end_) {
    title_end_ = end;
    show_title();
  }
  widget_.setWindowModified(unsaved);
}

void Binder::show_title() {
  QString caption = to_qt(window_.caption()).trimmed();
  const QLatin1String mark("[*]");
  if (!title_end_.isEmpty()) caption.replace(mark, mark + mark);  // Qt's way to let it stand in a title
  widget_.setWindowTitle(caption + title_end_);
}

void Binder::window_shown() {
  comes_to_front_ = window_.beside.empty();
  window_changed();
}

void Binder::show_window() {
  if (neighbour_ == nullptr || !neighbour_->isVisible()) return widget_.show();
  if (!widget_.testAttribute(Qt::WA_Moved)) place_beside(widget_, *neighbour_);  // later it stays where the user put it
  widget_.show();
  if (!window_.beside.empty()) neighbour_->raise();
}

void Binder::show_changes(bool with_lists) {
  if (window_changed_) {
    window_changed_ = false;
    show_title();
    if (window_.visible() && !widget_.isVisible()) show_window();
    if (!window_.visible() && widget_.isVisible()) widget_.hide();
    if (window_.visible() && std::exchange(comes_to_front_, false)) {
      widget_.raise();
      widget_.activateWindow();
    }
  }
  for (Control* control : std::exchange(changed_, {})) {
    if (!with_lists && control->kind() == ControlKind::ListBox) {
      changed_.insert(control);
      continue;
    }
    if (ControlTie* tie = tie_of(*control)) {
      tie->show_visibility();
      tie->show();
    }
  }
  if (Control* control = std::exchange(wanted_focus_, nullptr)) {
    if (ControlTie* tie = tie_of(*control)) tie->take_focus();
  }
}

void Binder::show_everything() {
  changed_.insert(window_.controls().begin(), window_.controls().end());
  window_changed_ = true;
  show_changes();
}

}  // namespace zol
