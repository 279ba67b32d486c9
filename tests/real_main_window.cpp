// Crystal, library, list, files and undo, in Main1 and the windows beside it.
#include <QClipboard>
#include <QFile>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QTableView>
#include <QTimer>

#include "shell/desktop/table_window.h"
#include "tests/real_steps.h"

namespace zol {
namespace {

/// All that Main1 shows in boxes, labels and the list.
std::string shown_by_main1(const User& user) {
  QWidget& top = user.window("Main1");
  QString all;
  for (const auto* box : top.findChildren<QLineEdit*>()) all += box->objectName() + u'=' + box->text() + u'\n';
  for (const auto* label : top.findChildren<QLabel*>()) {
    if (!label->objectName().isEmpty()) all += label->objectName() + u'=' + label->text() + u'\n';
  }
  for (const auto* button : top.findChildren<QAbstractButton*>()) all += button->isChecked() ? u'x' : u'-';
  return all.toStdString() + std::to_string(user.lines("Main1", "List2"));
}

}  // namespace

void use_main_window(const User& user) {
  user.take_picture("MAIN_MENU", "main-menu");
  user.click("MAIN_MENU", "Command1");
  user.load_crystal("Silicon.cry");
  user.take_picture("Main1", "quick-start-main");
  user.load_crystal("Quartz.cry");
  expect(user.lines("Main1", "List2") > 100, "the list of quartz is too short");
  user.take_picture("Main1", "main1");
  user.take_numbered_picture("Main1", "main1-numbered",
                             {"menubar", "Text1", "Text7", "Command1", "Combo1", "Text15", "Command6", "List2",
                              "Command7", "Command13", "List1"});
  user.click("Main1", "Command1");
  User::type_on(user.widget<QTableView>("InputAtom", "G"), "0.2");
  user.take_picture("InputAtom", "input-atom");
  user.click("InputAtom", "Command2");
  when_asked<QMessageBox>([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Return); });  // No
  user.click("Main1", "Command15");
  expect(user.lines("Main1", "List1") == 9, "the atoms are gone without a yes");
  agree();
  user.click("Main1", "Command15");
  auto& table = user.widget<QTableView>("InputJCPDS", "G");
  User::type_on(table, "100\r1\r1\r1\r45\b6\r2\r0\r0\r20");
  user.take_picture("InputJCPDS", "input-jcpds");
  QTest::keyClick(&table, Qt::Key_Up);
  QTest::keyClick(&table, Qt::Key_Right);
  const auto& cells = *table.model();
  expect(table.currentIndex() == cells.index(1, 1) && cells.index(1, 0).data().toString() == QStringLiteral("46") &&
             cells.headerData(3, Qt::Horizontal).toString() == QStringLiteral("L"),
         "a table does not take its keys");
  user.click("InputJCPDS", "Command2");
  user.load_crystal("Quartz.cry");  // the table of observed lines has put its atoms aside
}

void find_windows(const User& user) {
  QWidget& main1 = user.window("Main1");
  QWidget& menu = user.window("MAIN_MENU");
  QTest::keyClick(&main1, Qt::Key_1, Qt::ControlModifier);
  expect(menu.isActiveWindow(), "Ctrl+1 leads elsewhere");
  const QSize size = menu.size();
  for (const int key : {Qt::Key_W, Qt::Key_A}) {  // "Windows", "Arrange"
    QTest::keyClick(key == Qt::Key_W ? &menu : QApplication::activePopupWidget(), static_cast<Qt::Key>(key),
                    key == Qt::Key_W ? Qt::AltModifier : Qt::NoModifier);
  }
  const QRect room = menu.screen()->availableGeometry();
  const auto arranged = [&] {  // Main1 alone, below the title of the menu
    const QRect place = main1.frameGeometry();
    return room.contains(place) && place.width() == room.width() && place.top() == menu.geometry().top();
  };
  expect(QTest::qWaitFor(arranged) && menu.size() == size, "the windows are not arranged");
  expect(QTest::qWaitForWindowActive(&main1), "a window that gives way is in front");
  QTest::keyClick(&main1, Qt::Key_1, Qt::ControlModifier);
  QTest::keyClick(&menu, Qt::Key_2, Qt::ControlModifier);
  expect(main1.isActiveWindow(), "Ctrl+2 leads elsewhere");
}

void search_library(const User& user) {
  QWidget& main1 = user.window("Main1");
  QTest::keyClick(&main1, Qt::Key_L, Qt::ControlModifier);
  auto& search = user.widget<QLineEdit>("Main1", "librarySearch");
  const auto& state = user.widget<QLabel>("Main1", "libraryState");
  expect(QTest::qWaitFor([&state] { return state.text() == QStringLiteral("31 crystals"); }, 20000),
         "the library says: " + state.text().toStdString());
  expect(QTest::qWaitFor([&search] { return search.hasFocus(); }), "the search has not the focus");
  QTest::keyClicks(&search, QStringLiteral("+Si -O"));
  expect(QTest::qWaitFor([&state] { return state.text() == QStringLiteral("1 of 31 crystals"); }, 20000),
         "the library says: " + state.text().toStdString());
  user.take_picture("Main1", "library");
  QTest::keyClick(&search, Qt::Key_Return);
  expect(main1.windowTitle().contains(QStringLiteral("Silicon")), "the library opens no crystal");
  user.click("Main1", "Command9");
  user.fill("Pattern", {{"Text3", "1"}, {"Text4", "1"}, {"Text5", "0"}});
  user.click("Pattern", "Command8");
  const auto& picture = user.widget<CanvasView>("Pattern", "Picture1");
  expect(picture.canvas()->marks().size() > 10, "there are no spots");
  user.window("Pattern").close();
  QTest::keyClick(&user.window("Main1"), Qt::Key_L, Qt::ControlModifier);
  expect(!search.isVisible(), "Ctrl+L does not close the library");
  user.load_crystal("Quartz.cry");
}

void copy_lines(const User& user) {
  auto& list = user.widget<QListView>("Main1", "List2");
  user.pick_line("Main1", "List2", 2);
  QTest::keyClick(&list, Qt::Key_Down, Qt::ShiftModifier);
  QTest::keyClick(&list, Qt::Key_C, Qt::ControlModifier);
  const QString copied = QGuiApplication::clipboard()->text();
  expect(copied == list.model()->index(2, 0).data().toString() + u'\n' + list.model()->index(3, 0).data().toString(),
         "copied was: " + copied.toStdString());
  QTest::keyClick(&list, Qt::Key_A, Qt::ControlModifier);
  QTest::keyClick(&list, Qt::Key_C, Qt::ControlModifier);
  expect(QGuiApplication::clipboard()->text().count(u'\n') + 1 == user.lines("Main1", "List2"),
         "Ctrl+A selects not all lines");
}

void save_table(const User& user) {
  user.pick_line("Main1", "List2", 0);
  auto& list = user.widget<QListView>("Main1", "List2");
  QTest::keyClick(&list, Qt::Key_T, Qt::ControlModifier);
  auto* table = list.window()->findChild<TableWindow*>();
  expect(table != nullptr && QTest::qWaitFor([table] { return table->isActiveWindow(); }), "Ctrl+T shows no table");
  auto& rows = *table->findChild<QTableView*>();
  constexpr int menu_is_open_ms = 500;
  QTimer::singleShot(menu_is_open_ms, table, [] {         // the button waits for its menu
    for (const int key : {Qt::Key_Up, Qt::Key_Return}) {  // the last entry
      expect(QApplication::activePopupWidget() != nullptr, "the menu of columns does not open");
      QTest::keyClick(QApplication::activePopupWidget(), static_cast<Qt::Key>(key));
    }
  });
  QTest::keyClick(&rows, Qt::Key_O, Qt::AltModifier);
  QTest::keyClick(&rows, Qt::Key_F, Qt::ControlModifier);
  QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("d>2"));
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  constexpr int spacing = 4;
  rows.selectionModel()->setCurrentIndex(rows.model()->index(0, spacing), QItemSelectionModel::NoUpdate);
  QTest::keyClick(&rows, Qt::Key_O, Qt::ControlModifier | Qt::ShiftModifier);
  user.save("reflections", "reflections.csv", [&rows] { QTest::keyClick(&rows, Qt::Key_S, Qt::ControlModifier); });
  QFile file(user.file("reflections.csv"));
  expect(file.open(QIODevice::ReadOnly), "the table cannot be read");
  const QList<QByteArray> lines = file.readAll().trimmed().split('\n');
  expect(lines.front().startsWith("h,k,l,") && lines.front().endsWith(",sum I"), "the heads of the table are others");
  double before = 2;
  for (const auto& line : lines.mid(1)) {
    const double d = line.split(',')[spacing].toDouble();
    expect(d >= before, "the saved table is not sorted");
    before = d;
  }
  expect(lines.size() == rows.model()->rowCount() + 1 && lines.size() > 5, "the saved table has other rows");
  table->close();
}

void use_files(const User& user) {
  const auto text = [&user](const char* box) { return user.widget<QLineEdit>("Main1", box).text().trimmed(); };
  choose_file(QStringLiteral(ZOL_SOURCE_DIR "/examples/cif/rutile.cif"));
  user.choose("Main1", "ImportfromCIF");
  expect(text("Text7") == QStringLiteral("136"), "rutile has another space group");
  user.click("Main1", "Command6");
  user.save("rutile.cry", "rutile.cry", [&user] { user.choose("Main1", "DATA_SAVE"); });
  bool asked = false;
  user.save("rutile.cry", "rutile.cry", [&] {  // once more
    when_asked<QMessageBox>([&asked](QMessageBox& box) {
      asked = true;
      QTest::mouseClick(box.button(QMessageBox::Yes), Qt::LeftButton);
    });
    user.choose("Main1", "DATA_SAVE");
  });
  expect(asked, "a file is replaced without a question");
  user.drop_file("Main1", QString::fromLatin1(crystals) + QStringLiteral("Silicon.cry"));
  expect(text("Text17").endsWith(QStringLiteral("Silicon.cry")), "a dropped crystal is not loaded");
  user.choose("MAIN_MENU", "Camera_parameters");
  user.take_picture("CameraParameters", "camera-parameters");
  user.save("camera", "camera", [&user] { user.click("CameraParameters", "Command2"); });
  user.click("CameraParameters", "Command3");
}

void undo_and_redo(const User& user) {
  user.load_crystal("Quartz.cry");
  std::vector<std::string> seen{shown_by_main1(user)};
  const auto step = [&](const auto& act) {
    act();
    const std::string now = shown_by_main1(user);
    expect(now != seen.back(), "step " + std::to_string(seen.size()) + " shows nothing");
    seen.push_back(now);
  };
  for (const char* dmin : {"1.9", "1.5", "1.8", "1.4", "1.7", "1.3", "1.6", "1.2", "1.1"}) {
    step([&] { user.fill("Main1", {{"Text15", dmin}}); });
    step([&] { user.click("Main1", "Command6"); });
  }
  step([&] {
    choose_file(QStringLiteral(ZOL_SOURCE_DIR "/examples/cif/rutile.cif"));
    user.choose("Main1", "ImportfromCIF");
  });
  for (const char* a : {"4.6\r", "4.7\r", "4.8\r"}) {
    step([&] { user.fill("Main1", {{"Text1", a}}); });
  }
  for (const char* site : {"Ti2", "Ti3", "Ti4"}) {
    step([&] {
      user.click("Main1", "Command1");
      User::type_on(user.widget<QTableView>("InputAtom", "G"),
                    (std::string(site) + "\rTi\r1\r.1\r.2\r.3\r1\r").c_str());
      user.click("InputAtom", "Command1");
    });
  }
  for (const char* crystal : {"NaCl.cry", "Silicon.cry"}) step([&] { user.load_crystal(crystal); });
  for (const char* check : {"Check1", "Check2", "Check3"}) step([&] { user.click("Main1", check); });
  expect(seen.size() > 30, "these are " + std::to_string(seen.size()) + " states");

  const std::string last = seen.back();
  const auto press_until = [&](Qt::KeyboardModifiers keys, const std::string& wanted) {
    for (int presses = 0; shown_by_main1(user) != wanted; ++presses) {
      expect(presses < 40, "a state does not come back");
      QTest::keyClick(&user.window("Main1"), Qt::Key_Z, keys);
    }
  };
  for (const auto& state : std::vector(seen.rbegin(), seen.rend())) press_until(Qt::ControlModifier, state);
  for (const auto& state : seen) press_until(Qt::ControlModifier | Qt::ShiftModifier, state);
  expect(shown_by_main1(user) == last, "undone and done again it is something else");
}

}  // namespace zol
