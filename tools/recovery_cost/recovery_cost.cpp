// The desktop program with and without keeping the work, measured.
//
//     zol-recovery-cost with|without start       prints the time when the first window is there, ns since 1970
//     zol-recovery-cost with|without type KEYS   prints the median, the 99 % and the most milliseconds a key takes
//
// The keys go into a box of the main window, which has a long list and stands beside a picture. The program ends like
// one that is killed, so that its work is left.
#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

#include <QLineEdit>
#include <QTest>

#include "analysis/window/pattern3_form.h"
#include "reflections/window/main1_form.h"
#include "shell/desktop/application.h"
#include "shell/desktop/binder.h"

namespace zol {
namespace {

template <class Form>
Form& form(const Desktop& desktop) {
  return dynamic_cast<Form&>(desktop.binder(Form::window_name)->window());
}

void click(Desktop& desktop, const char* window, const char* button) {
  desktop.enter("open", [&] { dynamic_cast<CommandButton&>(*desktop.binder(window)->window().find(button)).click(); });
}

void load(Desktop& desktop) {
  click(desktop, "MAIN_MENU", "Command1");
  click(desktop, "Main1", "Command13");
  desktop.enter("load", [&] {
    auto& main1 = form<Main1Form>(desktop);
    main1.Text15.set_text("0.3");  // 6878 reflections of NaCl
    main1.CommonDialog1.answering(ZOL_SOURCE_DIR "/data/ZOLDATA/NaCl.cry", [&] { main1.DATA_LOAD.click(); });
    auto& pattern = form<Pattern3Form>(desktop);
    pattern.CommonDialog1.answering(ZOL_SOURCE_DIR "/examples/silicon-pattern.bmp", [&] { pattern.ImageLoad.click(); });
  });
}

void type(Desktop& desktop, int keys) {
  load(desktop);
  auto* box = desktop.binder("Main1")->widget().findChild<QLineEdit*>(QStringLiteral("Text1"));
  box->setFocus();
  std::vector<double> times;
  for (int i = 0; i < keys; ++i) {
    QTest::qWait(10);  // milliseconds, in which the windows paint
    const auto begun = std::chrono::steady_clock::now();
    QTest::keyClick(box, i % 2 == 0 ? Qt::Key_1 : Qt::Key_Backspace);
    times.push_back(std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - begun).count());
  }
  std::sort(times.begin(), times.end());
  std::cout << times[times.size() / 2] << ' ' << times[times.size() * 99 / 100] << ' ' << times.back() << std::endl;
  QTest::qWait(1500);  // the last key is on the disk
}

}  // namespace
}  // namespace zol

int main(int argc, char** argv) {
  const std::vector<std::string> words(argv + 1, argv + argc);
  if (words.size() < 2) {
    std::cerr << "usage: zol-recovery-cost with|without start | type KEYS\n";
    return 2;
  }
  const auto keep = words[0] == "with" ? zol::KeepWork::Yes : zol::KeepWork::No;
  return zol::run_application(
      argc, argv,
      [&words](zol::Desktop& desktop) {
        const auto now = std::chrono::system_clock::now().time_since_epoch();
        if (words[1] == "start") {
          std::cout << std::chrono::duration_cast<std::chrono::nanoseconds>(now).count() << std::endl;
        } else {
          zol::type(desktop, words.size() > 2 ? std::stoi(words[2]) : 300);
        }
        std::_Exit(0);
      },
      keep);
}
