#include "fuzz/memory_file.h"

#include <sys/mman.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

namespace zol::fuzz {

MemoryFile::MemoryFile(std::string_view bytes) : descriptor_(memfd_create("input", MFD_CLOEXEC)) {
  while (descriptor_ >= 0 && !bytes.empty()) {
    const ssize_t written = write(descriptor_, bytes.data(), bytes.size());
    if (written <= 0) break;
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  if (descriptor_ < 0 || !bytes.empty()) throw std::system_error(errno, std::generic_category(), "a file in memory");
}

MemoryFile::~MemoryFile() { close(descriptor_); }

}  // namespace zol::fuzz
