#include "core/temporary.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <string_view>
#include <system_error>

#include "core/file_lock.h"

namespace zol {
namespace {

namespace fs = std::filesystem;

/// A short name of its own, since one made from the name of the file may be too long for the disk.
constexpr std::string_view name_begin = ".zol-save-";
constexpr std::string_view unique_part = "XXXXXX";

bool is_temporary_name(const std::string& name) {
  return name.size() == name_begin.size() + unique_part.size() && name.starts_with(name_begin);
}

int open_folder(const std::string& path) { return open(path.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC); }

void remove_left_over(const std::string& path) {
  int descriptor = open(path.c_str(), O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
  if (descriptor < 0 && errno == EISDIR) descriptor = open_folder(path);
  if (descriptor < 0) return;
  struct stat file {};
  const bool known = fstat(descriptor, &file) == 0 && (S_ISREG(file.st_mode) || S_ISDIR(file.st_mode));
  std::error_code ignored;
  if (known && file.st_uid == geteuid() && lock_file(descriptor, LOCK_EX | LOCK_NB)) fs::remove_all(path, ignored);
  close(descriptor);
}

void remove_left_overs(const std::string& folder) {
  std::error_code error;
  for (fs::directory_iterator entry(folder.empty() ? "." : folder, error), end; !error && entry != end;
       entry.increment(error)) {
    if (is_temporary_name(entry->path().filename().string())) remove_left_over(entry->path().string());
  }
}

}  // namespace

Temporary::Temporary(const std::string& folder, Kind kind) {
  remove_left_overs(folder);
  while (reason_ == 0 && !make(folder, kind)) {
  }
}

/// @returns false when another program took it for left over before it was locked
bool Temporary::make(const std::string& folder, Kind kind) {
  path_ = folder + std::string(name_begin) + std::string(unique_part);
  if (kind == Kind::file) {
    descriptor_ = mkostemp(path_.data(), O_CLOEXEC);
  } else if (mkdtemp(path_.data()) != nullptr) {
    descriptor_ = open_folder(path_);
  }
  if (descriptor_ < 0) {
    reason_ = errno;
    path_.clear();
    return false;
  }
  (void)lock_file(descriptor_, LOCK_EX);  // on a disk without locks nothing is taken for left over
  struct stat made {};
  if (fstat(descriptor_, &made) == 0 && made.st_nlink > 0) return true;
  close(descriptor_);
  return false;
}

Temporary::~Temporary() {
  std::error_code ignored;
  if (!path_.empty()) fs::remove_all(path_, ignored);
  if (descriptor_ >= 0) close(descriptor_);
}

std::string folder_part(const std::string& path) {
  const std::size_t slash = path.rfind('/');
  return slash == std::string::npos ? "" : path.substr(0, slash + 1);
}

}  // namespace zol
