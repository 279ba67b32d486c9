// Man pages, completions of shells and the reference page of the guide, made from the words that the commands take.
#pragma once

#include <CLI/CLI.hpp>
#include <string>

namespace zol {

/// Writes into a folder: zol-batch.1 and a page zol-batch-COMMAND.1 of each command; the completions zol-batch.bash,
/// _zol-batch (zsh) and zol-batch.fish; batch-reference.md.
/// @throws RunFailure  a file cannot be written
void write_reference(const CLI::App& app, const std::string& folder);

}  // namespace zol
