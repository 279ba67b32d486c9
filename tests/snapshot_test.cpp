// Snapshots, and the steps that are undone and done again. Storms of random operations go between them.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <sstream>

#include "core/read_file.h"
#include "core/run_failure.h"
#include "fuzz/bounded_script.h"
#include "fuzz/script_target.h"
#include "fuzz/storm.h"
#include "shell/script/script_driver.h"
#include "shell/script/script_words.h"
#include "tests/test_files.h"

namespace zol::fuzz {
namespace {

/// All that a script can print, field by field.
std::string everything(Program& program) {
  std::ostringstream output;
  ScriptServices services(output, nullptr);
  const auto add_fields = [&output](const std::string& owner, const NamedValues& values) {
    for (const auto& name : values.names()) {
      const int dimensions = values.dimensions(name);
      output << owner << '.' << name;
      try {
        for (int i = 0; i < (dimensions > 0 ? 60 : 1); ++i) {
          for (int j = 0; j < (dimensions > 1 ? 4 : 1); ++j) {
            const std::array at{i, j};
            output << ' ' << values.text(name, std::span(at).first(static_cast<std::size_t>(dimensions)));
          }
        }
      } catch (const RunFailure&) {  // the end of the array
      }
      output << '\n';
    }
  };
  add_fields("Module1", program.module1());
  for (const auto& name : program.windows().names()) {
    Window* window = program.windows().find(name);
    if (window == nullptr) continue;
    output << name << ' ' << window->caption() << (window->visible() ? " visible\n" : " hidden\n");
    add_fields(name, window->fields());
    for (const Control* control : window->controls()) {
      std::istringstream print("print " + control->path() + "\nvisible " + control->path() + "\n");
      ScriptDriver(program, services, output).run(print);
      output << control->path() << ' ' << control->caption() << '\n';
    }
  }
  return output.str();
}

/// Answers by what is asked, the same for the same storm.
struct Answers : ScriptServices {
  explicit Answers(std::ostream& output) : ScriptServices(output, &pictures()) {}
  std::string ask_file(const FileQuestion& question) override {
    if (question.save) return question.ending.added_to("saved");
    if (question.kind == FileKind::Crystal) return ++asked % 2 == 0 ? "Quartz.cry" : "NaCl.cry";
    return question.kind == FileKind::Picture ? "silicon-pattern.bmp" : "";
  }
  std::string prompt(const std::string& /*text*/, const std::string& /*title*/) override {
    return ++asked % 3 == 0 ? "" : "2";
  }
  int asked = 0;
};

/// A program whose user goes on behind what would end it.
class SnapshotStorms : public testing::TestWithParam<std::uint64_t> {
 protected:
  SnapshotStorms() {
    for (const auto* file : {"data/ZOLDATA/NaCl.cry", "data/ZOLDATA/Quartz.cry", "examples/silicon-pattern.bmp"}) {
      const std::filesystem::path path(std::string(ZOL_SOURCE_DIR "/") + file);
      std::filesystem::copy_file(path, folder.path(path.filename().string()));
    }
    std::filesystem::current_path(folder.path(""));
    program.start();
  }
  ~SnapshotStorms() override { std::filesystem::current_path(ZOL_SOURCE_DIR); }

  /// Runs the operations of a storm, each by itself. @returns what it prints
  std::string storm(std::uint64_t seed) { return storm(program, seed); }
  std::string storm(Program& in, std::uint64_t seed) {
    for (const auto& file : std::filesystem::directory_iterator(folder.path(""))) {
      if (file.path().filename().string().starts_with("saved")) std::filesystem::remove(file);
    }
    output.str("");
    services.asked = 0;
    std::istringstream lines(bounded_script(maker.script(seed)));
    std::string line;
    while (std::getline(lines, line)) {
      if (line.starts_with("answer") || line.starts_with("cancel")) continue;
      std::istringstream operation(line);
      try {
        ScriptDriver(in, services, output).run(operation);
      } catch (const RunFailure& failure) {
        output << "failure: " << failure.message() << '\n';
      } catch (const ScriptError& error) {
        output << "script: " << error.what() << '\n';
      }
      in.windows().free_unloaded();
    }
    return output.str();
  }

 public:
  static DataRoot data() { return {ZOL_SOURCE_DIR "/data/ZOL", ZOL_SOURCE_DIR "/data/ZOLDATA"}; }

  ScratchFolder folder;
  StormMaker maker;
  std::ostringstream output;
  Answers services{output};
  Program program{data(), services};
};

// What is put back says what it said, and whatever is done to it then gives the same again.
TEST_P(SnapshotStorms, ArePutBackAndRepeatThemselves) {
  const char* given = std::getenv("ZOL_SNAPSHOT_STORMS");  // NOLINT(concurrency-mt-unsafe): one thread
  const std::uint64_t seeds = given == nullptr ? 5 : std::max<std::uint64_t>(1, std::strtoull(given, nullptr, 10) / 8);
  for (std::uint64_t i = 0; i < seeds; ++i) {
    const std::uint64_t seed = 3 * (GetParam() * seeds + i) + 50000;
    SCOPED_TRACE(seed);
    (void)storm(seed);
    const auto snapshot = program.snapshot();
    const std::string before = everything(program);
    const std::string first = storm(seed + 1);
    program.put_back(*snapshot);
    ASSERT_EQ(everything(program), before);
    ASSERT_EQ(storm(seed + 1), first);
    ASSERT_TRUE(same_work(*snapshot, *snapshot));
  }
}

// A file of it brings another program to the same point, from where it goes on in the same way; a file that is cut
// short or has a wrong byte anywhere is refused.
TEST_P(SnapshotStorms, GoOnInAnotherProgramByAFile) {
  const char* given = std::getenv("ZOL_FILE_STORMS");  // NOLINT(concurrency-mt-unsafe): one thread
  const std::uint64_t first_seed = given == nullptr ? 90000 : std::strtoull(given, nullptr, 10);
  const std::uint64_t seed = 7 * GetParam() + first_seed;
  (void)storm(seed);
  const std::string file = bytes_of(program.kept_work(program.snapshot()));
  const std::string before = everything(program);
  const std::string first = storm(seed + 1);
  Program other(data(), services);
  other.start();
  other.restore(other.read_work(file));
  ASSERT_EQ(everything(other), before);
  KeptWork again = other.kept_work(other.snapshot());
  again.note = other.read_work(file).note;
  EXPECT_EQ(bytes_of(again), file);
  ASSERT_EQ(storm(other, seed + 1), first);
  for (std::size_t i = 0; i < 20; ++i) {
    const std::size_t place = i < 12 ? 5 * i : file.size() * (i - 11) / 9;
    EXPECT_THROW((void)other.read_work(file.substr(0, place)), RunFailure) << place;
    std::string damaged = file;
    damaged[place] = static_cast<char>(damaged[place] ^ (1 << i % 8));
    EXPECT_THROW((void)other.read_work(damaged), RunFailure) << place;
  }
}
// Crystals are made ready again: the family that is left out is still in the list, and no solution has moved.
TEST(SnapshotFile, GoesOnBehindAnIndexing) {
  std::filesystem::current_path(ZOL_SOURCE_DIR);
  std::ostringstream output;
  ScriptServices services(output, &pictures());
  Program program(SnapshotStorms::data(), services);
  Program other(SnapshotStorms::data(), services);
  const auto said = [&](Program& by, const std::string& script) {
    output.str("");
    std::istringstream lines(script);
    ScriptDriver(by, services, output).run(lines);
    return output.str();
  };
  program.start();
  other.start();
  (void)said(program, read_file("examples/automatic-indexing.zs"));
  other.restore(other.read_work(bytes_of(program.kept_work(program.snapshot()))));
  EXPECT_EQ(everything(other), everything(program));
  for (const auto* script : {"select AutoIndex.Solutions 1\nprint AutoIndex.Bands\nprint PATTERN3.Picture1",
                             "select AutoIndex.Families 2\nclick AutoIndex.ToggleFamily\nprint AutoIndex.Families",
                             "click AutoIndex.RefineCentre\nprint AutoIndex.Status\nclick AutoIndex.CopyReport"}) {
    const std::string expected = said(program, script);
    EXPECT_GT(expected.size(), 40U);
    EXPECT_EQ(said(other, script), expected);
  }
}
INSTANTIATE_TEST_SUITE_P(Parts, SnapshotStorms, testing::Range<std::uint64_t>(0, 8));

}  // namespace
}  // namespace zol::fuzz
