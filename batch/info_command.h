// zol-batch info.
#pragma once

#include <CLI/CLI.hpp>

namespace zol {

/// Adds the sub-command. Its work begins when the words have been read; the status goes to where it is told.
void add_info_command(CLI::App& app, int& status);

}  // namespace zol
