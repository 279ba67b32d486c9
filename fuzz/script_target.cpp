#include "fuzz/script_target.h"

#include <unistd.h>

#include <sstream>

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

}  // namespace zol::fuzz
