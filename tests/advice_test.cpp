// What the windows show of guards, old results and shared state: signs, questions, lines, captions.
#include <QComboBox>
#include <QDir>
#include <QListView>
#include <QMainWindow>
#include <QStatusBar>
#include <QTableView>
#include <QToolBar>
#include <QToolButton>

#include "analysis/window/pattern3_form.h"
#include "core/run_failure.h"
#include "kikuchi/window/pattern2_form.h"
#include "shell/desktop/canvas_view.h"
#include "shell/desktop/note_line.h"
#include "shell/desktop/picture_export.h"
#include "tests/offscreen_desktop.h"

namespace zol {
namespace {

class AdviceTest : public DesktopTest {
 protected:
  AdviceTest() {
    program.watch(desktop.gate());
    desktop.offer_undo(program);
  }
  /// What the line over a view says; empty where there is none.
  QString line_over(const char* window, const char* view) {
    for (const auto* line : child<QWidget>(window, view).findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
      const auto* note = dynamic_cast<const NoteLine*>(line);
      if (note != nullptr) return note->isHidden() ? QString() : note->words();
    }
    return {};
  }
  QString foot(const char* window) {
    const auto* bar = widget(window).findChild<QToolBar*>();
    for (const auto* part : bar->findChildren<QWidget*>()) {
      if (const auto* line = dynamic_cast<const WordLine*>(part)) return line->words();
    }
    return {};
  }
  template <class Form>
  Form& form() {
    return program.windows().use<Form>();
  }
};

TEST_F(AdviceTest, SignsSayWhyAndAClickAsksFirst) {
  auto& button = child<QAbstractButton>("MAIN_MENU", "Command2");
  const QString reason = button.property("warning").toString();
  EXPECT_TRUE(reason.startsWith(u"the list of reflections is empty"));
  EXPECT_TRUE(button.toolTip().endsWith(reason));
  EXPECT_EQ(button.statusTip(), reason);
  EXPECT_EQ(button.accessibleDescription(), reason);
  const auto signs = [&] {
    int shown = 0;
    for (const auto* part : button.parentWidget()->findChildren<QWidget*>()) {
      if (dynamic_cast<const WarningSign*>(part) != nullptr && !part->isHidden()) ++shown;
    }
    return shown;
  };
  EXPECT_EQ(signs(), 1);
  agrees = false;
  click("MAIN_MENU", "Command2");
  ASSERT_EQ(questions.size(), 1U);
  EXPECT_EQ(questions[0], reason.toStdString());
  EXPECT_EQ(program.windows().find("Pattern2"), nullptr);
  agrees = true;
  click("MAIN_MENU", "Command2");
  EXPECT_TRUE(program.windows().use("Pattern2").visible());

  show_main1();
  load("Silicon.cry");
  EXPECT_TRUE(button.property("warning").toString().isEmpty());
  EXPECT_FALSE(button.toolTip().contains(reason));
  EXPECT_EQ(signs(), 0);
  // The status line says it where the focus is.
  auto& jcpds = child<QAbstractButton>("Main1", "Command15");
  jcpds.setFocus(Qt::TabFocusReason);
  EXPECT_EQ(dynamic_cast<QMainWindow&>(widget("Main1")).statusBar()->currentMessage(),
            jcpds.property("warning").toString());
  click("Main1", "Command15");
  EXPECT_EQ(dynamic_cast<QMainWindow&>(widget("Main1")).statusBar()->currentMessage(), QString())
      << "the reason has gone with the atoms";
}

TEST_F(AdviceTest, AnEmptyWindowHasOneSignForOneReason) {
  desktop.enter("a test", [this] { form<Pattern2Form>().show(); });
  std::vector<const QWidget*> signs;
  for (const auto* part : widget("Pattern2").findChildren<QWidget*>()) {
    if (dynamic_cast<const WarningSign*>(part) != nullptr && !part->isHidden()) signs.push_back(part);
  }
  EXPECT_EQ(signs.size(), 1U);
  const auto& calc = child<QWidget>("Pattern2", "Command8");
  const auto& tilt = child<QWidget>("Pattern2", "Command1(0)");
  EXPECT_EQ(calc.property("warning"), tilt.property("warning")) << "the reason stands at all of them";
  EXPECT_FALSE(tilt.toolTip().isEmpty());
  const QRect at(calc.mapTo(&widget("Pattern2"), QPoint()), calc.size());
  EXPECT_TRUE(at.adjusted(-20, -20, 20, 20).contains(signs.at(0)->mapTo(&widget("Pattern2"), QPoint()))) << "at Calc";
}

// What is refused is shown as it was.
TEST_F(AdviceTest, RefusedTextsAndChoicesGoBack) {
  agrees = false;
  show_main1();
  load("Silicon.cry");
  auto& group = box("Text7");
  activate("Main1");
  group.setFocus(Qt::TabFocusReason);
  group.selectAll();
  QTest::keyClicks(&group, QStringLiteral("260"));
  EXPECT_EQ(group.text(), QStringLiteral("26"));
  EXPECT_EQ(questions.size(), 1U);
  auto& axes = child<QComboBox>("Main1", "Combo2");
  axes.setCurrentIndex(5);
  emit axes.activated(5);
  EXPECT_EQ(axes.currentText(), QStringLiteral("abc"));

  auto& pattern = form<Pattern3Form>();
  desktop.enter("a test", [&] {
    pattern.show();
    pattern.List1.add_item("    No. of solution = 0");
  });
  auto& list = child<QListView>("PATTERN3", "List1");
  const QModelIndex count = list.model()->index(0, 0);
  EXPECT_TRUE(count.data(Qt::FontRole).value<QFont>().italic());
  EXPECT_EQ(count.data(Qt::ToolTipRole).toString(),
            QStringLiteral("this line is the number of solutions, not a solution"));
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(count).center());
  EXPECT_EQ(questions.back(), "this line is the number of solutions, not a solution");
  EXPECT_FALSE(list.currentIndex().isValid());
  EXPECT_TRUE(failures.empty());
}

// A press waits for the drag; a click alone is asked for, a drag is not.
TEST_F(AdviceTest, AClickThatWouldLayALineIsAskedFor) {
  agrees = false;
  auto& pattern = form<Pattern3Form>();
  desktop.enter("a test", [&] { pattern.show(); });
  auto& picture = child<CanvasView>("PATTERN3", "Picture1");
  const QPoint at = picture.picture_rect().center().toPoint();
  QTest::mouseClick(&picture, Qt::LeftButton, {}, at);
  EXPECT_EQ(questions.size(), 1U);
  EXPECT_EQ(pattern.lines.LineX(0, 0), 0);
  QTest::mousePress(&picture, Qt::LeftButton, {}, at);
  QTest::mouseMove(&picture, at + QPoint(30, 40));
  QTest::mouseRelease(&picture, Qt::LeftButton, {}, at + QPoint(30, 40));
  EXPECT_EQ(questions.size(), 1U);
  EXPECT_EQ(pattern.lines.LineDone(0), 1);
  EXPECT_GT(pattern.lines.LineX(0, 1), pattern.lines.LineX(0, 0));
  agrees = true;
  QTest::mouseClick(&picture, Qt::LeftButton, {}, at);
  EXPECT_EQ(pattern.lines.LineDone(1), 1);
  EXPECT_EQ(pattern.lines.LineX(1, 1), 0);
}

TEST_F(AdviceTest, OldPicturesSayWhatTheyWereDrawnForUntilDrawnAgain) {
  show_main1();
  load("Silicon.cry");
  desktop.enter("a test", [&] {
    auto& pattern = form<Pattern2Form>();
    pattern.show();
    pattern.Text5.set_text("1");
    pattern.Command8.click();
  });
  auto& picture = child<CanvasView>("Pattern2", "Picture1");
  const QRectF place = picture.picture_rect();
  EXPECT_EQ(line_over("Pattern2", "Picture1"), QString());
  EXPECT_EQ(foot("Pattern2"), QStringLiteral("20 kV, λ 0.0866 Å   area 37°   shifts 0°, 0°   axis [0 0 1]   turn 0°   "
                                             "list by I/d, weakest first"));
  type(box("Text1"), "7");
  const QString line = QStringLiteral("drawn for Silicon, 20 kV; crystal changed since");
  EXPECT_EQ(line_over("Pattern2", "Picture1"), line);
  EXPECT_EQ(line_over("Main1", "List2"), QStringLiteral("made for Silicon, 20 kV; crystal changed since"));
  EXPECT_GE(picture.picture_rect().top(), place.top()) << "the line lies beside the picture";
  QTest::keyClick(&widget("Main1"), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(line_over("Pattern2", "Picture1"), QString());
  QTest::keyClick(&widget("Main1"), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(line_over("Pattern2", "Picture1"), line);
  // By way of the list.
  for (auto* button : picture.findChildren<QToolButton*>()) button->click();
  EXPECT_EQ(line_over("Pattern2", "Picture1"), QString());
  EXPECT_EQ(line_over("Main1", "List2"), QString());
  EXPECT_TRUE(failures.empty());
}

TEST_F(AdviceTest, ExportsTellBelowThePictureWhereThatIsWanted) {
  Canvas& canvas = form<Pattern2Form>().Picture1;
  canvas.line(0, 0, 1, 1);
  const QString folder = QDir::tempPath();
  const std::string plain = (folder + "/zol_plain.png").toStdString();
  const std::string told = (folder + "/zol_told.png").toStdString();
  QuietTask task;
  export_picture(canvas, plain, 1.0, task);
  export_picture(canvas, told, 2.0, task, {QStringLiteral("drawn for Silicon, 20 kV; crystal changed since")});
  const QImage without(QString::fromStdString(plain)), with(QString::fromStdString(told));
  EXPECT_EQ(without.size(), QSize(canvas.pixel_width(), canvas.pixel_height()));
  EXPECT_EQ(with.width(), 2 * without.width());
  EXPECT_GT(with.height(), 2 * without.height() + 20);
  const QImage words = with.copy(0, 2 * without.height(), with.width(), with.height() - 2 * without.height());
  EXPECT_NE(words, QImage(words.size(), words.format())) << "no words";
  QFile::remove(QString::fromStdString(plain));
  QFile::remove(QString::fromStdString(told));
}

// Sizes beyond what the dialog tells end the run.
TEST_F(AdviceTest, SizesOfPicturesHaveTheBoundsThatAreTold) {
  show_main1();
  load("Silicon.cry");
  for (const auto& [twips, fails] : {std::pair("122880", false), std::pair("123000", true)}) {
    services.answers = {twips};
    auto& pattern = form<Pattern2Form>();
    std::string failure;
    try {
      pattern.Imagesize.click();
      (void)pattern.Picture1.stored_image();
    } catch (const RunFailure& found) {
      failure = found.message();
    }
    EXPECT_EQ(!failure.empty(), fails) << failure;
  }
}

}  // namespace
}  // namespace zol
