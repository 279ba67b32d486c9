// A window with its fields and controls is copied as a value and put back: everything is then as it was, and no handler
// has run.
#include <gtest/gtest.h>

#include <map>
#include <sstream>

#include "core/run_failure.h"
#include "shell/script/script_driver.h"
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
    constexpr int most = 12;
    for (const auto& name : values.names()) {
      std::string& text = shown[owner + "." + name];
      const int dimensions = values.dimensions(name);
      for (int i = 0; i < (dimensions > 0 ? most : 1); ++i) {
        for (int j = 0; j < (dimensions > 1 ? 3 : 1); ++j) {
          const std::array at{i, j};
          try {
            text += values.text(name, std::span(at).first(static_cast<std::size_t>(dimensions))) + '\n';
          } catch (const RunFailure&) {
            text += "none\n";
          }
        }
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
      shown[name] = window.caption() + (window.visible() ? " visible" : " hidden");
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
  ScriptServices services{output};
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

}  // namespace
}  // namespace zol
