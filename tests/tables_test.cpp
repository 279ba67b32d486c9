// The two tables by keys, mouse and clipboard.
#include <QClipboard>
#include <QMainWindow>
#include <QStatusBar>
#include <QTableView>

#include "entry/window/input_atom_form.h"
#include "tests/offscreen_desktop.h"

namespace zol {
namespace {

class TablesTest : public DesktopTest {
 protected:
  TablesTest() {
    program.watch(desktop.gate());
    desktop.offer_undo(program);
    show_main1();
    load("NaCl.cry");
    click("Main1", "Command1");
    activate("InputAtom");
    view().setFocus();
  }
  QTableView& view() { return child<QTableView>("InputAtom", "G"); }
  Grid& grid() { return program.windows().use<InputAtomForm>().G; }
  /// The widget that has the focus, as the user's keys would find it.
  static void key(int key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(QApplication::focusWidget(), static_cast<Qt::Key>(key), modifiers);
  }
  static void keys(const char* text) {
    for (const char* c = text; *c != 0; ++c) QTest::keyClick(QApplication::focusWidget(), *c);
  }
  void go(int row, int column) {
    const auto rect = view().visualRect(view().model()->index(row - 1, column - 1));
    QTest::mouseClick(view().viewport(), Qt::LeftButton, {}, rect.center());
  }
  void paste(const char* text) {
    QGuiApplication::clipboard()->setText(QString::fromLatin1(text));
    key(Qt::Key_V, Qt::ControlModifier);
  }
  QLineEdit* editor() {
    auto* edit = view().viewport()->findChild<QLineEdit*>();
    return edit != nullptr && edit->isVisible() ? edit : nullptr;
  }
  std::string row(int n) {
    std::string texts;
    for (int column = 1; column <= 7; ++column) texts += grid().text(n, column) + (column < 7 ? " " : "");
    return texts;
  }
  std::string undo_name() { return program.history().undo_name(); }
};

constexpr auto sodium = "Na Na 1 0 0 0 1.6";
constexpr auto chlorine = "Cl Cl 1 .5 .5 .5 1.4";

TEST_F(TablesTest, TakeWhatWasTypedIntoTheCellWhereItShows) {
  ASSERT_EQ(row(1) + ", " + row(2), std::string(sodium) + ", " + chlorine);
  struct Case {
    const char* name;
    std::function<void()> act;
    const char* sodium_b;
    int row, column;  // where it ends
  };
  const Case cases[] = {
      {"arrows",
       [] {
         key(Qt::Key_Down);
         key(Qt::Key_Up);
         key(Qt::Key_Down);
         key(Qt::Key_Return);
       },
       "2.5", 3, 1},
      {"enter", [] { key(Qt::Key_Return); }, "2.5", 2, 1},
      {"tab", [] { key(Qt::Key_Tab); }, "2.5", 2, 1},
      {"back", [] { key(Qt::Key_Backtab); }, "2.5", 1, 6},
      {"left", [] { key(Qt::Key_Left); }, "2.5", 1, 6},
      {"mouse", [this] { go(2, 3); }, "2.5", 2, 3},
      {"escape", [] { key(Qt::Key_Escape); }, "1.6", 1, 7},
      {"all taken back",
       [] {
         for (int i = 0; i < 3; ++i) key(Qt::Key_Backspace);
         key(Qt::Key_Return);
       },
       "1.6", 2, 1},
      {"in between",
       [] {
         key(Qt::Key_F2);
         key(Qt::Key_Left);
         keys("0");
         key(Qt::Key_Return);
       },
       "2.05", 2, 1},
      {"another box", [this] { child<QLineEdit>("InputAtom", "Text2").setFocus(Qt::MouseFocusReason); }, "2.5", 1, 7},
      {"a button", [this] { click("InputAtom", "Command3"); }, "", 1, 7},
  };
  for (const auto& [name, act, sodium_b, end_row, end_column] : cases) {
    SCOPED_TRACE(name);
    view().setFocus();
    go(1, 7);
    keys("2.5");
    ASSERT_NE(editor(), nullptr);
    EXPECT_EQ(editor()->text(), QStringLiteral("2.5"));
    EXPECT_TRUE(editor()->geometry().intersects(view().visualRect(view().model()->index(0, 6))));
    EXPECT_EQ(grid().text(1, 7), "1.6") << "not before it is left";
    act();
    EXPECT_EQ(grid().text(1, 7), sodium_b);
    EXPECT_EQ(row(2), chlorine);
    EXPECT_EQ(std::pair(grid().row(), grid().column()), std::pair(end_row, end_column));
    EXPECT_EQ(editor(), nullptr);
    while (row(1) != sodium) key(Qt::Key_Z, Qt::ControlModifier);
  }
}

TEST_F(TablesTest, ChangeATextWithF2AndEmptyACell) {
  go(2, 4);
  key(Qt::Key_F2);
  ASSERT_NE(editor(), nullptr);
  key(Qt::Key_End);
  keys("5");
  key(Qt::Key_Return);
  EXPECT_EQ(grid().text(2, 4), ".55");
  go(2, 4);
  QTest::mouseDClick(view().viewport(), Qt::LeftButton, {}, view().visualRect(view().model()->index(1, 3)).center());
  ASSERT_NE(editor(), nullptr);
  EXPECT_EQ(editor()->text(), QStringLiteral(".55"));
  key(Qt::Key_Delete);
  key(Qt::Key_Down);
  EXPECT_EQ(grid().text(2, 4), "");
  key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(grid().text(2, 4), ".55") << "a cell is a step";
  go(2, 4);
  key(Qt::Key_F2);
  key(Qt::Key_Escape);
  EXPECT_EQ(grid().text(2, 4), ".55");
}

TEST_F(TablesTest, TakeRowsFromTheClipboardAndMoveThem) {
  go(3, 1);
  const std::string before = row(3);
  paste("Site Name\tElement\tOccupancy\tX\r\nK1\tK\t0,5\t0,25\r\nBr\tBr\t1\t\r\n");
  EXPECT_EQ(row(3) + ", " + row(4), "K1 K 0.5 0.25   , Br Br 1    ");
  EXPECT_EQ(undo_name(), "rows pasted: 2");
  go(2, 1);
  key(Qt::Key_Insert);
  EXPECT_EQ(row(2) + row(3), std::string("      ") + chlorine);
  EXPECT_EQ(row(5), "Br Br 1    ");
  key(Qt::Key_Down, Qt::AltModifier);
  EXPECT_EQ(row(2) + row(3), chlorine + std::string("      "));
  key(Qt::Key_Up, Qt::AltModifier);
  EXPECT_EQ(grid().row(), 2);
  EXPECT_EQ(row(3), chlorine);
  view().selectRow(4);
  key(Qt::Key_Delete);
  EXPECT_EQ(row(5), "      ");
  for (const char* refused : {"1\t2\t3\t4\t5\t6\t7\t8", "a b c d e f g h"}) {
    go(6, 1);
    paste(refused);
    EXPECT_EQ(row(6), "      ") << refused;
  }
  for (int i = 0; i < 12 && row(2) + row(3) != chlorine + before; ++i) key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(row(2) + row(3), chlorine + before) << "all of it, step by step";
}

TEST_F(TablesTest, EndWithoutEndingTheProgram) {
  const auto last = [this] { return grid().text(200, 7); };
  go(1, 1);
  view().setCurrentIndex(view().model()->index(199, 6));
  key(Qt::Key_Return);
  keys("4");
  key(Qt::Key_Return);
  EXPECT_EQ(last(), "4");
  key(Qt::Key_Insert);
  paste("1\n2");
  EXPECT_EQ(last(), "4");
  EXPECT_TRUE(failures.empty());
}

TEST_F(TablesTest, MarkWhatWillHardlyBeMeant) {
  const auto said = [this](int row, int column, int role) {
    return view().model()->index(row - 1, column - 1).data(role).toString().toStdString();
  };
  go(2, 2);
  keys("Xx");
  key(Qt::Key_Return);
  EXPECT_EQ(said(2, 2, Qt::ToolTipRole), "no scattering factors for \"Xx\": the atom scatters nothing");
  EXPECT_TRUE(view().model()->index(1, 1).data(Qt::DecorationRole).isValid());
  EXPECT_EQ(said(1, 2, Qt::ToolTipRole), "");
  key(Qt::Key_Left);
  EXPECT_EQ(dynamic_cast<QMainWindow&>(widget("InputAtom")).statusBar()->currentMessage().toStdString(),
            said(2, 2, Qt::ToolTipRole));
}

}  // namespace
}  // namespace zol
