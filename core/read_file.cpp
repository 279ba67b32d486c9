#include "core/read_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstring>

#include "core/run_aside.h"
#include "core/run_failure.h"

namespace zol {
namespace {

/// Closes a descriptor at the end of a scope.
struct OpenFile {
  int descriptor;
  explicit OpenFile(int opened) : descriptor(opened) {}
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;
  ~OpenFile() {
    if (descriptor >= 0) close(descriptor);
  }
};

/// Empty for a regular file.
const char* other_kind(mode_t mode) {
  if (S_ISREG(mode)) return "";
  if (S_ISDIR(mode)) return "a folder";
  if (S_ISFIFO(mode)) return "a pipe";
  return S_ISSOCK(mode) ? "a socket" : "a device";
}

void check_kind(const std::string& path, const struct stat& file) {
  if (const std::string kind = other_kind(file.st_mode); !kind.empty()) {
    throw RunFailure("cannot read " + path + ": it is " + kind + ", not a file");
  }
}

void check_size(const std::string& path, std::uintmax_t size, std::size_t most_bytes) {
  if (size <= most_bytes) return;
  throw RunFailure("cannot read " + path + ": it has " + std::to_string(size) + " bytes or more, at most " +
                   std::to_string(most_bytes) + " are taken");
}

/// @param cut  the bytes beyond the most are left, else they are too many
std::string read_bytes(const std::string& path, std::size_t most_bytes, bool cut) {
  struct stat file {};
  // Looked at before it is opened, since a device may start by that, and once more, for it may be another file by then.
  if (stat(path.c_str(), &file) == 0) check_kind(path, file);
  const OpenFile open_file(open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
  if (open_file.descriptor < 0) throw RunFailure("cannot open " + path + ": " + std::strerror(errno));
  if (fstat(open_file.descriptor, &file) != 0) throw RunFailure("cannot read " + path + ": " + std::strerror(errno));
  check_kind(path, file);
  if (!cut) check_size(path, static_cast<std::uintmax_t>(file.st_size), most_bytes);

  // The size is a guess: files that the system makes up say 0, and another program may be writing.
  const auto guess = static_cast<std::size_t>(file.st_size) + 1;
  std::string text(cut ? std::min(guess, most_bytes) : guess, '\0');
  std::size_t length = 0;
  constexpr std::size_t least_room = 4096;
  for (;;) {
    if (cut && length == most_bytes) break;
    if (length == text.size()) text.resize(length + std::max(length, least_room));
    const ssize_t count = read(open_file.descriptor, text.data() + length, text.size() - length);
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) throw RunFailure("cannot read " + path + ": " + std::strerror(errno));
    if (count == 0) break;
    length += static_cast<std::size_t>(count);
    if (!cut) check_size(path, length, most_bytes);
  }
  text.resize(cut ? std::min(length, most_bytes) : length);
  return text;
}

}  // namespace

std::string read_file(const std::string& path, std::size_t most_bytes) { return read_bytes(path, most_bytes, false); }

std::string read_file(const std::string& path, Task& task) {
  return run_aside<std::string>(task, [path] { return read_file(path); });
}

std::string read_beginning(const std::string& path, std::size_t bytes) { return read_bytes(path, bytes, true); }

}  // namespace zol
