#include "shell/script/script_driver.h"

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>
#include <sstream>

#include "core/read_file.h"
#include "core/run_failure.h"
#include "shell/script/control_text.h"
#include "shell/script/script_words.h"
#include "tests/fake_services.h"
#include "tests/test_files.h"

namespace zol {
namespace {

TEST(ScriptWords, KeepQuotesEscapesAndComments) {
  EXPECT_EQ(split_words("set Main1.Text1 \"a b\" # \"x"), (std::vector<std::string>{"set", "Main1.Text1", "a b"}));
  EXPECT_EQ(split_words(R"(type X.Y "1\r\b\t\"\\#")"), (std::vector<std::string>{"type", "X.Y", "1\r\b\t\"\\#"}));
  EXPECT_EQ(split_words("set X.Y \"\""), (std::vector<std::string>{"set", "X.Y", ""}));
  EXPECT_TRUE(split_words("  # nothing").empty());
  EXPECT_THROW((void)split_words(R"(echo "\q")"), ScriptError);
}

struct Run {
  std::string output;
  std::string error;
};

/// Pixels for the windows that read them.
struct FakePictures : PictureMaker {
  std::unique_ptr<Surface> make_surface(int width, int height) override {
    return std::make_unique<FakeSurface>(width, height);
  }
  void export_picture(Canvas& /*canvas*/, const std::string& /*path*/) override {}
};

/// @param go_on  with the next line after a failure of the run or a question without an answer, which is then printed
Run run(const std::string& script, bool go_on = false) {
  Run result;
  std::ostringstream output;
  FakePictures pictures;
  ScriptServices services(output, &pictures);
  Program program({ZOL_SOURCE_DIR "/data/ZOL", ZOL_SOURCE_DIR "/data/ZOLDATA"}, services);
  program.start();
  std::istringstream text(script);
  do {
    std::string error;
    try {
      ScriptDriver(program, services, output).run(text);
    } catch (const ScriptError& wrong) {
      result.error = wrong.what();
    } catch (const UnansweredQuestion& question) {
      error = std::string("unanswered: ") + question.what();
    } catch (const RunFailure& failure) {
      error = "failure: " + failure.message();
    }
    if (!go_on) {
      result.error += error;
    } else if (!error.empty()) {
      output << error << '\n';
    }
  } while (go_on && result.error.empty() && text && !services.ended());
  result.output = output.str();
  return result;
}

TEST(Script, TellsWhatIsWrongWithItsLine) {
  struct Row {
    const char* script;
    const char* error;
  };
  for (const auto& [script, error] :
       {Row{"jump", "line 2: unknown operation \"jump\""},
        {"set Main1.Text1", "line 2: the form is: set W.C TEXT"},
        {"set Main1.Text1 1 2", "line 2: the form is: set W.C TEXT"},
        {"set Main9.Text1 1", "line 2: there is no window Main9"},
        {"set Main1.Text99 1", "line 2: window Main1 has no control Text99"},
        {"set Main1.Command6 1", "line 2: Main1.Command6 is a control of another kind"},
        {"set Main1 1", "line 2: \"Main1\" is no name of the form Window.Control"},
        {"click Main1.Text1", "line 2: Main1.Text1 can't be clicked"},
        {"select Main1.Text1 1", "line 2: Main1.Text1 has no items"},
        {"select Main1.List3 x", "line 2: INDEX is \"x\", a whole number is expected"},
        {"select Main1.List3 250", "line 2: Main1.List3 has no item 250, it has 250, the first is 0"},
        {"select Main1.Combo1 -1", "line 2: Main1.Combo1 has no item -1, it has 15, the first is 0"},
        {"choose Main1.Combo1 17", "line 2: Main1.Combo1 has no item \"17\""},
        {"call Main1.Jump", "line 2: window Main1 has no operation Jump"},
        {"show Nowhere", "line 2: there is no window Nowhere"},
        {"print Main1.Nothing", "line 2: Main1 has no control or field Nothing"},
        {"print Module1.RefH", "line 2: Module1.RefH takes 1 indices, given are 0"},
        {"print Module1.RefH(1", "line 2: \"RefH(1\" has no closing bracket"},
        {"echo \"x", "line 2: a quote is not closed"},
        {"set Main1.Text1 4α", "line 2: \"α\" (U+03B1) is outside Latin-1"},
        {"type Main1.Text1 \xC5", "line 2: \"Å\" is no UTF-8"},
        {"choose Main1.Combo1 😀", "line 2: \"😀\" (U+1F600) is outside Latin-1"},
        {"echo \xED\xA0\x80", "line 2: \"í\xC2\xA0\xC2\x80\" is no UTF-8"},
        {"answer α\nclick Pattern.Fsize", "line 2: \"α\" (U+03B1) is outside Latin-1"},
        {"click Main1.DATA_LOAD", "unanswered: the name of a file to open"},
        {"call Main1.AtomCcalc", "failure: the unit cell needs a space group, none has been chosen"},
        {"print Module1.RefH(1)", "failure: index 1 of RefH, which has not been allocated yet"},
        {"print Module1.UCPos(1,4)", "failure: index 4 of UCPos is outside 0 to 3"}}) {
    const auto result = run(std::string("echo before\n") + script + "\necho after\n");
    EXPECT_EQ(result.error, error);
    EXPECT_EQ(result.output, "before\n") << "what was printed stays, and nothing follows: " << script;
  }
}

TEST(Script, EndsWithTheProgram) { EXPECT_EQ(run("echo a\nclick MAIN_MENU.Command5\necho b\n").output, "a\n"); }

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

// Å is one byte in a box and in a file, and two where the script meets them.
TEST(Script, IsUtf8WhereBoxesAreLatin1) {
  const ScratchFolder folder;
  const std::string crystal = folder.path("Å³-α.cry");
  const auto result =
      run("set Main1.Text1 4\nset Main1.Text7 221\nleave Main1.Text7\nclick Main1.Command1\ntype InputAtom.G "
          "\"Å³\\rNa\\r\"\nprint InputAtom.G\n"
          "click InputAtom.Command1\nprint Module1.AtomLabel(1)\n"
          "answer \"" +
          crystal +
          "\"\nclick Main1.DATA_SAVE\nprint Main1.CrystalFile\n"
          "print Main1.Text17\nanswer \"" +
          crystal + "\"\nclick Main1.DATA_LOAD\ncaption Xd\n");
  EXPECT_EQ(result.error, "");
  EXPECT_EQ(result.output, "\tSite Name\tElement\tOccupancy\tX\tY\tZ\tBiso\n 1\tÅ³\tNa\t\t\t\t\t\nÅ³\n" + crystal +
                               "\n" + crystal + "\nÅ³-α.cry\n");
  EXPECT_NE(folder.read("Å³-α.cry").find("\"\xC5\xB3\""), std::string::npos);
}

TEST(Script, QueuesAnswersInTheirOrder) {
  EXPECT_EQ(run("set Main1.Text1 4\nset Main1.Text7 221\nleave Main1.Text7\nset Main1.Text15 -2\ncancel\n"
                "answer \"3.5\"\nclick Main1.Command6\nprint Main1.Text15\nprint Main1.Label26\n")
                .output,
            "3.5\n6\n");
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

/// Whole tasks: each script of these folders prints what stands in the file beside it, failures of the run on the way
/// included. Paths in them start at the source tree.
class Task : public testing::TestWithParam<std::string> {};
TEST_P(Task, PrintsWhatIsStored) {
  std::filesystem::current_path(ZOL_SOURCE_DIR);
  const auto result = run(read_file(GetParam() + ".zs"), true);
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

TEST(ScriptProgram, EndsWithItsStatus) {
  struct Row {
    const char* arguments;
    const char* script;
    int status;
    std::string error;  // begins standard error
  };
  const ScratchFolder folder;
  for (const auto& [arguments, script, status, error] :
       {Row{"", "click MAIN_MENU.Command5\njump\n", 0, ""},
        {"--help", "", 0, ""},
        {"--version", "", 0, ""},
        {"", "set Main1.Text7 260\n", 1, "failure of the run: can't open "},
        {"--data /nowhere", "", 1, "failure of the run: can't open /nowhere/Camera_Parameters_New"},
        {"", "jump\n", 2, "line 1: "},
        {"--wrong", "", 2, "zol-script: unknown option"},
        {"second.zs", "", 2, "zol-script: one script at most"},
        {"", "click Main1.DATA_LOAD\n", 3, "unanswered question: "}}) {
    const std::string command = std::string(ZOL_SCRIPT) + " " + arguments + " " + folder.write("a.zs", script) + " >" +
                                folder.path("out") + " 2>" + folder.path("err");
    const int result = std::system(command.c_str());
    const std::string told = folder.read("err");
    EXPECT_EQ(WEXITSTATUS(result), status) << command;
    EXPECT_TRUE(error.empty() ? told.empty() : told.starts_with(error)) << told;
  }
}

// The script or the output can break off at any time: nothing of it is lost in silence.
TEST(ScriptProgram, TellsWhatOfItsTextsIsLost) {
  struct Row {
    const char* command;  // $zol is the program
    int status;
    std::string error;
  };
  const ScratchFolder folder;
  const std::string full = "zol-script: can't write to standard output: No space left on device\n";
  folder.write("a.zs", "echo a\n");
  for (const auto& [command, status, error] :
       {Row{"$zol a.zs >/dev/full", 1, full},
        {"$zol --help >/dev/full", 1, full},
        {"echo 'echo a\njump' | $zol >/dev/full", 2, "line 2: unknown operation \"jump\"\n" + full},
        {"$zol a.zs >&-", 1, "zol-script: can't write to standard output: Bad file descriptor\n"},
        {"{ while ! [ -e gone ]; do sleep 0.01; done; $zol a.zs; echo $? >piped; } | { exec <&-; touch gone; };"
         " while ! [ -s piped ]; do sleep 0.01; done; (exit `cat piped`)",
         1, "zol-script: can't write to standard output: Broken pipe\n"},
        {"$zol .", 1, "failure of the run: can't read the script behind line 0: Is a directory\n"},
        {"$zol <.", 1, "failure of the run: can't read the script behind line 0: Is a directory\n"},
        {"$zol /proc/self/mem", 1, "failure of the run: can't read the script behind line 0: Input/output error\n"}}) {
    const std::string line = "cd " + folder.path("") + "; zol=" ZOL_SCRIPT "; exec 2>err; " + command;
    EXPECT_EQ(WEXITSTATUS(std::system(line.c_str())), status) << command;  // NOLINT(cert-env33-c,concurrency-mt-unsafe)
    EXPECT_EQ(folder.read("err"), error) << command;
  }
}

}  // namespace
}  // namespace zol
