#include "shell/script/script_driver.h"

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "core/run_failure.h"
#include "core/text_records.h"
#include "tests/test_files.h"

namespace zol {
namespace {

TEST(ScriptWords, KeepQuotesEscapesAndComments) {
  EXPECT_EQ(split_words("set Main1.Text1 \"a b\" # \"x"), (std::vector<std::string>{"set", "Main1.Text1", "a b"}));
  EXPECT_EQ(split_words(R"(type X.Y "1\r\b\t\"\\#")"), (std::vector<std::string>{"type", "X.Y", "1\r\b\t\"\\#"}));
  EXPECT_EQ(split_words("set X.Y \"\""), (std::vector<std::string>{"set", "X.Y", ""}));
  EXPECT_TRUE(split_words("  # nothing").empty());
  EXPECT_THROW((void)split_words("echo \"open"), ScriptError);
  EXPECT_THROW((void)split_words(R"(echo "\q")"), ScriptError);
}

struct Run {
  std::string output;
  std::string error;
};

Run run(const std::string& script) {
  std::ostringstream output;
  ScriptServices services(output);
  Program program({ZOL_SOURCE_DIR "/data/ZOL", ZOL_SOURCE_DIR "/data/ZOLDATA"}, services);
  program.start();
  std::istringstream text(script);
  Run result;
  try {
    ScriptDriver(program, services, output).run(text);
  } catch (const ScriptError& error) {
    result.error = error.what();
  } catch (const UnansweredQuestion& question) {
    result.error = std::string("unanswered: ") + question.what();
  } catch (const RunFailure& failure) {
    result.error = "failure: " + failure.message();
  }
  result.output = output.str();
  return result;
}

struct WrongCase {
  const char* script;
  const char* error;
};
class WrongOperation : public testing::TestWithParam<WrongCase> {};
TEST_P(WrongOperation, IsToldWithItsLine) {
  const auto result = run(std::string("echo before\n") + GetParam().script + "\necho after\n");
  EXPECT_EQ(result.error, GetParam().error);
  EXPECT_EQ(result.output, "before\n") << "what was printed stays, and nothing follows";
}
INSTANTIATE_TEST_SUITE_P(
    Scripts, WrongOperation,
    testing::Values(WrongCase{"jump", "line 2: unknown operation \"jump\""},
                    WrongCase{"set Main1.Text1", "line 2: the form is: set W.C TEXT"},
                    WrongCase{"set Main1.Text1 1 2", "line 2: the form is: set W.C TEXT"},
                    WrongCase{"set Main9.Text1 1", "line 2: there is no window Main9"},
                    WrongCase{"set Main1.Text99 1", "line 2: window Main1 has no control Text99"},
                    WrongCase{"set Main1.Command6 1", "line 2: Main1.Command6 is a control of another kind"},
                    WrongCase{"set Main1 1", "line 2: \"Main1\" is no name of the form Window.Control"},
                    WrongCase{"click Main1.Text1", "line 2: Main1.Text1 can't be clicked"},
                    WrongCase{"select Main1.Text1 1", "line 2: Main1.Text1 has no items"},
                    WrongCase{"select Main1.List3 x", "line 2: INDEX is \"x\", a whole number is expected"},
                    WrongCase{"choose Main1.Combo1 17", "line 2: Main1.Combo1 has no item \"17\""},
                    WrongCase{"call Main1.Jump", "line 2: window Main1 has no operation Jump"},
                    WrongCase{"show Nowhere", "line 2: there is no window Nowhere"},
                    WrongCase{"print Main1.Nothing", "line 2: Main1 has no control or field Nothing"},
                    WrongCase{"print Module1.RefH", "line 2: Module1.RefH takes 1 indices, given are 0"},
                    WrongCase{"print Module1.RefH(1", "line 2: \"RefH(1\" has no closing bracket"},
                    WrongCase{"echo \"x", "line 2: a quote is not closed"},
                    WrongCase{"click Main1.DATA_LOAD", "unanswered: the name of a file to open"},
                    WrongCase{"print Module1.RefH(1)", "failure: index 1 of RefH, which has not been allocated yet"},
                    WrongCase{"print Module1.UCPos(1,4)", "failure: index 4 of UCPos is outside 0 to 3"}));

TEST(Script, EndsWithTheProgram) {
  EXPECT_EQ(run("echo a\nclick MAIN_MENU.Command5\necho b\n").output, "a\n");
  EXPECT_EQ(run("echo a\nclick Main1.OWARI\njump\n").error, "");
}

TEST(Script, PrintsEveryKindOfThing) {
  EXPECT_EQ(run("print Main1.Text15\nprint Main1.Combo1\nprint Main1.Check1\nprint Main1.Option1\n"
                "print Main1.Command6\nprint Main1.Label24\nprint PATTERN3.ProgressBar1\nprint Main1.MassRatio\n"
                "print Main1.AxisSetting\nprint Main1.SGNames(14)\nprint Module1.NAtom\nvisible Main1.Check4\n"
                "caption Main1\nprint PATTERN3.TripleHKL(125000,8)\nprint Main1.AsfX(1)\nprinter\n")
                .output,
            "1.0\n20\n1\n0\n1\n"
            "    H   K   L     k/2    D(A)   2-Theta     A       B       F      I(powder)\n"
            "0 100 0\n1\nabc\nP21/c\n0\n0\nZOL \n0\nH,.493002,10.5109,.322912,26.1257,.140191,3.14236,.04081,57.7997,"
            ".003038,1\n");
}

TEST(Script, QueuesAnswersInTheirOrder) {
  const auto result =
      run("set Main1.Text1 4\nset Main1.Text7 221\nleave Main1.Text7\nset Main1.Text15 -2\n"
          "cancel\nanswer \"3.5\"\nclick Main1.Command6\nprint Main1.Text15\nprint Main1.Label26\n");
  EXPECT_EQ(result.output, "3.5\n6\n");
}

TEST(DrawingText, ShowsPrimitivesInUserCoordinates) {
  std::ostringstream output;
  ScriptServices services(output);
  Window window("W", "");
  Canvas canvas(window, services, "P", 1500, 1500);
  canvas.scale(-0.5, 0.5, 0.5, -0.5);
  canvas.line(0, 0, 1.0 / 3.0, -1e-6, RGB(255, 128, 1));
  canvas.set_fill_colour(RGB(0, 0, 255));
  canvas.circle(0, 0, 12345678, 0);
  canvas.set_solid_fill(false);
  canvas.circle(-0.0, 0, 1, 0);
  canvas.set_point(1, 2, 0);
  canvas.print("a \"b\"");
  EXPECT_EQ(drawing_text(canvas),
            (std::vector<std::string>{"scale -0.5 0.5 0.5 -0.5", "line 0 0 0.3333333 -1e-06 FF8001",
                                      "circle 0 0 1.234568e+07 000000 0000FF", "circle 0 0 1 000000 none",
                                      "point 1 2 000000", "text 1 2 000000 \"a \\\"b\\\"\""}));
}

/// Whole tasks: each script of these folders prints what stands in the file beside it. Paths in them start at the
/// source tree.
class Task : public testing::TestWithParam<std::string> {};
TEST_P(Task, PrintsWhatIsStored) {
  std::filesystem::current_path(ZOL_SOURCE_DIR);
  const auto result = run(read_file(GetParam() + ".zs"));
  EXPECT_EQ(result.error, "");
  EXPECT_EQ(result.output, read_file(GetParam() + ".out"));
}
std::vector<std::string> tasks() {
  std::vector<std::string> names;
  for (const std::string folder : {"tests/scripts", "examples/cif"}) {
    for (const auto& entry : std::filesystem::directory_iterator(std::string(ZOL_SOURCE_DIR "/") + folder)) {
      if (entry.path().extension() == ".zs") names.push_back(folder + "/" + entry.path().stem().string());
    }
  }
  std::sort(names.begin(), names.end());
  return names;
}
INSTANTIATE_TEST_SUITE_P(Scripts, Task, testing::ValuesIn(tasks()), [](const auto& row) {
  std::string name = row.param;
  std::replace_if(
      name.begin(), name.end(), [](char c) { return c == '-' || c == '/'; }, '_');
  return name;
});

struct StatusCase {
  const char* arguments;
  const char* script;
  int status;
  const char* error;  ///< begins standard error
};
class ScriptProgram : public testing::TestWithParam<StatusCase> {};
TEST_P(ScriptProgram, EndsWithItsStatus) {
  const ScratchFolder folder;
  const auto script = folder.write("a.zs", GetParam().script);
  const std::string command = std::string(ZOL_SCRIPT) + " " + GetParam().arguments + " " + script + " >" +
                              folder.path("out") + " 2>" + folder.path("err");
  const int status = std::system(command.c_str());
  EXPECT_EQ(WEXITSTATUS(status), GetParam().status);
  EXPECT_EQ(folder.read("err").substr(0, std::string(GetParam().error).size()), GetParam().error);
  if (GetParam().status == 0) {
    EXPECT_EQ(folder.read("err"), "");
  }
}
INSTANTIATE_TEST_SUITE_P(Runs, ScriptProgram,
                         testing::Values(StatusCase{"", "show Main1\n", 0, ""},
                                         StatusCase{"", "click MAIN_MENU.Command5\njump\n", 0, ""},
                                         StatusCase{"--help", "", 0, ""}, StatusCase{"--version", "", 0, ""},
                                         StatusCase{"", "set Main1.Text7 260\n", 1, "failure of the run: can't open "},
                                         StatusCase{"--data /nowhere", "", 1,
                                                    "failure of the run: can't open /nowhere/Camera_Parameters_New"},
                                         StatusCase{"", "jump\n", 2, "line 1: "},
                                         StatusCase{"--wrong", "", 2, "zol-script: unknown option"},
                                         StatusCase{"second.zs", "", 2, "zol-script: one script at most"},
                                         StatusCase{"", "click Main1.DATA_LOAD\n", 3, "unanswered question: "}));

}  // namespace
}  // namespace zol
