// The desktop program used as a person would, by mouse and keys in real windows: one way through all of them.
//
//     zol-real-use FILES [PICTURES]
//     zol-real-use FILES failure KIND
//     zol-real-use FILES recovery STEP [WINDOW BOX TEXT]
//     zol-real-use FILES day [PICTURES]
//
// FILES is a folder for what is saved on the way. With PICTURES a PNG of each window goes to that folder. The program
// ends by "Exit" with status 0; a step that does not do what it should ends it with status 3 and a line that says
// which. With "failure" one kind of failure of the run is brought about and the text of its message printed: status 1.
// With "recovery" a crystal is changed and the program ended, in the way of the step, or what such a run left is looked
// for and restored: the box then holds the text. With "day" a day's work is done, as the guide tells it.
#include <array>

#include <QClipboard>
#include <QContextMenuEvent>
#include <QFile>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QTableView>
#include <QTextBrowser>
#include <QTimer>

#include "shell/desktop/application.h"
#include "shell/desktop/table_window.h"
#include "tests/real_day.h"
#include "tests/real_recovery.h"

namespace zol {
namespace {

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
  QTest::keyClick(&user.window("Main1"), Qt::Key_1, Qt::ControlModifier);
  QWidget& menu = user.window("MAIN_MENU");
  expect(menu.isActiveWindow(), "Ctrl+1 leads elsewhere");
  for (const int key : {Qt::Key_W, Qt::Key_A}) {  // "Windows", "Arrange"
    QTest::keyClick(key == Qt::Key_W ? &menu : QApplication::activePopupWidget(), static_cast<Qt::Key>(key),
                    key == Qt::Key_W ? Qt::AltModifier : Qt::NoModifier);
  }
  const auto on_screen = [&menu] { return menu.screen()->availableGeometry().contains(menu.frameGeometry()); };
  expect(QTest::qWaitFor(on_screen) && menu.height() > 600, "the windows are not arranged");
  menu.resize(1, 1);
  QTest::keyClick(&menu, Qt::Key_2, Qt::ControlModifier);
  expect(user.window("Main1").isActiveWindow(), "Ctrl+2 leads elsewhere");
}

/// From a search in the library to a pattern, by the keyboard.
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

/// By keys alone: the list as a table, merged, sorted by d, filtered and saved; the file says what was seen.
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

/// A pattern as a diffractometer would have it: the saved one over a background, 0.08 degrees off, not quite even.
QString measured_pattern(const User& user) {
  QFile saved(user.file("pattern.XDP"));
  QFile measured(user.file("measured.xy"));
  expect(saved.open(QIODevice::ReadOnly) && measured.open(QIODevice::WriteOnly), "no pattern can be measured");
  measured.write("# counts\n");
  double uneven = 0.5;
  while (!saved.atEnd()) {
    const QList<QByteArray> fields = saved.readLine().trimmed().split(',');
    if (fields.front().startsWith('"')) continue;
    uneven = 3.9 * uneven * (1 - uneven);  // between 0 and 1
    const double counts = fields.back().toDouble() / 20 + 30 + 12 * uneven;
    measured.write(QByteArray::number(fields.front().toDouble() + 0.08) + ' ' + QByteArray::number(counts) + '\n');
  }
  return measured.fileName();
}

void lay_measured_pattern_under(const User& user) {
  user.drop_file("Xd", measured_pattern(user));
  user.click("Xd", "FitBoxes");
  const double zero = user.widget<QLineEdit>("Xd", "MeasuredZero").text().toDouble();
  expect(std::abs(zero - 0.08) < 0.005, "the zero was fitted as " + std::to_string(zero));
  auto& view = user.widget<CanvasView>("Xd", "Picture1");
  const QPoint from = User::place(view, {0.2, 0.5});
  const QPoint to = User::place(view, {0.8, 0.5});
  QTest::mousePress(&view, Qt::LeftButton, {}, from);
  QMouseEvent drag(QEvent::MouseMove, to, view.mapToGlobal(to), Qt::NoButton, Qt::LeftButton, {});
  QApplication::sendEvent(&view, &drag);
  QTest::mouseRelease(&view, Qt::LeftButton, {}, to);
  for (auto* menu : user.window("Xd").findChildren<QMenu*>()) {
    for (auto* action : menu->actions()) {
      for (const auto* wanted : {"peaks", "icks", "second", "Radiation"}) {
        if (action->isCheckable() && action->text().contains(QLatin1String(wanted))) action->trigger();
      }
    }
  }
  user.take_picture("Xd", "curve-measured");
  QTest::mouseDClick(&view, Qt::LeftButton, {}, from);
}

void use_powder_windows(const User& user) {
  user.choose_radiation("CuKa");
  user.click("Main1", "Command7");
  const QString said = user.said_of_place("Xd", "Picture1", {0.25, 0.5});
  expect(said.startsWith(QStringLiteral("2θ ")) && said.contains(QStringLiteral(" Å")),
         "the status line of Xd says: " + said.toStdString());
  user.take_picture("Xd", "xd");
  user.save("pattern", "pattern.XDP", [&user] { user.click("Xd", "Command3"); });
  user.save("pattern", "pattern.BMP", [&user] { user.click("Xd", "Command4"); });
  lay_measured_pattern_under(user);
  user.window("Xd").close();
  user.choose_radiation("200");
  user.click("Main1", "Command8");
  expect(user.said_of_place("Dring", "Picture2", {0.3, 0.3}).startsWith(QStringLiteral("d* ")), "Dring says no place");
  user.take_picture("Dring", "dring");
  for (const auto* button : {"Check1", "Check2", "Check3", "Command1"}) user.click("Dring", button);
  user.take_picture("Dring", "dring-inverse");
  user.save("rings", "rings.EDP", [&user] { user.click("Dring", "Command4"); });
  user.save("rings", "rings.BMP", [&user] { user.click("Dring", "Command3"); });
  user.window("Dring").close();
}

/// By the context menu of a picture.
void export_picture(const User& user, const char* window_name, const char* entry, const char* name) {
  auto& picture = user.widget<CanvasView>(window_name, "Picture1");
  QTimer::singleShot(100, &picture, [entry] {
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    expect(menu != nullptr, "a picture has no context menu");
    QString mnemonics;
    for (auto* action : menu->actions()) mnemonics += action->text().section(u'&', 1).left(1).toUpper();
    for (const QChar c : mnemonics) expect(mnemonics.count(c) == 1, "a mnemonic twice in " + mnemonics.toStdString());
    for (auto* action : menu->actions()) {
      if (action->text() != QString::fromLatin1(entry)) continue;
      QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(action).center());
      return;
    }
    give_up(std::string("the context menu has no ") + entry);
  });
  const QPoint centre = picture.rect().center();
  QContextMenuEvent asked(QContextMenuEvent::Mouse, centre, picture.mapToGlobal(centre));
  user.save(name, name, [&] { QApplication::sendEvent(&picture, &asked); });
}

void use_spot_windows(const User& user) {
  user.load_crystal("NaCl.cry");
  user.click("Main1", "Command9");
  user.fill("Pattern", {{"Text3", "1"}, {"Text4", "1"}, {"Text5", "0"}});
  user.click("Pattern", "Check3");
  when_asked<QInputDialog>([](QInputDialog& dialog) {
    QTest::keyClicks(dialog.findChild<QLineEdit*>(), QStringLiteral("2"));
    QTest::keyClick(&dialog, Qt::Key_Return);
  });
  user.choose("Pattern", "Spotsize");
  user.click("Pattern", "Command8");
  user.take_picture("Pattern", "spots");
  user.save("spots", "spots.bmp", [&user] { user.choose("Pattern", "ISAVE"); });
  export_picture(user, "Pattern", "Export PNG, dou&ble size...", "spots.png");
  export_picture(user, "Pattern", "Export &SVG...", "spots.svg");
  export_picture(user, "Pattern", "Export P&DF...", "spots.pdf");
  user.click("Pattern", "Command1");
  user.click("Main1", "Command12");
  user.fill("FiberTexture", {{"Text1", "1"}, {"Text3", "1"}, {"Text4", "1"}, {"Text5", "1"}, {"Text2", "8"}});
  user.click("FiberTexture", "Command8");
  user.take_picture("FiberTexture", "fiber-texture");
  user.save("fiber", "fiber.bmp", [&user] { user.choose("FiberTexture", "Isave"); });
  user.click("FiberTexture", "Command1");
}

/// The pattern of a crystal as a sphere, dragged to the left.
void use_master_pattern(const User& user) {
  user.load_crystal("Silicon.cry");
  user.choose("Pattern2", "ShowMasterPattern");
  user.fill("MasterPattern", {{"Points", "201"}});
  for (const auto* control : {"Make", "Bands", "Globe"}) user.click("MasterPattern", control);
  auto& view = user.widget<CanvasView>("MasterPattern", "Picture");
  const QPoint to = User::place(view, {0.3, 0.4});
  QTest::mousePress(&view, Qt::LeftButton, {}, User::place(view, {0.5, 0.5}));
  QMouseEvent drag(QEvent::MouseMove, to, view.mapToGlobal(to), Qt::NoButton, Qt::LeftButton, {});
  QApplication::sendEvent(&view, &drag);
  QTest::mouseRelease(&view, Qt::LeftButton, {}, to);
  expect(user.widget<QLineEdit>("MasterPattern", "MiddleU").text().toDouble() > 0.2, "a drag does not turn the sphere");
  user.take_picture("MasterPattern", "master-pattern");
  user.save("master", "master.png", [&user] { user.choose("MasterPattern", "SavePicture"); });
  user.window("MasterPattern").close();
}

void use_kikuchi_windows(const User& user) {
  user.choose_radiation("20");
  for (const auto& [crystal, u, v, w, picture] : {std::array{"Silicon.cry", "0", "0", "1", "kikuchi-silicon"},
                                                  {"ZnO.cry", "0", "0", "1", "kikuchi-zincite"},
                                                  {"NaCl.cry", "1", "1", "0", "kikuchi-nacl"}}) {
    user.load_crystal(crystal);
    user.click("Main1", "Command10");
    user.fill("Pattern2", {{"Text3", u}, {"Text4", v}, {"Text5", w}});
    user.click("Pattern2", "Command8");
    user.take_picture("Pattern2", picture);
    if (picture == std::string_view("kikuchi-silicon")) {
      user.take_numbered_picture("Pattern2", "kikuchi-numbered",
                                 {"menubar", "Text3", "Command8", "Text1", "Text21", "Check2", "Command1(0)",
                                  "Command2", "Command6", "List1", "Picture1"});
    }
  }
  user.save("kikuchi", "kikuchi.bmp", [&user] { user.choose("Pattern2", "ISAVE"); });
  user.click("Pattern2", "Check2");
  auto& turn = user.widget<QAbstractButton>("Pattern2", "Command6");
  user.click("Pattern2", "Command8");
  QTest::qWait(300);  // the map comes up
  expect(turn.isActiveWindow() &&
             QGuiApplication::topLevelAt(turn.mapToGlobal(turn.rect().center())) == turn.window()->windowHandle(),
         "the map covers the pattern that it goes with");
  user.take_picture("Zaxis", "zone-axis-map");
  user.save("map", "map.bmp", [&user] { user.choose("Zaxis", "SaveMap"); });
  user.window("Zaxis").close();
  user.click("Pattern2", "Check2");
  use_master_pattern(user);
  user.window("Pattern2").close();
}

void use_calculators(const User& user) {
  user.load_crystal("Rutile.cry");
  user.choose("Main1", "Show_utility");
  user.fill("Utility", {{"Text1", "30"}, {"Text2", "0"}, {"Text3", "0.8906"}, {"Text4", "30\r"}});
  user.fill("Utility", {{"Text9", "10"}, {"Text8", "-20"}, {"Text7", "17.368"}, {"Text6", "30\r"}});
  User::type_on(user.widget<QLineEdit>("Utility", "Text5(0)"), "1\r2\r0\r0\r1\r0\r0\r0\r4");
  user.click("Utility", "Command2");
  user.fill("Utility", {{"Text10", "1"}, {"Text11", "0"}, {"Text12", "1"}});
  user.click("Utility", "Command4");
  user.fill("Utility", {{"Text46", "1"}, {"Text47", "0"}, {"Text48", "1"}});
  user.fill("Utility", {{"Text49", "0"}, {"Text50", "0"}, {"Text51", "1"}});
  user.take_picture("Utility", "utility");
  user.window("Utility").close();
  user.click("Main1", "Command11");
  user.fill("AtomDistance", {{"Text1", "3"}});
  user.click("AtomDistance", "Command1");
  expect(user.lines("AtomDistance", "List1") > 0, "no distances");
  user.take_picture("AtomDistance", "atom-distance");
  user.window("AtomDistance").close();
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

/// Thirty steps of several kinds, back one by one, and forth again.
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

void index_pattern(const User& user) {
  // Left changed by the steps of undoing: what follows would be marked as made with other settings.
  for (const auto* check : {"Check1", "Check2", "Check3"}) user.click("Main1", check);
  user.click("MAIN_MENU", "Command3");
  user.fill("PATTERN3", {{"Text3", "33"}});
  const auto picture_file = QStringLiteral(ZOL_SOURCE_DIR "/examples/silicon-pattern.bmp");
  user.drop_file("PATTERN3", picture_file);
  expect(user.window("PATTERN3").windowTitle().startsWith(QStringLiteral("silicon-pattern")),
         "a dropped picture is not loaded");
  user.choose("PATTERN3", "Imageclear");
  choose_file(picture_file);
  for (const auto* item : {"ImageLoad", "ImageFlip"}) user.choose("PATTERN3", item);
  auto& picture = user.widget<CanvasView>("PATTERN3", "Picture1");
  for (const auto& [from, to] :
       {std::pair{QPointF(20, 75), QPointF(490, 293)}, {{60, 490}, {480, 245}}, {{24, 20}, {259, 490}}}) {
    constexpr double side = 511;
    QTest::mousePress(&picture, Qt::LeftButton, {}, User::place(picture, from / side));
    QTest::mouseMove(&picture, User::place(picture, to / side));
    QTest::mouseRelease(&picture, Qt::LeftButton, {}, User::place(picture, to / side));
  }
  for (const auto* button : {"Check1", "Command1"}) user.click("PATTERN3", button);
  expect(user.lines("PATTERN3", "List1") > 1, "the pattern of silicon has no solution");
  user.take_picture("PATTERN3", "analysis");
  user.take_numbered_picture("PATTERN3", "analysis-numbered",
                             {"menubar", "Picture1", "Text3", "Text5", "Text2", "Check1", "Command1", "List1"});
  for (const auto* mode : {"CPS_Si001", "CP_Setting_Show"}) user.choose("PATTERN3", mode);
  user.take_picture("PATTERN3", "analysis-calibration");
  for (const auto* mode : {"CPS_Si001", "CP_Setting_Show"}) user.choose("PATTERN3", mode);
  user.pick_line("PATTERN3", "List1", 0);
  user.choose("Pattern2", "ImageLoad");
  user.pick_line("PATTERN3", "List1", 0);
  user.take_picture("Pattern2", "analysis-superposed");
  user.save("indexed.bmp", "indexed.bmp", [&user] { user.choose("PATTERN3", "ImageSAve"); });
}

void index_automatically(const User& user) {
  user.choose("PATTERN3", "AutomaticIndexing");
  user.click("AutoIndex", "Index");
  expect(user.lines("AutoIndex", "Bands") == 9 && user.lines("AutoIndex", "Solutions") > 0,
         "the pattern of silicon is not indexed");
  user.take_picture("AutoIndex", "automatic-indexing");
  user.take_numbered_picture("AutoIndex", "automatic-indexing-numbered",
                             {"BandCount", "CircleMask", "Index", "RefineCentre", "Show", "Status", "Solutions",
                              "Bands", "Families", "Crystals"});
  user.take_picture("PATTERN3", "automatic-indexing-bands");
  user.click("AutoIndex", "Over");
  user.save("simulated", "simulated.bmp", [&user] { user.choose("AutoIndex", "SaveSimulated"); });
  for (const auto* button : {"Dynamical", "Index", "Show"}) user.click("AutoIndex", button);
  expect(user.widget<QLabel>("AutoIndex", "Status").text().contains("dynamical"), "there is no dynamical fit");
  user.choose("Pattern2", "DynamicalBands");
  user.window("AutoIndex").close();
}

void read_guide(const User& user) {
  QTest::keyClick(&user.window("PATTERN3"), Qt::Key_F1);
  for (auto* top : QApplication::topLevelWidgets()) {
    auto* pages = top->findChild<QTextBrowser*>();
    if (pages == nullptr || !top->isVisible()) continue;
    expect(pages->source().fileName() == QStringLiteral("kikuchi-analysis.md"), "F1 opens another page");
    top->close();
    return;
  }
  give_up("F1 opens no guide");
}

void walk(const User& user) {
  for (auto* step : {use_main_window, find_windows, search_library, copy_lines, save_table, use_powder_windows,
                     use_spot_windows, use_kikuchi_windows, use_calculators, use_files, undo_and_redo, index_pattern,
                     index_automatically, read_guide}) {
    step(user);
  }
  user.click("MAIN_MENU", "Command5");
}

}  // namespace
}  // namespace zol

int main(int argc, char** argv) {
  if (argc < 2) zol::give_up("usage: zol-real-use FILES [PICTURES | failure KIND | recovery STEP]");
  const QString files = QFile::decodeName(argv[1]);
  const bool is_day = argc > 2 && std::string_view(argv[2]) == "day";
  const int pictures_at = is_day ? 3 : 2;
  const std::optional<QString> pictures =
      argc == pictures_at + 1 ? std::optional(QFile::decodeName(argv[pictures_at])) : std::nullopt;
  QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);  // those of a desktop cannot be filled in from here
  return zol::run_application(argc, argv, [&](zol::Desktop& desktop) {
    const zol::User user(desktop, files, pictures);
    const std::string_view mode = argc > 3 ? argv[2] : "";
    if (is_day) {
      zol::work_a_day(user);
    } else if (mode == "failure") {
      zol::fail(user, argv[3]);
    } else if (mode == "recovery") {
      desktop.set_question([](const std::string& /*reason*/) { return true; });  // all the same
      zol::recover(user, argc, argv);
    } else {
      zol::walk(user);
    }
  });
}
