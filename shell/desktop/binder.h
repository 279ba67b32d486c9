// Ties the widgets of one window to its controls, by name and kind, both ways.
//
// What the user does goes to the control, which sets off its handlers; what handlers change is collected and shown when
// the event is over, progress and the mouse pointer at once. A program write never comes back as a user's.
#pragma once

#include <functional>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include <QCursor>
#include <QObject>
#include <QPointer>

#include "shell/desktop/user_events.h"
#include "shell/services/window_services.h"

class QWidget;

namespace zol {

class Binder : public QObject {
  Q_OBJECT

 public:
  /// @param widget  the top level of the window; its children bear the names of the controls
  Binder(Window& window, QWidget& widget, UserEvents& events);
  ~Binder() override;

  [[nodiscard]] Window& window() const { return window_; }
  [[nodiscard]] QWidget& widget() const { return widget_; }

  void control_changed(Control& control);
  void focus_wanted(Control& control) { wanted_focus_ = &control; }
  void window_changed();
  void window_shown();
  /// The top level beside which the window comes up, if any.
  void set_neighbour(QWidget* neighbour) { neighbour_ = neighbour; }
  /// Shows what has changed since the last time.
  void show_changes();
  /// Shows all of it, as at the start.
  void show_everything();

  /// Controls of the window that have no widget, and named widgets that no control stands for.
  [[nodiscard]] const std::vector<std::string>& missing_widgets() const { return missing_widgets_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Tie;
  class TextTie;
  class LabelTie;
  class ButtonTie;
  class CheckTie;
  class OptionTie;
  class ComboTie;
  class ListTie;
  class FrameTie;
  class MenuTie;
  class ProgressTie;
  class GridTie;
  class CanvasTie;

  std::unique_ptr<Tie> make_tie(Control& control);
  template <class Widget>
  [[nodiscard]] Widget* named(const Control& control) const;
  [[nodiscard]] Tie* tie_of(const Control& control) const;
  void enter(UserEvent event) { events_.enter(window_, std::move(event)); }
  void act(std::initializer_list<std::string> words, std::function<void()> run) {
    events_.act(window_, operation(words, std::move(run)));
  }
  void show_window();
  void show_hourglass();

  Window& window_;
  QWidget& widget_;
  UserEvents& events_;
  QPointer<QWidget> neighbour_;
  std::vector<std::pair<QPointer<QWidget>, QCursor>> pointers_under_hourglass_;
  std::vector<std::unique_ptr<Tie>> ties_;
  std::set<Control*> changed_;
  Control* wanted_focus_ = nullptr;
  bool window_changed_ = true;
  bool comes_to_front_ = false;
  std::vector<std::string> missing_widgets_;
};

}  // namespace zol
