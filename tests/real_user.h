// Mouse and keys of a user in the real windows of the desktop program. What does not do as it should ends the process
// with status 3 and a line that says what.
#pragma once

#include <cstdlib>
#include <functional>
#include <iostream>
#include <optional>
#include <type_traits>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QLineEdit>
#include <QListView>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QPainter>
#include <QPointer>
#include <QStatusBar>
#include <QTest>

#include "shell/desktop/canvas_view.h"
#include "shell/desktop/desktop.h"
#include "shell/desktop/look/folding.h"

namespace zol {

inline constexpr auto crystals = ZOL_SOURCE_DIR "/data/ZOLDATA/";

[[noreturn]] inline void give_up(const std::string& why) {
  std::cerr << "real use: " << why << std::endl;
  std::_Exit(3);
}

inline void expect(bool holds, const std::string& what) {
  if (!holds) give_up(what);
}

/// Answers a dialog of this kind as soon as it is open, while the step that opens it waits for its end. A dialog that
/// was not ready for its answer gets it again.
template <class Dialog>
class Answer : public QObject {
 public:
  explicit Answer(std::function<void(Dialog&)> give) : QObject(QApplication::instance()), give_(std::move(give)) {
    startTimer(50);  // milliseconds
  }

 protected:
  void timerEvent(QTimerEvent* /*event*/) override {
    if (busy_) return;
    if (given_ && (given_to_ == nullptr || !given_to_->isVisible())) return deleteLater();
    if (++waits_ > 200) give_up("a dialog did not come up or does not go");
    auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
    if (qobject_cast<QFileDialog*>(dialog) != nullptr && !std::is_same_v<Dialog, QFileDialog>) return;
    if (dialog == nullptr || !dialog->isVisible() || (given_ && waits_ % 20 != 0)) return;
    given_ = busy_ = true;
    given_to_ = dialog;
    give_(*dialog);
    busy_ = false;
  }

 private:
  std::function<void(Dialog&)> give_;
  QPointer<Dialog> given_to_;
  int waits_ = 0;
  bool given_ = false;
  bool busy_ = false;
};

template <class Dialog, class Give>
void when_asked(Give give) {
  new Answer<Dialog>(std::move(give));  // the application owns it
}

inline void choose_file(const QString& path) {
  when_asked<QFileDialog>([path](QFileDialog& dialog) {
    QTest::qWait(100);  // until the dialog knows its folder
    auto& name = *dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    name.setText(path);  // typed, it would open a list of completions at each letter
    QTest::keyClick(&name, Qt::Key_Return);
  });
}

/// Says yes to the question whether something is to be done all the same.
inline void agree() {
  when_asked<QMessageBox>([](QMessageBox& box) {
    expect(box.text().endsWith(QStringLiteral("Do it all the same?")), "asked was: " + box.text().toStdString());
    QTest::mouseClick(box.button(QMessageBox::Yes), Qt::LeftButton);
  });
}

class User {
 public:
  User(Desktop& desktop, QString files, std::optional<QString> pictures)
      : desktop_(desktop), files_(std::move(files)), pictures_(std::move(pictures)) {}

  QWidget& window(const char* name) const {
    const auto* binder = desktop_.binder(name);
    expect(binder != nullptr, std::string("there is no window ") + name);
    QWidget& shown = binder->widget();
    for (int tries = 0; !QTest::qWaitForWindowActive(&shown, 200); ++tries) {
      expect(tries < 50, std::string(name) + " did not come to the front");
      shown.raise();
      shown.activateWindow();
    }
    return shown;
  }
  template <class Widget>
  Widget& widget(const char* window_name, const char* name) const {
    auto* found = window(window_name).findChild<Widget*>(QString::fromLatin1(name));
    expect(found != nullptr, std::string(window_name) + " has no " + name);
    if constexpr (std::is_base_of_v<QWidget, Widget>) open_folds_around(*found);
    return *found;
  }
  /// By clicks on their titles, as in a narrow window.
  static void open_folds_around(const QWidget& wanted) {
    for (QWidget* around = wanted.parentWidget(); around != nullptr; around = around->parentWidget()) {
      const Fold* fold = fold_of(around);
      if (fold == nullptr || !fold->folded()) continue;
      QTest::mouseClick(around, Qt::LeftButton, {}, {20, 10});
      expect(!fold->folded(), "a group does not open");
      QApplication::processEvents();
    }
  }

  void click(const char* window_name, const char* button) const {
    auto& target = widget<QAbstractButton>(window_name, button);
    expect(target.isVisible() && target.isEnabled(), std::string(button) + " cannot be clicked");
    QTest::mouseClick(&target, Qt::LeftButton, {}, {6, 8});
  }
  /// Opens the menu that an item stands in and clicks it; or clicks an item of the menu bar itself.
  void choose(const char* window_name, const char* item) const {
    auto& bar = widget<QMenuBar>(window_name, "menubar");
    auto* action = &widget<QAction>(window_name, item);
    for (auto* entry : bar.actions()) {
      QMenu* menu = entry->menu();
      if (entry != action && (menu == nullptr || !menu->actions().contains(action))) continue;
      QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.actionGeometry(entry).center());
      if (entry == action) return;
      expect(QTest::qWaitFor([menu] { return menu->isVisible(); }), "a menu does not open");
      QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(action).center());
      return;
    }
    give_up(std::string("no menu holds ") + item);
  }
  /// Sets an entry by its text, wherever it stands in the menus of a window.
  void choose_text(const char* window_name, const QString& text) const {
    for (auto* menu : window(window_name).findChildren<QMenu*>()) {
      for (auto* action : menu->actions()) {
        if (action->text().remove(u'&') == text) return action->trigger();
      }
    }
    give_up("no menu says " + text.toStdString());
  }
  /// Clicks an entry of the menu of a picture.
  void choose_in_picture(const char* window_name, const char* picture_name, const char* entry) const {
    auto& picture = widget<CanvasView>(window_name, picture_name);
    const QPoint centre = picture.rect().center();
    QContextMenuEvent asked(QContextMenuEvent::Mouse, centre, picture.mapToGlobal(centre));
    QApplication::sendEvent(&picture, &asked);
    const auto opened = [] { return qobject_cast<QMenu*>(QApplication::activePopupWidget()); };
    expect(QTest::qWaitFor([&opened] { return opened() != nullptr; }), "a picture has no context menu");
    QMenu& menu = *opened();
    QString mnemonics;
    for (auto* action : menu.actions()) mnemonics += action->text().section(u'&', 1).left(1).toUpper();
    for (const QChar c : mnemonics) expect(mnemonics.count(c) == 1, "a mnemonic twice in " + mnemonics.toStdString());
    for (auto* action : menu.actions()) {
      if (action->text() != QString::fromLatin1(entry)) continue;
      return QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(action).center());
    }
    give_up(std::string("the context menu has no ") + entry);
  }
  /// Drags from one place of a picture to another, in parts of its sides.
  void drag(const char* window_name, const char* picture_name, QPointF from, QPointF to) const {
    auto& picture = widget<CanvasView>(window_name, picture_name);
    const QPoint start = place(picture, from);
    const QPoint end = place(picture, to);
    QTest::mousePress(&picture, Qt::LeftButton, {}, start);
    constexpr int steps = 5;
    for (int i = 1; i <= steps; ++i) {
      const QPoint at = start + (end - start) * i / steps;
      QMouseEvent move(QEvent::MouseMove, at, picture.mapToGlobal(at), Qt::NoButton, Qt::LeftButton, {});
      QApplication::sendEvent(&picture, &move);
    }
    QTest::mouseRelease(&picture, Qt::LeftButton, {}, end);
  }
  void load_crystal(const char* name) const {
    window("Main1").activateWindow();
    choose_file(QString::fromLatin1(crystals) + QString::fromLatin1(name));
    choose("Main1", "DATA_LOAD");
  }
  /// Fills boxes, each given by its name and text, in which \r is Enter.
  void fill(const char* window_name, std::initializer_list<std::pair<const char*, const char*>> boxes) const {
    for (const auto& [box, text] : boxes) {
      auto& edit = widget<QLineEdit>(window_name, box);
      QTest::mouseDClick(&edit, Qt::LeftButton);
      QTest::keyClick(&edit, Qt::Key_A, Qt::ControlModifier);
      QTest::keyClicks(&edit, QString::fromLatin1(text));
    }
  }
  /// Types from a table or a box on, where Enter (\r) may go on to the next one.
  static void type_on(QWidget& first, const char* keys) {
    first.setFocus();
    for (const char* key = keys; *key != '\0'; ++key) QTest::keyClick(QApplication::focusWidget(), *key);
  }
  /// Goes to an item of the radiations by the arrow keys, then "Calc".
  void choose_radiation(const char* item) const {
    auto& combo = widget<QComboBox>("Main1", "Combo1");
    const int wanted = combo.findText(QString::fromLatin1(item));
    for (int from = combo.currentIndex(); from != wanted; from = combo.currentIndex()) {
      QTest::keyClick(&combo, from < wanted ? Qt::Key_Down : Qt::Key_Up);
      expect(combo.currentIndex() != from, "an arrow key does not move in the radiations");
    }
    click("Main1", "Command6");
  }
  void pick_line(const char* window_name, const char* list, int row) const {
    auto& view = widget<QListView>(window_name, list);
    const QModelIndex index = view.model()->index(row, 0);
    expect(index.isValid(), std::string(list) + " has no line " + std::to_string(row));
    view.scrollTo(index);
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.visualRect(index).center());
  }
  int lines(const char* window_name, const char* list) const {
    return widget<QListView>(window_name, list).model()->rowCount();
  }

  /// The place in a picture at parts of its width and height.
  static QPoint place(const CanvasView& picture, QPointF parts) {
    const QRectF rect = picture.picture_rect();
    return (rect.topLeft() + QPointF(parts.x() * rect.width(), parts.y() * rect.height())).toPoint();
  }
  /// What the status line says with the pointer at a place.
  QString said_of_place(const char* window_name, const char* picture_name, QPointF parts) const {
    auto& picture = widget<CanvasView>(window_name, picture_name);
    QTest::mouseMove(&picture, place(picture, parts));
    QTest::qWait(20);
    return dynamic_cast<QMainWindow&>(*picture.window()).statusBar()->currentMessage();
  }

  [[nodiscard]] QString file(const char* name) const { return files_ + u'/' + QString::fromLatin1(name); }
  /// Saves by a step that asks for a file, which then exists.
  template <class Step>
  void save(const char* typed, const char* written, Step step) const {
    choose_file(file(typed));
    step();
    expect(QTest::qWaitFor([&] { return QFileInfo(file(written)).size() > 0; }), std::string(written) + " is missing");
  }
  void take_picture(const char* window_name, const char* name) const {
    if (!pictures_) return;
    take_picture_of(window(window_name), name);
  }
  void take_picture_of(QWidget& shown, const char* name) const {
    if (!pictures_) return;
    QTest::qWait(50);
    const QString path = *pictures_ + u'/' + QString::fromLatin1(name) + QStringLiteral(".png");
    expect(shown.grab().save(path), "a picture cannot be saved");
  }
  /// The same with a number beside each of these controls, from 1 on, as the guide's legends have them.
  void take_numbered_picture(const char* window_name, const char* name,
                             std::initializer_list<const char*> controls) const {
    if (!pictures_) return;
    QWidget& shown = window(window_name);
    QPixmap picture = shown.grab();
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(QFont(QStringLiteral("sans-serif"), 9, QFont::Bold));
    int number = 0;
    for (const char* control : controls) {
      const auto& numbered = widget<QWidget>(window_name, control);
      const QPoint corner = numbered.mapTo(&shown, QPoint(0, 0));
      constexpr int size = 18;
      const QRect disc(std::max(0, corner.x() - size / 2), std::max(0, corner.y() - size / 2), size, size);
      painter.setPen(QPen(Qt::white, 1.5));
      painter.setBrush(QColor(0xB3, 0x26, 0x1E));
      painter.drawEllipse(disc);
      painter.drawText(disc, Qt::AlignCenter, QString::number(++number));
    }
    painter.end();
    const QString path = *pictures_ + u'/' + QString::fromLatin1(name) + QStringLiteral(".png");
    expect(picture.save(path), "a picture cannot be saved");
  }
  /// Lets a file fall on a window.
  void drop_file(const char* window_name, const QString& path) const {
    QWidget& target = window(window_name);
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(path)});
    const QPointF middle = target.rect().center();
    QDragEnterEvent over(middle.toPoint(), Qt::CopyAction, &data, Qt::LeftButton, {});
    QDropEvent drop(middle, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(&target, &over);
    expect(over.isAccepted(), path.toStdString() + " cannot be dropped");
    QApplication::sendEvent(&target, &drop);
  }

 private:
  Desktop& desktop_;
  QString files_;
  std::optional<QString> pictures_;
};

}  // namespace zol
