// The program in its windows on Qt's offscreen platform: real widgets, real key and mouse events.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <type_traits>
#include <vector>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

#include "reflections/window/main1_form.h"
#include "shell/desktop/desktop.h"
#include "shell/desktop/look/folding.h"
#include "shell/desktop/qt_surface.h"
#include "shell/program/program.h"
#include "tests/fake_services.h"

namespace zol {

struct PixelServices : FakeServices {
  std::unique_ptr<Surface> make_surface(int width, int height) override {
    return std::make_unique<QtSurface>(width, height);
  }
};

/// What windows keep goes to a folder of this process, not to the user's.
inline void keep_settings_apart() {
  static const QTemporaryDir folder;
  QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder.path());
}

class DesktopTest : public testing::Test {
 protected:
  explicit DesktopTest(const QString& settings_file = {}) {
    keep_settings_apart();
    desktop.set_question([this](const std::string& reason) {
      questions.push_back(reason);
      return agrees;
    });
    desktop.offer_advice(program);
    desktop.offer_desk(program, settings_file);
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
    if constexpr (std::is_base_of_v<QWidget, Kind>) reveal(*found);  // the windows of this small screen are narrow
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
  void activate(const char* window) {
    QApplication::setActiveWindow(&widget(window));
    EXPECT_TRUE(QTest::qWaitForWindowActive(&widget(window)));
  }
  /// Brings a window to the front, as a user would, with the focus in one of its boxes.
  void go_to(const char* window, const char* box_name) {
    desktop.enter("a test", [&] { program.windows().use(window).show(); });
    activate(window);
    child<QLineEdit>(window, box_name).setFocus(Qt::TabFocusReason);
  }
  static void type(QLineEdit& edit, const char* text) {
    edit.setFocus(Qt::TabFocusReason);
    QTest::keyClicks(&edit, QString::fromLatin1(text));
  }

  PixelServices services;
  Program program{{ZOL_SOURCE_DIR "/data/ZOL", ZOL_SOURCE_DIR "/data/ZOLDATA"}, services};
  std::vector<std::string> failures;
  std::vector<std::string> questions;  ///< before what would end the run or be of no use
  bool agrees = true;                  ///< to do it all the same
  Desktop desktop{program.windows(), [this](const std::string& message) { failures.push_back(message); }};
};

}  // namespace zol
