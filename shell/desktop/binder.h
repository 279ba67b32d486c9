// Ties the widgets of one window to its controls, by name and kind, both ways.
//
// What the user does goes to the control, which sets off its handlers; what handlers change is collected and shown when
// the event is over, progress and the mouse pointer at once. A program write never comes back as a user's.
#pragma once

#include <memory>
#include <set>
#include <utility>
#include <vector>

#include <QCursor>
#include <QPointer>
#include <QString>

#include "shell/desktop/user_events.h"
#include "shell/services/window_services.h"

class QWidget;

namespace zol {

class ControlTie;

class Binder {
 public:
  /// @param widget  the top level of the window; its children bear the names of the controls
  /// @throws std::logic_error  a control has no widget
  Binder(Window& window, QWidget& widget, UserEvents& events);
  Binder(const Binder&) = delete;
  Binder& operator=(const Binder&) = delete;
  ~Binder();

  [[nodiscard]] Window& window() const { return window_; }
  [[nodiscard]] QWidget& widget() const { return widget_; }

  void control_changed(Control& control);
  void focus_wanted(Control& control) { wanted_focus_ = &control; }
  void window_changed();
  void window_shown();
  /// The top level beside which the window comes up, if any.
  void set_neighbour(QWidget* neighbour) { neighbour_ = neighbour; }
  /// What the title says after the caption, with Qt's mark [*] for changed work; empty: nothing.
  void set_title_end(const QString& end, bool unsaved);
  /// Shows what has changed since the last time. In the middle of a handler lists wait for its end: a view lays out all
  /// of a list that has changed.
  void show_changes(bool with_lists = true);
  /// Shows all of it, as at the start.
  void show_everything();

 private:
  [[nodiscard]] ControlTie* tie_of(const Control& control) const;
  void show_title();
  void show_window();
  void show_hourglass();

  Window& window_;
  QWidget& widget_;
  QPointer<QWidget> neighbour_;
  std::vector<std::pair<QPointer<QWidget>, QCursor>> pointers_under_hourglass_;
  std::vector<std::unique_ptr<ControlTie>> ties_;
  std::set<Control*> changed_;
  Control* wanted_focus_ = nullptr;
  QString title_end_;
  bool window_changed_ = true;
  bool comes_to_front_ = false;
};

}  // namespace zol
