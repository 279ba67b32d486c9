// What users do at the windows, and what windows show of the program.
#include "shell/desktop/desktop.h"

#include <array>
#include <functional>
#include <optional>
#include <sstream>
#include <stdexcept>

#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
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

struct OffscreenApplication : testing::Environment {
  void SetUp() override {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    application.emplace(argument_count, arguments.data());
    use_desktop_resources();
  }
  void TearDown() override { application.reset(); }

  std::string name = "desktop_test";
  std::array<char*, 2> arguments{name.data(), nullptr};
  int argument_count = 1;
  std::optional<GuardedApplication> application;
};
/// A library that printing loads keeps a locale; with LOCPATH set, that is a leak of the system's.
extern "C" const char* __lsan_default_suppressions();  // NOLINT(bugprone-reserved-identifier)
extern "C" const char* __lsan_default_suppressions() { return "leak:argz_add_sep"; }
[[maybe_unused]] const auto* const offscreen = testing::AddGlobalTestEnvironment(new OffscreenApplication);

TEST_F(DesktopTest, KeystrokesFireOneByOneAndHandlersMayRewrite) {
  show_main1();
  std::string seen;
  main1().Text2.on_change = [&] {
    seen += main1().Text2.text() + ' ';
    if (main1().Text2.text() == "90") main1().Text2.set_text("85");
    main1().Combo1.set_text("17.5");
  };
  main1().Text2.on_key_press = [](int& key) {
    if (key == 'x') key = 0;
  };
  type(box("Text2"), "9x0\b");
  EXPECT_EQ(seen, "9 90 85 8 ") << "a write of the program comes back as none of the user";
  EXPECT_EQ(box("Text2").text(), QStringLiteral("8"));
  EXPECT_EQ(child<QComboBox>("Main1", "Combo1").currentText(), QStringLiteral("17.5")) << "which is no item";
}

TEST_F(DesktopTest, ListStandsUnderItsHeader) {
  show_main1();
  load("NaCl.cry");
  for (const auto* button : {"Option1", "Check1", "Command6"}) click("Main1", button);
  QApplication::processEvents();
  auto& list = child<QListView>("Main1", "List2");
  const auto& items = main1().List2.items();
  ASSERT_EQ(list.model()->rowCount(), static_cast<int>(items.size()));
  EXPECT_EQ(list.model()->index(9, 0).data().toString().toStdString(), items.at(9));
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

// Numbers of one and of two digits stand before the columns of the solutions; the count has no number.
TEST_F(DesktopTest, ListsBarsAndLabelsShowWhatTheyAreTold) {
  auto& form = program.windows().use<Pattern3Form>();
  const auto& model = *child<QListView>("PATTERN3", "List1").model();
  const auto& bar = child<QProgressBar>("PATTERN3", "ProgressBar1");
  const auto& label = child<QLabel>("Main1", "Label16");
  const int plain_width = label.sizeHint().width();
  desktop.enter("a test", [this, &form] {
    for (const auto& [text, colour] :
         {std::pair{"9 a", colours::black}, {"10 b", colours::red}, {"  2", colours::black}}) {
      form.List1.set_fore_colour(colour);
      form.List1.add_item(text);
    }
    form.List1.set_fore_colour(colours::black);
    form.ProgressBar1.set_range(1, 5);
    form.ProgressBar1.set_value(3);
    main1().Label16.set_caption("<h1>A</h1>");
  });
  for (const auto& [row, text] : {std::pair{0, " 9 a"}, {1, "10 b"}, {2, "  2"}}) {
    EXPECT_EQ(model.index(row, 0).data().toString().toStdString(), text);
    EXPECT_EQ(model.index(row, 0).data(Qt::ForegroundRole).isValid(), row == 1) << row;
  }
  EXPECT_EQ(bar.value() * 2, bar.maximum());
  form.ProgressBar1.set_range(0, 0);
  EXPECT_EQ(bar.value(), 0);
  EXPECT_GT(label.sizeHint().width(), plain_width + label.fontMetrics().horizontalAdvance(QStringLiteral("<h1>")))
      << "markup as it stands";
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
  std::string log;
  main1().Text1.on_lost_focus = [&log] { log += "left,"; };
  go_to("Main1", "Text1");
  log.clear();  // of how the windows came up
  child<QMenuBar>("Main1", "menubar").setFocus(Qt::MenuBarFocusReason);
  box("Text1").setFocus(Qt::MenuBarFocusReason);
  log += "a menu alone is no action,";
  go_to("PATTERN3", "Text1");
  log += "back,";
  go_to("Main1", "Text1");
  QTest::keyClick(&box("Text1"), Qt::Key_Tab);
  EXPECT_EQ(log, "a menu alone is no action,left,back,left,");
}

TEST_F(DesktopTest, EventsThatComeDuringAHandlerRunBehindIt) {
  show_main1();
  std::string log;
  main1().Command1.on_click = [&log] { log += "second,"; };
  auto& other = program.windows().use<InputJcpdsForm>();
  other.show();
  other.Command3.on_click = [&log] { log += "in a window that has gone,"; };
  main1().Command6.on_click = [&] {  // as the loop of a dialog does
    click("Main1", "Command1");
    click("InputJCPDS", "Command3");
    program.windows().unload("InputJCPDS");
    log += "first,";
  };
  click("Main1", "Command6");
  EXPECT_EQ(log, "first,second,");
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
  std::string log;
  auto& form = program.windows().use<InputJcpdsForm>();
  form.on_activate = [&log] { log += "activated,"; };
  desktop.enter("a test", [&form] { form.show(); });
  activate("InputJCPDS");
  log += "back from another program,";
  QApplication::setActiveWindow(nullptr);
  activate("InputJCPDS");
  log += "back from another window,";
  activate("Main1");
  activate("InputJCPDS");
  EXPECT_EQ(log, "activated,back from another program,back from another window,activated,");
}

TEST_F(DesktopTest, HourglassStandsOverPicturesAndBoxes) {
  auto& picture = child<CanvasView>("Xd", "Picture1");
  const QWidget* const shown[] = {&widget("Xd"), &picture, &child<QLineEdit>("Xd", "Text1")};
  std::vector<Qt::CursorShape> before;
  for (const auto* part : shown) before.push_back(part->cursor().shape());
  {
    const Hourglass hourglass(program.windows().use("Xd"));
    picture.refresh();
    for (const auto* part : shown) EXPECT_EQ(part->cursor().shape(), Qt::WaitCursor);
  }
  for (std::size_t i = 0; i < 3; ++i) EXPECT_EQ(shown[i]->cursor().shape(), before[i]);
}

TEST_F(DesktopTest, EventsGiveTheScriptThatRepeatsThem) {
  std::string script;
  desktop.gate().set_journal([&script](const UserEvent& event) { script += event.script + '\n'; });
  show_main1();
  load("NaCl.cry");
  go_to("Main1", "Text15");
  box("Text15").selectAll();
  type(box("Text15"), "0.9");
  auto& radiations = child<QComboBox>("Main1", "Combo1");
  QTest::mouseClick(radiations.lineEdit(), Qt::LeftButton);
  ASSERT_TRUE(radiations.view()->isVisible()) << "a click beside the arrow opens the list";
  QTest::keyClick(radiations.view(), Qt::Key_Down);
  QTest::keyClick(radiations.view(), Qt::Key_Return);
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
  const auto seen = [](Program& shown) {
    const auto& form = shown.windows().use<Pattern2Form>();
    const auto& main = shown.windows().use<Main1Form>();
    return std::tuple(form.Text6.text(), form.List1.items(), main.List2.items(), main.Text18.text());
  };
  EXPECT_EQ(seen(again), seen(program)) << script;
  EXPECT_EQ(main1().Text18.text(), "#\xC5 \"");
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
  EXPECT_EQ(main1().Text2.text(), "\xC5\xB3\x32");
  EXPECT_TRUE(QToolTip::text().startsWith(QStringLiteral("Not taken"))) << "and says so";
  desktop.enter("a test", [this] { main1().Text17.set_text("/α/Å³.cry"); });
  EXPECT_EQ(box("Text17").text(), QStringLiteral("/α/Å³.cry"));
}

// The keys of undo are the program's, also in a box, which would take them for its own; all typed into it is one step.
TEST_F(DesktopTest, StepsAreUndoneByKeysAndNamedInTheMenu) {
  program.watch(desktop.gate());
  desktop.offer_undo(program);
  show_main1();
  load("NaCl.cry");
  const std::string loaded = box("Text1").text().toStdString();
  box("Text1").setFocus(Qt::TabFocusReason);
  box("Text1").selectAll();
  QTest::keyClicks(&box("Text1"), "7.25");
  EXPECT_EQ(program.state().CellA, 7.25F);
  const auto undo_text = [this] {
    for (auto* menu : widget("Main1").findChildren<QMenu*>()) {
      if (menu->title().remove(u'&') != QLatin1String("Edit")) continue;
      emit menu->aboutToShow();
      emit menu->aboutToHide();
      return menu->actions().first()->text().toStdString();
    }
    return std::string();
  };
  EXPECT_EQ(undo_text(), "Undo a= 7.25");
  QTest::keyClick(&box("Text1"), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(box("Text1").text().toStdString(), loaded);
  EXPECT_EQ(program.state().CellA, 5.6402F);
  QTest::keyClick(&box("Text1"), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(box("Text1").text().toStdString(), "7.25");
  EXPECT_EQ(program.state().CellA, 7.25F);
  QTest::keyClick(&box("Text1"), Qt::Key_Z, Qt::ControlModifier);
  QTest::keyClicks(&box("Text1"), "1");
  EXPECT_EQ(undo_text(), "Undo a= " + box("Text1").text().toStdString()) << "what follows an undo is a step again";
  for (int i = 0; i < 2; ++i) QTest::keyClick(&box("Text1"), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(program.state().NAtom, 0) << "the load is a step, too";
  EXPECT_EQ(failures, std::vector<std::string>{});
}

}  // namespace
}  // namespace zol
