// Mouse and keys of a user in the real windows of the desktop program. What does not do as it should ends the process
// with status 3 and a line that says what.
#pragma once

#include <cstdlib>
#include <functional>
#include <iostream>
#include <optional>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDropEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QLineEdit>
#include <QListView>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QPointer>
#include <QStatusBar>
#include <QTest>

#include "shell/desktop/canvas_view.h"
#include "shell/desktop/desktop.h"

namespace zol {

inline constexpr auto crystals = ZOL_SOURCE_DIR "/data/ZOLDATA/";

[[noreturn]] inline void give_up(const QString& why) {
  std::cerr << "real use: " << why.toStdString() << std::endl;
  std::_Exit(3);
}

inline void expect(bool holds, const QString& what) {
  if (!holds) give_up(what);
}

/// Answers a dialog of this kind as soon as it is open, while the step that opens it waits for its end. A dialog that
/// was not ready for its answer gets it again.
template <class Dialog>
class Answer : public QObject {
 public:
  explicit Answer(std::function<void(Dialog&)> give) : QObject(QApplication::instance()), give_(std::move(give)) {
    constexpr int milliseconds = 50;
    startTimer(milliseconds);
  }

 protected:
  void timerEvent(QTimerEvent* /*event*/) override {
    if (busy_) return;
    if (given_to_ != nullptr && !given_to_->isVisible()) return deleteLater();
    if (given_once_ && given_to_ == nullptr) return deleteLater();
    constexpr int most_waits = 200;
    if (++waits_ > most_waits) give_up(QStringLiteral("a dialog did not come up or does not go"));
    auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr || !dialog->isVisible()) return;
    constexpr int next_try = 20;
    if (given_once_ && waits_ % next_try != 0) return;
    given_once_ = busy_ = true;
    given_to_ = dialog;
    give_(*dialog);
    busy_ = false;
  }

 private:
  std::function<void(Dialog&)> give_;
  QPointer<Dialog> given_to_;
  int waits_ = 0;
  bool given_once_ = false;
  bool busy_ = false;
};

template <class Dialog, class Give>
void when_asked(Give give) {
  new Answer<Dialog>(std::move(give));  // the application owns it
}

inline void choose_file(const QString& path) {
  when_asked<QFileDialog>([path](QFileDialog& dialog) {
    constexpr int listing = 100;  // milliseconds until the dialog knows its folder
    QTest::qWait(listing);
    auto& name = *dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    name.setText(path);  // typed, it would open a list of completions at each letter
    QTest::keyClick(&name, Qt::Key_Return);
  });
}

inline void answer_prompt(const QString& text) {
  when_asked<QInputDialog>([text](QInputDialog& dialog) {
    QTest::keyClicks(dialog.findChild<QLineEdit*>(), text);
    QTest::keyClick(&dialog, Qt::Key_Return);
  });
}

class User {
 public:
  User(Desktop& desktop, QString files, std::optional<QString> pictures)
      : desktop_(desktop), files_(std::move(files)), pictures_(std::move(pictures)) {}

  QWidget& window(const char* name) const {
    const auto* binder = desktop_.binder(name);
    expect(binder != nullptr, QStringLiteral("there is no window %1").arg(QString::fromLatin1(name)));
    QWidget& shown = binder->widget();
    constexpr int milliseconds = 200;
    constexpr int most_tries = 50;
    for (int tries = 0; !QTest::qWaitForWindowActive(&shown, milliseconds); ++tries) {
      expect(tries < most_tries, QStringLiteral("%1 did not come to the front").arg(shown.windowTitle()));
      shown.raise();
      shown.activateWindow();
    }
    return shown;
  }
  template <class Widget>
  Widget& widget(const char* window_name, const char* name) const {
    auto* found = window(window_name).findChild<Widget*>(QString::fromLatin1(name));
    expect(found != nullptr,
           QStringLiteral("%1 has no %2").arg(QString::fromLatin1(window_name), QString::fromLatin1(name)));
    return *found;
  }

  void click(const char* window_name, const char* button) const {
    auto& target = widget<QAbstractButton>(window_name, button);
    expect(target.isVisible() && target.isEnabled(), target.objectName() + QStringLiteral(" can't be clicked"));
    constexpr QPoint inside(6, 8);
    QTest::mouseClick(&target, Qt::LeftButton, {}, inside);
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
      expect(QTest::qWaitFor([menu] { return menu->isVisible(); }), QStringLiteral("a menu does not open"));
      QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(action).center());
      return;
    }
    give_up(QStringLiteral("no menu holds %1").arg(QString::fromLatin1(item)));
  }
  void load_crystal(const char* name) const {
    window("Main1").activateWindow();
    choose_file(QString::fromLatin1(crystals) + QString::fromLatin1(name));
    choose("Main1", "DATA_LOAD");
  }
  /// Replaces the text of a box.
  void type(const char* window_name, const char* box, const char* text) const {
    auto& edit = widget<QLineEdit>(window_name, box);
    QTest::mouseDClick(&edit, Qt::LeftButton);
    QTest::keyClick(&edit, Qt::Key_A, Qt::ControlModifier);
    if (*text == '\0') QTest::keyClick(&edit, Qt::Key_Backspace);
    QTest::keyClicks(&edit, QString::fromLatin1(text));
  }
  void press_enter(const char* window_name, const char* box) const {
    QTest::keyClick(&widget<QLineEdit>(window_name, box), Qt::Key_Return);
  }
  /// Types from a table or a box on, where Enter (\r) may go on to the next one.
  static void type_on(QWidget& first, const char* keys) {
    first.setFocus();
    for (const char* key = keys; *key != '\0'; ++key) {
      auto* target = QApplication::focusWidget();
      if (*key == '\r') {
        QTest::keyClick(target, Qt::Key_Return);
      } else {
        QTest::keyClick(target, *key);
      }
    }
  }
  /// Fills boxes, each given by its name and text.
  void fill(const char* window_name, std::initializer_list<std::pair<const char*, const char*>> boxes) const {
    for (const auto& [box, text] : boxes) type(window_name, box, text);
  }
  /// Goes to an item of the radiations by the arrow keys, then "Calc".
  void choose_radiation(const char* item) const {
    auto& combo = widget<QComboBox>("Main1", "Combo1");
    const int wanted = combo.findText(QString::fromLatin1(item));
    for (int from = combo.currentIndex(); from != wanted; from = combo.currentIndex()) {
      QTest::keyClick(&combo, from < wanted ? Qt::Key_Down : Qt::Key_Up);
      expect(combo.currentIndex() != from, QStringLiteral("an arrow key does not move in the radiations"));
    }
    click("Main1", "Command6");
  }
  void pick_line(const char* window_name, const char* list, int row) const {
    auto& view = widget<QListView>(window_name, list);
    const QModelIndex index = view.model()->index(row, 0);
    expect(index.isValid(), QStringLiteral("%1 has no line %2").arg(view.objectName()).arg(row));
    view.scrollTo(index);
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.visualRect(index).center());
  }
  int lines(const char* window_name, const char* list) const {
    return widget<QListView>(window_name, list).model()->rowCount();
  }

  /// The place in a picture at parts of its width and height.
  static QPoint place(const CanvasView& picture, double across, double down) {
    const QRectF rect = picture.picture_rect();
    return QPointF(rect.left() + across * rect.width(), rect.top() + down * rect.height()).toPoint();
  }
  void drag(CanvasView& picture, QPointF from, QPointF to) const {
    QTest::mousePress(&picture, Qt::LeftButton, {}, place(picture, from.x(), from.y()));
    QTest::mouseMove(&picture, place(picture, to.x(), to.y()));
    QTest::mouseRelease(&picture, Qt::LeftButton, {}, place(picture, to.x(), to.y()));
  }
  /// What the status line says with the pointer over the middle of a picture.
  QString said_of_place(const char* window_name, const char* picture_name, double across, double down) const {
    auto& picture = widget<CanvasView>(window_name, picture_name);
    QTest::mouseMove(&picture, place(picture, across, down));
    QTest::qWait(20);
    return dynamic_cast<QMainWindow&>(*picture.window()).statusBar()->currentMessage();
  }

  [[nodiscard]] QString file(const char* name) const { return files_ + u'/' + QString::fromLatin1(name); }
  /// Saves by a step that asks for a file, which then exists.
  template <class Step>
  void save(const char* typed, const char* written, Step step) const {
    choose_file(file(typed));
    step();
    expect(QFileInfo(file(written)).size() > 0, QStringLiteral("%1 was not written").arg(file(written)));
  }

  void take_picture(const char* window_name, const char* name) const {
    if (!pictures_) return;
    QWidget& shown = window(window_name);
    QTest::qWait(50);
    expect(shown.grab().save(*pictures_ + u'/' + QString::fromLatin1(name) + QStringLiteral(".png")),
           QStringLiteral("a picture can't be saved"));
  }

 private:
  Desktop& desktop_;
  QString files_;
  std::optional<QString> pictures_;
};

/// Lets a file fall on a window.
inline void drop_file(QWidget& window, const QString& path) {
  QMimeData data;
  data.setUrls({QUrl::fromLocalFile(path)});
  const QPointF middle = window.rect().center();
  QDragEnterEvent over(middle.toPoint(), Qt::CopyAction, &data, Qt::LeftButton, {});
  QDropEvent drop(middle, Qt::CopyAction, &data, Qt::LeftButton, {});
  QApplication::sendEvent(&window, &over);
  expect(over.isAccepted(), QStringLiteral("%1 can't be dropped").arg(path));
  QApplication::sendEvent(&window, &drop);
}

}  // namespace zol
