#include "shell/program/recent_files.h"

#include <algorithm>
#include <filesystem>
#include <utility>

namespace zol {

void RecentFiles::note(FileKind kind, const std::string& path) {
  std::error_code error;
  const auto absolute = std::filesystem::absolute(path, error);
  const std::string noted = error ? path : absolute.lexically_normal().string();
  drop(kind, noted);
  auto& paths = paths_[kind];
  paths.insert(paths.begin(), noted);
  if (paths.size() > most) paths.resize(most);
}

void RecentFiles::drop(FileKind kind, const std::string& path) { std::erase(paths_[kind], path); }

const std::vector<std::string>& RecentFiles::of(FileKind kind) const {
  static const std::vector<std::string> none;
  const auto found = paths_.find(kind);
  return found == paths_.end() ? none : found->second;
}

void RecentFiles::set(FileKind kind, std::vector<std::string> paths) {
  if (paths.size() > most) paths.resize(most);
  paths_[kind] = std::move(paths);
}

}  // namespace zol
