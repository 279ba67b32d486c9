// A day's work of half an hour, by mouse and keys: docs/user-guide/a-days-work.md goes through it with these pictures.
#include "tests/real_day.h"

#include <QFile>
#include <QStandardItemModel>
#include <QTableView>
#include <QTreeView>

#include "shell/desktop/table_window.h"
#include "tests/real_steps.h"

namespace zol {
namespace {

constexpr auto measured = ZOL_SOURCE_DIR "/examples/measured/";

/// By the menu of a window, with what it shows after it was opened.
void open_recent(const User& user, const char* name) {
  auto& main1 = user.window("Main1");
  for (auto* menu : main1.findChildren<QMenu*>()) {
    if (menu->title() != QStringLiteral("&Crystals")) continue;
    menu->popup(main1.mapToGlobal(QPoint(50, 50)));
    for (auto* action : menu->actions()) {
      if (!action->text().contains(QString::fromLatin1(name))) continue;
      QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(action).center());
      expect(user.widget<QLineEdit>("Main1", "Text17").text().endsWith(QString::fromLatin1(name)),
             std::string(name) + " is not opened again");
      return;
    }
  }
  give_up(std::string(name) + " is not among the recent crystals");
}

/// Morning: a crystal is found by its elements, and looked at along an axis.
void find_a_crystal(const User& user) {
  user.click("MAIN_MENU", "Command1");
  QTest::keyClick(&user.window("Main1"), Qt::Key_L, Qt::ControlModifier);
  auto& search = user.widget<QLineEdit>("Main1", "librarySearch");
  QTest::keyClicks(&search, QStringLiteral("+Si -O cubic"));
  auto& tree = user.widget<QTreeView>("Main1", "libraryTree");
  const auto& state = user.widget<QLabel>("Main1", "libraryState");
  expect(QTest::qWaitFor([&state] { return state.text().startsWith(QStringLiteral("1 of")); }, 20000),
         "the library finds: " + state.text().toStdString());
  QTest::keyClick(&search, Qt::Key_Down);
  user.take_picture("Main1", "day-library");
  QTest::keyClick(&tree, Qt::Key_Return);
  expect(user.widget<QLineEdit>("Main1", "Text17").text().endsWith(QStringLiteral("Silicon.cry")),
         "Enter in the library loads nothing");
  QTest::keyClick(&user.window("Main1"), Qt::Key_L, Qt::ControlModifier);
}

/// From one place to another: d in the status line. A drag measures then and tilts nothing.
void measure_spots(const User& user) {
  user.choose_in_picture("Pattern", "Picture1", "&Measure");
  const auto& status = *dynamic_cast<QMainWindow&>(user.window("Pattern")).statusBar();
  user.drag("Pattern", "Picture1", {0.3, 0.7}, {0.7, 0.6});
  const QString said = status.currentMessage();
  expect(said.contains(QStringLiteral("Å⁻¹")) && said.contains(QStringLiteral("d ")),
         "measured was: " + said.toStdString());
}

void tilt_spots(const User& user) {
  user.click("Main1", "Command9");
  user.fill("Pattern", {{"Text1", "2"}, {"Text3", "0"}, {"Text4", "0"}, {"Text5", "1\r"}});
  const auto axis = [&user] { return user.widget<QLineEdit>("Pattern", "Text5").text(); };
  const QString before = axis() + user.widget<QLineEdit>("Pattern", "Text3").text();
  user.drag("Pattern", "Picture1", {0.5, 0.5}, {0.6, 0.6});
  expect(axis() + user.widget<QLineEdit>("Pattern", "Text3").text() != before, "a drag tilts nothing");
  for (const auto* entry : {"&Labels h k l", "Sc&ale bar"}) user.choose_in_picture("Pattern", "Picture1", entry);
  measure_spots(user);
  user.take_picture("Pattern", "day-spots");
  user.choose_in_picture("Pattern", "Picture1", "&With caption");
  user.save("spots.pdf", "spots.pdf", [&user] { user.choose_in_picture("Pattern", "Picture1", "Export P&DF..."); });
  user.choose_in_picture("Pattern", "Picture1", "&With caption");
  QTest::keyClick(&user.window("Pattern"), Qt::Key_Z, Qt::ControlModifier);
  expect(axis() + user.widget<QLineEdit>("Pattern", "Text3").text() == before, "one undo does not take a drag back");
  user.window("Pattern").close();
}

/// A colleague's file, its reflections as a table, the strong ones for a spreadsheet.
void table_of_a_structure(const User& user) {
  choose_file(QStringLiteral(ZOL_SOURCE_DIR "/examples/cif/rutile.cif"));
  when_asked<QDialog>([](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });  // the report
  user.choose("Main1", "ImportStructure");
  user.choose_radiation("CuKa");
  auto& list = user.widget<QListView>("Main1", "List2");
  list.setFocus();
  QTest::keyClick(&list, Qt::Key_T, Qt::ControlModifier);
  auto* table = user.window("Main1").findChild<TableWindow*>();
  expect(table != nullptr && QTest::qWaitForWindowActive(table), "Ctrl+T shows no table");
  auto& rows = *table->findChild<QTableView*>();
  auto& filter = *table->findChild<QLineEdit*>();
  QTest::keyClicks(&filter, QStringLiteral("I>100"));
  const int strong = rows.model()->rowCount();
  expect(strong > 0 && strong < user.lines("Main1", "List2"), "a table is not filtered");
  user.take_picture_of(*table, "day-table");
  table->raise();
  table->activateWindow();
  expect(QTest::qWaitForWindowActive(table), "the table does not come to the front again");
  rows.setFocus();
  QTest::qWait(100);  // a shortcut goes to what has the focus
  user.save("strong.csv", "strong.csv", [&rows] { QTest::keyClick(&rows, Qt::Key_S, Qt::ControlModifier); });
  QFile saved(user.file("strong.csv"));
  expect(saved.open(QIODevice::ReadOnly), "the CSV cannot be read");
  const QList<QByteArray> lines = saved.readAll().trimmed().split('\n');
  expect(lines.size() == strong + 1 && lines.front().startsWith("h,k,l,") && !lines.back().contains(' '),
         "the CSV reads: " + lines.front().toStdString() + " ... " + lines.back().toStdString());
  table->close();
}

/// A powder pattern against a measured one, of a crystal that was used before.
void fit_a_powder_pattern(const User& user) {
  user.load_crystal("Quartz.cry");
  user.choose_radiation("CuKa");
  user.click("Main1", "Command7");
  user.save("pattern", "pattern.XDP", [&user] { user.click("Xd", "Command3"); });
  lay_measured_pattern_under(user);
  user.choose_text("Xd", QStringLiteral("Logarithm of the intensity"));
  user.take_picture("Xd", "day-powder");
  user.save("powder.svg", "powder.svg", [&user] { user.choose_in_picture("Xd", "Picture1", "Export &SVG..."); });
  QFile saved(user.file("powder.svg"));
  expect(saved.open(QIODevice::ReadOnly) && saved.readAll().contains(">1 0 0<"), "the figure has no index as text");
  user.choose_text("Xd", QStringLiteral("Linear intensity"));
  user.window("Xd").close();
}

/// Three bands by hand, a wrong one taken back; the solutions over the picture itself, one after the other.
void index_by_hand(const User& user) {
  open_recent(user, "Silicon.cry");
  user.choose_radiation("20");
  user.click("MAIN_MENU", "Command3");
  user.fill("PATTERN3", {{"Text3", "33"}, {"Text5", "20"}});
  choose_file(QStringLiteral(ZOL_SOURCE_DIR "/examples/silicon-pattern.bmp"));
  for (const auto* item : {"ImageLoad", "ImageFlip"}) user.choose("PATTERN3", item);
  constexpr double side = 511;
  const auto draw = [&user](QPointF from, QPointF to) { user.drag("PATTERN3", "Picture1", from / side, to / side); };
  draw({20, 75}, {490, 293});
  draw({100, 100}, {300, 400});
  user.choose_in_picture("PATTERN3", "Picture1", "Take back the last line");
  draw({60, 490}, {480, 245});
  draw({24, 20}, {259, 490});
  user.click("PATTERN3", "Command1");
  expect(user.lines("PATTERN3", "List1") > 2, "three bands by hand have no two solutions");
  auto& picture = user.widget<CanvasView>("PATTERN3", "Picture1");
  picture.setFocus();
  const QImage measured_alone = picture.grab().toImage();
  QTest::keyClick(&picture, Qt::Key_Down);
  expect(picture.grab().toImage() != measured_alone, "no solution is drawn over the picture");
  user.take_picture("PATTERN3", "day-by-hand");
  QTest::keyClick(&picture, Qt::Key_Escape);
  expect(picture.grab().toImage() == measured_alone, "Esc leaves a solution over the picture");
  user.window("PATTERN3").close();
}

/// A crystal's pattern against the picture of a detector: from the file to the refined orientation.
void index_a_measured_pattern(const User& user) {
  user.load_crystal("Silicon.cry");
  user.choose_radiation("20");
  user.click("MAIN_MENU", "Command3");
  user.fill("PATTERN3", {{"Text3", "44.9"}, {"Text14", "1.4"}, {"Text15", "35.7"}, {"Text5", "20"}});
  choose_file(QString::fromLatin1(measured) + QStringLiteral("silicon.png"));
  for (const auto* item : {"ImageLoad", "ImageFlip", "AutomaticIndexing"}) user.choose("PATTERN3", item);
  for (const auto* button : {"CircleMask", "Index", "RefineCentre"}) user.click("AutoIndex", button);
  const QString said = user.widget<QLabel>("AutoIndex", "Status").text();
  expect(said.contains(QStringLiteral("correlation 0.5")), "the measured pattern is indexed as: " + said.toStdString());
  user.take_picture("AutoIndex", "day-indexed");
  user.click("AutoIndex", "Show");
  user.choose("Pattern2", "ImageLoad");
  user.take_picture("Pattern2", "day-simulated");
}

/// In the evening the windows are dark, for a colleague they are in German.
void change_look_and_language(const User& user) {
  auto& main1 = user.window("Main1");
  const QColor light = main1.palette().color(QPalette::Window);
  user.choose_text("Main1", QStringLiteral("Dark"));
  expect(main1.palette().color(QPalette::Window).lightness() < light.lightness() / 2, "the windows are not dark");
  user.choose_text("Main1", QStringLiteral("Deutsch"));
  const auto& calculate = user.widget<QAbstractButton>("Main1", "Command6");
  expect(calculate.text().remove(u'&') == QStringLiteral("Rechnen"), "in German: " + calculate.text().toStdString());
  user.take_picture("Main1", "day-dark");
  user.choose_text("Main1", QStringLiteral("English"));
  user.choose_text("Main1", QStringLiteral("Light"));
  expect(calculate.text().remove(u'&') == QStringLiteral("Calc"), "English does not come back");
}

/// Windows closed in an odd order, and what was typed last is not lost.
void end_the_day(const User& user) {
  user.window("Main1").close();
  user.window("PATTERN3").close();
  user.window("Pattern2").close();
  user.window("AutoIndex").close();
  user.click("MAIN_MENU", "Command1");
  user.fill("Main1", {{"Text1", "5.5\r"}});
  QTest::keyClick(&user.window("Main1"), Qt::Key_Z, Qt::ControlModifier);
  expect(user.widget<QLineEdit>("Main1", "Text1").text().trimmed().startsWith(QStringLiteral("5.43")),
         "a box is not undone");
  user.save("day.cry", "day.cry", [&user] { user.choose("Main1", "DATA_SAVE"); });
  user.click("MAIN_MENU", "Command5");
}

}  // namespace

void work_a_day(const User& user) {
  for (auto* step : {find_a_crystal, tilt_spots, table_of_a_structure, find_windows, fit_a_powder_pattern,
                     index_by_hand, index_a_measured_pattern, change_look_and_language, end_the_day})
    step(user);
}

}  // namespace zol
