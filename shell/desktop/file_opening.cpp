#include "shell/desktop/file_opening.h"

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <system_error>
#include <utility>

#include "core/run_failure.h"
#include "shell/desktop/qt_text.h"
#include "shell/desktop/user_events.h"
#include "shell/program/program.h"

namespace zol {

std::vector<FileWay> file_ways(const Window& window) {
  std::vector<FileWay> ways;
  for (const FileDrop& drop : window.file_drops) ways.push_back({drop.kind, drop.ending, {{drop.item->path()}}});
  ways.insert(ways.end(), window.file_ways.begin(), window.file_ways.end());
  return ways;
}

const FileWay* way_for(const std::vector<FileWay>& ways, const std::string& path) {
  const auto found = std::find_if(ways.begin(), ways.end(), [&path](const FileWay& way) {
    return to_qt(path).endsWith(QString::fromStdString(way.ending), Qt::CaseInsensitive);
  });
  return found == ways.end() ? nullptr : &*found;
}

std::string fault_of_file(const std::string& path) {
  std::error_code error;
  const auto status = std::filesystem::status(path, error);
  if (!std::filesystem::exists(status)) return "there is no file " + path;
  if (!std::filesystem::is_regular_file(status)) return path + " is not a file";
  return access(path.c_str(), R_OK) == 0 ? "" : "cannot open " + path + ": " + std::generic_category().message(errno);
}

void FileOpening::open(Window& from, const FileWay& way, const std::string& path) {
  auto uses = way.uses;
  uses.back().file = path;
  go(from, "open " + path.substr(path.rfind('/') + 1), std::move(uses));
}

void FileOpening::go(Window& from, const std::string& step, std::vector<Use> uses) {
  std::string script = script_of(uses);
  UserEvent event{step, std::move(script), [this, used = std::move(uses)] { use_or_tell(used); }};
  event.step = to_qt(step).toLatin1().toStdString();
  events_.act(from, std::move(event));
}

void FileOpening::use_or_tell(const std::vector<Use>& uses) {
  const auto tell = [this](const std::string& fault) { program_.bench().services.message(fault, "ZOL"); };
  for (const Use& use : uses) {
    const std::string fault = use.file.empty() ? "" : fault_of_file(use.file);
    if (!fault.empty()) return tell(fault);
  }
  const auto put_back = program_.keep();
  try {
    use_controls(program_.windows(), uses);
  } catch (const RunFailure& failure) {
    put_back();
    failed_();
    tell(failure.message());
  }
}

}  // namespace zol
