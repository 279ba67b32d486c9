// zol-batch powder and zol-batch rings.
#pragma once

#include <CLI/CLI.hpp>

namespace zol {

/// Adds the sub-commands. Their work begins when the words have been read.
void add_powder_command(CLI::App& app);
void add_rings_command(CLI::App& app);

}  // namespace zol
