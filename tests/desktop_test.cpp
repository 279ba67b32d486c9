// The front end on Qt's offscreen platform: real widgets, real key and mouse events.
#include "shell/desktop/desktop.h"

#include <gtest/gtest.h>

#include <sstream>

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QTableView>
#include <QTest>
#include <QToolButton>

#include "reflections/main1_form.h"
#include "shell/desktop/canvas_view.h"
#include "shell/desktop/qt_surface.h"
#include "shell/desktop/qt_text.h"
#include "shell/main_menu_form.h"
#include "shell/program.h"
#include "shell/script/script_driver.h"
#include "tests/fake_services.h"
#include "tests/test_files.h"

namespace zol {
namespace {

const DataRoot data{ZOL_SOURCE_DIR "/data/ZOL", ZOL_SOURCE_DIR "/data/ZOLDATA"};

class DesktopTest : public testing::Test {
 protected:
  DesktopTest() {
    desktop.enter([this] { program.start(); });
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
    QTest::mouseClick(&child<QPushButton>("MAIN_MENU", "Command1"), Qt::LeftButton);
    QApplication::setActiveWindow(&widget("Main1"));
  }
  static void type(QLineEdit& edit, const char* text) {
    edit.setFocus(Qt::TabFocusReason);
    QTest::keyClicks(&edit, QString::fromLatin1(text));
  }

  FakeServices services;
  Program program{data, services};
  std::vector<std::string> failures;
  Desktop desktop{program.windows(), [this](const std::string& message) { failures.push_back(message); }};
};

std::string plain(const QString& text) { return QString(text).remove(u'&').trimmed().toStdString(); }

std::string trimmed(const std::string& text) { return QString::fromStdString(text).trimmed().toStdString(); }

/// The text of the label that stands beside a widget.
std::string label_of(const QWidget& top, const QWidget* widget) {
  for (const auto* label : top.findChildren<QLabel*>()) {
    if (label->buddy() == widget) return plain(label->text());
  }
  return "";
}

class CompleteWindow : public DesktopTest, public testing::WithParamInterface<const char*> {};
// clang-format off
INSTANTIATE_TEST_SUITE_P(Windows, CompleteWindow, testing::Values(
    "MAIN_MENU",
    "Main1",
    "InputAtom",
    "InputJCPDS",
    "AtomDistance",
    "Utility",
    "Xd",
    "Dring",
    "Pattern",
    "FiberTexture",
    "CameraParameters",
    "PATTERN3",
    "Pattern2",
    "Zaxis"
));
// clang-format on

TEST_P(CompleteWindow, HasAWidgetForEachControlAndNoOther) {
  QWidget& top = widget(GetParam());
  EXPECT_EQ(desktop.binder(GetParam())->missing_widgets(), std::vector<std::string>{});
  const Window& window = desktop.binder(GetParam())->window();
  const QRegularExpression given(
      QStringLiteral("^(Text|Command|Label|List|Combo|Check|Option|Frame|Picture|ProgressBar)[0-9]+(\\([0-9]+\\))?$"));
  for (const auto* object : top.findChildren<QObject*>(given)) {
    EXPECT_NE(window.find(object->objectName().toStdString()), nullptr) << object->objectName().toStdString();
  }
  for (const auto* action : top.findChildren<QAction*>()) {
    if (action->menu() != nullptr || action->objectName().isEmpty()) continue;
    EXPECT_NE(window.find(action->objectName().toStdString()), nullptr) << action->objectName().toStdString();
  }
}

TEST_P(CompleteWindow, BearsTheGivenCaptions) {
  QWidget& top = widget(GetParam());
  for (const Control* control : desktop.binder(GetParam())->window().controls()) {
    const QString name = QString::fromStdString(control->name());
    const std::string wanted = trimmed(control->caption());
    auto* shown = top.findChild<QWidget*>(name);
    if (const auto* button = qobject_cast<QAbstractButton*>(shown)) {
      // A button without a given caption has a symbol.
      if (!wanted.empty()) {
        EXPECT_EQ(plain(button->text()), wanted) << control->name();
      }
      const auto* tool = qobject_cast<QToolButton*>(shown);
      const bool arrow = tool != nullptr && tool->arrowType() != Qt::NoArrow;
      EXPECT_TRUE(arrow || !button->text().isEmpty() || !button->icon().isNull()) << control->name();
    } else if (const auto* item = top.findChild<QAction*>(name)) {
      EXPECT_EQ(plain(item->text()), wanted) << control->name();
      const auto& menu = dynamic_cast<const MenuItem&>(*control).menu();
      const auto menus = top.findChildren<QMenu*>();
      const auto in =
          std::find_if(menus.begin(), menus.end(), [item](const QMenu* m) { return m->actions().contains(item); });
      EXPECT_EQ(in == menus.end() ? "" : plain((*in)->title()), menu) << control->name();
    } else if (const auto* frame = qobject_cast<QGroupBox*>(shown)) {
      EXPECT_EQ(plain(frame->title()), wanted) << control->name();
    } else if (const auto* label = dynamic_cast<const Label*>(control)) {
      EXPECT_EQ(plain(dynamic_cast<QLabel&>(*shown).text()), wanted) << control->name();
      EXPECT_EQ(label_of(top, shown), label->beside()) << control->name();
    } else if (!wanted.empty()) {
      EXPECT_EQ(label_of(top, shown), wanted) << control->name();
    }
    if (shown != nullptr && control->kind() != ControlKind::Label) {
      EXPECT_FALSE(shown->toolTip().isEmpty()) << control->name() << " has no tooltip";
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

TEST_F(DesktopTest, MenuButtonShowsTheMainWindow) {
  EXPECT_TRUE(widget("MAIN_MENU").isVisible());
  show_main1();
  EXPECT_TRUE(widget("Main1").isVisible());
  EXPECT_EQ(widget("Main1").windowTitle(), QStringLiteral("ZOL"));
}

TEST_F(DesktopTest, TypedCellGivesTheLinesOfTheScript) {
  show_main1();
  type(box("Text7"), "225");
  type(box("Text1"), "5.6402");
  QTest::keyClick(&box("Text1"), Qt::Key_Return);
  EXPECT_EQ(box("Text3").text(), QStringLiteral("5.6402"));
  EXPECT_EQ(child<QLabel>("Main1", "Label16").text(), QStringLiteral("Fm3m"));
  services.answers = {ZOL_SOURCE_DIR "/data/ZOLDATA/NaCl.cry"};
  child<QAction>("Main1", "DATA_LOAD").trigger();
  QTest::mouseClick(&child<QRadioButton>("Main1", "Option1"), Qt::LeftButton, {}, {5, 8});
  QTest::mouseClick(&child<QCheckBox>("Main1", "Check1"), Qt::LeftButton, {}, {5, 8});
  box("Text15").clear();
  type(box("Text15"), "1.1");
  QTest::keyClicks(&child<QComboBox>("Main1", "Combo1"), QStringLiteral("C"));
  QTest::mouseClick(&child<QPushButton>("Main1", "Command6"), Qt::LeftButton);
  EXPECT_EQ(failures, std::vector<std::string>{});

  std::ostringstream printed;
  ScriptServices script_services(printed);
  Program twin(data, script_services);
  twin.start();
  std::istringstream script("answer " ZOL_SOURCE_DIR
                            "/data/ZOLDATA/NaCl.cry\nclick Main1.DATA_LOAD\nclick Main1.Option1\n"
                            "click Main1.Check1\nset Main1.Text15 1.1\nclick Main1.Command6\nprint Main1.List2\n");
  ScriptDriver(twin, script_services, printed).run(script);

  std::string shown;
  const auto* model = child<QListView>("Main1", "List2").model();
  for (int row = 0; row < model->rowCount(); ++row) {
    shown += model->index(row, 0).data().toString().toStdString() + "\n";
  }
  EXPECT_GT(model->rowCount(), 20);
  EXPECT_EQ(shown, printed.str());
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
  show_main1();
  int fired = 0;
  main1().Text2.on_change = [&fired] { ++fired; };
  desktop.enter([this] {
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

TEST_F(DesktopTest, EnterWalksThroughTheCell) {
  show_main1();
  (void)QTest::qWaitForWindowActive(&widget("Main1"));
  box("Text1").setFocus();
  for (const auto* next : {"Text2", "Text3", "Text4", "Text5", "Text6", "Text7"}) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    ASSERT_NE(QApplication::focusWidget(), nullptr);
    EXPECT_EQ(QApplication::focusWidget()->objectName().toStdString(), next);
  }
}

TEST_F(DesktopTest, LeavingABoxFires) {
  show_main1();
  type(box("Text1"), "4");
  type(box("Text7"), "225");
  EXPECT_EQ(box("Text2").text(), QString());
  QTest::keyClick(&box("Text7"), Qt::Key_Tab);
  EXPECT_EQ(box("Text2").text(), QStringLiteral("4"));
  EXPECT_EQ(box("Text6").text(), QStringLiteral("90"));
}

TEST_F(DesktopTest, HeaderStandsOverTheColumns) {
  show_main1();
  const auto& header = child<QLabel>("Main1", "Label24");
  const auto& list = child<QListView>("Main1", "List2");
  EXPECT_EQ(header.font(), list.font());
  const QFontMetricsF metrics(list.font());
  EXPECT_EQ(metrics.horizontalAdvance(u'i'), metrics.horizontalAdvance(u'W')) << "fixed pitch";
  services.answers = {ZOL_SOURCE_DIR "/data/ZOLDATA/NaCl.cry"};
  child<QAction>("Main1", "DATA_LOAD").trigger();
  QApplication::processEvents();
  // The first dark column of each picture: "    H" begins one column behind the last digit of "  -1".
  const auto first_dark = [](const QImage& image) {
    for (int x = 1; x < image.width(); ++x) {
      for (int y = 2; y < image.height() - 2; ++y) {
        if (qGray(image.pixel(x, y)) < 128) return x;
      }
    }
    return -1;
  };
  auto& viewport = *list.viewport();
  const int line =
      viewport.mapTo(&widget("Main1"), QPoint()).x() + first_dark(viewport.grab(QRect(0, 1, 200, 14)).toImage());
  const int title =
      header.mapTo(&widget("Main1"), QPoint()).x() + first_dark(const_cast<QLabel&>(header).grab().toImage());
  const double pitch = metrics.horizontalAdvance(u'0');
  EXPECT_NEAR(title - line, 2 * pitch, 2.5) << "the first line begins with a minus in the third column";
}

TEST_F(DesktopTest, PowderPatternOpensAndTakesItsHeightByEnter) {
  show_main1();
  services.answers = {ZOL_SOURCE_DIR "/data/ZOLDATA/NaCl.cry"};
  child<QAction>("Main1", "DATA_LOAD").trigger();
  QTest::mouseClick(&child<QPushButton>("Main1", "Command7"), Qt::LeftButton);
  EXPECT_TRUE(widget("Xd").isVisible());
  EXPECT_EQ(child<CanvasView>("Xd", "Picture1").cursor().shape(), Qt::CrossCursor);
  auto& height = child<QLineEdit>("Xd", "Text5");
  height.clear();
  type(height, "250.5");
  EXPECT_EQ(height.text(), QStringLiteral("250.5"));
  QTest::keyClick(&height, Qt::Key_Return);
  EXPECT_EQ(height.text(), QStringLiteral(" 250"));
  EXPECT_EQ(failures, std::vector<std::string>{});
}

TEST_F(DesktopTest, FrameButtonHidesAndTheLastOneEnds) {
  show_main1();
  type(box("Text1"), "4");
  widget("Main1").close();
  EXPECT_FALSE(main1().visible());
  EXPECT_FALSE(desktop.ended());
  QTest::mouseClick(&child<QPushButton>("MAIN_MENU", "Command1"), Qt::LeftButton);
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
  EXPECT_NE(failures.front().find("while Main1.Text7 changed"), std::string::npos);
  EXPECT_TRUE(desktop.ended());
  QTest::mouseClick(&child<QPushButton>("Main1", "Command6"), Qt::LeftButton);
  EXPECT_EQ(failures.size(), 1U) << "no event comes in any more";
}

/// A window with the kinds that the first windows lack.
struct SampleForm : Window {
  explicit SampleForm(Services& services)
      : Window("Sample", "a sample"), Picture1(*this, services, "Picture1", 1500, 1500) {}
  Grid G{*this, "G", 4, 3};
  ProgressBar ProgressBar1{*this, "ProgressBar1"};
  TextBox Text9{*this, "Text9"};
  Canvas Picture1;
};

struct QtFakeServices : FakeServices {
  std::unique_ptr<Surface> make_surface(int width, int height) override {
    return std::make_unique<QtSurface>(width, height);
  }
};

class BinderTest : public testing::Test {
 protected:
  BinderTest() {
    for (const auto& [name, child] :
         {std::pair<const char*, QWidget*>{"G", &table}, {"ProgressBar1", &bar}, {"Picture1", &view}}) {
      child->setObjectName(QString::fromLatin1(name));
      child->setParent(&top);
    }
    view.resize(200, 150);
    binder = std::make_unique<Binder>(form, top, [this](const std::function<void()>& action) {
      action();
      if (binder) binder->show_changes();
    });
    form.set_view(nullptr);
    binder->show_everything();
  }

  QtFakeServices services;
  SampleForm form{services};
  QWidget top;
  QTableView& table = *new QTableView;
  QProgressBar& bar = *new QProgressBar;
  CanvasView& view = *new CanvasView;
  std::unique_ptr<Binder> binder;
};

TEST_F(BinderTest, TellsWhichControlsHaveNoWidget) {
  EXPECT_EQ(binder->missing_widgets(), std::vector<std::string>{"Text9"});
}

TEST_F(BinderTest, GridTakesKeysAndMovesItsCell) {
  std::vector<int> keys;
  form.G.on_key_press = [&keys](int& key) {
    keys.push_back(key);
    key = 0;
  };
  QTest::keyClicks(&table, QStringLiteral("a1"));
  QTest::keyClick(&table, Qt::Key_Return);
  QTest::keyClick(&table, Qt::Key_Backspace);
  EXPECT_EQ(keys, (std::vector{'a' + 0, '1' + 0, 13, 8}));
  QTest::keyClick(&table, Qt::Key_Down);
  QTest::keyClick(&table, Qt::Key_Right);
  EXPECT_EQ(form.G.row(), 2);
  EXPECT_EQ(form.G.column(), 2);
  form.G.set_text("x");
  form.G.set_row(0);
  form.G.set_text("head");
  form.G.set_row(3);
  binder->control_changed(form.G);
  binder->show_changes();
  EXPECT_EQ(table.model()->index(1, 1).data().toString(), QStringLiteral("x"));
  EXPECT_EQ(table.model()->headerData(1, Qt::Horizontal, Qt::DisplayRole).toString(), QStringLiteral("head"));
  EXPECT_EQ(table.currentIndex().row(), 2);
}

TEST_F(BinderTest, ProgressFillsItsBar) {
  form.ProgressBar1.set_range(1, 5);
  form.ProgressBar1.set_value(3);
  binder->control_changed(form.ProgressBar1);
  EXPECT_EQ(bar.value() * 2, bar.maximum());
  form.ProgressBar1.set_range(0, 0);
  binder->control_changed(form.ProgressBar1);
  EXPECT_EQ(bar.value(), 0);
}

TEST_F(BinderTest, MouseEventsArriveInUserCoordinates) {
  form.Picture1.scale(-1, 1, 1, -1);
  std::vector<std::pair<Single, Single>> events;
  form.Picture1.on_mouse_down =
      form.Picture1.on_mouse_up = [&events](Single x, Single y) { events.emplace_back(x, y); };
  int doubled = 0;
  form.Picture1.on_double_click = [&doubled] { ++doubled; };
  // The square picture stands in the middle of the view: 150 pixels from x = 25.
  QTest::mouseClick(&view, Qt::LeftButton, {}, QPoint(25, 75));
  QTest::mousePress(&view, Qt::LeftButton, {}, QPoint(100, 0));
  QTest::mouseDClick(&view, Qt::LeftButton, {}, QPoint(100, 75));
  ASSERT_GE(events.size(), 3U);
  EXPECT_EQ(events[0], (std::pair<Single, Single>{-1, 0}));
  EXPECT_EQ(events[2], (std::pair<Single, Single>{0, 1}));
  EXPECT_EQ(doubled, 1);
}

TEST_F(BinderTest, MarginBesideThePictureTakesNoPress) {
  std::vector<Single> pressed;
  form.Picture1.on_mouse_down = [&pressed](Single x, Single /*y*/) { pressed.push_back(x); };
  for (const int x : {0, 24, 100, 176, 199}) QTest::mousePress(&view, Qt::LeftButton, {}, QPoint(x, 75));
  EXPECT_EQ(pressed, std::vector<Single>{750}) << "150 pixels from x = 25";
}

TEST_F(BinderTest, PictureOfItsOwnSizeShowsPixelByPixel) {
  view.resize(100, 100);
  form.Picture1.scale(0, 0, 100, 100);
  form.Picture1.set_back_colour(RGB(0, 0, 200));
  form.Picture1.line(10, 20, 60, 20, RGB(255, 0, 0));
  form.Picture1.set_persistent(false);
  form.Picture1.set_point(5, 6, RGB(0, 255, 0));
  view.refresh();
  const QImage shown = view.grab().toImage();
  EXPECT_EQ(shown.pixelColor(10, 20), QColor(255, 0, 0));
  EXPECT_EQ(shown.pixelColor(60, 20), QColor(255, 0, 0));
  EXPECT_EQ(shown.pixelColor(61, 20), QColor(0, 0, 200));
  EXPECT_EQ(shown.pixelColor(10, 21), QColor(0, 0, 200)) << "no anti-aliasing";
  EXPECT_EQ(shown.pixelColor(5, 6), QColor(0, 255, 0)) << "the overlay";
}

TEST(QtTexts, KeepLatin1AndPaths) {
  EXPECT_EQ(to_qt("\xE9"), QStringLiteral("é"));
  EXPECT_EQ(to_qt("α"), QStringLiteral("α"));
  EXPECT_EQ(from_qt(QStringLiteral("é")), "\xE9");
  EXPECT_EQ(from_qt(QStringLiteral("α-quartz")), "α-quartz");
}

}  // namespace
}  // namespace zol

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  zol::use_desktop_resources();
  return RUN_ALL_TESTS();
}
