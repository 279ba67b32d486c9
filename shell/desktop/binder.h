// Ties the widgets of one window to its controls, by name and kind, both ways.
//
// What the user does goes to the control, which sets off its handlers; what handlers change is collected and shown when
// the event is over, progress and the mouse pointer at once. A program write never comes back as a user's.
#pragma once

#include <functional>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include <QObject>

#include "shell/window_services.h"

class QWidget;

namespace zol {

/// Runs an action as an event of the program: failures are shown, changes appear afterwards.
using EnterEvent = std::function<void(const std::function<void()>&)>;

class Binder : public QObject {
  Q_OBJECT

 public:
  /// @param widget  the top level of the window; its children bear the names of the controls
  Binder(Window& window, QWidget& widget, EnterEvent enter);
  ~Binder() override;

  [[nodiscard]] Window& window() const { return window_; }
  [[nodiscard]] QWidget& widget() const { return widget_; }

  void control_changed(Control& control);
  void focus_wanted(Control& control) { wanted_focus_ = &control; }
  void window_changed();
  void window_shown();
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
  void enter(const std::function<void()>& action) { enter_(action); }
  void leave_box(TextBox& box);

  Window& window_;
  QWidget& widget_;
  EnterEvent enter_;
  std::vector<std::unique_ptr<Tie>> ties_;
  std::set<Control*> changed_;
  Control* wanted_focus_ = nullptr;
  bool window_changed_ = true;
  bool comes_to_front_ = false;
  std::vector<std::string> missing_widgets_;
};

}  // namespace zol
