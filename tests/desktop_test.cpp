// The front end on Qt's offscreen platform: real widgets, real key and mouse events.
#include "shell/desktop/desktop.h"

#include <gtest/gtest.h>

#include <array>
#include <memory>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPrintDialog>
#include <QPrinterInfo>
#include <QProgressBar>
#include <QRegularExpression>
#include <QTableView>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QToolTip>

#include "analysis/window/pattern3_form.h"
#include "core/read_file.h"
#include "entry/window/input_jcpds_form.h"
#include "kikuchi/window/pattern2_form.h"
#include "kikuchi/window/zaxis_form.h"
#include "reflections/window/main1_form.h"
#include "shell/desktop/canvas_view.h"
#include "shell/desktop/desktop_services.h"
#include "shell/desktop/guarded_application.h"
#include "shell/desktop/qt_surface.h"
#include "shell/desktop/qt_text.h"
#include "shell/program/main_menu_form.h"
#include "shell/program/program.h"
#include "shell/script/script_driver.h"
#include "tests/fake_services.h"
#include "tests/test_files.h"

namespace zol {
namespace {

struct PixelServices : FakeServices {
  std::unique_ptr<Surface> make_surface(int width, int height) override {
    return std::make_unique<QtSurface>(width, height);
  }
};

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

class DesktopTest : public testing::Test {
 protected:
  DesktopTest() {
    desktop.enter("start", [this] { program.start(); });
  }
  QWidget& widget(const std::string& window) {
    program.windows().use(window);
    return desktop.binder(window)->widget();
  }
  template <class Kind>
  Kind& child(const std::string& window, const char* name) {
    auto* found = widget(window).findChild<Kind*>(QString::fromLatin1(name));
    EXPECT_NE(found, nullptr) << name;
    return *found;
  }
  QLineEdit& box(const char* name) { return child<QLineEdit>("Main1", name); }
  Main1Form& main1() { return program.windows().use<Main1Form>(); }
  void show_main1() {
    click("MAIN_MENU", "Command1");
    QApplication::setActiveWindow(&widget("Main1"));
  }
  void load(const char* file) {
    services.answers = {std::string(ZOL_SOURCE_DIR "/data/ZOLDATA/") + file};
    child<QAction>("Main1", "DATA_LOAD").trigger();
  }
  void click(const char* window, const char* button) {
    QTest::mouseClick(&child<QAbstractButton>(window, button), Qt::LeftButton, {}, {5, 8});
  }
  /// Brings a window to the front, as a user would, with the focus in one of its boxes.
  void go_to(const char* window, const char* box_name) {
    desktop.enter("a test", [&] { program.windows().use(window).show(); });
    QApplication::setActiveWindow(&widget(window));
    EXPECT_TRUE(QTest::qWaitForWindowActive(&widget(window)));
    child<QLineEdit>(window, box_name).setFocus(Qt::TabFocusReason);
  }
  static void type(QLineEdit& edit, const char* text) {
    edit.setFocus(Qt::TabFocusReason);
    QTest::keyClicks(&edit, QString::fromLatin1(text));
  }

  PixelServices services;
  Program program{{ZOL_SOURCE_DIR "/data/ZOL", ZOL_SOURCE_DIR "/data/ZOLDATA"}, services};
  std::vector<std::string> failures;
  Desktop desktop{program.windows(), [this](const std::string& message) { failures.push_back(message); }};
};

std::string plain(const QString& text) { return QString(text).remove(u'&').trimmed().toStdString(); }

/// The text of the label that stands beside a widget.
std::string label_of(const QWidget& top, const QObject* widget) {
  for (const auto* label : top.findChildren<QLabel*>()) {
    if (label->buddy() == widget) return plain(label->text());
  }
  return "";
}

std::string menu_of(const QWidget& top, QAction* item) {
  for (const auto* menu : top.findChildren<QMenu*>()) {
    if (menu->actions().contains(item)) return plain(menu->title());
  }
  return "";
}

/// A button without a given caption has a symbol.
bool has_symbol(const QAbstractButton& button) {
  const auto* tool = qobject_cast<const QToolButton*>(&button);
  return !button.icon().isNull() || (tool != nullptr && tool->arrowType() != Qt::NoArrow);
}

/// Of every window of the program.
std::vector<std::string> window_names() {
  FakeServices services;
  return Program({"", ""}, services).windows().names();
}

class CompleteWindow : public DesktopTest, public testing::WithParamInterface<std::string> {};
INSTANTIATE_TEST_SUITE_P(Windows, CompleteWindow, testing::ValuesIn(window_names()),
                         [](const auto& name) { return name.param; });

TEST_P(CompleteWindow, HasAWidgetForEachControlAndNoOther) {
  QWidget& top = widget(GetParam());
  const Window& window = desktop.binder(GetParam())->window();
  const QRegularExpression given(
      QStringLiteral("^(Text|Command|Label|List|Combo|Check|Option|Frame|Picture|ProgressBar)[0-9]+(\\([0-9]+\\))?$"));
  for (const auto* object : top.findChildren<QObject*>()) {
    const auto* action = qobject_cast<const QAction*>(object);
    const QString name = object->objectName();
    const bool menu_item = action != nullptr && action->menu() == nullptr && !name.isEmpty();
    if (!menu_item && !given.match(name).hasMatch()) continue;
    EXPECT_NE(window.find(name.toStdString()), nullptr) << name.toStdString();
  }
}

TEST_P(CompleteWindow, BearsTheGivenCaptions) {
  QWidget& top = widget(GetParam());
  for (const Control* control : desktop.binder(GetParam())->window().controls()) {
    SCOPED_TRACE(control->name());
    auto* shown = top.findChild<QObject*>(QString::fromStdString(control->name()));
    const std::string wanted = plain(QString::fromStdString(control->caption()));
    const std::string beside = label_of(top, shown);
    const std::string own = plain(shown->property(shown->inherits("QGroupBox") ? "title" : "text").toString());
    if (const auto* label = dynamic_cast<const Label*>(control)) {
      EXPECT_EQ(own, wanted);
      EXPECT_EQ(beside, label->beside());
      continue;
    }
    EXPECT_FALSE(shown->property("toolTip").toString().isEmpty());
    if (const auto* item = dynamic_cast<const MenuItem*>(control)) {
      EXPECT_EQ(menu_of(top, qobject_cast<QAction*>(shown)), item->menu());
      EXPECT_EQ(own, wanted);
    } else if (const auto* button = qobject_cast<QAbstractButton*>(shown)) {
      EXPECT_TRUE(own == wanted || wanted.empty()) << own;
      EXPECT_TRUE(!own.empty() || has_symbol(*button));
    } else if (control->kind() == ControlKind::Frame) {
      EXPECT_EQ(own, wanted);
    } else {
      EXPECT_TRUE(beside == wanted || wanted.empty()) << beside;
    }
  }
}

TEST_P(CompleteWindow, UsesEachMnemonicOnce) {
  QWidget& top = widget(GetParam());
  std::map<QChar, std::string> used;
  const auto use = [&used](const QString& text) {
    const qsizetype at = text.indexOf(u'&');
    if (at < 0) return;
    const auto [entry, added] = used.emplace(text[at + 1].toUpper(), text.toStdString());
    EXPECT_TRUE(added) << text.toStdString() << " and " << entry->second;
  };
  for (const auto* button : top.findChildren<QAbstractButton*>()) use(button->text());
  for (const auto* action : dynamic_cast<QMainWindow&>(top).menuBar()->actions()) use(action->text());
}

// At their smallest size, where the layouts give the least.
TEST_P(CompleteWindow, ClipsNoText) {
  QWidget& top = widget(GetParam());
  top.resize(1, 1);
  top.show();
  QApplication::processEvents();
  for (auto* shown : top.findChildren<QWidget*>()) {
    const QString text = shown->property("text").toString();
    const bool adapts = shown->property("wordWrap").toBool() || qobject_cast<QProgressBar*>(shown) != nullptr;
    if (!shown->isVisible() || text.isEmpty() || adapts) continue;
    EXPECT_GE(shown->width(), shown->fontMetrics().size(Qt::TextShowMnemonic, text).width()) << text.toStdString();
    EXPECT_GE(shown->height(), shown->fontMetrics().height()) << text.toStdString();
  }
}

TEST_P(CompleteWindow, WalksByTabAsOneReads) {
  QWidget& top = widget(GetParam());
  top.show();
  QApplication::processEvents();
  const QWidget* last = nullptr;
  for (auto* next = top.nextInFocusChain(); next != &top; next = next->nextInFocusChain()) {
    if (!(next->focusPolicy() & Qt::TabFocus) || !next->isVisible() || next->objectName().startsWith(u"qt_")) continue;
    if (last != nullptr && last->parentWidget() == next->parentWidget()) {
      const int line = next->fontMetrics().height();
      const bool below = next->y() > last->y() + line / 2;
      const bool on_the_right = next->x() > last->x();  // the next in the line, or at the head of the next column
      EXPECT_TRUE(below || on_the_right) << last->objectName().toStdString() << " before "
                                         << next->objectName().toStdString();
    }
    last = next;
  }
}

TEST_P(CompleteWindow, HasItsChapterInTheGuide) {
  const QString page = widget(GetParam()).property("guidePage").toString();
  std::istringstream lines(read_file(ZOL_SOURCE_DIR "/docs/user-guide/" + page.section(u'#', 0, 0).toStdString()));
  const std::string heading = page.section(u'#', 1).replace(u'-', u' ').toStdString();
  bool found = false;
  for (std::string line; std::getline(lines, line);) {
    found = found || (line.starts_with('#') && QString::fromStdString(line).toLower().endsWith(to_qt("# " + heading)));
  }
  EXPECT_TRUE(found) << page.toStdString();
}

TEST_F(DesktopTest, ComboAndListPickByMouseAndKeyboard) {
  show_main1();
  auto& combo = child<QComboBox>("Main1", "Combo1");
  EXPECT_EQ(combo.currentText(), QStringLiteral("20"));
  combo.setFocus();
  QTest::keyClick(&combo, Qt::Key_Down);
  EXPECT_EQ(program.state().AccVoltage, 25);
  EXPECT_EQ(box("Text16").text(), QString::fromStdString(Str(program.state().WaveLength)));

  auto& list = child<QListView>("Main1", "List3");
  const QModelIndex second = list.model()->index(1, 0);
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(second).center());
  EXPECT_EQ(box("Text7").text(), QStringLiteral(" 2"));
  QTest::keyClick(&list, Qt::Key_Down);
  EXPECT_EQ(box("Text7").text(), QStringLiteral(" 3"));
}

TEST_F(DesktopTest, ProgramWriteShowsWithoutFiringAgain) {
  int fired = 0;
  main1().Text2.on_change = [&fired] { ++fired; };
  desktop.enter("a test", [this] {
    main1().Text2.set_text("4.5");
    main1().Text2.set_text("6.5");
    main1().Combo1.set_text("17.5");
  });
  EXPECT_EQ(box("Text2").text(), QStringLiteral("6.5"));
  EXPECT_EQ(child<QComboBox>("Main1", "Combo1").currentText(), QStringLiteral("17.5"));
  EXPECT_EQ(fired, 2);
}

TEST_F(DesktopTest, KeystrokesFireOneByOneAndHandlersMayRewrite) {
  show_main1();
  std::vector<std::string> seen;
  main1().Text2.on_change = [&] {
    seen.push_back(main1().Text2.text());
    if (seen.back() == "90") main1().Text2.set_text("85");
  };
  main1().Text2.on_key_press = [](int& key) {
    if (key == 'x') key = 0;
  };
  type(box("Text2"), "9x0");
  EXPECT_EQ(seen, (std::vector<std::string>{"9", "90", "85"}));
  EXPECT_EQ(box("Text2").text(), QStringLiteral("85"));
  QTest::keyClick(&box("Text2"), Qt::Key_Backspace);
  EXPECT_EQ(seen.back(), "8");
}

TEST_F(DesktopTest, EnterWalksThroughTheCellAndLeavingABoxFires) {
  show_main1();
  (void)QTest::qWaitForWindowActive(&widget("Main1"));
  type(box("Text1"), "4");
  for (const auto* next : {"Text2", "Text3", "Text4", "Text5", "Text6", "Text7"}) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    ASSERT_NE(QApplication::focusWidget(), nullptr);
    EXPECT_EQ(QApplication::focusWidget()->objectName().toStdString(), next);
  }
  type(box("Text7"), "225");
  EXPECT_EQ(child<QLabel>("Main1", "Label16").text(), QStringLiteral("Fm3m"));
  EXPECT_EQ(box("Text2").text(), QString());
  QTest::keyClick(&box("Text7"), Qt::Key_Tab);
  EXPECT_EQ(box("Text2").text(), QStringLiteral("4"));
}

TEST_F(DesktopTest, ListStandsUnderItsHeader) {
  show_main1();
  load("NaCl.cry");
  click("Main1", "Option1");
  EXPECT_TRUE(main1().Option1.on());
  click("Main1", "Check1");
  EXPECT_FALSE(main1().Check1.checked());
  click("Main1", "Command6");
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

  click("Main1", "Command7");
  EXPECT_TRUE(widget("Xd").isVisible());
  EXPECT_EQ(child<CanvasView>("Xd", "Picture1").cursor().shape(), Qt::CrossCursor);
  EXPECT_EQ(failures, std::vector<std::string>{});
}

TEST_F(DesktopTest, FrameButtonHidesAndTheLastOneEnds) {
  show_main1();
  type(box("Text1"), "4");
  widget("Main1").close();
  EXPECT_FALSE(main1().visible());
  EXPECT_FALSE(desktop.ended());
  show_main1();
  EXPECT_TRUE(widget("Main1").isVisible());
  EXPECT_EQ(box("Text1").text(), QStringLiteral("4")) << "it keeps its boxes";
  widget("Main1").close();
  widget("MAIN_MENU").close();
  EXPECT_TRUE(desktop.ended());
}

TEST_F(DesktopTest, FailureIsShownOnceAndEndsTheProgram) {
  show_main1();
  type(box("Text7"), "260");
  ASSERT_EQ(failures.size(), 1U);
  EXPECT_NE(failures.front().find("NO260.dat"), std::string::npos);
  EXPECT_NE(failures.front().find("while \"S.G=\" (Main1.Text7) changed"), std::string::npos);
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

struct LeavingCase {
  const char* name;
  void (*act)(QWidget& top);
};
class BoxIsLeft : public DesktopTest, public testing::WithParamInterface<LeavingCase> {};
INSTANTIATE_TEST_SUITE_P(
    Before, BoxIsLeft,
    testing::Values(
        LeavingCase{"mnemonic", [](QWidget& top) { QTest::keyClick(&top, Qt::Key_C, Qt::AltModifier); }},
        LeavingCase{"button",
                    [](QWidget& top) { QTest::mouseClick(top.findChild<QWidget*>("Command8"), Qt::LeftButton); }},
        LeavingCase{"menu", [](QWidget& top) { top.findChild<QAction*>("ISAVE")->trigger(); }},
        LeavingCase{"picture", [](QWidget& top) { QTest::mouseClick(top.findChild<CanvasView*>(), Qt::LeftButton); }},
        LeavingCase{"frame", [](QWidget& top) { top.close(); }}),
    [](const auto& row) { return std::string(row.param.name); });

// Whatever way leads there, and whether or not it takes the focus.
TEST_P(BoxIsLeft, BeforeAnActionAndOnce) {
  std::string log;
  auto& form = program.windows().use<Pattern2Form>();
  form.frame_button = &form.Command8;
  form.Text21.on_lost_focus = [&log] { log += "left,"; };
  form.Command8.on_click = form.ISAVE.on_click = [&log] { log += "acted,"; };
  form.Picture1.on_mouse_down = [&log](Single, Single) { log += "acted,"; };
  go_to("Pattern2", "Text21");
  for (int i = 0; i < 2; ++i) {
    log.clear();
    type(child<QLineEdit>("Pattern2", "Text21"), "2");
    GetParam().act(widget("Pattern2"));
    EXPECT_TRUE(QTest::qWaitFor([&log] { return log.ends_with("acted,"); }));
    EXPECT_EQ(log, "left,acted,");
  }
}

TEST_F(DesktopTest, AnotherWindowOfOursLeavesTheBox) {
  int left = 0;
  main1().Text1.on_lost_focus = [&left] { ++left; };
  go_to("Main1", "Text1");
  child<QMenuBar>("Main1", "menubar").setFocus(Qt::MenuBarFocusReason);
  EXPECT_EQ(left, 0) << "a menu alone is no action";
  box("Text1").setFocus(Qt::MenuBarFocusReason);
  go_to("PATTERN3", "Text1");
  EXPECT_EQ(left, 1);
}

struct BoxFailure {
  const char* name;
  const char* window;
  const char* box;
  const char* text;
  const char* item;
  const char* message;
};
class FailureOnLeaving : public DesktopTest, public testing::WithParamInterface<BoxFailure> {};
INSTANTIATE_TEST_SUITE_P(Boxes, FailureOnLeaving,
                         testing::Values(BoxFailure{"bands", "PATTERN3", "Text2", "-1", "ImageLoad", "TripleHKL"},
                                         BoxFailure{"edge", "Main1", "Text1", "1e15", "DATA_LOAD", "overflow"}),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_P(FailureOnLeaving, ComesBeforeTheDialogAndEndsTheProgram) {
  const auto& [name, window, box_name, text, item, message] = GetParam();
  show_main1();
  load("NaCl.cry");
  services.questions.clear();
  go_to(window, box_name);
  child<QLineEdit>(window, box_name).selectAll();
  type(child<QLineEdit>(window, box_name), text);
  ASSERT_EQ(failures, std::vector<std::string>{});
  child<QAction>(window, item).trigger();
  ASSERT_EQ(failures.size(), 1U);
  EXPECT_NE(failures.front().find(message), std::string::npos) << failures.front();
  EXPECT_TRUE(services.questions.empty()) << "no dialog comes any more";
  EXPECT_TRUE(desktop.ended());
}

TEST_F(DesktopTest, MnemonicTakesTheCellThatWasTyped) {
  go_to("Main1", "Text1");
  type(box("Text1"), "4.05");
  box("Text7").setFocus(Qt::TabFocusReason);
  type(box("Text7"), "225");
  QTest::keyClick(&widget("Main1"), Qt::Key_C, Qt::AltModifier);
  EXPECT_TRUE(QTest::qWaitFor([this] { return program.state().RefCount > 0 || desktop.ended(); }));
  EXPECT_EQ(failures, std::vector<std::string>{});
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

TEST_F(DesktopTest, FrameButtonOfATableIsCancel) {
  show_main1();
  for (const auto& [opener, table] : {std::pair{"Command1", "InputAtom"}, {"Command15", "InputJCPDS"}}) {
    click("Main1", opener);
    type(child<QLineEdit>(table, "Text1"), "0.25");
    widget(table).close();
    EXPECT_EQ(program.windows().find(table), nullptr) << "the next one is fresh";
  }
  EXPECT_FALSE(desktop.ended());
}

TEST_F(DesktopTest, ActivationFiresOncePerShowAndWhenTheUserComesBack) {
  go_to("Main1", "Text1");
  int activated = 0;
  auto& form = program.windows().use<InputJcpdsForm>();
  form.on_activate = [&activated] { ++activated; };
  const auto activate = [this](const char* window) {
    QApplication::setActiveWindow(&widget(window));
    EXPECT_TRUE(QTest::qWaitForWindowActive(&widget(window)));
  };
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

TEST_F(DesktopTest, MapLeavesTheFocusToThePatternThatShowsIt) {
  show_main1();
  load("NaCl.cry");
  click("Main1", "Command10");
  program.windows().use<Pattern2Form>().Check2.set_value(1);
  type(child<QLineEdit>("Pattern2", "Text3"), "1");
  for (int drawing = 0; drawing < 2; ++drawing) {
    QApplication::setActiveWindow(&widget("Pattern2"));  // this platform activates whatever comes up
    click("Pattern2", "Command8");
    QApplication::processEvents();
  }
  EXPECT_TRUE(widget("Zaxis").isVisible());
  EXPECT_TRUE(widget("Pattern2").isActiveWindow());
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
  answers.queue_answer(ZOL_SOURCE_DIR "/data/ZOLDATA/NaCl.cry");
  std::istringstream lines(script);
  ScriptDriver(again, answers, output).run(lines);
  const auto& form = program.windows().use<Pattern2Form>();
  const auto& repeated = again.windows().use<Pattern2Form>();
  EXPECT_EQ(repeated.Text6.text(), form.Text6.text()) << script;
  EXPECT_EQ(repeated.List1.items(), form.List1.items());
  EXPECT_EQ(again.windows().use<Main1Form>().List2.items(), main1().List2.items());
  EXPECT_EQ(again.windows().use<Main1Form>().Text18.text(), "#\xC5 \"");
}

class PictureView : public testing::Test {
 protected:
  PictureView() { view.attach(picture, events); }

  PixelServices services;
  Window window{"Sample", "a sample"};
  EventGate gate{[] {}, [](const std::exception_ptr&) { FAIL(); }};
  UserEvents events{gate};
  Canvas picture{window, services, "Picture1", 1500, 1500};
  CanvasView view;
};

// The square picture stands in the middle of the view: 150 pixels from x = 25, and the margins beside it take nothing.
TEST_F(PictureView, MouseEventsArriveInUserCoordinates) {
  view.resize(200, 150);
  picture.scale(-1, 1, 1, -1);
  using Places = std::vector<std::pair<Single, Single>>;
  Places down;
  Places up;
  int doubled = 0;
  picture.on_mouse_down = [&down](Single x, Single y) { down.emplace_back(x, y); };
  picture.on_mouse_up = [&up](Single x, Single y) { up.emplace_back(x, y); };
  picture.on_double_click = [&doubled] { ++doubled; };
  QTest::mouseClick(&view, Qt::LeftButton, {}, QPoint(25, 75));
  for (const int x : {1, 24, 100, 176, 199}) QTest::mousePress(&view, Qt::LeftButton, {}, QPoint(x, 0));
  EXPECT_EQ(down, (Places{{-1, 0}, {0, 1}}));
  EXPECT_EQ(up, (Places{{-1, 0}}));
  for (const int x : {24, 100, 176}) QTest::mouseDClick(&view, Qt::LeftButton, {}, QPoint(x, 75));
  EXPECT_EQ(doubled, 1);
  up.clear();
  for (const int x : {24, 176}) QTest::mouseClick(&view, Qt::LeftButton, {}, QPoint(x, 75));
  EXPECT_EQ(up, Places{}) << "a release belongs to its press";
}

TEST_F(PictureView, PictureOfItsOwnSizeShowsPixelByPixel) {
  view.resize(100, 100);
  picture.scale(0, 0, 100, 100);
  picture.set_back_colour(RGB(0, 0, 200));
  picture.line(10, 20, 60, 20, RGB(255, 0, 0));
  picture.set_persistent(false);
  picture.set_point(5, 6, RGB(0, 255, 0));
  view.refresh();
  const QImage shown = view.grab().toImage();
  for (const int x : {10, 60}) EXPECT_EQ(shown.pixelColor(x, 20), QColor(255, 0, 0));
  EXPECT_EQ(shown.pixelColor(61, 20), QColor(0, 0, 200));
  EXPECT_EQ(shown.pixelColor(10, 21), QColor(0, 0, 200)) << "no anti-aliasing";
  EXPECT_EQ(shown.pixelColor(5, 6), QColor(0, 255, 0)) << "the overlay";
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

class Dialogs : public testing::Test {
 protected:
  Dialogs() {  // a program that has ended in another test leaves no loop running, not even of a dialog
    QTimer::singleShot(0, &QApplication::quit);
    QApplication::exec();
  }
  /// Answers the next dialog of a kind.
  template <class Dialog>
  static void when_asked(const std::function<void(Dialog&)>& answer) {
    QTimer::singleShot(0, [answer] {
      auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
      ASSERT_NE(dialog, nullptr);
      answer(*dialog);
    });
  }

  const ScratchFolder folder;
  DesktopServices services;
};

TEST_F(Dialogs, ProposeByTheKindOfFile) {
  for (const auto* name : {"crystals/a.cry", "imports/b.cif"}) folder.write(name, "x");
  for (const auto& [kind, name] : {std::pair{FileKind::Crystal, "crystals/a.cry"}, {FileKind::Cif, "imports/b.cif"}}) {
    const std::string path = folder.path(name);
    when_asked<QFileDialog>([path](QFileDialog& dialog) {
      dialog.selectFile(QString::fromStdString(path));
      static_cast<QDialog&>(dialog).accept();
    });
    EXPECT_EQ(services.ask_file({.kind = kind}), path);
  }
  QString place;
  when_asked<QFileDialog>([&place](QFileDialog& dialog) {
    place = dialog.directory().filePath(dialog.findChild<QLineEdit*>()->text());
    dialog.reject();
  });
  EXPECT_EQ(services.ask_file({.kind = FileKind::Crystal, .save = true, .file_name = "/elsewhere/c.dat"}), "");
  EXPECT_EQ(place.toStdString(), folder.path("crystals/c.dat"));
}

bool is_landscape(const std::string& pdf) {
  double width = 0;
  double height = 0;
  const std::size_t box = pdf.find("/MediaBox [0 0 ");
  return box != std::string::npos && std::istringstream(pdf.substr(box + 15)) >> width >> height && width > height;
}

// The file and the form of the page that the set-up dialog was told hold for the next window. Without a printer
// anything else goes to a file, which is proposed to bear the name of what is printed.
TEST_F(Dialogs, PrintToTheFileThatIsNamed) {
  Program program({ZOL_SOURCE_DIR "/data/ZOL", ZOL_SOURCE_DIR "/data/ZOLDATA"}, services);
  Desktop desktop(program.windows(), [](const std::string& message) { ADD_FAILURE() << message; });
  services.set_desktop(desktop);
  Window& window = program.windows().use("Xd");
  window.set_caption("NaCl.cry");
  for (const auto* file : {"a.pdf", "protected.pdf"}) {
    when_asked<QPrintDialog>([path = folder.path(file)](QPrintDialog& dialog) {
      dialog.printer()->setPageOrientation(QPageLayout::Landscape);
      dialog.findChild<QLineEdit*>(QStringLiteral("filename"))->setText(QString::fromStdString(path));
      dialog.accept();
    });
    services.set_up_printer();
    if (std::string_view(file) == "a.pdf") services.print_window(window);
  }
  std::filesystem::permissions(folder.write("protected.pdf", "old"), std::filesystem::perms::owner_read);
  EXPECT_NE(failure_of([&] { services.print_window(window); }).find("write-protected"), std::string::npos);
  EXPECT_EQ(folder.read("protected.pdf"), "old");
  EXPECT_TRUE(is_landscape(folder.read("a.pdf")));
  if (!QPrinterInfo::availablePrinterNames().isEmpty()) return;
  QStringList proposed;
  const auto cancel = [&proposed](QFileDialog& dialog) {
    proposed << dialog.findChild<QLineEdit*>()->text();
    dialog.reject();
  };
  when_asked<QFileDialog>(cancel);
  services.print_window(window);
  when_asked<QFileDialog>(cancel);
  services.end_document("Quartz.cry");
  EXPECT_EQ(proposed, (QStringList{QStringLiteral("NaCl.pdf"), QStringLiteral("Quartz.pdf")}));
}

}  // namespace
}  // namespace zol
