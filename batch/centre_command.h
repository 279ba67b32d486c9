// zol-batch centre.
#pragma once

#include <CLI/CLI.hpp>

namespace zol {

/// Adds the sub-command. Its work begins when the words have been read.
void add_centre_command(CLI::App& app);

}  // namespace zol
