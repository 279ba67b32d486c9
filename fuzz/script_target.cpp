#include "fuzz/script_target.h"

#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <sstream>

#include "core/run_failure.h"
#include "fuzz/bounded_script.h"
#include "shell/program/program.h"
#include "shell/script/script_driver.h"

namespace zol::fuzz {
namespace {

namespace fs = std::filesystem;

const fs::path source = ZOL_SOURCE_DIR;

/// The current folder as long as it lives.
class Stay {
 public:
  explicit Stay(const fs::path& folder) : before_(fs::current_path()) { fs::current_path(folder); }
  Stay(const Stay&) = delete;
  Stay& operator=(const Stay&) = delete;
  ~Stay() {
    std::error_code error;
    fs::current_path(before_, error);
  }

 private:
  fs::path before_;
};

}  // namespace

OffscreenPictures& pictures() {
  static auto& shared = *new OffscreenPictures;  // NOLINT(cppcoreguidelines-owning-memory): never deleted
  return shared;
}

ScriptFolder::ScriptFolder(fs::path folder) : folder_(std::move(folder)) { fill(); }

ScriptFolder::~ScriptFolder() {
  std::error_code error;
  fs::remove_all(folder_, error);
}

void ScriptFolder::fill() {
  fs::create_directories(folder_);
  for (const auto* origin : {"data/ZOLDATA", "examples", "examples/cif", "fuzz/seeds/icsd", "fuzz/seeds/atom_lists"}) {
    for (const auto& file : fs::directory_iterator(source / origin)) {
      if (file.is_regular_file()) fs::copy_file(file, folder_ / file.path().filename());
    }
  }
  for (const auto* file : {"Camera_Parameters_New", "Corrector_Standard"}) {
    fs::copy_file(source / "data/ZOL" / file, folder_ / file);
  }
  filled_ = fs::last_write_time(folder_);
}

/// As it was at the start, whatever has been saved into it.
void ScriptFolder::restore() {
  if (fs::last_write_time(folder_) == filled_) return;
  for (const auto& entry : fs::directory_iterator(folder_)) fs::remove_all(entry);
  fill();
}

void ScriptFolder::run(const std::string& script) {
  restore();
  const Stay stay(folder_);
  std::ostringstream output;
  ScriptServices services(output, &pictures());
  Program program({(source / "data/ZOL").string(), (source / "data/ZOLDATA").string()}, services);
  program.start();
  std::istringstream lines(bounded_script(script));
  try {
    ScriptDriver(program, services, output).run(lines);
  } catch (const ScriptError&) {
    return;
  } catch (const UnansweredQuestion&) {
    return;
  }
}

void run_script(const std::string& input) {
  static ScriptFolder folder(fs::temp_directory_path() / ("zol-fuzz-" + std::to_string(getpid())));
  folder.run(input);
}

namespace {

/// A program with something in each kind of control, and the file of its work.
struct WorkingProgram {
  WorkingProgram() {
    program.start();
    std::istringstream lines("show Main1\nanswer " + (source / "data/ZOLDATA/Silicon.cry").string() +
                             "\nclick Main1.DATA_LOAD\nclick MAIN_MENU.Command3\nset PATTERN3.Text3 33\nanswer " +
                             (source / "examples/silicon-pattern.bmp").string() +
                             "\nclick PATTERN3.ImageLoad\nclick PATTERN3.AutomaticIndexing\nclick AutoIndex.Index\n");
    ScriptDriver(program, services, output).run(lines);
    file = bytes_of(program.kept_work(program.snapshot()));
  }
  std::ostringstream output;
  ScriptServices services{output, &pictures()};
  Program program{{(source / "data/ZOL").string(), (source / "data/ZOLDATA").string()}, services};
  std::string file;
};

/// The parts of a file behind its magic word and format: count, bytes, checksum.
void put_checksums_right(std::string& file) {
  constexpr std::size_t number = sizeof(std::uint64_t);
  for (std::size_t at = 12; at + 2 * number <= file.size();) {
    std::uint64_t size = 0;
    std::memcpy(&size, file.data() + at, number);
    size = std::min<std::uint64_t>(size, file.size() - at - 2 * number);
    std::memcpy(file.data() + at, &size, number);
    const std::uint64_t sum = checksum(std::string_view(file).substr(at + number, size));
    std::memcpy(file.data() + at + number + size, &sum, number);
    at += 2 * number + size;
  }
}

}  // namespace

void restore_changed_work(const std::string& input) {
  static auto& working = *new WorkingProgram;  // NOLINT(cppcoreguidelines-owning-memory): as the pictures it draws on
  std::string file = working.file;
  constexpr std::size_t record = 5;
  for (std::size_t at = 0; at + record <= input.size(); at += record) {
    std::uint32_t place = 0;
    std::memcpy(&place, input.data() + at, sizeof place);
    file[place % file.size()] = input[at + sizeof place];
  }
  if (input.size() % record == 2) {
    std::uint16_t cut = 0;
    std::memcpy(&cut, input.data() + input.size() - sizeof cut, sizeof cut);
    file.resize(file.size() - cut % file.size());
  }
  put_checksums_right(file);
  const auto put_back = working.program.keep();
  const KeptWork work = working.program.read_work(file);
  try {
    working.program.restore(work);
    (void)bytes_of(working.program.kept_work(working.program.snapshot()));
    std::istringstream lines("print PATTERN3.Picture1\nprint AutoIndex.Bands\nprint InputAtom.G\n");
    ScriptDriver(working.program, working.services, working.output).run(lines);
  } catch (const RunFailure&) {  // the program would go on from before
  } catch (const ScriptError&) {
  }
  put_back();
  working.output.str("");
}

}  // namespace zol::fuzz
