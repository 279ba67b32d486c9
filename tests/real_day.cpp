// A day's work of half an hour, by mouse and keys: docs/user-guide/a-days-work.md goes through it with these pictures.
#include "tests/real_day.h"

#include <QFile>
#include <QStandardItemModel>
#include <QTableView>
#include <QTreeView>

#include "shell/desktop/table_window.h"

namespace zol {
namespace {

constexpr auto measured = ZOL_SOURCE_DIR "/examples/measured/";

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

void tilt_spots(const User& user) {
  user.click("Main1", "Command9");
  user.fill("Pattern", {{"Text3", "0"}, {"Text4", "0"}, {"Text5", "1\r"}});
  auto& picture = user.widget<CanvasView>("Pattern", "Picture1");
  const auto axis = [&user] { return user.widget<QLineEdit>("Pattern", "Text5").text(); };
  const QString before = axis() + user.widget<QLineEdit>("Pattern", "Text3").text();
  const QPoint from = User::place(picture, {0.5, 0.5});
  QTest::mousePress(&picture, Qt::LeftButton, {}, from);
  for (int i = 1; i <= 5; ++i) {
    const QPoint to = from + QPoint(12 * i, 5 * i);
    QMouseEvent move(QEvent::MouseMove, to, picture.mapToGlobal(to), Qt::NoButton, Qt::LeftButton, {});
    QApplication::sendEvent(&picture, &move);
  }
  QTest::mouseRelease(&picture, Qt::LeftButton, {}, from + QPoint(60, 25));
  expect(axis() + user.widget<QLineEdit>("Pattern", "Text3").text() != before, "a drag tilts nothing");
  user.take_picture("Pattern", "day-spots");
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
  user.take_picture("PATTERN3", "day-bands");
  user.click("AutoIndex", "Show");
  user.choose("Pattern2", "ImageLoad");
  user.take_picture("Pattern2", "day-simulated");
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
  for (auto* step : {find_a_crystal, tilt_spots, table_of_a_structure, index_a_measured_pattern, end_the_day})
    step(user);
}

}  // namespace zol
