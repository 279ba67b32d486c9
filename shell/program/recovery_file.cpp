#include "shell/program/recovery_file.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <limits>
#include <system_error>

#include "core/atomic_file.h"
#include "core/file_lock.h"
#include "core/read_file.h"
#include "core/run_failure.h"

namespace zol {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view name_begin = "work-";
constexpr std::string_view unique_part = "XXXXXX";
constexpr std::string_view lock_ending = ".lock";
constexpr std::string_view work_ending = ".zolwork";
constexpr mode_t own_alone = 0700;

bool is_ours(const fs::path& path, std::string_view ending) {
  const std::string name = path.filename().string();
  return name.size() == name_begin.size() + unique_part.size() + ending.size() && name.starts_with(name_begin) &&
         name.ends_with(ending);
}

std::string other_ending(const std::string& path, std::string_view ending, std::string_view other) {
  return path.substr(0, path.size() - ending.size()) + std::string(other);
}
std::string work_of(const std::string& lock) { return other_ending(lock, lock_ending, work_ending); }
std::string lock_of(const std::string& work) { return other_ending(work, work_ending, lock_ending); }

/// Whether the open file still has its name: another program may have removed it before it was locked.
bool has_name(int descriptor) {
  struct stat file {};
  return fstat(descriptor, &file) == 0 && file.st_nlink > 0;
}

std::vector<std::string> files_in(const std::string& folder, std::string_view ending) {
  std::vector<std::string> files;
  std::error_code error;
  for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
    if (is_ours(entry->path(), ending)) files.push_back(entry->path().string());
  }
  return files;
}

void remove_file_at(const std::string& path) {
  std::error_code ignored;
  fs::remove(path, ignored);
}

/// What a left-over says of itself. A program that ends before it has written anything leaves an empty file.
std::optional<LeftOver> looked_at(const std::string& path) {
  LeftOver found{path, {}, ""};
  try {
    const std::string beginning = read_beginning(path, most_note_bytes);
    if (beginning.empty()) return std::nullopt;
    found.note = read_note(beginning);
  } catch (const RunFailure& failure) {
    found.fault = failure.message();
    struct stat file {};
    if (stat(path.c_str(), &file) == 0) found.note.time_ms = std::int64_t{file.st_mtime} * 1000;
  }
  return found;
}

/// Locks without work, as a program leaves that is killed before its first change.
void remove_bare_locks(const std::string& folder) {
  for (const auto& path : files_in(folder, lock_ending)) {
    std::error_code error;
    if (fs::exists(work_of(path), error)) continue;
    if (const auto held = HeldLock::take(path)) held->remove_file();
  }
}

}  // namespace

std::optional<HeldLock> HeldLock::take(const std::string& path) {
  const int descriptor = open(path.c_str(), O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
  if (descriptor < 0 && errno != ENOENT) return std::nullopt;
  HeldLock held(path, descriptor);
  if (descriptor < 0) return held;
  if (!lock_file(descriptor, LOCK_EX | LOCK_NB)) return std::nullopt;
  return held;
}

HeldLock HeldLock::make(const std::string& folder) {
  for (;;) {
    std::string path = folder + '/' + std::string(name_begin) + std::string(unique_part) + std::string(lock_ending);
    const int descriptor = mkostemps(path.data(), static_cast<int>(lock_ending.size()), O_CLOEXEC);
    if (descriptor < 0) throw RunFailure("cannot write into " + folder + ": " + std::strerror(errno));
    HeldLock held(path, descriptor);
    if (!lock_file(descriptor, LOCK_EX))
      throw RunFailure("cannot lock a file in " + folder + ": " + std::strerror(errno));
    if (has_name(descriptor)) return held;
  }
}

HeldLock::~HeldLock() {
  if (descriptor_ >= 0) close(descriptor_);
}

void HeldLock::remove_file() const { remove_file_at(path_); }

std::vector<LeftOver> left_overs(const std::string& folder) {
  std::vector<LeftOver> found;
  for (const auto& path : files_in(folder, work_ending)) {
    const auto held = HeldLock::take(lock_of(path));
    if (!held) continue;  // its program runs
    if (auto left = looked_at(path)) {
      found.push_back(std::move(*left));
    } else {
      remove_file_at(path);
      held->remove_file();
    }
  }
  remove_bare_locks(folder);
  std::sort(found.begin(), found.end(),
            [](const LeftOver& a, const LeftOver& b) { return a.note.time_ms > b.note.time_ms; });
  for (; found.size() > most_left_overs; found.pop_back()) {
    try {
      ClaimedWork(found.back().path).remove();
    } catch (const RunFailure&) {  // another program was first
    }
  }
  return found;
}

ClaimedWork::ClaimedWork(const std::string& path)
    : path_(path), lock_([&path] {
        auto held = HeldLock::take(lock_of(path));
        if (!held) throw RunFailure("another program has taken it");
        return std::move(*held);
      }()) {
  std::error_code error;
  if (!fs::exists(path, error)) throw RunFailure("it is no longer there");
}

std::string ClaimedWork::bytes() const { return read_file(path_, std::numeric_limits<std::size_t>::max() / 2); }

void ClaimedWork::remove() const {
  remove_file_at(path_);
  lock_.remove_file();
}

RecoveryFile::RecoveryFile(std::string folder, Clock::duration pause)
    : folder_(std::move(folder)), pause_(pause), thread_([this] { run(); }) {}

RecoveryFile::~RecoveryFile() {
  {
    const std::lock_guard held(mutex_);
    ends_ = true;
  }
  wake_.notify_one();
  thread_.join();
}

void RecoveryFile::take(std::shared_ptr<const KeptWork> work) {
  {
    const std::lock_guard held(mutex_);
    next_.swap(work);
  }
  wake_.notify_one();
}

bool RecoveryFile::write(const KeptWork& work) {
  {
    const std::lock_guard held(mutex_);
    next_.reset();  // older than this
  }
  const std::lock_guard held(file_mutex_);
  return write_locked(work);
}

/// A pause lasts as long as the writing took at least, where that is slow.
void RecoveryFile::run() {
  std::unique_lock held(mutex_);
  for (;;) {
    wake_.wait(held, [this] { return ends_ || next_ != nullptr; });
    if (ends_) return;
    held.unlock();
    const auto begun = Clock::now();
    {
      // Taken only now: what comes in while another writes is newer than what that one writes.
      const std::lock_guard file(file_mutex_);
      std::shared_ptr<const KeptWork> work;
      {
        const std::lock_guard next(mutex_);
        work.swap(next_);
      }
      if (work) write_locked(*work);
    }
    const auto took = Clock::now() - begun;
    held.lock();
    wake_.wait_until(held, begun + std::max<Clock::duration>(pause_, 2 * took), [this] { return ends_; });
  }
}

bool RecoveryFile::write_locked(const KeptWork& work) {
  std::string reason;
  try {
    if (folder_.empty()) throw RunFailure("neither HOME nor XDG_STATE_HOME names a folder");
    if (!lock_) {
      fs::create_directories(fs::path(folder_).parent_path());
      if (mkdir(folder_.c_str(), own_alone) != 0 && errno != EEXIST) {
        throw RunFailure("cannot make " + folder_ + ": " + std::strerror(errno));
      }
      lock_.emplace(HeldLock::make(folder_));
    }
    // Made here for its owner alone; later files take that over.
    const std::string path = work_of(lock_->path());
    const int made = open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (made >= 0) close(made);
    AtomicFile file(path);
    file.write(bytes_of(work));
    file.commit();
  } catch (const RunFailure& failure) {
    reason = failure.message();
  } catch (const std::exception& failure) {
    reason = failure.what();
  }
  const std::lock_guard held(mutex_);
  fault_ = reason;
  return reason.empty();
}

void RecoveryFile::remove() {
  {
    const std::lock_guard held(mutex_);
    next_.reset();
  }
  const std::lock_guard held(file_mutex_);
  if (!lock_) return;
  remove_file_at(work_of(lock_->path()));
  lock_->remove_file();
  lock_.reset();
}

std::optional<std::string> RecoveryFile::fault() {
  const std::lock_guard held(mutex_);
  if (fault_.empty() || fault_ == told_fault_) return std::nullopt;
  told_fault_ = fault_;
  return fault_;
}

}  // namespace zol
