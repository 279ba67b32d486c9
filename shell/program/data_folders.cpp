#include "shell/program/data_folders.h"

#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <sstream>

#include "core/read_file.h"
#include "core/run_failure.h"
#include "core/trimmed.h"
#include "core/user_folders.h"
#include "shell/program/data_copy.h"
#include "shell/program/program.h"

namespace zol {
namespace {

namespace fs = std::filesystem;

/// Whatever bears the name: what is no file is told when it is read.
bool is_there(const std::string& path) {
  std::error_code error;
  return !path.empty() && fs::exists(path, error);
}

bool is_folder(const fs::path& path) {
  std::error_code error;
  return !path.empty() && fs::is_directory(path, error);
}

DataRoot below(const std::string& folder) {
  return {(fs::path(folder) / "ZOL").string(), (fs::path(folder) / "ZOLDATA").string()};
}

/// The user's own copy of the installed data, brought up to date, or else those themselves.
DataRoot copy_of_installed(const DataPlaces& places) {
  std::string reason;
  if (places.user_data.empty()) {
    reason = "neither HOME nor XDG_DATA_HOME names a folder for a copy of " + places.installed_data;
  } else {
    try {
      update_data_copy(places.installed_data, places.user_data, places.installed_version);
    } catch (const RunFailure& failure) {
      reason = failure.message();
    }
  }
  const bool copied = !places.user_data.empty() && is_folder(below(places.user_data).root);
  DataRoot data = below(copied ? places.user_data : places.installed_data);
  if (reason.empty() && ::access(data.crystal_folder.c_str(), W_OK) != 0) {
    reason = data.crystal_folder + ": " + std::strerror(errno);
  }
  data.read_only = reason;
  return data;
}

}  // namespace

DataRoot data_root_at(const std::string& folder) {
  std::error_code error;
  fs::path root = fs::absolute(folder, error).lexically_normal();
  if (!root.has_filename()) root = root.parent_path();
  return {root.string(), (root.parent_path() / "ZOLDATA").string()};
}

DataRoot read_data_settings(const std::string& path) {
  std::istringstream lines(read_file(path));
  const fs::path folder = fs::path(path).parent_path();
  DataRoot data;
  std::string line;
  for (int number = 1; std::getline(lines, line); ++number) {
    const std::string text(trimmed(line));
    if (text.empty() || text.front() == '#') continue;
    const std::size_t equals = text.find('=');
    const std::string key(trimmed(text.substr(0, equals)));
    const std::string value = equals == std::string::npos ? "" : std::string(trimmed(text.substr(equals + 1)));
    if (value.empty() || (key != "data_root" && key != "crystal_folder")) {
      throw RunFailure(path + ", line " + std::to_string(number) + R"(: ")" + text +
                       R"(" should be "data_root = FOLDER" or "crystal_folder = FOLDER")");
    }
    (key == "data_root" ? data.root : data.crystal_folder) = (folder / value).lexically_normal().string();
  }
  if (data.root.empty()) throw RunFailure(path + R"(: a line "data_root = FOLDER" is missing)");
  if (data.crystal_folder.empty()) data.crystal_folder = data_root_at(data.root).crystal_folder;
  return data;
}

DataRoot find_data_root(const DataPlaces& places) {
  if (is_there(places.beside_executable)) return read_data_settings(places.beside_executable);
  if (is_there(places.user_settings)) return read_data_settings(places.user_settings);
  if (is_folder(places.source_data)) return below(places.source_data);
  if (is_folder(places.installed_data)) return copy_of_installed(places);
  if (!places.user_data.empty() && is_folder(below(places.user_data).root)) return below(places.user_data);
  throw RunFailure("no data files found: neither in " + places.installed_data + " nor in " +
                   (places.user_data.empty() ? "the user's folders (there is no HOME)" : places.user_data) +
                   "; name their folder in " +
                   (places.user_settings.empty() ? places.beside_executable : places.user_settings) +
                   R"( with "data_root = FOLDER")");
}

std::string source_tree() {
  std::error_code error;
  const fs::path folder = fs::read_symlink("/proc/self/exe", error).parent_path();
  for (const auto& build : {folder, folder.parent_path()}) {
    const std::string note = (build / "zol-source-tree").string();
    if (!error && is_there(note)) return std::string(trimmed(read_file(note)));
  }
  return "";
}

std::string examples_folder() {
  if (const std::string tree = source_tree(); !tree.empty()) return tree + "/examples";
  std::error_code error;
  const fs::path folder = fs::read_symlink("/proc/self/exe", error).parent_path();
  return (folder.parent_path() / "share" / "doc" / "zol" / "examples").string();
}

std::string state_folder() { return user_folder("XDG_STATE_HOME", ".local/state").string(); }

DataPlaces data_places() {
  std::error_code error;
  const fs::path executable = fs::read_symlink("/proc/self/exe", error);
  const fs::path folder = executable.parent_path();
  DataPlaces places;
  if (!error) {
    places.beside_executable = (folder / "zol.conf").string();
    places.installed_data = (folder.parent_path() / "share" / "zol").string();
    places.installed_version = program_version;
  }
  if (const fs::path settings = user_folder("XDG_CONFIG_HOME", ".config"); !settings.empty()) {
    places.user_settings = (settings / "zol.conf").string();
  }
  if (const fs::path data = user_folder("XDG_DATA_HOME", ".local/share"); !data.empty())
    places.user_data = data.string();
  if (const std::string tree = source_tree(); !tree.empty()) places.source_data = tree + "/data";
  return places;
}

}  // namespace zol
