#include "batch/map_outputs.h"

#include <filesystem>

#include "batch/output_guard.h"
#include "batch/picture_files.h"
#include "core/run_failure.h"
#include "scans/map_files.h"

namespace zol {
namespace {

namespace fs = std::filesystem;

/// What is not a file but a word of its own, as "auto", names none either way.
std::vector<NamedFile> inputs_of(const MapWords& words) {
  std::vector<NamedFile> inputs{{"SCAN", words.scan}};
  for (const auto& crystal : words.crystals) inputs.push_back({"--crystal", crystal});
  for (const auto& master : words.master.masters) inputs.push_back({"--master", master});
  if (!words.settings_file.empty()) inputs.push_back({"--settings", words.settings_file});
  const std::size_t picture = words.background.find('=');
  if (picture != std::string::npos) inputs.push_back({"--background", words.background.substr(picture + 1)});
  const fs::path folder = fs::is_directory(words.scan) ? fs::path(words.scan) : fs::path(words.scan).parent_path();
  inputs.push_back({"SCAN", (folder / "Setting.txt").string()});  // of NORDIF
  return inputs;
}

std::vector<NamedFile> outputs_of(const MapWords& words) {
  std::vector<NamedFile> outputs;
  for (const auto& output : words.outputs) outputs.push_back({"--output", output});
  if (!words.outputs.empty()) outputs.push_back({"--output", part_path(words)});
  if (!words.write_settings.empty()) outputs.push_back({"--write-settings", words.write_settings});
  if (words.pictures.empty()) return outputs;
  for (const auto& picture : map_picture_paths(words.pictures)) outputs.push_back({"--pictures", picture});
  return outputs;
}

void check_endings(const MapWords& words) {
  for (const auto& output : words.outputs) {
    try {
      check_map_path(output);
    } catch (const RunFailure& failure) {
      throw CLI::ValidationError("--output", failure.message());
    }
  }
}

}  // namespace

std::string part_path(const MapWords& words) { return words.outputs.front() + ".part"; }

void check_map_outputs(const MapWords& words) {
  check_endings(words);
  check_outputs(outputs_of(words), inputs_of(words));
  for (const auto& output : words.outputs) check_folder(output);
  if (!words.write_settings.empty()) check_folder(words.write_settings);
  if (!words.pictures.empty()) check_folder(words.pictures, MissingFolder::is_made);
}

void check_part(const MapWords& words) {
  const std::string part = part_path(words);
  std::error_code error;
  if (words.resume || !(fs::file_size(part, error) > 0) || error) return;
  throw RunFailure(part + " keeps the points of a run that was stopped: --resume goes on with it, or remove " + part +
                   " to begin anew");
}

}  // namespace zol
