#include "batch/output_guard.h"

#include <sys/stat.h>

#include <CLI/CLI.hpp>
#include <filesystem>
#include <map>

#include "core/file_links.h"
#include "core/run_failure.h"

namespace zol {
namespace {

namespace fs = std::filesystem;

/// The same for all names of a file, which need not be there yet.
std::string identity(const std::string& path) {
  struct stat found {};
  if (stat(path.c_str(), &found) == 0) return std::to_string(found.st_dev) + ':' + std::to_string(found.st_ino);
  std::error_code error;
  const fs::path place = fs::weakly_canonical(fs::absolute(behind_links(path)), error);
  return error ? path : place.string();
}

/// "." of a name alone.
fs::path folder_of(const fs::path& file) { return file.has_parent_path() ? file.parent_path() : fs::path("."); }

}  // namespace

void check_outputs(const std::vector<NamedFile>& outputs, const std::vector<NamedFile>& inputs) {
  std::map<std::string, std::string> options_of_inputs;
  std::map<std::string, std::string> options_of_outputs;
  for (const auto& [option, path] : inputs) options_of_inputs.emplace(identity(path), option);
  for (const auto& [option, path] : outputs) {
    const std::string file = identity(path);
    if (const auto input = options_of_inputs.find(file); input != options_of_inputs.end()) {
      throw CLI::ValidationError(option, path + " is the file of " + input->second + ", which would be lost");
    }
    const auto [other, first] = options_of_outputs.emplace(file, option);
    if (first) continue;
    throw CLI::ValidationError(
        option, path + " would be written twice" + (other->second == option ? "" : ", also by " + other->second));
  }
}

void check_output(const std::string& output, const std::vector<std::string>& files) {
  std::vector<NamedFile> inputs;
  inputs.reserve(files.size());
  for (const auto& file : files) inputs.push_back({"FILE", file});
  check_outputs({{"--output", output}}, inputs);
}

void check_folder(const std::string& file, MissingFolder missing) {
  std::error_code error;
  const fs::path folder = folder_of(file);
  if (fs::is_directory(folder, error)) return;
  if (missing == MissingFolder::is_made && !fs::exists(folder, error) && fs::is_directory(folder_of(folder), error)) {
    return;
  }
  throw RunFailure("cannot write " + file + ": there is no folder " + folder.string());
}

void make_folder_of(const std::string& file) {
  std::error_code error;
  const fs::path folder = folder_of(file);
  fs::create_directory(folder, error);
  if (error) throw RunFailure("cannot make the folder " + folder.string() + ": " + error.message());
}

}  // namespace zol
