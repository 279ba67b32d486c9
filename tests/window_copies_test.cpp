// A window with its fields and controls is copied as a value and put back: everything is then as it was, and no handler
// has run. So it is after an event that has been stopped on its way.
#include <gtest/gtest.h>

#include <map>
#include <sstream>

#include "core/run_failure.h"
#include "shell/script/script_driver.h"
#include "shell/services/event_gate.h"
#include "tests/fake_services.h"
#include "tests/test_files.h"

namespace zol {
namespace {

constexpr auto every_window_in_use = R"(
answer )" ZOL_SOURCE_DIR R"(/data/ZOLDATA/Quartz.cry
click Main1.DATA_LOAD
choose Main1.Combo1 CuKa
set Main1.Text15 1.2
click Main1.Command6
click Main1.Command1
click Main1.Command7
click Main1.Command8
click Main1.Command9
click Main1.Command11
click Main1.Command12
click Main1.Command13
click MAIN_MENU.Show_Utility
click MAIN_MENU.Camera_parameters
set AtomDistance.Text1 2
click AtomDistance.Command1
set Pattern.Text3 1
click Pattern.Command8
choose Main1.Combo1 20
click Main1.Command10
set Pattern2.Text3 1
click Pattern2.Command8
set PATTERN3.Text2 6
leave PATTERN3.Text2
press PATTERN3.Picture1 100 100
release PATTERN3.Picture1 200 300
)";

constexpr auto all_is_there_for_long_clicks = R"(
click PATTERN3.Command2
press PATTERN3.Picture1 100 100
move PATTERN3.Picture1 200 300
release PATTERN3.Picture1 200 300
press PATTERN3.Picture1 300 100
move PATTERN3.Picture1 200 400
release PATTERN3.Picture1 200 400
press PATTERN3.Picture1 50 100
move PATTERN3.Picture1 400 120
release PATTERN3.Picture1 400 120
set PATTERN3.Text1 90
click PATTERN3.Command1
click PATTERN3.CP_Setting_Show
set PATTERN3.Text10 1
set FiberTexture.Text5 1
set Zaxis.Text1 2
set Pattern2.Text6 1
click InputAtom.Command2
click Main1.Command1
)";

/// A screen whose user stops what runs when it has asked so many times, from 1.
struct Surroundings : ScriptServices {
  using ScriptServices::ScriptServices;
  std::unique_ptr<Surface> make_surface(int width, int height) override {
    return std::make_unique<FakeSurface>(width, height);
  }
  bool stop_wanted() override { return ++checks == stop_at; }
  int checks = 0;
  int stop_at = 0;
};

class WindowCopies : public testing::Test {
 protected:
  WindowCopies() {
    program.start();
    for (const auto& name : program.windows().names()) program.windows().use(name);
    run(every_window_in_use);
  }

  void run(const std::string& script) {
    std::istringstream text(script);
    ScriptDriver(program, services, output).run(text);
  }

  static void add_fields(std::map<std::string, std::string>& shown, const std::string& owner,
                         const NamedValues& values) {
    constexpr int most = 100;
    for (const auto& name : values.names()) {
      std::string& text = shown[owner + "." + name];
      const int dimensions = values.dimensions(name);
      try {
        for (int i = 0; i < (dimensions > 0 ? most : 1); ++i) {
          for (int j = 0; j < (dimensions > 1 ? 3 : 1); ++j) {
            const std::array at{i, j};
            text += values.text(name, std::span(at).first(static_cast<std::size_t>(dimensions))) + '\n';
          }
        }
      } catch (const RunFailure&) {  // the end of the array
      }
    }
  }

  /// All that a script prints, and what it doesn't.
  std::map<std::string, std::string> everything() {
    std::map<std::string, std::string> shown;
    add_fields(shown, "Module1", program.module1());
    for (const auto& name : program.windows().names()) {
      if (program.windows().find(name) == nullptr) continue;
      Window& window = *program.windows().find(name);
      shown[name] = window.caption() + (window.visible() ? " visible" : " hidden") +
                    std::to_string(static_cast<int>(window.mouse_pointer()));
      add_fields(shown, name, window.fields());
      for (const Control* control : window.controls()) {
        output.str("");
        run("print " + control->path());
        shown[control->path()] = output.str() + control->caption() + (control->visible() ? " visible" : " hidden");
      }
    }
    return shown;
  }

  /// What a user does to a control, as far as it goes without an answer.
  void use(const Control& control) {
    const std::string path = control.path();
    std::string operation = "click " + path;
    switch (control.kind()) {
      case ControlKind::TextBox:
        operation = "type " + path + " 3\nleave " + path;
        break;
      case ControlKind::ListBox:
      case ControlKind::ComboBox:
        operation = "select " + path + " 1";
        break;
      case ControlKind::Grid:
        operation = "type " + path + R"( "7\r")";
        break;
      case ControlKind::Canvas:
        operation = "press " + path + " 1 1";
        break;
      case ControlKind::Label:
      case ControlKind::Frame:
      case ControlKind::ProgressBar:
        return;
      default:
        break;
    }
    try {
      run(operation);
    } catch (const std::exception&) {  // no answer, no item, a number out of range: all the same here
    }
  }

  static void change_what_no_user_does(Control& control) {
    control.set_caption("another");
    control.set_visible(!control.visible());
    if (auto* bar = dynamic_cast<ProgressBar*>(&control)) bar->set_range(5, 6);
    if (auto* grid = dynamic_cast<Grid*>(&control)) grid->set_column_width(1, 5);
    if (auto* list = dynamic_cast<ListBox*>(&control)) {
      list->set_fore_colour(colours::red);
      list->add_item("one more");
    }
    if (auto* canvas = dynamic_cast<Canvas*>(&control)) {
      canvas->set_width(300);
      canvas->set_fore_colour(colours::red);
      canvas->line(1, 2, 3, 4);
    }
  }

  void change_all() {
    for (const auto& name : program.windows().names()) {
      const bool unloads = name == "InputAtom" || name == "InputJCPDS";  // its buttons end the window
      for (Control* control : program.windows().use(name).controls()) {
        const bool ends = name == "MAIN_MENU" && control->name() == "Command5";
        const bool button = control->kind() == ControlKind::CommandButton;
        if (!(unloads && button) && !ends && control->name() != "OWARI") use(*control);
      }
    }
    for (const auto& name : program.windows().names()) {
      for (Control* control : program.windows().find(name)->controls()) change_what_no_user_does(*control);
    }
  }

  std::ostringstream output;
  Surroundings services{output};
  Program program{{ZOL_SOURCE_DIR "/data/ZOL", ZOL_SOURCE_DIR "/data/ZOLDATA"}, services};
};

TEST_F(WindowCopies, PutEverythingBack) {
  program.windows().unload("InputAtom");
  const auto before = everything();
  auto& picture = dynamic_cast<Canvas&>(*program.windows().find("Pattern2")->find("Picture1"));
  const Drawing drawing = picture.contents().drawing;
  EXPECT_GT(drawing.list.size(), 10U);
  const auto windows = program.windows().copies();
  const auto module1 = program.module1().copies();

  change_all();
  const auto changed = everything();
  std::size_t differences = 0;
  for (const auto& [name, text] : before) differences += changed.at(name) == text ? 0 : 1;
  EXPECT_GT(differences, 400U);
  EXPECT_NE(picture.contents().drawing, drawing);

  program.windows().unload("CameraParameters");
  program.windows().put_back(windows);
  program.module1().put_back(module1);
  const auto after = everything();
  ASSERT_EQ(after.size(), before.size());
  for (const auto& [name, text] : before) EXPECT_EQ(after.at(name), text) << name;
  EXPECT_EQ(picture.contents().drawing, drawing);
}

struct LongClick {
  const char* control;
  int fewest_checks;
  const char* answer = nullptr;
};
constexpr auto a_crystal = ZOL_SOURCE_DIR "/data/ZOLDATA/NaCl.cry";

constexpr LongClick long_clicks[]{
    {"Main1.DATA_LOAD", 200, a_crystal},
    {"Main1.Command6", 100},
    {"Main1.Command7", 100},
    {"Main1.Command8", 100},
    {"InputAtom.Command1", 6},
    {"Xd.Command1", 100},
    {"Dring.Command6", 100},
    {"Pattern.Command2", 100},
    {"FiberTexture.Command8", 400},
    {"Pattern2.Command4", 400},
    {"Pattern2.Command16", 200, a_crystal},
    {"Zaxis.Text1", 90},
    {"Zaxis.Check2", 40},
    {"PATTERN3.Text2", 5},
    {"PATTERN3.Command1", 2},
    {"PATTERN3.Command4", 512},
    {"PATTERN3.Command15", 200},
    {"AtomDistance.Command1", 6},
    {"Utility.Command1", 90},
};

class StoppedClicks : public WindowCopies {
 protected:
  /// A number goes into a box, which is left.
  static void use(Control* control) {
    if (auto* button = dynamic_cast<CommandButton*>(control)) button->click();
    if (auto* item = dynamic_cast<MenuItem*>(control)) item->click();
    if (auto* box = dynamic_cast<CheckBox*>(control)) box->click();
    if (auto* box = dynamic_cast<TextBox*>(control)) {
      box->set_text("5");
      box->leave();
    }
  }
  /// @returns how often it was asked whether to stop
  int click(const LongClick& what, int stop_at) {
    services.checks = 0;
    services.stop_at = stop_at;
    if (what.answer != nullptr) services.queue_answer(what.answer);
    const std::string path = what.control;
    const auto dot = path.find('.');
    Window& window = program.windows().use(path.substr(0, dot));
    gate.enter({path, "", [&] { use(window.find(path.substr(dot + 1))); }});
    return services.checks;
  }
  std::map<std::string, Drawing> drawings() {
    std::map<std::string, Drawing> all;
    for (const auto& [name, copy] : program.windows().copies()) {
      for (const Control* control : program.windows().find(name)->controls()) {
        if (const auto* canvas = dynamic_cast<const Canvas*>(control)) {
          all.emplace(canvas->path(), canvas->contents().drawing);
        }
      }
    }
    return all;
  }

  EventGate gate{[] {}, [](const std::exception_ptr& failure) { FAIL() << failure_text(failure); }};
};

TEST_F(StoppedClicks, LeaveEverythingAsItWas) {
  run(all_is_there_for_long_clicks);
  gate.set_keep([this] { return program.keep(); });
  const auto put_back = program.keep();
  for (const auto& what : long_clicks) {
    SCOPED_TRACE(what.control);
    put_back();
    const auto texts = everything();
    const auto pictures = drawings();
    const int checks = click(what, 0);
    EXPECT_GE(checks, what.fewest_checks);
    const auto texts_after = everything();
    const auto pictures_after = drawings();
    put_back();
    for (const int at : {1, (checks + 1) / 2, checks}) {
      EXPECT_EQ(click(what, at), at);
      EXPECT_TRUE(everything() == texts && drawings() == pictures) << at;
    }
    click(what, 0);
    EXPECT_TRUE(everything() == texts_after && drawings() == pictures_after);
  }
}

}  // namespace
}  // namespace zol
