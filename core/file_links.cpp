#include "core/file_links.h"

#include <filesystem>
#include <system_error>

namespace zol {

namespace fs = std::filesystem;

std::string behind_links(std::string path) {
  constexpr int most_links = 40;  // as the kernel
  std::error_code error;
  for (int i = 0; i < most_links && fs::is_symlink(path, error); ++i) {
    const std::string folder = fs::canonical(fs::path(path).parent_path() / ".", error).string();
    if (error || folder.starts_with("/proc/")) break;
    path = (fs::path(folder) / fs::read_symlink(path, error)).string();
  }
  return path;
}

}  // namespace zol
