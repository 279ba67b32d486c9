// zol-batch index.
#pragma once

#include <CLI/CLI.hpp>

namespace zol {

/// Adds the sub-command. Its work begins when the words have been read; the status goes to where it is told.
void add_index_command(CLI::App& app, int& status);

}  // namespace zol
