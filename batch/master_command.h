// "zol-batch master": the dynamical master pattern of a crystal as a file.
#pragma once

#include <CLI/CLI.hpp>

namespace zol {

/// @param status  gets the exit status where the command runs
void add_master_command(CLI::App& app, int& status);

}  // namespace zol
