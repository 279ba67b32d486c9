// Completions of shells.
#pragma once

#include <string>
#include <vector>

#include "batch/command_words.h"

namespace zol {

[[nodiscard]] std::string bash_completion(const std::vector<WordCommand>& commands);
[[nodiscard]] std::string zsh_completion(const std::vector<WordCommand>& commands);
[[nodiscard]] std::string fish_completion(const std::vector<WordCommand>& commands);

}  // namespace zol
