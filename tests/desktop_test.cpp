// What users do at the windows, and what windows show of the program.
#include "shell/desktop/desktop.h"

#include <array>
#include <functional>
#include <sstream>
#include <stdexcept>

#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QListView>
#include <QMenuBar>
#include <QProgressBar>
#include <QTableView>
#include <QTimer>
#include <QToolTip>

#include "analysis/window/pattern3_form.h"
#include "entry/window/input_jcpds_form.h"
#include "kikuchi/window/pattern2_form.h"
#include "shell/desktop/canvas_view.h"
#include "shell/desktop/guarded_application.h"
#include "shell/script/script_driver.h"
#include "tests/offscreen_desktop.h"

namespace zol {
namespace {

class OffscreenApplication : public testing::Environment {
 public:
  void SetUp() override {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    application_ = std::make_unique<GuardedApplication>(argument_count_, arguments_.data());
    use_desktop_resources();
  }
  void TearDown() override { application_.reset(); }

 private:
  std::string name_ = "desktop_test";
  std::array<char*, 2> arguments_{name_.data(), nullptr};
  int argument_count_ = 1;
  std::unique_ptr<GuardedApplication> application_;
};
/// A library that printing loads keeps a locale; with LOCPATH set, that is a leak of the system's.
extern "C" const char* __lsan_default_suppressions();  // NOLINT(bugprone-reserved-identifier)
extern "C" const char* __lsan_default_suppressions() { return "leak:argz_add_sep"; }
[[maybe_unused]] const auto* const offscreen = testing::AddGlobalTestEnvironment(new OffscreenApplication);

TEST_F(DesktopTest, KeystrokesFireOneByOneAndHandlersMayRewrite) {
  show_main1();
  std::vector<std::string> seen;
  main1().Text2.on_change = [&] {
    seen.push_back(main1().Text2.text());
    if (seen.back() == "90") main1().Text2.set_text("85");
    main1().Combo1.set_text("17.5");
  };
  main1().Text2.on_key_press = [](int& key) {
    if (key == 'x') key = 0;
  };
  type(box("Text2"), "9x0");
  EXPECT_EQ(seen, (std::vector<std::string>{"9", "90", "85"}))
      << "a write of the program comes back as none of the user";
  EXPECT_EQ(box("Text2").text(), QStringLiteral("85"));
  EXPECT_EQ(child<QComboBox>("Main1", "Combo1").currentText(), QStringLiteral("17.5")) << "which is no item";
  QTest::keyClick(&box("Text2"), Qt::Key_Backspace);
  EXPECT_EQ(seen.back(), "8");
}

TEST_F(DesktopTest, ListStandsUnderItsHeader) {
  show_main1();
  load("NaCl.cry");
  for (const auto* button : {"Option1", "Check1", "Command6"}) click("Main1", button);
  QApplication::processEvents();
  auto& list = child<QListView>("Main1", "List2");
  const auto& items = main1().List2.items();
  ASSERT_GT(items.size(), 20U);
  ASSERT_EQ(list.model()->rowCount(), static_cast<int>(items.size()));
  for (std::size_t row = 0; row < items.size(); ++row) {
    EXPECT_EQ(list.model()->index(static_cast<int>(row), 0).data().toString().toStdString(), items[row]);
  }

  auto& header = child<QLabel>("Main1", "Label24");
  EXPECT_EQ(header.font(), list.font());
  const QFontMetricsF metrics(list.font());
  EXPECT_EQ(metrics.horizontalAdvance(u'i'), metrics.horizontalAdvance(u'W')) << "fixed pitch";
  // The first dark column of each picture: "    H" begins one column behind "   1".
  const auto first_dark = [this](QWidget& shown) {
    const QImage image = shown.grab(QRect(0, 1, 200, 14)).toImage();
    for (int x = 1; x < image.width(); ++x) {
      for (int y = 1; y < image.height() - 1; ++y) {
        if (qGray(image.pixel(x, y)) < 128) return shown.mapTo(&widget("Main1"), QPoint(x, y)).x();
      }
    }
    return -1;
  };
  ASSERT_EQ(items.front().substr(0, 4), "   1");
  EXPECT_NEAR(first_dark(header) - first_dark(*list.viewport()), metrics.horizontalAdvance(u'0'), 2.5);
}

TEST_F(DesktopTest, FrameButtonHidesAWindowCancelsATableAndEndsWithTheLastOne) {
  show_main1();
  type(box("Text1"), "4");
  for (const auto& [opener, table] : {std::pair{"Command1", "InputAtom"}, {"Command15", "InputJCPDS"}}) {
    click("Main1", opener);
    type(child<QLineEdit>(table, "Text1"), "0.25");
    widget(table).close();
    EXPECT_EQ(program.windows().find(table), nullptr) << "the next one is fresh";
  }
  widget("Main1").close();
  EXPECT_FALSE(main1().visible());
  show_main1();
  EXPECT_TRUE(widget("Main1").isVisible());
  EXPECT_EQ(box("Text1").text(), QStringLiteral("4")) << "it keeps its boxes";
  widget("Main1").close();
  EXPECT_FALSE(desktop.ended());
  widget("MAIN_MENU").close();
  EXPECT_TRUE(desktop.ended());
}

TEST_F(DesktopTest, FailureOfABoxThatIsLeftComesBeforeTheDialogAndEndsTheProgram) {
  show_main1();
  load("NaCl.cry");
  services.questions.clear();
  go_to("Main1", "Text1");
  box("Text1").selectAll();
  type(box("Text1"), "1e15");
  ASSERT_EQ(failures, std::vector<std::string>{});
  child<QAction>("Main1", "DATA_LOAD").trigger();
  ASSERT_EQ(failures.size(), 1U);
  EXPECT_NE(failures.front().find("overflow"), std::string::npos) << failures.front();
  EXPECT_TRUE(services.questions.empty()) << "no dialog comes any more";
  EXPECT_TRUE(desktop.ended());
  click("Main1", "Command6");
  EXPECT_EQ(failures.size(), 1U) << "no event comes in any more";
}

TEST_F(DesktopTest, GridTakesKeysAndMovesItsCell) {
  Grid& grid = program.windows().use<InputJcpdsForm>().G;
  auto& table = child<QTableView>("InputJCPDS", "G");
  std::vector<int> keys;
  grid.on_key_press = [&keys](int& key) {
    keys.push_back(key);
    key = 0;
  };
  QTest::keyClicks(&table, QStringLiteral("a1"));
  QTest::keyClick(&table, Qt::Key_Return);
  QTest::keyClick(&table, Qt::Key_Backspace);
  EXPECT_EQ(keys, (std::vector{'a' + 0, '1' + 0, 13, 8}));
  QTest::keyClick(&table, Qt::Key_Down);
  QTest::keyClick(&table, Qt::Key_Right);
  EXPECT_EQ(grid.row(), 2);
  EXPECT_EQ(grid.column(), 2);
  desktop.enter("a test", [&grid] {
    grid.set_text("x");
    grid.set_row(0);
    grid.set_text("head");
    grid.set_row(3);
  });
  EXPECT_EQ(table.model()->index(1, 1).data().toString(), QStringLiteral("x"));
  EXPECT_EQ(table.model()->headerData(1, Qt::Horizontal, Qt::DisplayRole).toString(), QStringLiteral("head"));
  EXPECT_EQ(table.currentIndex().row(), 2);
}

TEST_F(DesktopTest, ProgressFillsItsBarAtOnce) {
  ProgressBar& progress = program.windows().use<Pattern3Form>().ProgressBar1;
  const auto& bar = child<QProgressBar>("PATTERN3", "ProgressBar1");
  progress.set_range(1, 5);
  progress.set_value(3);
  EXPECT_EQ(bar.value() * 2, bar.maximum());
  progress.set_range(0, 0);
  EXPECT_EQ(bar.value(), 0);
}

// Numbers of one and of two digits stand before the columns of the solutions; the count has no number.
TEST_F(DesktopTest, SolutionsStandInColumnsAndInTheirColours) {
  ListBox& list = program.windows().use<Pattern3Form>().List1;
  const auto& model = *child<QListView>("PATTERN3", "List1").model();
  desktop.enter("a test", [&list] {
    list.add_item("9 a");
    list.set_fore_colour(colours::red);
    list.add_item("10 b");
    list.set_fore_colour(colours::black);
    list.add_item("  2");
  });
  int row = 0;
  for (const auto* text : {" 9 a", "10 b", "  2"}) {
    EXPECT_EQ(model.index(row, 0).data().toString().toStdString(), text);
    EXPECT_EQ(model.index(row, 0).data(Qt::ForegroundRole).isValid(), row == 1) << row;
    ++row;
  }
}

// Whatever way leads there, and whether or not it takes the focus.
TEST_F(DesktopTest, ABoxIsLeftBeforeAnActionAndOnce) {
  std::string log;
  auto& form = program.windows().use<Pattern2Form>();
  form.frame_button = &form.Command8;
  form.Text21.on_lost_focus = [&log] { log += "left,"; };
  form.Command8.on_click = form.ISAVE.on_click = [&log] { log += "acted,"; };
  form.Picture1.on_mouse_down = [&log](Single, Single) { log += "acted,"; };
  go_to("Pattern2", "Text21");
  QWidget& top = widget("Pattern2");
  const std::pair<const char*, std::function<void()>> ways[] = {
      {"mnemonic", [&] { QTest::keyClick(&top, Qt::Key_C, Qt::AltModifier); }},
      {"button", [&] { click("Pattern2", "Command8"); }},
      {"menu", [&] { child<QAction>("Pattern2", "ISAVE").trigger(); }},
      {"picture", [&] { QTest::mouseClick(top.findChild<CanvasView*>(), Qt::LeftButton); }},
      {"frame", [&] { top.close(); }}};
  for (const auto& [way, act] : ways) {
    for (int i = 0; i < 2; ++i) {
      log.clear();
      type(child<QLineEdit>("Pattern2", "Text21"), "2");
      act();
      EXPECT_TRUE(QTest::qWaitFor([&log] { return log.ends_with("acted,"); })) << way;
      EXPECT_EQ(log, "left,acted,") << way;
    }
  }
}

TEST_F(DesktopTest, ABoxIsLeftForAnotherWindowOfOursAndByTab) {
  int left = 0;
  main1().Text1.on_lost_focus = [&left] { ++left; };
  go_to("Main1", "Text1");
  child<QMenuBar>("Main1", "menubar").setFocus(Qt::MenuBarFocusReason);
  EXPECT_EQ(left, 0) << "a menu alone is no action";
  box("Text1").setFocus(Qt::MenuBarFocusReason);
  go_to("PATTERN3", "Text1");
  EXPECT_EQ(left, 1);
  go_to("Main1", "Text1");
  QTest::keyClick(&box("Text1"), Qt::Key_Tab);
  EXPECT_EQ(left, 2);
}

TEST_F(DesktopTest, EventsThatComeDuringAHandlerRunBehindIt) {
  show_main1();
  std::string log;
  main1().Command1.on_click = [&log] { log += "second,"; };
  program.windows().use("InputJCPDS").show();
  dynamic_cast<CommandButton&>(*program.windows().use("InputJCPDS").find("Command3")).on_click = [&log] { log += "?"; };
  main1().Command6.on_click = [&] {  // as the loop of a dialog does
    click("Main1", "Command1");
    click("InputJCPDS", "Command3");
    program.windows().unload("InputJCPDS");
    log += "first,";
  };
  click("Main1", "Command6");
  EXPECT_EQ(log, "first,second,") << "and nothing in a window that has gone";
}

TEST_F(DesktopTest, NoExceptionPassesThroughQt) {
  desktop.enter("a test", [this] { program.windows().use("Xd").show(); });
  struct Thrower : QObject {
    bool event(QEvent* /*event*/) override { throw std::runtime_error("outside any handler"); }
  } thrower;
  QEvent event(QEvent::User);
  QApplication::sendEvent(&thrower, &event);
  EXPECT_EQ(failures, std::vector<std::string>{"the program is at fault: outside any handler"});
  EXPECT_TRUE(desktop.ended());

  auto& view = child<CanvasView>("Xd", "Picture1");
  view.canvas()->describe_place = [](double, double) -> std::string { throw 1; };
  view.canvas()->set_point(0, 0);
  QTest::mouseMove(&view, view.picture_rect().center().toPoint());  // Qt would leak the event
  QApplication::processEvents();
  EXPECT_EQ(failures.size(), 1U) << "the first one counts";
}

// Under the address sanitizer: the table is still at work on the key whose handler unloads its window.
TEST_F(DesktopTest, AWindowMayEndInAnEventOfItsOwn) {
  Grid& grid = program.windows().use<InputJcpdsForm>().G;
  auto& table = child<QTableView>("InputJCPDS", "G");
  const QPointer<QTableView> watched = &table;
  grid.on_key_press = [this](int&) { program.windows().unload("InputJCPDS"); };
  QTest::keyClick(&table, 'a');
  EXPECT_EQ(program.windows().find("InputJCPDS"), nullptr);
  EXPECT_FALSE(watched.isNull());
  QTimer::singleShot(0, qApp, &QApplication::quit);
  QApplication::exec();
  EXPECT_TRUE(watched.isNull());
}

TEST_F(DesktopTest, ActivationFiresOncePerShowAndWhenTheUserComesBack) {
  go_to("Main1", "Text1");
  int activated = 0;
  auto& form = program.windows().use<InputJcpdsForm>();
  form.on_activate = [&activated] { ++activated; };
  desktop.enter("a test", [&form] { form.show(); });
  activate("InputJCPDS");
  EXPECT_EQ(activated, 1);
  QApplication::setActiveWindow(nullptr);
  activate("InputJCPDS");
  EXPECT_EQ(activated, 1) << "back from another program";
  activate("Main1");
  activate("InputJCPDS");
  EXPECT_EQ(activated, 2);
}

TEST_F(DesktopTest, HourglassStandsOverPicturesAndBoxes) {
  program.windows().use("Xd");
  const auto shapes = [this] {
    return std::vector{widget("Xd").cursor().shape(), child<CanvasView>("Xd", "Picture1").cursor().shape(),
                       child<QLineEdit>("Xd", "Text1").cursor().shape()};
  };
  const auto before = shapes();
  {
    const Hourglass hourglass(program.windows().use("Xd"));
    child<CanvasView>("Xd", "Picture1").refresh();
    EXPECT_EQ(shapes(), std::vector(3, Qt::WaitCursor));
  }
  EXPECT_EQ(shapes(), before);
}

TEST_F(DesktopTest, LabelsShowMarkupAsItStands) {
  show_main1();
  const auto& label = child<QLabel>("Main1", "Label16");
  const int plain_width = label.sizeHint().width();
  desktop.enter("a test", [this] { main1().Label16.set_caption("<h1>A</h1>"); });
  EXPECT_GT(label.sizeHint().width(), plain_width + label.fontMetrics().horizontalAdvance(QStringLiteral("<h1>")));
}

TEST_F(DesktopTest, EventsGiveTheScriptThatRepeatsThem) {
  std::string script;
  desktop.gate().set_journal([&script](const UserEvent& event) { script += event.script + '\n'; });
  show_main1();
  load("NaCl.cry");
  go_to("Main1", "Text15");
  box("Text15").selectAll();
  type(box("Text15"), "0.9");
  child<QComboBox>("Main1", "Combo1").setFocus();
  QTest::keyClick(&child<QComboBox>("Main1", "Combo1"), Qt::Key_Down);
  EXPECT_EQ(program.state().AccVoltage, 25);
  auto& groups = child<QListView>("Main1", "List3");
  QTest::mouseClick(groups.viewport(), Qt::LeftButton, {}, groups.visualRect(groups.model()->index(1, 0)).center());
  QTest::keyClick(&groups, Qt::Key_Down);
  EXPECT_EQ(box("Text7").text(), QStringLiteral(" 3"));
  load("NaCl.cry");
  type(box("Text18"), "#\xC5 \"");
  click("Main1", "Check1");
  click("Main1", "Command6");
  click("Main1", "Command10");
  type(child<QLineEdit>("Pattern2", "Text5"), "1\r");
  auto& picture = child<CanvasView>("Pattern2", "Picture1");
  QTest::mouseClick(&picture, Qt::LeftButton, {}, picture.picture_rect().center().toPoint() + QPoint(31, 17));

  std::ostringstream output;
  ScriptServices answers(output);
  Program again({ZOL_SOURCE_DIR "/data/ZOL", ZOL_SOURCE_DIR "/data/ZOLDATA"}, answers);
  again.start();
  for (int i = 0; i < 2; ++i) answers.queue_answer(ZOL_SOURCE_DIR "/data/ZOLDATA/NaCl.cry");
  std::istringstream lines(script);
  ScriptDriver(again, answers, output).run(lines);
  const auto& form = program.windows().use<Pattern2Form>();
  const auto& repeated = again.windows().use<Pattern2Form>();
  EXPECT_EQ(repeated.Text6.text(), form.Text6.text()) << script;
  EXPECT_EQ(repeated.List1.items(), form.List1.items());
  EXPECT_EQ(again.windows().use<Main1Form>().List2.items(), main1().List2.items());
  EXPECT_EQ(again.windows().use<Main1Form>().Text18.text(), "#\xC5 \"");
}

// Boxes are Latin-1, byte by byte, also where the bytes could be UTF-8; names of files stay what they are.
TEST_F(DesktopTest, BoxesTakeLatin1AndRefuseTheRest) {
  show_main1();
  QLineEdit& edit = box("Text2");
  edit.setFocus();
  for (const QString& pasted : {QStringLiteral("Å³"), QStringLiteral("1α"), QStringLiteral("2")}) {
    QGuiApplication::clipboard()->setText(pasted);
    edit.paste();
  }
  EXPECT_EQ(edit.text(), QStringLiteral("Å³2"));
  EXPECT_EQ(main1().Text2.text(),
            "\xC5\xB3"
            "2");
  EXPECT_TRUE(QToolTip::text().startsWith(QStringLiteral("Not taken"))) << "and says so";
  desktop.enter("a test", [this] { main1().Text17.set_text("/α/Å³.cry"); });
  EXPECT_EQ(box("Text17").text(), QStringLiteral("/α/Å³.cry"));
}

}  // namespace
}  // namespace zol
