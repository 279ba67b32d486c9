// Lines over lists and pictures, and at the foot of windows.
#include "shell/desktop/notices.h"

#include <QLabel>
#include <QListView>
#include <QToolButton>

#include "kikuchi/window/pattern2_form.h"
#include "shell/desktop/canvas_view.h"
#include "tests/offscreen_desktop.h"

namespace zol {
namespace {

class NoticesTest : public DesktopTest {
 protected:
  NoticesTest() {
    program.watch(desktop.gate());
    desktop.offer_undo(program);
    show_main1();
    load("Quartz.cry");
    click("Main1", "Command10");
    type(child<QLineEdit>("Pattern2", "Text5"), "1");
    click("Pattern2", "Command8");
  }
  /// What stands over a view; empty where nothing does.
  std::string said(const char* window, const char* view) {
    const auto* strip = child<QWidget>(window, view).findChild<QFrame*>(QStringLiteral("NoticeStrip"));
    return strip == nullptr || !strip->isVisible() ? "" : strip->accessibleName().toStdString();
  }
  void draw_again(const char* window, const char* view) {
    auto* strip = child<QWidget>(window, view).findChild<QFrame*>(QStringLiteral("NoticeStrip"));
    QTest::mouseClick(strip->findChild<QToolButton*>(), Qt::LeftButton);
  }

  Notices notices{program, desktop};
};

TEST_F(NoticesTest, OldPicturesAreDrawnAgainByOneClick) {
  EXPECT_EQ(said("Pattern2", "Picture1"), "");
  const auto before = program.windows().use<Pattern2Form>().Picture1.drawing().size();
  type(box("Text1"), "6\r");
  const std::string old = said("Pattern2", "Picture1");
  EXPECT_EQ(old, "drawn for Quartz, 20 kV; crystal changed since");
  EXPECT_EQ(said("Main1", "List2"), "listed for Quartz, 20 kV; crystal changed since");
  auto& view = child<CanvasView>("Pattern2", "Picture1");
  const auto& strip = *view.findChild<QFrame*>(QStringLiteral("NoticeStrip"));
  EXPECT_EQ(strip.width(), view.width());
  EXPECT_LT(strip.height(), 60);
  draw_again("Pattern2", "Picture1");
  EXPECT_EQ(said("Pattern2", "Picture1") + said("Main1", "List2"), "") << "list and picture are new";
  EXPECT_NE(program.windows().use<Pattern2Form>().Picture1.drawing().size(), before);
  for (int i = 0; i < 3 && said("Pattern2", "Picture1").empty(); ++i) {
    QTest::keyClick(&view, Qt::Key_Z, Qt::ControlModifier);
  }
  EXPECT_EQ(said("Pattern2", "Picture1"), old) << "undone";
}

TEST_F(NoticesTest, TheFootTellsTheSharedState) {
  auto* foot = widget("Pattern2").findChild<QLabel*>(QStringLiteral("FootLine"));
  ASSERT_NE(foot, nullptr);
  EXPECT_TRUE(foot->toolTip().startsWith(QStringLiteral("20 kV, 0.0866 Å; half width 37°")))
      << foot->toolTip().toStdString();
  EXPECT_LT(widget("Pattern2").minimumSizeHint().width(), 1366);
  click("Pattern2", "Command7");
  EXPECT_TRUE(foot->toolTip().contains(QStringLiteral("turn 5°")));
}

}  // namespace
}  // namespace zol
