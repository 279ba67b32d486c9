#include "shell/desktop/binder.h"

#include <cmath>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QGroupBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMainWindow>
#include <QMenu>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QStatusBar>
#include <QTableView>

#include "shell/desktop/canvas_view.h"
#include "shell/desktop/control_models.h"
#include "shell/desktop/item_copies.h"
#include "shell/desktop/latin1_input.h"
#include "shell/desktop/qt_text.h"
#include "shell/desktop/screen_fit.h"
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

}  // namespace

/// One control with its widget.
struct Binder::Tie : QObject {
  Tie(Binder& owner, Control& bound, QWidget* shown_by) : binder(owner), control(bound), widget(shown_by) {}
  virtual void show() = 0;
  virtual bool key_pressed(QKeyEvent& /*event*/) { return false; }  ///< @returns true when the widget must not see it
  virtual void focus_came(Qt::FocusReason /*reason*/) {}
  virtual void focus() {
    if (widget != nullptr) widget->setFocus(Qt::OtherFocusReason);
  }
  /// What is shown at once, in the middle of a handler.
  [[nodiscard]] virtual bool at_once() const { return false; }
  void show_visibility() const {
    if (widget == nullptr || widget->isVisibleTo(widget->parentWidget()) == control.visible()) return;
    widget->setVisible(control.visible());
    for (auto* label : binder.widget().findChildren<QLabel*>()) {
      if (label->buddy() == widget) label->setVisible(control.visible());  // the text beside a box goes with it
    }
  }

  Binder& binder;
  Control& control;
  QWidget* widget;
};

class Binder::TextTie : public Tie {
 public:
  TextTie(Binder& owner, TextBox& box, QLineEdit& edit) : Tie(owner, box, &edit), box_(box), edit_(edit) {
    if (!box.holds_file_name) take_latin1_only(edit);
    connect(&edit, &QLineEdit::textEdited, this, [this](const QString& text) {
      entered();
      const std::string utf8 = text.toStdString();
      const std::string typed = box_.holds_file_name ? utf8 : latin1_from_qt(text);
      binder.enter(operation({"set", box_.path(), utf8}, [this, typed] { box_.set_text(typed); }));
    });
    edit.installEventFilter(&owner);
  }
  void show() override {
    const QString text = box_.holds_file_name ? to_qt(box_.text()) : latin1_to_qt(box_.text());
    if (edit_.text() == text) return;
    const int cursor = edit_.cursorPosition();
    edit_.setText(text);
    edit_.setCursorPosition(edit_.hasFocus() ? cursor : 0);
  }
  bool key_pressed(QKeyEvent& event) override {
    const int code = key_code(event);
    if (code == 0) return false;
    entered();
    if (!box_.on_key_press) return code == key_enter;
    const auto left = std::make_shared<int>(0);  // a key that has to wait is kept from the widget
    UserEvent press{"a key was pressed in " + box_.path(), "", [this, left, code] { *left = box_.press_key(code); }};
    if (code == key_enter) press.script = script_line({"type", box_.path(), "\r"});
    binder.enter(std::move(press));
    return *left == 0 || code == key_enter;
  }
  void focus_came(Qt::FocusReason reason) override {
    if (reason != Qt::PopupFocusReason && reason != Qt::MenuBarFocusReason) entered();  // it was never away
  }
  void focus() override {
    Tie::focus();
    edit_.selectAll();
  }

 private:
  void entered() { binder.events_.in_box(box_, edit_); }

  TextBox& box_;
  QLineEdit& edit_;
};

class Binder::LabelTie : public Tie {
 public:
  LabelTie(Binder& owner, Label& label, QLabel& view) : Tie(owner, label, &view), label_(label), shown_(view) {}
  void show() override { shown_.setText(to_qt(label_.caption())); }

 private:
  Label& label_;
  QLabel& shown_;
};

class Binder::ButtonTie : public Tie {
 public:
  ButtonTie(Binder& owner, CommandButton& button, QAbstractButton& view) : Tie(owner, button, &view) {
    connect(&view, &QAbstractButton::clicked, this, [this, &button] {
      binder.act({"click", button.path()}, [&button] { button.click(); });
    });
  }
  void show() override {}
};

class Binder::CheckTie : public Tie {
 public:
  CheckTie(Binder& owner, CheckBox& box, QCheckBox& view) : Tie(owner, box, &view), box_(box), shown_(view) {
    connect(&view, &QCheckBox::clicked, this, [this] { binder.act({"click", box_.path()}, [this] { box_.click(); }); });
  }
  void show() override { shown_.setChecked(box_.checked()); }

 private:
  CheckBox& box_;
  QCheckBox& shown_;
};

class Binder::OptionTie : public Tie {
 public:
  OptionTie(Binder& owner, OptionButton& option, QRadioButton& view)
      : Tie(owner, option, &view), option_(option), shown_(view) {
    view.setAutoExclusive(false);  // the options exclude each other by themselves
    connect(&view, &QRadioButton::clicked, this, [this] {
      binder.act({"click", option_.path()}, [this] { option_.click(); });
      shown_.setChecked(option_.on());
    });
  }
  void show() override { shown_.setChecked(option_.on()); }

 private:
  OptionButton& option_;
  QRadioButton& shown_;
};

class Binder::ComboTie : public Tie {
 public:
  ComboTie(Binder& owner, ComboBox& combo, QComboBox& view) : Tie(owner, combo, &view), combo_(combo), shown_(view) {
    // The program may set a text that is no item; the user picks items.
    view.setEditable(true);
    view.setInsertPolicy(QComboBox::NoInsert);
    view.lineEdit()->setReadOnly(true);
    connect(&view, &QComboBox::activated, this, [this](int index) {
      binder.act({"select", combo_.path(), std::to_string(index)}, [this, index] { combo_.pick(index); });
    });
  }
  void show() override {
    const QSignalBlocker blocked(shown_);
    if (shown_.count() != static_cast<int>(combo_.items().size())) {
      shown_.clear();
      for (const auto& item : combo_.items()) shown_.addItem(latin1_to_qt(item));
    }
    const QString text = latin1_to_qt(combo_.text());
    shown_.setCurrentIndex(shown_.findText(text, Qt::MatchExactly));
    shown_.setEditText(text);
  }

 private:
  ComboBox& combo_;
  QComboBox& shown_;
};

class Binder::ListTie : public Tie {
 public:
  ListTie(Binder& owner, ListBox& list, QListView& view)
      : Tie(owner, list, &view),
        list_(list),
        shown_(view),
        model_(new ListModel(list, view.property("alignFirstWord").toBool(), this)) {
    view.setUniformItemSizes(true);
    view.setEditTriggers(QAbstractItemView::NoEditTriggers);
    view.setModel(model_);
    add_copy_commands(view);
    connect(&view, &QListView::clicked, this, [this](const QModelIndex& index) { pick(index.row()); });
    connect(view.selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& current, const QModelIndex& /*previous*/) {
              const bool by_keyboard = !showing_ && QApplication::mouseButtons() == Qt::NoButton;
              if (by_keyboard && current.isValid()) pick(current.row());
            });
  }
  void show() override {
    showing_ = true;
    // What the user has selected stays as long as the lines do.
    if (std::exchange(shown_revision_, list_.revision()) != list_.revision()) {
      model_->refresh();
      shown_line_ = -1;
    }
    if (std::exchange(shown_line_, list_.list_index()) != list_.list_index()) {
      shown_.setCurrentIndex(model_->index(list_.list_index()));
    }
    shown_.viewport()->update();
    showing_ = false;
  }

 private:
  /// What extends the selection for a copy picks nothing.
  void pick(int row) {
    if (QApplication::keyboardModifiers() & (Qt::ControlModifier | Qt::ShiftModifier)) return;
    binder.act({"select", list_.path(), std::to_string(row)}, [this, row] { list_.pick(row); });
  }

  ListBox& list_;
  QListView& shown_;
  ListModel* model_;
  int shown_revision_ = 0;
  int shown_line_ = -1;
  bool showing_ = false;
};

class Binder::FrameTie : public Tie {
 public:
  using Tie::Tie;
  void show() override {}
};

class Binder::MenuTie : public Tie {
 public:
  MenuTie(Binder& owner, MenuItem& item, QAction& action) : Tie(owner, item, nullptr), action_(action) {
    connect(&action, &QAction::triggered, this, [this, &item] {
      binder.act({"click", item.path()}, [&item] { item.click(); });
    });
  }
  void show() override { action_.setVisible(control.visible()); }

 private:
  QAction& action_;
};

class Binder::ProgressTie : public Tie {
 public:
  ProgressTie(Binder& owner, ProgressBar& bar, QProgressBar& view) : Tie(owner, bar, &view), bar_(bar), shown_(view) {
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
  [[nodiscard]] bool at_once() const override { return true; }

 private:
  static constexpr int steps = 200;
  ProgressBar& bar_;
  QProgressBar& shown_;
};

class Binder::GridTie : public Tie {
 public:
  GridTie(Binder& owner, Grid& grid, QTableView& view)
      : Tie(owner, grid, &view), grid_(grid), shown_(view), model_(new GridModel(grid, this)) {
    view.setEditTriggers(QAbstractItemView::NoEditTriggers);
    view.setModel(model_);
    add_copy_commands(view);
    view.installEventFilter(&owner);
    view.horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    view.horizontalHeader()->setHighlightSections(false);
    view.verticalHeader()->setHighlightSections(false);
    view.verticalHeader()->setDefaultSectionSize(view.fontMetrics().height() + 8);
    connect(view.selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& current, const QModelIndex& /*previous*/) {
              if (showing_ || !current.isValid()) return;
              const int row = current.row() + 1;
              const int column = current.column() + 1;
              binder.act({"cell", grid_.path(), std::to_string(row), std::to_string(column)}, [this, row, column] {
                grid_.set_row(row);
                grid_.set_column(column);
              });
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
  bool key_pressed(QKeyEvent& event) override {
    const int code = key_code(event);
    const bool refused = !is_latin1(event.text());
    if (refused) say_refused(shown_);
    if (code != 0) {
      const std::string key = utf8_of_latin1(std::string(1, static_cast<char>(code)));
      binder.enter(operation({"type", grid_.path(), key}, [this, code] { grid_.press_key(code); }));
    }
    return code != 0 || refused;
  }

 private:
  Grid& grid_;
  QTableView& shown_;
  GridModel* model_;
  bool showing_ = false;
};

class Binder::CanvasTie : public Tie {
 public:
  CanvasTie(Binder& owner, Canvas& canvas, CanvasView& view) : Tie(owner, canvas, &view), view_(view) {
    view.attach(canvas, owner.events_);
    if (auto* top = qobject_cast<QMainWindow*>(&owner.widget())) {
      connect(&view, &CanvasView::pointed_at, top->statusBar(),
              [top](const QString& place) { top->statusBar()->showMessage(place); });
    }
  }
  void show() override { view_.refresh(); }

 private:
  CanvasView& view_;
};

template <class Widget>
Widget* Binder::named(const Control& control) const {
  return widget_.findChild<Widget*>(QString::fromStdString(control.name()));
}

std::unique_ptr<Binder::Tie> Binder::make_tie(Control& control) {
  const auto tie = [this, &control]<class TieKind, class ControlKind, class Widget>() -> std::unique_ptr<Tie> {
    auto* widget = named<Widget>(control);
    if (widget == nullptr) return nullptr;
    return std::make_unique<TieKind>(*this, dynamic_cast<ControlKind&>(control), *widget);
  };
  switch (control.kind()) {
    case ControlKind::TextBox:
      return tie.operator()<TextTie, TextBox, QLineEdit>();
    case ControlKind::Label:
      return tie.operator()<LabelTie, Label, QLabel>();
    case ControlKind::CommandButton:
      return tie.operator()<ButtonTie, CommandButton, QAbstractButton>();
    case ControlKind::CheckBox:
      return tie.operator()<CheckTie, CheckBox, QCheckBox>();
    case ControlKind::OptionButton:
      return tie.operator()<OptionTie, OptionButton, QRadioButton>();
    case ControlKind::ComboBox:
      return tie.operator()<ComboTie, ComboBox, QComboBox>();
    case ControlKind::ListBox:
      return tie.operator()<ListTie, ListBox, QListView>();
    case ControlKind::MenuItem:
      return tie.operator()<MenuTie, MenuItem, QAction>();
    case ControlKind::ProgressBar:
      return tie.operator()<ProgressTie, ProgressBar, QProgressBar>();
    case ControlKind::Grid:
      return tie.operator()<GridTie, Grid, QTableView>();
    case ControlKind::Canvas:
      return tie.operator()<CanvasTie, Canvas, CanvasView>();
    case ControlKind::Frame:
      if (auto* group = named<QGroupBox>(control)) return std::make_unique<FrameTie>(*this, control, group);
      break;
  }
  return nullptr;
}

Binder::Binder(Window& window, QWidget& widget, UserEvents& events)
    : window_(window), widget_(widget), events_(events) {
  widget.setAttribute(Qt::WA_ShowWithoutActivating, !window.beside.empty());
  for (Control* control : window.controls()) {
    if (auto made = make_tie(*control)) {
      ties_.push_back(std::move(made));
    } else {
      missing_widgets_.push_back(control->name());
    }
  }
}

Binder::~Binder() = default;

Binder::Tie* Binder::tie_of(const Control& control) const {
  for (const auto& tie : ties_) {
    if (&tie->control == &control) return tie.get();
  }
  return nullptr;
}

void Binder::control_changed(Control& control) {
  if (const auto* bar = dynamic_cast<ProgressBar*>(&control)) {
    if (Tie* tie = tie_of(*bar)) tie->show();
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

void Binder::window_shown() {
  comes_to_front_ = window_.beside.empty();
  window_changed();
}

void Binder::show_window() {
  if (neighbour_ == nullptr || !neighbour_->isVisible()) return widget_.show();
  if (!widget_.testAttribute(Qt::WA_Moved)) place_beside(widget_, *neighbour_);  // later it stays where the user put it
  widget_.show();
  neighbour_->raise();
}

void Binder::show_changes() {
  if (window_changed_) {
    window_changed_ = false;
    widget_.setWindowTitle(to_qt(window_.caption()).trimmed());
    if (window_.visible() && !widget_.isVisible()) show_window();
    if (!window_.visible() && widget_.isVisible()) widget_.hide();
    if (window_.visible() && std::exchange(comes_to_front_, false)) {
      widget_.raise();
      widget_.activateWindow();
    }
  }
  for (Control* control : std::exchange(changed_, {})) {
    if (Tie* tie = tie_of(*control)) {
      tie->show_visibility();
      tie->show();
    }
  }
  if (Control* control = std::exchange(wanted_focus_, nullptr)) {
    if (Tie* tie = tie_of(*control)) tie->focus();
  }
}

void Binder::show_everything() {
  changed_.insert(window_.controls().begin(), window_.controls().end());
  window_changed_ = true;
  show_changes();
}

bool Binder::eventFilter(QObject* watched, QEvent* event) {
  const auto tie = std::find_if(ties_.begin(), ties_.end(), [watched](const auto& t) { return t->widget == watched; });
  if (tie == ties_.end()) return QObject::eventFilter(watched, event);
  if (event->type() == QEvent::KeyPress) {
    if ((*tie)->key_pressed(dynamic_cast<QKeyEvent&>(*event))) return true;
  } else if (event->type() == QEvent::FocusIn) {
    (*tie)->focus_came(dynamic_cast<QFocusEvent&>(*event).reason());
  }
  return QObject::eventFilter(watched, event);
}

}  // namespace zol
