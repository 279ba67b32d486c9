// The crystal library beside the main window, and the search in its list of groups.
#include "shell/desktop/library/library_panel.h"

#include <QDockWidget>
#include <QLabel>
#include <QListView>
#include <QMainWindow>
#include <QTreeView>

#include "shell/desktop/group_search_box.h"
#include "shell/desktop/language/language.h"
#include "shell/desktop/note_line.h"
#include "tests/offscreen_desktop.h"

namespace zol {
namespace {

class LibraryPanelTest : public DesktopTest {
 protected:
  explicit LibraryPanelTest(const QString& settings = {}) : DesktopTest(settings) {
    show_main1();
    activate("Main1");
    QTest::keyClick(&widget("Main1"), Qt::Key_L, Qt::ControlModifier);
  }
  QLineEdit& search() { return child<QLineEdit>("Main1", "librarySearch"); }
  QString said(const char* name) { return child<QLabel>("Main1", name).text(); }
  bool says(const char* name, const QString& words) {
    return QTest::qWaitFor([&] { return said(name).contains(words); }, 20000);
  }
};

TEST_F(LibraryPanelTest, IsSearchedAndOpensByTheKeyboard) {
  ASSERT_TRUE(says("libraryState", QStringLiteral("31 crystals"))) << said("libraryState").toStdString();
  EXPECT_TRUE(QTest::qWaitFor([this] { return search().hasFocus(); }, 20000));
  QTest::keyClicks(&search(), QStringLiteral("+Ti +O"));
  EXPECT_TRUE(says("libraryState", QStringLiteral("2 of 31 crystals")));
  EXPECT_EQ(said("libraryDetails"), QString());
  QTest::keyClick(&search(), Qt::Key_Down);
  auto& tree = child<QTreeView>("Main1", "libraryTree");
  EXPECT_TRUE(tree.hasFocus());
  // Anatase: density as in the Handbook of Mineralogy
  EXPECT_TRUE(says("libraryDetails", QStringLiteral("Anatase.cry\nTi O2\nI 41/a m d (141), tetragonal\n")));
  EXPECT_TRUE(said("libraryDetails").contains(QStringLiteral(", 3.8"))) << said("libraryDetails").toStdString();
  QTest::keyClick(&tree, Qt::Key_Down);
  QTest::keyClick(&tree, Qt::Key_Return);
  EXPECT_EQ(main1().Text17.text(), ZOL_SOURCE_DIR "/data/ZOLDATA/Rutile.cry");
  EXPECT_EQ(main1().Text7.text(), " 136");
  search().clear();
  QTest::keyClicks(&search(), QStringLiteral("a=5.43~0.01"));
  QTest::keyClick(&search(), Qt::Key_Return);  // the first one
  EXPECT_EQ(main1().Label16.caption(), "Fd3m");
  QTest::keyClicks(&search(), QStringLiteral(" x=1"));
  EXPECT_TRUE(says("libraryState", QStringLiteral("density or group")));
  QTest::keyClick(&widget("Main1"), Qt::Key_L, Qt::ControlModifier);
  EXPECT_FALSE(child<QDockWidget>("Main1", "crystalLibrary").isVisible());
  EXPECT_TRUE(failures.empty());
}

TEST_F(LibraryPanelTest, EnterWithoutAFindChangesNothing) {
  ASSERT_TRUE(says("libraryState", QStringLiteral("31 crystals")));
  load("NaCl.cry");
  QTest::keyClicks(&search(), QStringLiteral("coppercrystal"));
  QTest::keyClick(&search(), Qt::Key_Return);  // nothing is found
  EXPECT_EQ(main1().Text7.text(), " 225");
  EXPECT_TRUE(failures.empty() && services.messages.empty());
}

class GroupSearchTest : public DesktopTest {};

TEST_F(GroupSearchTest, PicksTheGroupAndFollowsTheNumber) {
  show_main1();
  load("Quartz.cry");
  auto& list = child<NotedList>("Main1", "List3");
  auto& search = child<GroupSearchBox>("Main1", "List3Search");
  EXPECT_EQ(list.lit(), 153);
  const auto shown = [&list] {
    int rows = 0;
    for (int row = 0; row < list.model()->rowCount(); ++row) rows += list.isRowHidden(row) ? 0 : 1;
    return rows;
  };
  QTest::keyClicks(&search, QStringLiteral("cubic"));
  EXPECT_EQ(shown(), 36);  // 195 to 230
  search.clear();
  EXPECT_EQ(shown(), list.model()->rowCount());
  for (const auto& [typed, number] : {std::pair{"Fm-3m", "225"}, {"62", "62"}, {"P 21/n", "14"}}) {
    QTest::keyClicks(&search, QString::fromLatin1(typed));
    QTest::keyClick(&search, Qt::Key_Return);
    EXPECT_EQ(Val(main1().Text7.text()), Val(number)) << typed;
    EXPECT_EQ(list.lit(), static_cast<int>(Val(number)) - 1);
    EXPECT_EQ(search.text(), QString());
  }
  const auto& nothing = child<QLabel>("Main1", "List3SearchNothing");
  for (const auto& [language, typed, rows] :
       {std::tuple{"de", "kubisch", 36}, {"de", "cubic", 36}, {"fr", "triclin", 2}, {"fr", "nichts", 0}}) {
    use_language(QLatin1String(language));
    search.setText(QString::fromLatin1(typed));
    EXPECT_EQ(shown(), rows) << typed;
    EXPECT_EQ(!nothing.isHidden(), rows == 0) << typed;
  }
  use_language(QStringLiteral("en"));
  search.clear();
  desktop.enter("typed", [this] { main1().Text7.set_text("5"); });
  EXPECT_EQ(list.lit(), 4);
  EXPECT_TRUE(failures.empty());
}

}  // namespace
}  // namespace zol
