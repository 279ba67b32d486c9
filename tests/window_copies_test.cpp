// A window with its fields and controls is copied as a value and put back: everything is then as it was, and no handler
// has run. So it is after an event that has been stopped on its way.
#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <random>
#include <sstream>

#include "core/read_file.h"
#include "core/run_failure.h"
#include "shell/script/script_driver.h"
#include "shell/services/event_gate.h"
#include "shell/services/heavy_work.h"
#include "tests/fake_services.h"
#include "tests/test_files.h"

namespace zol {
namespace {

/// A screen whose user stops what runs when it has asked so many times, from 1.
struct Surroundings : ScriptServices {
  using ScriptServices::ScriptServices;
  std::unique_ptr<Surface> make_surface(int width, int height) override {
    return std::make_unique<FakeSurface>(width, height);
  }
  bool stop_wanted() override { return ++checks == stop_at; }
  bool confirm_work(const Effort& effort) override { return !(refused = is_heavy(effort, std::uint64_t{2} << 30U)); }
  bool refused = false;
  int checks = 0;
  int stop_at = 0;
};

class WindowCopies : public testing::Test {
 protected:
  WindowCopies() {
    std::filesystem::current_path(ZOL_SOURCE_DIR);  // where the paths of the script start
    program.start();
    for (const auto& name : program.windows().names()) program.windows().use(name);
    run(read_file("tests/scripts/every_window.zs"));
  }

  void run(const std::string& script) {
    std::istringstream text(script);
    ScriptDriver(program, services, output).run(text);
  }

  static std::string fields_text(const NamedValues& values, const std::string& name) {
    std::string text;
    const int dimensions = values.dimensions(name);
    try {
      for (int i = 0; i < (dimensions > 0 ? 100 : 1); ++i) {
        for (int j = 0; j < (dimensions > 1 ? 3 : 1); ++j) {
          const std::array at{i, j};
          text += values.text(name, std::span(at).first(static_cast<std::size_t>(dimensions))) + '\n';
        }
      }
    } catch (const RunFailure&) {  // the end of the array
    }
    return text;
  }

  /// All that a script prints, and what it does not.
  std::map<std::string, std::string> everything() {
    std::map<std::string, std::string> shown;
    const auto add_fields = [&shown](const std::string& owner, const NamedValues& values) {
      for (const auto& name : values.names()) shown[owner + "." + name] = fields_text(values, name);
    };
    add_fields("Module1", program.module1());
    for (const auto& name : program.windows().names()) {
      if (program.windows().find(name) == nullptr) continue;
      Window& window = *program.windows().find(name);
      shown[name] = window.caption() + (window.visible() ? " visible" : " hidden") +
                    std::to_string(static_cast<int>(window.mouse_pointer()));
      add_fields(name, window.fields());
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
    static const std::map<ControlKind, std::string> operations{
        {ControlKind::TextBox, "type $ 3\nleave $"}, {ControlKind::ListBox, "select $ 1"},
        {ControlKind::ComboBox, "select $ 1"},       {ControlKind::Grid, R"(type $ "7\r")"},
        {ControlKind::Canvas, "press $ 1 1"},        {ControlKind::CommandButton, "click $"},
        {ControlKind::CheckBox, "click $"},          {ControlKind::OptionButton, "click $"},
        {ControlKind::MenuItem, "click $"}};
    const auto operation = operations.find(control.kind());
    if (operation == operations.end()) return;
    std::string script = operation->second;
    for (auto at = script.find('$'); at != std::string::npos; at = script.find('$')) {
      script.replace(at, 1, control.path());
    }
    try {
      run(script);
    } catch (const std::exception&) {  // no answer, no item, a number out of range: all the same here
    }
  }

  /// A click, or a number in a box, which is left.
  void act_on(const std::string& path) {
    const auto dot = path.find('.');
    Control* control = program.windows().use(path.substr(0, dot)).find(path.substr(dot + 1));
    if (auto* button = dynamic_cast<CommandButton*>(control)) return button->click();
    if (auto* item = dynamic_cast<MenuItem*>(control)) return item->click();
    if (auto* check = dynamic_cast<CheckBox*>(control)) return check->click();
    auto& box = dynamic_cast<TextBox&>(*control);
    box.set_text("5");
    box.leave();
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
      if (control.window().name() == "PATTERN3") canvas->load_picture("four.bmp");
      canvas->line(1, 2, 3, 4);
      canvas->set_persistent(false);
      canvas->clear();  // what is stored goes off the list
      canvas->set_mouse_pointer(MousePointer::Hourglass);
    }
  }

  void change_all() {
    for (const auto& name : program.windows().names()) {
      const bool unloads = name == "InputAtom" || name == "InputJCPDS" || name == "MAIN_MENU";  // by its buttons
      for (Control* control : program.windows().use(name).controls()) {
        const bool button = control->kind() == ControlKind::CommandButton;
        if (!(unloads && button) && control->name() != "OWARI") use(*control);
      }
    }
    for (const auto& name : program.windows().names()) {
      Window& window = *program.windows().find(name);
      for (Control* control : window.controls()) change_what_no_user_does(*control);
      window.set_caption("another");
      window.set_mouse_pointer(MousePointer::CrossHair);
    }
  }

  using Picture = std::tuple<Drawing, bool, bool, MousePointer>;
  std::map<std::string, Picture> drawings() {
    std::map<std::string, Picture> all;
    for (const auto& [name, copy] : program.windows().copies()) {
      for (const Control* control : program.windows().find(name)->controls()) {
        const auto* canvas = dynamic_cast<const Canvas*>(control);
        if (canvas == nullptr) continue;
        const auto held = canvas->contents();
        all.emplace(canvas->path(), Picture(held.drawing, canvas->has_picture(), held.raster_base, held.mouse_pointer));
      }
    }
    return all;
  }

  std::ostringstream output;
  Surroundings services{output};
  Program program{{ZOL_SOURCE_DIR "/data/ZOL", ZOL_SOURCE_DIR "/data/ZOLDATA"}, services};
};

TEST_F(WindowCopies, PutEverythingBack) {
  program.windows().unload("InputAtom");
  const auto before = everything();
  const auto pictures = drawings();
  EXPECT_GT(std::get<Drawing>(pictures.at("Pattern2.Picture1")).list.size(), 10U);
  const auto windows = program.windows().copies();
  const auto module1 = program.module1().copies();

  change_all();
  const auto changed = everything();
  std::size_t differences = 0;
  for (const auto& [name, text] : before) differences += changed.at(name) == text ? 0 : 1;
  EXPECT_GT(differences, 400U);
  EXPECT_FALSE(drawings() == pictures);

  program.windows().unload("CameraParameters");
  program.windows().put_back(windows);
  program.module1().put_back(module1);
  const auto after = everything();
  ASSERT_EQ(after.size(), before.size());
  for (const auto& [name, text] : before) EXPECT_EQ(after.at(name), text) << name;
  EXPECT_TRUE(drawings() == pictures);
}

/// Controls whose events ask at least so often whether to stop.
constexpr std::pair<const char*, int> long_events[]{
    {"Main1.DATA_LOAD", 200},   {"Main1.Command6", 100},     {"Main1.Command7", 100},
    {"Main1.Command8", 100},    {"InputAtom.Command1", 6},   {"Xd.Command1", 100},
    {"Dring.Command6", 100},    {"Pattern.Command2", 100},   {"FiberTexture.Command8", 400},
    {"Pattern2.Command4", 200}, {"Pattern2.Command16", 200}, {"Zaxis.Text1", 90},
    {"Zaxis.Check2", 40},       {"PATTERN3.Text2", 5},       {"PATTERN3.Command1", 2},
    {"PATTERN3.Command4", 512}, {"PATTERN3.Command15", 243}, {"AtomDistance.Command1", 54},
    {"Utility.Command1", 90},   {"Main1.Command5", 100},
};

TEST_F(WindowCopies, AreTheSameAfterAnyKeyButEnter) {
  const auto before = everything();
  const auto pictures = drawings();
  for (const auto& name : program.windows().names()) {
    for (Control* control : program.windows().use(name).controls()) {
      auto* box = dynamic_cast<TextBox*>(control);
      if (box == nullptr) continue;
      EXPECT_EQ(box->press_key('7'), '7');
      EXPECT_TRUE(everything() == before && drawings() == pictures) << box->path();
    }
  }
}

TEST_F(WindowCopies, AreWhatRefusedWorkLeaves) {
  EventGate gate([] {}, [](const std::exception_ptr& failure) { FAIL() << failure_text(failure); });
  gate.set_keep([this] { return program.keep(); });
  run("set PATTERN3.Text10 100");
  const auto texts = everything();
  gate.enter({"the search", "", [&] { act_on("PATTERN3.Command15"); }});
  EXPECT_TRUE(services.refused && everything() == texts) << "201^4 measurements";
}

TEST_F(WindowCopies, AreWhatAStoppedEventLeaves) {
  std::mt19937 random(1);
  const auto at_random = [&random](int checks) { return std::uniform_int_distribution(1, checks)(random); };
  EventGate gate([] {}, [](const std::exception_ptr& failure) { FAIL() << failure_text(failure); });
  gate.set_keep([this] { return program.keep(); });
  const auto put_back = program.keep();
  for (const auto& [name, fewest_checks] : long_events) {
    const std::string control = name;
    SCOPED_TRACE(control);
    const auto checks_until = [&](int stop_at) {
      services.checks = 0;
      services.stop_at = stop_at;
      services.queue_answer("data/ZOLDATA/NaCl.cry");
      gate.enter({control, "", [&] { act_on(control); }});
      return services.checks;
    };
    put_back();
    const auto texts = everything();
    const auto pictures = drawings();
    const int checks = checks_until(0);
    EXPECT_GE(checks, fewest_checks);
    const auto texts_after = everything();
    const auto pictures_after = drawings();
    put_back();
    for (const int at : {1, (checks + 1) / 2, checks, at_random(checks), at_random(checks)}) {
      EXPECT_EQ(checks_until(at), at);
      EXPECT_TRUE(everything() == texts && drawings() == pictures) << at;
    }
    checks_until(0);
    EXPECT_TRUE(everything() == texts_after && drawings() == pictures_after);
  }
}

}  // namespace
}  // namespace zol
