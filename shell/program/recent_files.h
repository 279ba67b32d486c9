// The files that were used last, the latest first.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "shell/services/services.h"

namespace zol {

class RecentFiles {
 public:
  static constexpr std::size_t most = 10;  ///< of a kind

  /// A file was used. @param path  a relative one starts at the present folder
  void note(FileKind kind, const std::string& path);
  void drop(FileKind kind, const std::string& path);
  [[nodiscard]] const std::vector<std::string>& of(FileKind kind) const;
  void set(FileKind kind, std::vector<std::string> paths);

 private:
  std::map<FileKind, std::vector<std::string>> paths_;
};

}  // namespace zol
