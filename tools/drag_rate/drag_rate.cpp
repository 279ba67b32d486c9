// How many pictures a second a drag over the spot pattern and the Kikuchi pattern draws, each with about 10 000
// reflections: from the move of the pointer until the window shows all of it. On a machine that does other work the
// processor time tells more than the clock.
//
// drag_rate [Dmin]      the smallest spacing of the list, which tells how many reflections it has; default 0.361
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <ctime>
#include <string>
#include <vector>

#include <QApplication>
#include <QElapsedTimer>
#include <QTest>

#include "kikuchi/window/pattern2_form.h"
#include "reflections/window/main1_form.h"
#include "shell/desktop/canvas_view.h"
#include "shell/desktop/desktop.h"
#include "shell/desktop/desktop_services.h"
#include "shell/program/program.h"
#include "spots/window/pattern_form.h"

namespace {

using namespace zol;

constexpr double ms_per_s = 1000;

struct Answering : DesktopServices {
  std::string ask_file(const FileQuestion& /*question*/) override { return ZOL_SOURCE_DIR "/data/ZOLDATA/Quartz.cry"; }
};

void move_to(CanvasView& view, const QPointF& at, Qt::KeyboardModifiers keys) {
  QMouseEvent move(QEvent::MouseMove, at, view.mapToGlobal(at), Qt::NoButton, Qt::LeftButton, keys);
  QApplication::sendEvent(&view, &move);
}

struct Times {
  std::vector<double> wall_ms, processor_ms;
};

/// Each step of a drag along a circle that draws.
Times drag(CanvasView& view, Qt::KeyboardModifiers keys, const Canvas& canvas) {
  constexpr int moves = 24;
  const QPointF centre = view.picture_rect().center();
  const double radius = view.picture_rect().width() * 0.35;
  const auto place = [&](int i) {
    const double angle = 2 * M_PI * i / moves;
    return centre + radius * QPointF(std::cos(angle), std::sin(angle));
  };
  Times times;
  QTest::mousePress(&view, Qt::LeftButton, keys, place(0).toPoint());
  for (int i = 1; i <= moves; ++i) {
    const unsigned begun = canvas.begun();
    QElapsedTimer clock;
    clock.start();
    const std::clock_t processor = std::clock();
    move_to(view, place(i), keys);
    view.repaint();
    while (!view.up_to_date()) QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    if (canvas.begun() == begun) continue;
    constexpr double ns_per_ms = 1e6;
    times.wall_ms.push_back(static_cast<double>(clock.nsecsElapsed()) / ns_per_ms);
    times.processor_ms.push_back(static_cast<double>(std::clock() - processor) * ms_per_s / CLOCKS_PER_SEC);
  }
  QTest::mouseRelease(&view, Qt::LeftButton, keys, place(moves).toPoint());
  return times;
}

void report(const char* what, Times times, const Canvas& canvas, const CanvasView& view) {
  if (times.wall_ms.empty()) {
    std::printf("%-14s nothing drawn\n", what);
    return;
  }
  for (auto* list : {&times.wall_ms, &times.processor_ms}) std::sort(list->begin(), list->end());
  const std::size_t middle = times.wall_ms.size() / 2;
  const double median = times.wall_ms[middle];
  const double processor = times.processor_ms[middle];
  std::printf(
      "%-14s %6zu marks on %d x %d, %3zu pictures, median %6.1f ms, slowest %6.1f ms: %5.1f a second; "
      "processor %6.1f ms: %5.1f a second\n",
      what, canvas.marks().size(), static_cast<int>(view.picture_rect().width()),
      static_cast<int>(view.picture_rect().height()), times.wall_ms.size(), median, times.wall_ms.back(),
      ms_per_s / median, processor, ms_per_s / processor);
}

}  // namespace

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  Answering services;
  Program program({ZOL_SOURCE_DIR "/data/ZOL", ZOL_SOURCE_DIR "/data/ZOLDATA"}, services);
  Desktop desktop(program.windows(), [](const std::string& message) { std::puts(message.c_str()); });
  services.set_desktop(desktop);
  program.watch(desktop.gate());
  desktop.offer_undo(program);
  desktop.offer_advice(program);
  desktop.enter("begin", [&] {
    program.start();
    auto& main1 = program.windows().use<Main1Form>();
    main1.Text15.set_text(argc > 1 ? argv[1] : "0.361");
    main1.DATA_LOAD.click();
    main1.Command10.click();
    auto& pattern2 = program.windows().use<Pattern2Form>();
    pattern2.show();
    pattern2.Text2.set_text("-1");
    pattern2.Text5.set_text("1");
    pattern2.Command8.click();
  });
  const auto view_of = [&desktop](const char* window) {
    return desktop.binder(window)->widget().findChild<CanvasView*>(QStringLiteral("Picture1"));
  };
  std::setbuf(stdout, nullptr);
  std::printf("%d reflections\n", program.state().RefCount.value());
  const auto drag_over = [&](const char* window, const Canvas& canvas) {
    CanvasView& view = *view_of(window);
    for (const bool turns : {false, true}) {
      const auto times = drag(view, turns ? Qt::ControlModifier : Qt::NoModifier, canvas);
      report((std::string(window) + (turns ? ", turn" : ", tilt")).c_str(), times, canvas, view);
    }
  };
  drag_over("Pattern2", program.windows().use<Pattern2Form>().Picture1);
  auto& pattern = program.windows().use<PatternForm>();
  desktop.enter("spots", [&] {
    pattern.show();
    pattern.Text1.set_text("12");
    pattern.Text5.set_text("1");
    pattern.Text6.set_text("0.1");
    pattern.Command8.click();
  });
  drag_over("Pattern", pattern.Picture1);
  return 0;
}
