// What the windows say before a click: guards against what ends the run or is of no use, and words beside results.
#include <gtest/gtest.h>

#include <sstream>
#include <iostream>

#include "core/run_failure.h"
#include "shell/script/script_driver.h"
#include "tests/fake_services.h"

namespace zol {
namespace {

struct Surfaces : PictureMaker {
  std::unique_ptr<Surface> make_surface(int width, int height) override {
    return std::make_unique<FakeSurface>(width, height);
  }
  void export_picture(Canvas& /*canvas*/, const std::string& /*path*/) override {}
};

/// Notes what a prompt says of its answers. What has no answer is cancelled, and nothing ends the program.
struct Prompts : ScriptServices {
  using ScriptServices::ScriptServices;
  std::string ask_file(const FileQuestion& question) override {
    return answered([&] { return ScriptServices::ask_file(question); });
  }
  std::string prompt(const std::string& text, const std::string& title) override {
    return answered([&] { return ScriptServices::prompt(text, title); });
  }
  void end_program() override {}
  std::string ask_text(const PromptQuestion& question) override {
    asked = question;
    return ScriptServices::ask_text(question);
  }
  PromptQuestion asked;

 private:
  template <class Ask>
  std::string answered(const Ask& ask) {
    try {
      return ask();
    } catch (const UnansweredQuestion&) {
      return "";
    }
  }
};

class Guards : public testing::Test {
 protected:
  Guards() { program.start(); }
  /// Runs operations. @returns the failure of the run, or nothing
  std::string run(const std::string& script) {
    std::istringstream text(script);
    std::string failure;
    try {
      ScriptDriver(program, services, output).run(text);
    } catch (const RunFailure& found) {
      failure = found.message();
    }
    program.windows().free_unloaded();
    return failure;
  }
  Surfaces surfaces;
  std::ostringstream output;
  Prompts services{output, &surfaces};
  Program program{{ZOL_SOURCE_DIR "/data/ZOL", ZOL_SOURCE_DIR "/data/ZOLDATA"}, services};
};

const std::string silicon = "answer " ZOL_SOURCE_DIR "/data/ZOLDATA/Silicon.cry\nclick Main1.DATA_LOAD\n";

struct Action {
  std::string script;
  std::string reason;
};

std::string reason_of(const Reason& reason) { return reason ? reason() : ""; }

/// All that a single click or Enter does at a control, each with the reason against it.
std::vector<Action> actions_at(Control& control) {
  const std::string& path = control.path();
  const std::string reason = reason_of(control.warn_when);
  if (!control.visible()) return {};
  std::vector<Action> actions;
  switch (control.kind()) {
    case ControlKind::CommandButton:
    case ControlKind::MenuItem:
    case ControlKind::CheckBox:
    case ControlKind::OptionButton:
      return {{"click " + path, reason}};
    case ControlKind::TextBox: {
      const auto& box = dynamic_cast<TextBox&>(control);
      for (const std::string text : {"", "0", "1", "-3", "40000"}) {
        actions.push_back({"set " + path + " \"" + text + "\"", box.warn_text ? box.warn_text(text) : ""});
      }
      actions.push_back({"type " + path + " \"\\r\"", reason});
      actions.push_back({"leave " + path, ""});
      return actions;
    }
    case ControlKind::Grid:
      return {{"type " + path + " \"\\r\"", reason}};
    case ControlKind::ComboBox:
    case ControlKind::ListBox: {
      const auto* list = dynamic_cast<ListBox*>(&control);
      const auto* combo = dynamic_cast<ComboBox*>(&control);
      const auto& warn = list != nullptr ? list->warn_row : combo->warn_row;
      const int count = list != nullptr ? list->list_count() : static_cast<int>(combo->items().size());
      for (int row = 0; row < count; row += std::max(1, std::min(7, count - 1 - row))) {
        actions.push_back({"select " + path + " " + std::to_string(row), reason.empty() && warn ? warn(row) : reason});
      }
      return actions;
    }
    case ControlKind::Canvas: {
      const auto& canvas = dynamic_cast<Canvas&>(control);
      const UserScale& scale = canvas.user_scale();
      for (const double part : {0.0, 0.4, 1.0}) {
        const double x = scale.left + part * (scale.right - scale.left);
        const double y = scale.top + part * (scale.bottom - scale.top);
        const std::string place = path + " " + plain_text(x) + " " + plain_text(y);
        std::string against = reason;
        if (against.empty() && canvas.warn_at) against = canvas.warn_at(x, y);
        actions.push_back({"press " + place + "\nrelease " + place, against});
      }
      actions.push_back({"doubleclick " + path, reason});
      return actions;
    }
    default:
      return {};
  }
}

class SingleClicks : public Guards, public testing::WithParamInterface<std::string> {};
INSTANTIATE_TEST_SUITE_P(States, SingleClicks,
                         testing::Values("", silicon,
                                         silicon + "click Main1.Command7\nclick Main1.Command8\nset Pattern.Text5 1\n"
                                                   "click Pattern.Command8\nset FiberTexture.Text5 1\nclick FiberTexture.Command8\n"
                                                   "set Pattern2.Text5 1\nclick Pattern2.Command8\nshow Zaxis\n"));

// From a fresh program, a crystal, and all pictures drawn: what nothing warns of does not end the run.
TEST_P(SingleClicks, EndTheRunOnlyWhereAGuardSaysSo) {
  ASSERT_EQ(run(GetParam()), "");
  for (const auto& name : program.windows().names()) program.windows().use(name);
  const auto before = program.snapshot();
  for (const auto& name : program.windows().names()) {
    const std::size_t controls = program.windows().use(name).controls().size();
    for (std::size_t i = 0; i < controls; ++i) {
      for (const auto& [script, reason] : actions_at(*program.windows().use(name).controls()[i])) {
        services.asked = {};
        const std::string failure = run(script);
        const bool warned = !reason.empty() || (services.asked.warn_when && !services.asked.warn_when("").empty());
        EXPECT_TRUE(failure.empty() || warned) << script << ": " << failure;
        if (getenv("W")) std::cerr << script << " :: " << failure << " :: " << reason << "\n";
        program.put_back(*before);
      }
    }
  }
}

}  // namespace
}  // namespace zol
