// The pages of docs/names: what a script can name, window by window.
#pragma once

#include <map>
#include <string>

#include "shell/program/program.h"

namespace zol {

/// Texts of Markdown pages by the names of their files. Every window is in use afterwards.
[[nodiscard]] std::map<std::string, std::string> name_pages(Program& program);

}  // namespace zol
