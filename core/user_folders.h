// Folders of the user's own, by the rules of the desktop.
#pragma once

#include <filesystem>
#include <string>

namespace zol {

/// The folder that a variable of the environment names, or one in the home folder; empty where neither is known.
[[nodiscard]] std::filesystem::path user_folder(const char* variable, const char* below_home);

/// The user's folder for what can be made again; empty where the system names none.
[[nodiscard]] std::string cache_folder();

}  // namespace zol
