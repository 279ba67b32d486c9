// A list as a table by keys and mouse.
#include "shell/desktop/table_window.h"

#include <QClipboard>
#include <QElapsedTimer>
#include <QHeaderView>
#include <QListView>
#include <QMainWindow>
#include <QMenu>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>

#include "powder/window/xd_form.h"
#include "shell/desktop/language/language.h"
#include "tests/offscreen_desktop.h"
#include "tests/test_files.h"

namespace zol {
namespace {

class TableWindowTest : public DesktopTest {
 protected:
  explicit TableWindowTest(const QString& settings_file = {}) : DesktopTest(settings_file) {
    show_main1();
    load("Quartz.cry");
  }
  TableWindow& open(const char* window = "Main1", const char* list = "List2") {
    activate(window);
    auto& view = child<QListView>(window, list);
    for (auto* action : view.actions()) {
      if (action->shortcut() == QKeySequence(Qt::CTRL | Qt::Key_T)) action->trigger();
    }
    auto* table = widget(window).findChild<TableWindow*>();
    EXPECT_NE(table, nullptr);
    QApplication::setActiveWindow(table);
    return *table;
  }
  static QTableView& rows(TableWindow& table) { return *table.findChild<QTableView*>(); }
  static QString cell(TableWindow& table, int row, int column) {
    return rows(table).model()->index(row, column).data().toString();
  }
  static void choose(TableWindow& table, const char* caption) {
    auto* menu = table.findChild<QMenu*>();
    emit menu->aboutToShow();
    for (auto* action : menu->actions()) {
      if (action->text() == QString::fromLatin1(caption)) return action->trigger();
    }
    ADD_FAILURE() << caption;
  }
  static void sort(TableWindow& table, int column) {
    auto* heads = rows(table).horizontalHeader();
    const QPoint place(heads->sectionViewportPosition(column) + 10, heads->height() / 2);
    QTest::mouseClick(heads->viewport(), Qt::LeftButton, {}, place);
  }
};

TEST_F(TableWindowTest, SortsFiltersCopiesAndSaves) {
  const ScratchFolder folder;
  auto& table = open();
  const int all = main1().List2.list_count();
  ASSERT_EQ(rows(table).model()->rowCount(), all);
  constexpr int intensity = 9;
  sort(table, intensity);
  EXPECT_EQ(cell(table, 0, intensity), QStringLiteral("0.000"));
  sort(table, intensity);
  const double most = cell(table, 0, intensity).toDouble();
  for (int i = 1; i < all; ++i) EXPECT_LE(cell(table, i, intensity).toDouble(), most);
  sort(table, intensity);
  EXPECT_EQ(cell(table, 0, 2), QStringLiteral("-1")) << "the order of the list again";

  QTest::keyClick(&rows(table), Qt::Key_F, Qt::ControlModifier);
  QTest::keyClicks(table.findChild<QLineEdit*>(), QStringLiteral("h=1 k=0 l=1"));
  ASSERT_EQ(rows(table).model()->rowCount(), 1);
  rows(table).setFocus();
  QTest::keyClick(&rows(table), Qt::Key_C, Qt::ControlModifier);
  EXPECT_TRUE(QGuiApplication::clipboard()->text().startsWith(
      QString::fromUtf8("h\tk\tl\ts (Å⁻¹)\td (Å)\t2theta (°)\tA\tB\tF\tI\n1\t0\t1\t0.150\t3.3427\t")));
  services.answers = {folder.path("reflections")};
  QTest::keyClick(&table, Qt::Key_S, Qt::ControlModifier);
  EXPECT_TRUE(
      folder.read("reflections.csv").starts_with("h,k,l,s (Å⁻¹),d (Å),2theta (°),A,B,F,I\n1,0,1,0.150,3.3427,"));
  services.answers = {folder.path("none/reflections")};
  QTest::keyClick(&table, Qt::Key_S, Qt::ControlModifier);
  EXPECT_EQ(services.messages.size(), 1U) << "a file that cannot be written is told, and the program goes on";
  EXPECT_TRUE(failures.empty());
}

TEST_F(TableWindowTest, HasItsCommandsInTheContextMenu) {
  auto& table = open();
  QStringList entries;
  for (auto* action : rows(table).actions()) {
    entries << action->text() + u' ' + action->shortcut().toString(QKeySequence::PortableText);
    if (entries.last().startsWith(QStringLiteral("Select"))) action->trigger();
  }
  EXPECT_EQ(entries.join(u'|').toStdString(),
            "&Copy Ctrl+C|Select &All Ctrl+A|S&ort by this column Ctrl+Shift+O|&Save as CSV... Ctrl+S|&Filter Ctrl+F|"
            "User &guide F1|C&lose Ctrl+W");
  EXPECT_EQ(rows(table).selectionModel()->selectedRows().size(), main1().List2.list_count());
}

TEST_F(TableWindowTest, FollowsTheListAndPicksInIt) {
  auto& table = open();
  EXPECT_EQ(main1().List2.list_index(), -1) << "opening picks nothing";
  const auto rect = rows(table).visualRect(rows(table).model()->index(3, 1));
  QTest::mouseClick(rows(table).viewport(), Qt::LeftButton, {}, rect.center());
  EXPECT_EQ(main1().List2.list_index(), 3);
  QTest::keyClick(&rows(table), Qt::Key_Down);
  EXPECT_EQ(main1().List2.list_index(), 4);
  desktop.enter("pick", [this] { main1().List2.pick(7); });
  EXPECT_EQ(rows(table).currentIndex().row(), 7);
  choose(table, "Merge equivalents");
  EXPECT_LT(rows(table).model()->rowCount(), 60);
  EXPECT_EQ(rows(table).currentIndex().row(), 1) << "the row that stands for a picked one";
  load("NaCl.cry");
  EXPECT_EQ(cell(table, 0, 0) + cell(table, 0, 1) + cell(table, 0, 2), QStringLiteral("111"));
  widget("Main1").hide();
  EXPECT_FALSE(table.isVisible());
}

class KeptTableTest : public TableWindowTest {
 protected:
  KeptTableTest() : TableWindowTest(file()) {}
  ~KeptTableTest() override { use_language(QStringLiteral("en")); }
  static QString name_of_file() {
    static const QTemporaryDir folder;
    return folder.filePath(QStringLiteral("desk.ini"));
  }
  static QString file() {
    QString name = name_of_file();
    QSettings kept(name, QSettings::IniFormat);
    kept.setValue(QStringLiteral("tables/Main1.List2/columns"), QStringList{QStringLiteral("Multiplicity")});
    kept.setValue(QStringLiteral("tables/Main1.List2/widths"), QVariantMap{{QStringLiteral("d"), 123}});
    kept.setValue(QStringLiteral("tables/Main1.List2/sort"), QStringLiteral("d"));
    return name;
  }
  static QString head(TableWindow& table, int column) {
    return rows(table).model()->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
  }
};

TEST_F(KeptTableTest, HasColumnsOrderAndWidthsOfTheLastRunAndSpeaksTheLanguage) {
  auto& table = open();
  constexpr int d = 4;
  constexpr int absent = 11;
  EXPECT_EQ(head(table, absent - 1), QStringLiteral("m"));
  EXPECT_EQ(rows(table).columnWidth(d), 123);
  EXPECT_LT(cell(table, 0, d).toDouble(), cell(table, 20, d).toDouble());
  choose(table, "Systematic absences");
  EXPECT_EQ(rows(table).columnWidth(d), 123);
  rows(table).setColumnWidth(0, 77);
  sort(table, d);
  const auto value = [](const char* name) {
    const QSettings kept(name_of_file(), QSettings::IniFormat);  // Qt shares what has not been written yet
    return kept.value(QStringLiteral("tables/Main1.List2/") + QLatin1String(name));
  };
  EXPECT_EQ(value("columns").toStringList().size(), 2);
  EXPECT_EQ(value("widths").toMap().value(QStringLiteral("h")).toInt(), 77);
  EXPECT_TRUE(value("descending").toBool());

  use_language(QStringLiteral("de"));
  QApplication::processEvents();
  EXPECT_EQ(head(table, absent), QStringLiteral("fehlt"));
  QTest::keyClicks(table.findChild<QLineEdit*>(), QStringLiteral("Fehlt=extinct"));
  const int found = rows(table).model()->rowCount();
  EXPECT_GT(found, 0);
  EXPECT_LT(found, main1().List2.list_count());
  QTest::keyClick(&rows(table), Qt::Key_C, Qt::ControlModifier);
  EXPECT_TRUE(QGuiApplication::clipboard()->text().contains(QStringLiteral("absent")));
  QTest::keyClick(&rows(table), Qt::Key_F1);
  const auto all = QApplication::topLevelWidgets();
  EXPECT_TRUE(std::any_of(all.begin(), all.end(), [](QWidget* top) { return top->inherits("zol::Guide"); }));
}

TEST_F(TableWindowTest, LinesThatShouldNotBePickedAskFirst) {
  click("Main1", "Command13");
  auto& list = *dynamic_cast<ListBox*>(program.windows().use("PATTERN3").find("List1"));
  desktop.enter("a list", [&list] {
    list.add_item("1    1   1   1   2   0   0   0   2   0      1      2      3  0.1  0.2  0.3");
  });
  auto& table = open("PATTERN3", "List1");
  agrees = false;
  QTest::mouseClick(rows(table).viewport(), Qt::LeftButton, {},
                    rows(table).visualRect(rows(table).model()->index(0, 0)).center());
  EXPECT_EQ(questions.size(), 1U);
  EXPECT_EQ(list.list_index(), -1);
  EXPECT_TRUE(rows(table).selectionModel()->selectedRows().isEmpty());
}

TEST_F(TableWindowTest, LongListsStayQuick) {
  main1().Text15.set_text("0.3");
  main1().Command6.click();
  ASSERT_GT(main1().List2.list_count(), 10000);
  auto& table = open();
  QElapsedTimer timer;
  timer.start();
  sort(table, 4);
  choose(table, "Merge equivalents");
  QTest::keyClicks(table.findChild<QLineEdit*>(), QStringLiteral("d>1"));
  constexpr int generous_ms = 5000;  // without optimisation, on a busy machine
  EXPECT_LT(timer.elapsed(), generous_ms);
  std::cerr << main1().List2.list_count() << " rows: " << timer.elapsed() << " ms" << std::endl;
}

}  // namespace
}  // namespace zol
