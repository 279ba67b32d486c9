// Ties of what is clicked or picked: buttons, check boxes, options, combo boxes, lists and menu items.
#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QListView>
#include <QMainWindow>
#include <QMenu>
#include <QMouseEvent>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QSlider>
#include <QStatusBar>

#include "shell/desktop/control_models.h"
#include "shell/desktop/control_tie.h"
#include "shell/desktop/item_copies.h"
#include "shell/desktop/qt_text.h"

namespace zol {
namespace {

class ButtonTie : public ControlTie {
 public:
  ButtonTie(const TiedWindow& owner, CommandButton& button, QAbstractButton& view) : ControlTie(owner, button, &view) {
    connect(&view, &QAbstractButton::clicked, this, [this, &button] {
      act({"click", button.path()}, [&button] { button.click(); });
    });
  }
  void show() override {}
};

class CheckTie : public ControlTie {
 public:
  CheckTie(const TiedWindow& owner, CheckBox& box, QCheckBox& view)
      : ControlTie(owner, box, &view), box_(box), shown_(view) {
    connect(&view, &QCheckBox::clicked, this, [this] { act({"click", box_.path()}, [this] { box_.click(); }); });
  }
  void show() override { shown_.setChecked(box_.checked()); }

 private:
  CheckBox& box_;
  QCheckBox& shown_;
};

class OptionTie : public ControlTie {
 public:
  OptionTie(const TiedWindow& owner, OptionButton& option, QRadioButton& view)
      : ControlTie(owner, option, &view), option_(option), shown_(view) {
    view.setAutoExclusive(false);  // the options exclude each other by themselves
    connect(&view, &QRadioButton::clicked, this, [this] {
      act({"click", option_.path()}, [this] { option_.click(); });
      shown_.setChecked(option_.on());
    });
  }
  void show() override { shown_.setChecked(option_.on()); }

 private:
  OptionButton& option_;
  QRadioButton& shown_;
};

class ComboTie : public ControlTie {
 public:
  ComboTie(const TiedWindow& owner, ComboBox& combo, QComboBox& view)
      : ControlTie(owner, combo, &view), combo_(combo), shown_(view) {
    // The program may set a text that is no item; the user picks items.
    view.setEditable(true);
    view.setInsertPolicy(QComboBox::NoInsert);
    view.lineEdit()->setReadOnly(true);
    view.lineEdit()->installEventFilter(this);
    connect(&view, &QComboBox::activated, this, [this](int index) {
      act(
          {"select", combo_.path(), std::to_string(index)}, [this, index] { combo_.pick(index); },
          [this, index] { return combo_.warn_row ? combo_.warn_row(index) : ""; });
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

  /// A click anywhere opens the list; of an editable box Qt lets only the arrow do so.
  bool eventFilter(QObject* watched, QEvent* event) override {
    const bool clicked = event->type() == QEvent::MouseButtonRelease && shown_.isEnabled() &&
                         static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton;
    if (clicked && watched == shown_.lineEdit()) {
      shown_.showPopup();
      return true;
    }
    return ControlTie::eventFilter(watched, event);
  }

 private:
  ComboBox& combo_;
  QComboBox& shown_;
};

class ListTie : public ControlTie {
 public:
  ListTie(const TiedWindow& owner, ListBox& list, QListView& view)
      : ControlTie(owner, list, &view),
        list_(list),
        shown_(view),
        model_(new ListModel(list, view.property("alignFirstWord").toBool(), view.font(), this)) {
    view.setUniformItemSizes(true);
    view.setEditTriggers(QAbstractItemView::NoEditTriggers);
    view.setModel(model_);
    add_copy_commands(view);
    tell_warned_lines();
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
    act(
        {"select", list_.path(), std::to_string(row)}, [this, row] { list_.pick(row); },
        [this, row] { return list_.warn_row ? list_.warn_row(row) : ""; });
  }
  void show_again() override {
    showing_ = true;
    shown_.setCurrentIndex(model_->index(list_.list_index()));
    showing_ = false;
  }

  /// The status line says why a line under the pointer should not be picked.
  void tell_warned_lines() {
    auto* top = qobject_cast<QMainWindow*>(&owner().top);
    if (!list_.warn_row || top == nullptr) return;
    shown_.setMouseTracking(true);
    connect(&shown_, &QListView::entered, this,
            [top](const QModelIndex& index) { top->statusBar()->showMessage(index.data(Qt::ToolTipRole).toString()); });
  }

  ListBox& list_;
  QListView& shown_;
  ListModel* model_;
  int shown_revision_ = 0;
  int shown_line_ = -1;
  bool showing_ = false;
};

class MenuTie : public ControlTie {
 public:
  MenuTie(const TiedWindow& owner, MenuItem& item, QAction& action)
      : ControlTie(owner, item, nullptr), action_(action) {
    connect(&action, &QAction::triggered, this, [this, &item] {
      act({"click", item.path()}, [&item] { item.click(); });
    });
    if (item.checked_when) show_mode(item);
  }
  void show() override { action_.setVisible(control().visible()); }

 private:
  /// A menu that opens tells whether the mode is on.
  void show_mode(const MenuItem& item) {
    action_.setCheckable(true);
    for (QObject* place : action_.associatedObjects()) {
      if (auto* menu = qobject_cast<QMenu*>(place)) {
        connect(menu, &QMenu::aboutToShow, this, [this, &item] { action_.setChecked(item.checked_when()); });
      }
    }
  }

  QAction& action_;
};

class SliderTie : public ControlTie {
 public:
  SliderTie(const TiedWindow& owner, Slider& slider, QSlider& view)
      : ControlTie(owner, slider, &view), slider_(slider), shown_(view) {
    connect(&view, &QSlider::valueChanged, this, [this](int value) {
      if (!showing_) act({"set", slider_.path(), std::to_string(value)}, [this, value] { slider_.set_value(value); });
    });
  }
  void show() override {
    showing_ = true;
    shown_.setRange(slider_.minimum(), slider_.maximum());
    shown_.setValue(slider_.value());
    showing_ = false;
  }

 private:
  Slider& slider_;
  QSlider& shown_;
  bool showing_ = false;
};

}  // namespace

std::unique_ptr<ControlTie> make_choice_tie(const TiedWindow& owner, Control& control) {
  switch (control.kind()) {
    case ControlKind::CommandButton:
      return tie_by_name<ButtonTie, CommandButton, QAbstractButton>(owner, control);
    case ControlKind::CheckBox:
      return tie_by_name<CheckTie, CheckBox, QCheckBox>(owner, control);
    case ControlKind::OptionButton:
      return tie_by_name<OptionTie, OptionButton, QRadioButton>(owner, control);
    case ControlKind::ComboBox:
      return tie_by_name<ComboTie, ComboBox, QComboBox>(owner, control);
    case ControlKind::ListBox:
      return tie_by_name<ListTie, ListBox, QListView>(owner, control);
    case ControlKind::Slider:
      return tie_by_name<SliderTie, Slider, QSlider>(owner, control);
    case ControlKind::MenuItem:
      return tie_by_name<MenuTie, MenuItem, QAction>(owner, control);
    default:
      return nullptr;
  }
}

}  // namespace zol
