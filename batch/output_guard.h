// What a command writes never takes the place of what it reads.
#pragma once

#include <string>
#include <vector>

namespace zol {

/// A file of the command line, and the option that tells it.
struct NamedFile {
  std::string option, path;
};

/// To be called before anything is read.
/// @throws CLI::ValidationError  an output is an input or another output, by its name or by a link; the message names
///                               both options and the file
void check_outputs(const std::vector<NamedFile>& outputs, const std::vector<NamedFile>& inputs);

/// The same for the one output of a command that reads these files.
void check_output(const std::string& output, const std::vector<std::string>& files);

/// Whether a folder that is not there is made as its first file is written.
enum class MissingFolder { fails, is_made };
/// @throws RunFailure  there is no folder to write the file in, or to make its folder in
void check_folder(const std::string& file, MissingFolder missing = MissingFolder::fails);
/// Makes the folder of a file where there is none. @throws RunFailure  it cannot be made
void make_folder_of(const std::string& file);

}  // namespace zol
