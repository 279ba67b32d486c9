// Ties of what takes keys: text boxes and grids.
#include <algorithm>

#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTableView>

#include "shell/desktop/control_models.h"
#include "shell/desktop/control_tie.h"
#include "shell/desktop/item_copies.h"
#include "shell/desktop/latin1_input.h"
#include "shell/desktop/qt_text.h"
#include "shell/services/latin1.h"

namespace zol {
namespace {

/// Key code of a key event as handlers know it: 13 Enter, 8 backspace, a Latin-1 character; 0 for any other key.
int key_code(const QKeyEvent& event) {
  if (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter) return key_enter;
  if (event.key() == Qt::Key_Backspace) return key_backspace;
  if (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) return 0;
  const QString text = event.text();
  if (text.size() != 1) return 0;
  const int code = text.front().unicode();
  return code >= ' ' && code != 127 && code <= 0xFF ? code : 0;
}

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

class GridTie : public TypingTie {
 public:
  GridTie(const TiedWindow& owner, Grid& grid, QTableView& view)
      : TypingTie(owner, grid, view), grid_(grid), shown_(view), model_(new GridModel(grid, this)) {
    view.setEditTriggers(QAbstractItemView::NoEditTriggers);
    view.setModel(model_);
    add_copy_commands(view);
    view.horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    view.horizontalHeader()->setHighlightSections(false);
    view.verticalHeader()->setHighlightSections(false);
    view.verticalHeader()->setDefaultSectionSize(view.fontMetrics().height() + 8);
    connect(view.selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& current, const QModelIndex& /*previous*/) {
              if (!showing_ && current.isValid()) go_to(current.row() + 1, current.column() + 1);
            });
  }
  void show() override {
    showing_ = true;
    model_->refresh();
    // Columns share the room; none gets narrower than the grid wants.
    constexpr int twips_per_pixel = 15;
    shown_.verticalHeader()->setMinimumWidth(grid_.column_width(0) / twips_per_pixel);
    int narrowest = 0;
    for (int column = 1; column < grid_.columns(); ++column) {
      narrowest = std::max(narrowest, grid_.column_width(column) / twips_per_pixel);
    }
    shown_.horizontalHeader()->setMinimumSectionSize(narrowest);
    shown_.setCurrentIndex(model_->index(grid_.row() - 1, grid_.column() - 1));
    showing_ = false;
  }

 protected:
  bool key_pressed(QKeyEvent& event) override {
    const int code = key_code(event);
    const bool refused = !is_latin1(event.text());
    if (refused) say_refused(shown_);
    if (code != 0) {
      const std::string key = utf8_of_latin1(std::string(1, static_cast<char>(code)));
      enter(operation({"type", grid_.path(), key}, [this, code] { grid_.press_key(code); }),
            code == key_enter ? warning() : UserEvents::Warning());
    }
    return code != 0 || refused;
  }

 private:
  void go_to(int row, int column) {
    act({"cell", grid_.path(), std::to_string(row), std::to_string(column)}, [this, row, column] {
      grid_.set_row(row);
      grid_.set_column(column);
    });
  }

  Grid& grid_;
  QTableView& shown_;
  GridModel* model_;
  bool showing_ = false;
};

}  // namespace

std::unique_ptr<ControlTie> make_typing_tie(const TiedWindow& owner, Control& control) {
  switch (control.kind()) {
    case ControlKind::TextBox:
      return tie_by_name<TextTie, TextBox, QLineEdit>(owner, control);
    case ControlKind::Grid:
      return tie_by_name<GridTie, Grid, QTableView>(owner, control);
    default:
      return nullptr;
  }
}

}  // namespace zol
