// A control and the widget that shows it, tied by their name.
#pragma once

#include <functional>
#include <initializer_list>
#include <memory>
#include <string>
#include <utility>

#include <QWidget>

#include "shell/desktop/user_events.h"
#include "shell/services/window_services.h"

namespace zol {

/// A window with the top level that shows it, and the way on which the user's events go to the program.
struct TiedWindow {
  Window& window;
  QWidget& top;
  UserEvents& events;

  /// The child of the top level that bears the name of a control; nullptr when there is none of this kind.
  template <class Widget>
  [[nodiscard]] Widget* named(const Control& control) const {
    return top.findChild<Widget*>(QString::fromStdString(control.name()));
  }
};

class ControlTie : public QObject {
 public:
  /// @param shown_by  nullptr for a menu item, which is not a widget
  ControlTie(const TiedWindow& owner, Control& bound, QWidget* shown_by)
      : owner_(owner), control_(bound), widget_(shown_by) {}

  [[nodiscard]] const Control& control() const { return control_; }
  /// Shows the contents of the control. No event comes of it.
  virtual void show() = 0;
  /// Shows or hides the widget together with the label beside it.
  void show_visibility() const;
  virtual void take_focus();

 protected:
  /// Hands over what the user did inside the control.
  void enter(UserEvent event) const { owner_.events.enter(owner_.window, std::move(event)); }
  void enter(UserEvent event, UserEvents::Warning against) const {
    owner_.events.enter(owner_.window, std::move(event), std::move(against));
  }
  /// Hands over an action, as the words of its script operation. The box that the user is in is left first, and
  /// where there is a reason against the action, the user is asked.
  /// @param reason  none: that of the control
  void act(std::initializer_list<std::string> words, std::function<void()> run, Reason reason = {}) {
    owner_.events.act(owner_.window, operation(words, std::move(run)), warning(std::move(reason)));
  }
  /// Of the control, or another one; what is refused is shown as it was.
  [[nodiscard]] UserEvents::Warning warning(Reason reason = {}) {
    return {reason ? std::move(reason) : control_.warn_when, [this] { show_again(); }};
  }
  /// Shows what the control holds, though the user has changed what is seen.
  virtual void show_again() { show(); }
  [[nodiscard]] const TiedWindow& owner() const { return owner_; }

 private:
  TiedWindow owner_;
  Control& control_;
  QWidget* widget_;
};

/// Ties a control to the widget of its name and kind. @returns nullptr when the window has none
std::unique_ptr<ControlTie> make_tie(const TiedWindow& owner, Control& control);

// The same for some kinds of controls; any other kind gives nullptr.
std::unique_ptr<ControlTie> make_typing_tie(const TiedWindow& owner, Control& control);  ///< text boxes
std::unique_ptr<ControlTie> make_grid_tie(const TiedWindow& owner, Control& control);    ///< tables to be edited
std::unique_ptr<ControlTie> make_choice_tie(const TiedWindow& owner, Control& control);  ///< buttons, lists, menu items
std::unique_ptr<ControlTie> make_display_tie(const TiedWindow& owner, Control& control);  ///< labels, frames, pictures

/// @returns nullptr when the window has no such widget
template <class Tie, class Kind, class Widget>
std::unique_ptr<ControlTie> tie_by_name(const TiedWindow& owner, Control& control) {
  auto* widget = owner.named<Widget>(control);
  if (widget == nullptr) return nullptr;
  return std::make_unique<Tie>(owner, dynamic_cast<Kind&>(control), *widget);
}

}  // namespace zol
