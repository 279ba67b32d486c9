// The whole program under the operations of scripts, for tests of what its windows tell beside them.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <sstream>
#include <string>

#include "core/run_failure.h"
#include "shell/script/script_driver.h"
#include "tests/fake_services.h"

namespace zol {

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

struct GuardedProgram {
  GuardedProgram() { program.start(); }
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
  /// Brings a state about: operations, or "sites" or "rows" and their number.
  void prepare(const std::string& state) {
    std::istringstream words(state);
    std::string word;
    int count = 0;
    if (words >> word >> count && word == "sites") program.state().NAtom = count;
    if (count > 0 && word == "rows") program.state().JcpdsCount = count;
    if (count == 0) {
      EXPECT_EQ(run(state), "");
    }
  }
  /// What a user sees of the windows that are open.
  Snapshot visible_work() {
    Snapshot work{{}, program.snapshot()->windows};
    std::erase_if(work.windows, [](const auto& entry) { return !entry.second.visible; });
    return work;
  }

  FakePictures surfaces;
  std::ostringstream output;
  Prompts services{output, &surfaces};
  Program program{{ZOL_SOURCE_DIR "/data/ZOL", ZOL_SOURCE_DIR "/data/ZOLDATA"}, services};
};

inline const std::string silicon = "answer " ZOL_SOURCE_DIR "/data/ZOLDATA/Silicon.cry\nclick Main1.DATA_LOAD\n";
inline const std::string powder = silicon + "click Main1.Command7\nclick Main1.Command8\n";
inline const std::string kikuchi = silicon + "set Pattern2.Text5 1\nclick Pattern2.Command8\n";

}  // namespace zol
