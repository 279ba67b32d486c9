// An event that takes long: its bar, the two ways out of it, and what the user does meanwhile.
#include <QLabel>
#include <QMainWindow>
#include <QProgressBar>
#include <QPushButton>
#include <QStatusBar>
#include <QThread>
#include <QTimer>

#include "shell/services/workbench.h"
#include "tests/offscreen_desktop.h"

namespace zol {
namespace {

class LongWorkTest : public DesktopTest {
 protected:
  struct Asking : PixelServices {
    bool stop_wanted() override { return desktop->long_work().stop_wanted(); }
    void work_reported(int done, int total) override { desktop->long_work().report(done, total); }
    Desktop* desktop = nullptr;
  };

  LongWorkTest() {
    asking.desktop = &desktop;
    program.watch(desktop.gate());
    show_main1();
    load("NaCl.cry");
  }
  /// Works in Main1 as "Calc" does until it is stopped, ten seconds at most; half of it is done.
  void work() {
    UserEvent event = operation({"click", "Main1.Command6"}, [this] {
      main1().Text1.set_text("9");
      WindowTask task(asking);
      QElapsedTimer clock;
      for (clock.start(); clock.elapsed() < 10000;) {
        task.report(1, 2);
        task.check();
        QThread::msleep(1);
      }
      ran_out = true;
    });
    event.window = "Main1";
    desktop.gate().enter(std::move(event));
  }
  /// Once the bar is there.
  void meanwhile(const std::function<void(QWidget& bar)>& act) {
    auto* timer = new QTimer(&desktop);
    QObject::connect(timer, &QTimer::timeout, &desktop, [this, timer, act] {
      auto* bar = widget("Main1").findChild<QWidget*>(QStringLiteral("longWork"));
      if (bar == nullptr || !bar->isVisible()) return;
      timer->deleteLater();
      act(*bar);
    });
    timer->start(20);
  }
  QString told() { return dynamic_cast<QMainWindow&>(widget("Main1")).statusBar()->currentMessage(); }
  bool bar_is_gone() {
    const auto* bar = widget("Main1").findChild<QWidget*>(QStringLiteral("longWork"));
    return bar == nullptr || !bar->isVisible();
  }

  Asking asking;
  bool ran_out = false;
};

TEST(LongWork, DurationsAreInSecondsAndFromAMinuteOnInMinutes) {
  for (const auto& [seconds, text] :
       {std::pair(-1.0, "0 s"), {59.4, "59 s"}, {59.5, "1 min 00 s"}, {125.0, "2 min 05 s"}}) {
    EXPECT_EQ(duration_text(seconds).toStdString(), text);
  }
}

TEST_F(LongWorkTest, EndsByEscInAnyWindowAndSwallowsTheRest) {
  show_main1();
  QApplication::processEvents();
  const auto before = program.snapshot();
  int heard = 0;
  main1().Text2.on_change = [&heard] { ++heard; };
  main1().Command7.on_click = [&heard] { ++heard; };
  QStringList shown;
  meanwhile([&](QWidget& bar) {
    for (auto* label : bar.findChildren<QLabel*>()) shown << label->text();
    const auto& part = *bar.findChild<QProgressBar*>();
    shown << QString::number(100 * part.value() / part.maximum());
    type(box("Text2"), "7");
    click("Main1", "Command7");
    widget("Main1").resize(widget("Main1").size() + QSize(30, 20));
    widget("Main1").close();
    QTest::keyClick(&widget("MAIN_MENU"), Qt::Key_Escape);
  });
  work();
  QApplication::processEvents();
  EXPECT_FALSE(ran_out);
  EXPECT_EQ(shown.first(), QStringLiteral("Calc"));
  EXPECT_TRUE(shown[1].endsWith(QLatin1String(" s"))) << shown[1].toStdString();
  EXPECT_EQ(shown.last(), QStringLiteral("50"));
  EXPECT_EQ(heard, 0) << "nor does it wait for the end";
  EXPECT_TRUE(widget("Main1").isVisible());
  EXPECT_EQ(told(), QStringLiteral("cancelled"));
  EXPECT_TRUE(bar_is_gone());
  EXPECT_TRUE(same_work(*before, *program.snapshot()));
  click("Main1", "Command7");
  EXPECT_EQ(heard, 1) << "the windows take input again";
  EXPECT_EQ(failures, std::vector<std::string>{});
}

TEST_F(LongWorkTest, EndsByItsButtonButNotByOneBesideIt) {
  int heard = 0;
  main1().Command7.on_click = [&heard] { ++heard; };
  meanwhile([&](QWidget& bar) {
    QTest::mouseClick(&bar, Qt::LeftButton);
    QTest::mouseClick(child<QAbstractButton>("Main1", "Command7").window(), Qt::LeftButton, {}, {5, 5});
    QTest::mouseClick(bar.findChild<QPushButton*>(), Qt::LeftButton);
  });
  work();
  EXPECT_FALSE(ran_out);
  EXPECT_EQ(heard, 0);
  EXPECT_EQ(told(), QStringLiteral("cancelled"));
}

TEST_F(LongWorkTest, TakesADialogForNoWork) {
  LongWork& bar = desktop.long_work();
  bool seen = false;
  desktop.enter("a question", [&] {
    {
      const LongWork::Pause pause(&bar);
      QThread::msleep(1100);
      EXPECT_FALSE(bar.stop_wanted());
    }
    EXPECT_FALSE(bar.stop_wanted());
    seen = !bar_is_gone();
  });
  EXPECT_FALSE(seen);
}

}  // namespace
}  // namespace zol
