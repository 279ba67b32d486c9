// What the user does at the widgets, on its way to the gate. A box is left before anything else is done, whatever way
// leads there: the mouse, a mnemonic, a menu, a picture or a button that takes no focus, a drop.
#pragma once

#include <functional>
#include <memory>

#include <QObject>
#include <QPointer>
#include <QWidget>

#include "shell/desktop/all_the_same.h"
#include "shell/services/event_gate.h"
#include "shell/services/window_services.h"

namespace zol {

class UserEvents : public QObject {
 public:
  explicit UserEvents(EventGate& gate);

  /// Work inside a control: a box or a table that is typed into, a picture that the pointer moves over.
  void enter(const Window& window, UserEvent event);
  /// An action on a window: the box that the user is in is left first.
  void act(const Window& window, UserEvent event);

  /// Why what the user does would end the run or be of no use, found when its turn has come, and what is done when the
  /// user then does not want it.
  struct Warning {
    Reason reason;
    std::function<void()> refused = {};
  };
  /// The same, where the user is asked first if there is a reason.
  void enter(const Window& window, UserEvent event, Warning warning);
  void act(const Window& window, UserEvent event, Warning warning);
  /// Asks "do it all the same?" in the place of a message box.
  void set_question(std::function<bool(const std::string& reason)> question) { question_ = std::move(question); }

  /// The user is in this box now, by the focus or by typing, until it is left.
  void in_box(TextBox& box, QWidget& shown_by);
  void leave_box();
  /// The user edits a cell of this table, until something else is done; then the cell is left.
  void in_cell(QWidget& table, std::function<void()> leave);
  void out_of_cell(const QWidget& table);
  /// What a widget does by itself: no event of the program, but its failure ends it.
  void guard(const std::function<void()>& action) { gate_.guard(action); }

 private:
  void focus_moved(const QWidget* to);
  /// @returns false when there is a reason against it and the user does not want it then
  [[nodiscard]] bool agreed(const Warning& warning);

  EventGate& gate_;
  std::function<bool(const std::string&)> question_ = ask_all_the_same;
  bool asking_ = false;
  TextBox* box_ = nullptr;
  std::weak_ptr<const void> box_lives_;
  QPointer<QWidget> box_widget_;
  QPointer<QWidget> cell_table_;
  std::function<void()> leave_cell_;
};

}  // namespace zol
