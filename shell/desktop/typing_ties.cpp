// Ties of text boxes.
#include <QKeyEvent>
#include <QLineEdit>

#include "shell/desktop/control_tie.h"
#include "shell/desktop/latin1_input.h"
#include "shell/desktop/qt_text.h"

namespace zol {
namespace {

/// Sees the keys of its widget before the widget does.
class TypingTie : public ControlTie {
 public:
  TypingTie(const TiedWindow& owner, Control& bound, QWidget& shown_by) : ControlTie(owner, bound, &shown_by) {
    shown_by.installEventFilter(this);
  }

 protected:
  virtual bool key_pressed(QKeyEvent& event) = 0;  ///< @returns true when the widget must not see it
  virtual void focus_came(Qt::FocusReason /*reason*/) {}

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::KeyPress) {
      if (key_pressed(dynamic_cast<QKeyEvent&>(*event))) return true;
    } else if (event->type() == QEvent::FocusIn) {
      focus_came(dynamic_cast<QFocusEvent&>(*event).reason());
    }
    return ControlTie::eventFilter(watched, event);
  }
};

class TextTie : public TypingTie {
 public:
  TextTie(const TiedWindow& owner, TextBox& box, QLineEdit& edit)
      : TypingTie(owner, box, edit), box_(box), edit_(edit) {
    if (!box.holds_file_name) take_latin1_only(edit);
    connect(&edit, &QLineEdit::textEdited, this, [this](const QString& text) {
      entered();
      const std::string utf8 = text.toStdString();
      const std::string typed = box_.holds_file_name ? utf8 : latin1_from_qt(text);
      enter(operation({"set", box_.path(), utf8}, [this, typed] { box_.set_text(typed); }),
            warning([this, typed] { return box_.warn_text ? box_.warn_text(typed) : ""; }));
    });
  }
  void show() override {
    const QString text = box_.holds_file_name ? to_qt(box_.text()) : latin1_to_qt(box_.text());
    if (edit_.text() == text) return;
    const int cursor = edit_.cursorPosition();
    edit_.setText(text);
    edit_.setCursorPosition(edit_.hasFocus() ? cursor : 0);
  }
  void take_focus() override {
    TypingTie::take_focus();
    edit_.selectAll();
  }

 protected:
  bool key_pressed(QKeyEvent& event) override {
    const int code = key_code(event);
    if (code == 0) return false;
    entered();
    if (!box_.on_key_press) return code == key_enter;
    const auto left = std::make_shared<int>(0);  // a key that has to wait is kept from the widget
    UserEvent press{"a key was pressed in " + box_.path(), "", [this, left, code] { *left = box_.press_key(code); }};
    if (code == key_enter) press.script = script_line({"type", box_.path(), "\r"});
    enter(std::move(press), code == key_enter ? warning() : UserEvents::Warning());
    return *left == 0 || code == key_enter;
  }
  void focus_came(Qt::FocusReason reason) override {
    if (reason != Qt::PopupFocusReason && reason != Qt::MenuBarFocusReason) entered();  // it was never away
  }

 private:
  void entered() { owner().events.in_box(box_, edit_); }

  TextBox& box_;
  QLineEdit& edit_;
};

}  // namespace

std::unique_ptr<ControlTie> make_typing_tie(const TiedWindow& owner, Control& control) {
  return control.kind() == ControlKind::TextBox ? tie_by_name<TextTie, TextBox, QLineEdit>(owner, control) : nullptr;
}

}  // namespace zol
