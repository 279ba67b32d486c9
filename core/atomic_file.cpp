#include "core/atomic_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <iostream>
#include <limits>
#include <memory>
#include <optional>
#include <system_error>
#include <utility>

#include "core/file_links.h"
#include "core/read_file.h"
#include "core/run_aside.h"
#include "core/run_failure.h"

namespace zol {
namespace {

namespace fs = std::filesystem;

/// The number of a file that this process has open, when the path names it as /dev/stdout does.
std::optional<int> own_descriptor(const std::string& path) {
  std::error_code error;
  const fs::path name(path);
  if (!fs::is_symlink(path, error)) return std::nullopt;
  if (fs::canonical(name.parent_path(), error) != "/proc/" + std::to_string(getpid()) + "/fd") return std::nullopt;
  const std::string digits = name.filename().string();
  int number = 0;
  const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), number);
  return read.ec == std::errc() ? std::optional(number) : std::nullopt;
}

/// Access lists and other extended attributes. @returns false when not all could be copied
bool copy_attributes(const std::string& from, int to) {
  (void)fremovexattr(to, "system.posix_acl_access");  // what the folder gives to new files
  const ssize_t size = listxattr(from.c_str(), nullptr, 0);
  if (size < 0) return errno == ENOTSUP;
  std::string names(static_cast<std::size_t>(size), '\0');
  if (listxattr(from.c_str(), names.data(), names.size()) != size) return false;
  for (std::size_t at = 0; at < names.size(); at += std::strlen(names.c_str() + at) + 1) {
    const char* name = names.c_str() + at;
    const ssize_t length = getxattr(from.c_str(), name, nullptr, 0);
    std::string value(static_cast<std::size_t>(std::max<ssize_t>(length, 0)), '\0');
    if (length < 0 || getxattr(from.c_str(), name, value.data(), value.size()) != length) return false;
    if (fsetxattr(to, name, value.data(), value.size(), 0) != 0) return false;
  }
  return true;
}

/// Gives owner, attributes and permissions of the old file to the new one. @returns false where it fails
bool takes_over(const struct stat& old, const std::string& path, int descriptor) {
  struct stat made {};
  if (fstat(descriptor, &made) != 0) return false;
  const bool same_owner = made.st_uid == old.st_uid && made.st_gid == old.st_gid;
  if (!same_owner && fchown(descriptor, old.st_uid, old.st_gid) != 0) return false;
  return copy_attributes(path, descriptor) && fchmod(descriptor, old.st_mode & 07777U) == 0;
}

mode_t mode_of_new_files() {
  const mode_t mask = umask(0);
  umask(mask);
  return 0666U & ~mask;
}

/// @returns 0 or the reason
int write_all(int descriptor, std::string_view text) {
  while (!text.empty()) {
    const ssize_t written = ::write(descriptor, text.data(), text.size());
    if (written >= 0) {
      text.remove_prefix(static_cast<std::size_t>(written));
    } else if (errno != EINTR) {
      return errno;
    }
  }
  return 0;
}

/// @returns 0 or the reason
int write_all(int descriptor, std::string_view text, Task* task) {
  if (task == nullptr) return write_all(descriptor, text);
  constexpr std::size_t piece = 1 << 20;
  int reason = 0;
  for (std::size_t at = 0; at < text.size() && reason == 0; at += piece) {
    task->check();
    reason = write_all(descriptor, text.substr(at, piece));
  }
  return reason;
}

/// @returns 0 or the reason
int bring_to_disk(int descriptor) {
  return fsync(descriptor) == 0 || errno == EINVAL ? 0 : errno;  // EINVAL: nothing that could be brought to a disk
}

/// A disk may take seconds: the task is asked meanwhile. @returns 0 or the reason
int bring_to_disk(int descriptor, Task* task) {
  if (task == nullptr) return bring_to_disk(descriptor);
  const std::shared_ptr<int> own(new int(fcntl(descriptor, F_DUPFD_CLOEXEC, 0)), [](const int* held) {
    close(*held);
    delete held;
  });
  if (*own < 0) return bring_to_disk(descriptor);
  return run_aside<int>(*task, [own] { return bring_to_disk(*own); });
}

/// Makes a file hold the text and nothing more. @returns 0 or the reason
int replace_contents(int descriptor, std::string_view text) {
  if (lseek(descriptor, 0, SEEK_SET) != 0) return errno;
  if (const int reason = write_all(descriptor, text); reason != 0) return reason;
  if (ftruncate(descriptor, static_cast<off_t>(text.size())) != 0) return errno;
  return bring_to_disk(descriptor);
}

}  // namespace

AtomicFile::AtomicFile(std::string path) : path_(std::move(path)), target_(behind_links(path_)) {
  struct stat old {};
  if (stat(target_.c_str(), &old) == 0) {
    prepare_to_replace(old);
  } else if (errno == ENOENT) {
    begin_temporary();
    if (temporary_->reason() != 0) fail(temporary_->reason());
    (void)fchmod(temporary_->descriptor(), mode_of_new_files());
  } else {
    fail(errno);
  }
}

AtomicFile::~AtomicFile() {
  if (in_place_ >= 0) close(in_place_);
}

void AtomicFile::fail(const std::string& why) const { throw RunFailure("cannot write " + path_ + ": " + why); }
void AtomicFile::fail(int reason) const { fail(std::strerror(reason)); }

void AtomicFile::begin_temporary() { temporary_.emplace(folder_part(target_), Temporary::Kind::file); }

void AtomicFile::prepare_to_replace(const struct stat& old) {
  if (S_ISDIR(old.st_mode)) fail("it is a folder");
  if (!S_ISREG(old.st_mode) || own_descriptor(target_)) return open_stream();
  // Root may write any file; one that is protected from all is meant to stay, though.
  if ((old.st_mode & 0222U) == 0) fail("it is write-protected");
  if (faccessat(AT_FDCWD, target_.c_str(), W_OK, AT_EACCESS) != 0) fail(errno);
  replaces_ = true;
  if (old.st_nlink == 1) {
    begin_temporary();
    const int reason = temporary_->reason();
    if (reason == ENOSPC || reason == EDQUOT) fail(reason);
    if (reason == 0 && takes_over(old, target_, temporary_->descriptor())) return;
  }
  open_in_place();
}

void AtomicFile::open_in_place() {
  temporary_.reset();
  in_place_ = open(target_.c_str(), O_WRONLY | O_CLOEXEC);
  if (in_place_ < 0) fail(errno);
}

/// Opens a pipe or a device without waiting: one that nobody reads from would wait for ever.
void AtomicFile::open_stream() {
  is_stream_ = true;
  if (const auto own = own_descriptor(target_)) {
    in_place_ = fcntl(*own, F_DUPFD_CLOEXEC, 0);
  } else {
    in_place_ = open(target_.c_str(), O_WRONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (in_place_ < 0 && errno == ENXIO) fail("nobody reads from it");
    if (in_place_ >= 0) (void)fcntl(in_place_, F_SETFL, O_WRONLY);  // the writing itself waits for the reader
  }
  if (in_place_ < 0) fail(errno);
}

void AtomicFile::commit(Task* task) {
  if (temporary_) {
    commit_temporary(task);
  } else if (is_stream_) {
    commit_stream();
  } else {
    commit_in_place();
  }
}

void AtomicFile::flush() {
  if (!temporary_) return;
  if (const int reason = write_all(temporary_->descriptor(), text_); reason != 0) fail(reason);
  text_.clear();
  flushed_ = true;
}

void AtomicFile::commit_temporary(Task* task) {
  if (const int reason = write_all(temporary_->descriptor(), text_, task); reason != 0) fail(reason);
  if (const int reason = bring_to_disk(temporary_->descriptor(), task); reason != 0) fail(reason);
  if (std::rename(temporary_->path().c_str(), target_.c_str()) == 0) {
    temporary_->renamed();
  } else if (const int reason = errno;
             replaces_ && !flushed_ && (reason == EACCES || reason == EPERM || reason == EBUSY)) {
    open_in_place();  // the folder lets none but the owner take a name away, or something is mounted on the file
    commit_in_place();
  } else {
    fail(reason);
  }
}

void AtomicFile::commit_in_place() {
  const std::string old = read_file(target_, std::numeric_limits<std::size_t>::max());
  const int reason = replace_contents(in_place_, text_);
  if (reason == 0) return;
  (void)replace_contents(in_place_, old);
  fail(reason);
}

void AtomicFile::commit_stream() {
  std::cout.flush();  // it may be the same stream: what was printed before comes first
  auto* const handler = std::signal(SIGPIPE, SIG_IGN);
  const int reason = write_all(in_place_, text_);
  (void)std::signal(SIGPIPE, handler);
  if (reason != 0) fail(reason);
}

}  // namespace zol
