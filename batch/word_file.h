// Words of a command in a file, so that a run can be repeated: JSON, an entry for each option under its long name.
#pragma once

#include <CLI/CLI.hpp>
#include <string>
#include <vector>

namespace zol {

/// Adds --settings and --write-settings. To be called before other options are added: what the file tells counts then
/// as told, also for options that have to be, and the command line wins.
void add_settings_words(CLI::App& command, std::string& read_from, std::string& write_to);

/// All options that were told or have a usual value, but those left out and the two above.
[[nodiscard]] std::string words_text(const CLI::App& command, const std::vector<std::string>& left_out);

/// Tells the command what a file says, where its command line is silent.
/// @throws RunFailure  it cannot be read, or has a name or value that the command does not know; the message tells the
///                     line
void read_words(CLI::App& command, const std::string& path);

}  // namespace zol
