// zol-batch map.
#pragma once

#include <CLI/CLI.hpp>

#include "core/data_root.h"

namespace zol {

/// Adds the sub-command. Its work begins when the words have been read; the status goes to where it is told.
void add_map_command(CLI::App& app, const DataRoot& data, int& status);

}  // namespace zol
