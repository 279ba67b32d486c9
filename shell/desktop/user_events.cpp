#include "shell/desktop/user_events.h"

#include <utility>

#include <QApplication>
#include <QMenuBar>

namespace zol {

UserEvents::UserEvents(EventGate& gate) : gate_(gate) {
  connect(qApp, &QApplication::focusChanged, this,
          [this](const QWidget* /*from*/, const QWidget* to) { focus_moved(to); });
}

/// What waits for a window that is unloaded meanwhile never runs.
void UserEvents::enter(const Window& window, UserEvent event) {
  event.window = window.name();
  event.still_wanted = [life = window.life(), also = std::move(event.still_wanted)] {
    return !life.expired() && (!also || also());
  };
  gate_.enter(std::move(event));
}

void UserEvents::act(const Window& window, UserEvent event) {
  leave_box();
  enter(window, std::move(event));
}

void UserEvents::enter(const Window& window, UserEvent event, Warning warning) {
  if (warning.reason) event.still_wanted = [this, warning = std::move(warning)] { return agreed(warning); };
  enter(window, std::move(event));
}

void UserEvents::act(const Window& window, UserEvent event, Warning warning) {
  leave_box();
  enter(window, std::move(event), std::move(warning));
}

bool UserEvents::agreed(const Warning& warning) {
  const std::string reason = warning.reason();
  if (reason.empty()) return true;
  asking_ = true;
  const bool wanted = question_(reason);
  asking_ = false;
  if (!wanted && warning.refused) warning.refused();
  return wanted;
}

void UserEvents::in_box(TextBox& box, QWidget& shown_by) {
  if (box_ == &box && !box_lives_.expired()) return;
  leave_box();
  box_ = &box;
  box_lives_ = box.window().life();
  box_widget_ = &shown_by;
}

void UserEvents::in_cell(QWidget& table, std::function<void()> leave) {
  if (cell_table_ == &table) return;
  leave_box();
  cell_table_ = &table;
  leave_cell_ = std::move(leave);
}

void UserEvents::out_of_cell(const QWidget& table) {
  if (cell_table_ != &table) return;
  cell_table_ = nullptr;
  leave_cell_ = {};
}

void UserEvents::leave_box() {
  const QPointer<QWidget> table = std::exchange(cell_table_, nullptr);
  if (const auto leave = std::exchange(leave_cell_, {}); table != nullptr && leave) leave();
  TextBox* box = std::exchange(box_, nullptr);
  if (box == nullptr || box_lives_.expired() || !box->on_lost_focus) return;
  enter(box->window(), operation({"leave", box->path()}, [box] { box->leave(); }));
}

/// A menu is on the way to an action, or back to the box, and so is a question; another program leaves the box alone.
void UserEvents::focus_moved(const QWidget* to) {
  if (asking_ || to == nullptr || to == box_widget_ || to == cell_table_ ||
      (cell_table_ && cell_table_->isAncestorOf(to)) || to->window()->windowType() == Qt::Popup)
    return;
  if (qobject_cast<const QMenuBar*>(to) == nullptr) leave_box();
}

}  // namespace zol
