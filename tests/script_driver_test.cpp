#include "shell/script/script_driver.h"

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <array>
#include <cstdlib>
#include <filesystem>
#include <regex>
#include <set>
#include <sstream>

#include "core/read_file.h"
#include "core/run_failure.h"
#include "kikuchi/window/pattern2_form.h"
#include "shell/script/name_pages.h"
#include "tests/fake_services.h"
#include "tests/test_files.h"

namespace zol {
namespace {

struct Run {
  std::string output;
  std::string error;
};

/// Goes on with the next line after a failure of the run or a question without an answer, which is then printed.
Run run(const std::string& script) {
  Run result;
  std::ostringstream output;
  FakePictures pictures;
  ScriptServices services(output, &pictures);
  Program program({ZOL_SOURCE_DIR "/data/ZOL", ZOL_SOURCE_DIR "/data/ZOLDATA"}, services);
  program.start();
  std::istringstream text(script);
  while (result.error.empty() && text && !services.ended()) {
    try {
      ScriptDriver(program, services, output).run(text);
    } catch (const ScriptError& error) {
      result.error = error.what();
    } catch (const UnansweredQuestion& question) {
      output << "unanswered: " << question.what() << '\n';
    } catch (const RunFailure& failure) {
      output << "failure: " << failure.message() << '\n';
    }
  }
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
        {"set Main9.Text1 1", "line 2: there is no window Main9"},
        {"set Main1.Text99 1", "line 2: window Main1 has no control Text99"},
        {"set Main1.Command6 1", "line 2: Main1.Command6 is a control of another kind"},
        {"set Main1 1", "line 2: \"Main1\" is not a name of the form Window.Control"},
        {"click Main1.Text1", "line 2: Main1.Text1 cannot be clicked"},
        {"select Main1.Text1 1", "line 2: Main1.Text1 has no items"},
        {"select Main1.List3 x", "line 2: INDEX is \"x\", a whole number is expected"},
        {"select Main1.Combo1 -1", "line 2: Main1.Combo1 has no item -1, it has 15, the first is 0"},
        {"choose Main1.Combo1 17", "line 2: Main1.Combo1 has no item \"17\""},
        {"call Main1.Jump", "line 2: window Main1 has no operation Jump"},
        {"show Nowhere", "line 2: there is no window Nowhere"},
        {"print Main1.Nothing", "line 2: Main1 has no control or field Nothing"},
        {"print Module1.RefH", "line 2: Module1.RefH takes 1 indices, given are 0"},
        {"print Module1.RefH(1", "line 2: \"RefH(1\" has no closing bracket"},
        {"echo \"x", "line 2: a quote is not closed"},
        {R"(echo "\q")", R"(line 2: unknown \q in a quoted word; known are \" \\ \n \r \t \b)"},
        {"set Main1.Text1 4α", "line 2: \"α\" (U+03B1) is outside Latin-1"},
        {"type Main1.Text1 \xC5", "line 2: \"Å\" is not UTF-8"},
        {"choose Main1.Combo1 😀", "line 2: \"😀\" (U+1F600) is outside Latin-1"},
        {"echo \xED\xA0\x80", "line 2: \"í\xC2\xA0\xC2\x80\" is not UTF-8"},
        {"answer α\nclick Pattern.Fsize", "line 2: \"α\" (U+03B1) is outside Latin-1"}}) {
    const auto result = run(std::string("echo before\n") + script + "\necho after\n");
    EXPECT_EQ(result.error, error);
    EXPECT_EQ(result.output, "before\n") << "what was printed stays, and nothing follows: " << script;
  }
}

TEST(Script, TakesTheWordsThatTheGuideTells) {
  std::istringstream guide(read_file(ZOL_SOURCE_DIR "/docs/scripting.md"));
  const std::regex form("`([a-z]+)((?: [A-Z.]+)*)`");
  std::set<std::string> names;
  for (std::string line; std::getline(guide, line);) {
    if (!line.starts_with("| `")) continue;
    for (std::smatch found; std::regex_search(line, found, form); line = found.suffix()) {
      names.insert(found[1]);
      const std::string words = found[2];
      const auto count = std::count(words.begin(), words.end(), ' ');
      for (const auto wrong : {count - 1, count + 1}) {
        if (wrong < 0 || words.ends_with(" WORDS")) continue;
        std::string script = found[1];
        for (int i = 0; i < wrong; ++i) script += " x";
        EXPECT_TRUE(run(script).error.starts_with("line 1: the form is: " + found[1].str())) << script;
      }
    }
  }
  EXPECT_EQ(names.size(), 26U);
}

// A text of a picture is quoted so that it can be read back as a word.
TEST(Script, QuotesTextsOfPictures) {
  std::ostringstream output;
  ScriptServices services(output, nullptr);
  Program program({ZOL_SOURCE_DIR "/data/ZOL", ZOL_SOURCE_DIR "/data/ZOLDATA"}, services);
  program.start();
  program.windows().use<Pattern2Form>().Picture1.print(R"(a "b" \ c)");
  std::istringstream script("print Pattern2.Picture1\n");
  ScriptDriver(program, services, output).run(script);
  EXPECT_TRUE(output.str().ends_with(R"("a \"b\" \\ c")"
                                     "\n"))
      << output.str();
}

// What scripts of users may name: controls, fields and operations, as the pages of names list them.
TEST(Script, ReachesAllNamesOfThePages) {
  std::ostringstream output;
  ScriptServices services(output, nullptr);
  Program program({ZOL_SOURCE_DIR "/data/ZOL", ZOL_SOURCE_DIR "/data/ZOLDATA"}, services);
  program.start();
  for (const auto& [name, text] : name_pages(program)) {
    EXPECT_EQ(text, read_file(ZOL_SOURCE_DIR "/docs/names/" + name)) << "zol-script --names docs/names writes them";
  }
}

// Å is one byte in a box and in a file, and two where the script meets them.
TEST(Script, IsUtf8WhereBoxesAreLatin1) {
  const ScratchFolder folder;
  const std::string crystal = folder.path("Å³-α.cry");
  const std::string answer = "answer \"" + crystal + "\"\n";
  const auto result =
      run("set Main1.Text1 4\nset Main1.Text7 221\nleave Main1.Text7\nclick Main1.Command1\n"
          "type InputAtom.G \"Å³\\rNa\\r\"\nprint InputAtom.G\nclick InputAtom.Command1\nprint Module1.AtomLabel(1)\n" +
          answer + "click Main1.DATA_SAVE\nprint Main1.CrystalFile\nprint Main1.Text17\n" + answer +
          "click Main1.DATA_LOAD\ncaption Xd\n");
  EXPECT_EQ(result.error, "");
  EXPECT_EQ(result.output, "\tSite Name\tElement\tOccupancy\tX\tY\tZ\tBiso\n 1\tÅ³\tNa\t\t\t\t\t\nÅ³\n" + crystal +
                               "\n" + crystal + "\nÅ³-α.cry\n");
  EXPECT_NE(folder.read("Å³-α.cry").find("\"\xC5\xB3\""), std::string::npos);
}

/// Whole tasks: each script of these folders prints what stands in the file beside it, failures of the run on the way
/// included. Paths in them start at the source tree.
class TaskScript : public testing::TestWithParam<std::string> {};
TEST_P(TaskScript, PrintsWhatIsStored) {
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
INSTANTIATE_TEST_SUITE_P(Scripts, TaskScript, testing::ValuesIn(tasks()), [](const auto& row) {
  std::string name = row.param;
  std::replace_if(
      name.begin(), name.end(), [](char c) { return c == '-' || c == '/'; }, '_');
  return name;
});

// Those with pictures in files, which the program itself reads.
TEST(Script, PrintsWhatIsStoredOfPictures) {
  const ScratchFolder folder;
  const std::filesystem::path source = ZOL_SOURCE_DIR "/tests/scripts/pictures";
  for (const auto& entry : std::filesystem::directory_iterator(source)) {
    if (entry.path().extension() != ".zs") continue;
    const std::string line =
        "cd " ZOL_SOURCE_DIR " && " ZOL_SCRIPT " " + entry.path().string() + " >" + folder.path("out");
    EXPECT_EQ(WEXITSTATUS(std::system(line.c_str())), 0) << line;  // NOLINT(cert-env33-c,concurrency-mt-unsafe)
    EXPECT_EQ(folder.read("out"), read_file(std::filesystem::path(entry.path()).replace_extension(".out").string()));
  }
}

// The script or the output can break off at any time: nothing of it is lost in silence.
TEST(ScriptProgram, EndsWithItsStatusAndTellsWhatIsLost) {
  struct Row {
    const char* command;  // $zol is the program
    int status;
    std::string error;  // begins standard error
  };
  const ScratchFolder folder;
  const std::string full = "zol-script: cannot write to standard output: No space left on device\n";
  const std::string stopped = "zol-script: stopped by a signal\n";
  folder.write("a.zs", "echo a\n");
  folder.write("long.zs",
               "echo begun\nshow Main1\nset Main1.Text1 9\nset Main1.Text2 9\nset Main1.Text3 9\n"
               "set Main1.Text4 90\nset Main1.Text5 90\nset Main1.Text6 90\nset Main1.Text7 1\n"
               "set Main1.Text15 .12\nclick Main1.Command6\necho over\n");
  for (const auto& [command, status, error] :
       {Row{"echo 'click MAIN_MENU.Command5\njump' | $zol", 0, ""},
        {"$zol --help", 0, ""},
        {"$zol --version", 0, ""},
        {"echo set Main1.Text7 260 | $zol", 1, "failure of the run: cannot open "},
        {"$zol --data /nowhere", 1, "failure of the run: cannot open /nowhere/Camera_Parameters_New"},
        {"echo jump | $zol", 2, "line 1: "},
        {"$zol --wrong", 2, "zol-script: unknown option"},
        {"$zol a.zs second.zs", 2, "zol-script: one script at most"},
        {"echo click Main1.DATA_LOAD | $zol", 3, "unanswered question: "},
        {"$zol a.zs >/dev/full", 1, full},
        {"$zol --help >/dev/full", 1, full},
        {"echo 'echo a\njump' | $zol >/dev/full", 2, "line 2: unknown operation \"jump\"\n" + full},
        {"$zol a.zs >&-", 1, "zol-script: cannot write to standard output: Bad file descriptor\n"},
        {"{ while ! [ -e gone ]; do sleep 0.01; done; $zol a.zs; echo $? >piped; } | { exec <&-; touch gone; };"
         " while ! [ -s piped ]; do sleep 0.01; done; (exit `cat piped`)",
         1, "zol-script: cannot write to standard output: Broken pipe\n"},
        // Long work, then nothing but waiting for a line.
        {"timeout --preserve-status -s INT 0.3 $zol long.zs", 130, stopped},
        {"timeout --preserve-status -s TERM 0.3 $zol long.zs", 143, stopped},
        {"sleep 1 | timeout --preserve-status -s INT 0.3 $zol", 130, stopped},
        {"$zol .", 1, "failure of the run: cannot read the script after line 0: Is a directory\n"},
        {"$zol <.", 1, "failure of the run: cannot read the script after line 0: Is a directory\n"},
        {"$zol /proc/self/mem", 1, "failure of the run: cannot read the script after line 0: Input/output error\n"}}) {
    const std::string line = "cd " + folder.path("") + "; zol=" ZOL_SCRIPT "; exec >out 2>err; " + command;
    EXPECT_EQ(WEXITSTATUS(std::system(line.c_str())), status) << command;  // NOLINT(cert-env33-c,concurrency-mt-unsafe)
    const std::string told = folder.read("err");
    EXPECT_TRUE(error.empty() ? told.empty() : told.starts_with(error)) << command << ": " << told;
    EXPECT_TRUE(!std::string_view(command).ends_with("long.zs") || folder.read("out") == "begun\n");
  }
}

}  // namespace
}  // namespace zol
