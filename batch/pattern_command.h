// zol-batch pattern.
#pragma once

#include <CLI/CLI.hpp>

namespace zol {

/// Adds the sub-command. Its work begins when the words have been read.
void add_pattern_command(CLI::App& app);

}  // namespace zol
