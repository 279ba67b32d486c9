// A file that readers open by a path, in memory alone.
#pragma once

#include <string>
#include <string_view>

namespace zol::fuzz {

class MemoryFile {
 public:
  explicit MemoryFile(std::string_view bytes);
  MemoryFile(const MemoryFile&) = delete;
  MemoryFile& operator=(const MemoryFile&) = delete;
  ~MemoryFile();

  [[nodiscard]] std::string path() const { return "/proc/self/fd/" + std::to_string(descriptor_); }

 private:
  int descriptor_;
};

}  // namespace zol::fuzz
