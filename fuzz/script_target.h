// Scripts as a fuzz target: the whole program without a screen.
#pragma once

#include <filesystem>
#include <string>

#include "shell/desktop/picture_export.h"

namespace zol::fuzz {

/// The pictures of all runs. They live on: Qt bears no end behind that of main.
[[nodiscard]] OffscreenPictures& pictures();

/// A folder with crystals, structure files and a picture to load, and a place for what is saved.
class ScriptFolder {
 public:
  explicit ScriptFolder(std::filesystem::path folder);
  ScriptFolder(const ScriptFolder&) = delete;
  ScriptFolder& operator=(const ScriptFolder&) = delete;
  ~ScriptFolder();

  /// Bounds a script and runs it with this as the current folder.
  /// @throws RunFailure  from the program. A script that is wrong or lacks an answer just ends
  void run(const std::string& script);

 private:
  void fill();
  void restore();

  std::filesystem::path folder_;
  std::filesystem::file_time_type filled_;
};

/// Bounds a script and runs it in a folder of its own.
void run_script(const std::string& input);

/// Changes the file of kept work of a program, puts its checksums right again, and restores it: what is taken for sound
/// must be harmless.
/// @param input  records of five bytes: a place and the byte that goes there; behind the last whole one, of a rest of
/// two
///               bytes, how much is cut off the end
void restore_changed_work(const std::string& input);

}  // namespace zol::fuzz
