// Files that are opened past the file dialog, and other ways through the program that a window declares. The controls
// are used as a user would; what fails on the way ends nothing: it is reported, and all is as it was before.
#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "shell/services/uses.h"

namespace zol {

class Program;
class UserEvents;
class Window;

/// All ways to open a file that a window declares: its file drops, then those through other windows.
[[nodiscard]] std::vector<FileWay> file_ways(const Window& window);

/// The first way for the ending of a file; nullptr where there is none.
[[nodiscard]] const FileWay* way_for(const std::vector<FileWay>& ways, const std::string& path);

/// Why a file cannot be opened, as far as is known before it is read; empty when nothing is known against it.
[[nodiscard]] std::string fault_of_file(const std::string& path);

class FileOpening {
 public:
  /// @param failed  hears of each failure, after which all is as it was
  FileOpening(Program& program, UserEvents& events, std::function<void()> failed)
      : program_(program), events_(events), failed_(std::move(failed)) {}

  void open(Window& from, const FileWay& way, const std::string& path);
  /// @param step  its name in "Undo", in UTF-8
  void go(Window& from, const std::string& step, std::vector<Use> uses);

 private:
  void use_or_tell(const std::vector<Use>& uses);

  Program& program_;
  UserEvents& events_;
  std::function<void()> failed_;
};

}  // namespace zol
