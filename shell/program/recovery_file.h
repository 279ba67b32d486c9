// The files that keep work beyond the end of a run. Each running program has one of its own, which it holds by a lock;
// one whose lock is free was left by a run that has ended.
#pragma once

#include <chrono>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "shell/program/snapshot_file.h"

namespace zol {

/// A lock file that this program holds; the lock ends with it, however the program ends.
class HeldLock {
 public:
  /// Takes the lock of a file that is there. @returns none when another program holds it
  [[nodiscard]] static std::optional<HeldLock> take(const std::string& path);
  /// Makes a lock file of a new name. @throws RunFailure  the folder takes none
  [[nodiscard]] static HeldLock make(const std::string& folder);
  HeldLock(HeldLock&& other) noexcept
      : path_(std::move(other.path_)), descriptor_(std::exchange(other.descriptor_, -1)) {}
  HeldLock& operator=(HeldLock&&) = delete;
  HeldLock(const HeldLock&) = delete;
  HeldLock& operator=(const HeldLock&) = delete;
  ~HeldLock();

  [[nodiscard]] const std::string& path() const { return path_; }
  /// Removes the file; the lock is held to the end of this object.
  void remove_file() const;

 private:
  HeldLock(std::string path, int descriptor) : path_(std::move(path)), descriptor_(descriptor) {}

  std::string path_;
  int descriptor_ = -1;  ///< -1: there is no such file, and nobody holds it
};

/// Work that an earlier run has left.
struct LeftOver {
  std::string path;
  WorkNote note;
  std::string fault;  ///< why it cannot be read; empty where it can
};

/// Those in a folder, the latest first. Of more than most_left_overs the oldest are removed.
inline constexpr std::size_t most_left_overs = 10;
[[nodiscard]] std::vector<LeftOver> left_overs(const std::string& folder);

/// Holds a left-over while it is restored or removed.
class ClaimedWork {
 public:
  /// @throws RunFailure  another program holds it, or it is gone
  explicit ClaimedWork(const std::string& path);
  [[nodiscard]] std::string bytes() const;
  void remove() const;

 private:
  std::string path_;
  HeldLock lock_;
};

/// The file of this run. Nothing here ends the run: fault() reports once what goes wrong.
class RecoveryFile {
 public:
  using Clock = std::chrono::steady_clock;

  /// @param folder  made where it is missing; empty: there is none, which is a fault
  explicit RecoveryFile(std::string folder, Clock::duration pause = std::chrono::seconds(1));
  RecoveryFile(const RecoveryFile&) = delete;
  RecoveryFile& operator=(const RecoveryFile&) = delete;
  /// The file stays as it is, and its lock is free then.
  ~RecoveryFile();

  /// Takes what is to be written next; it comes to the disk within a pause, from a thread of its own.
  void take(std::shared_ptr<const KeptWork> work);
  /// Writes at once. @returns whether it is on the disk
  bool write(const KeptWork& work);
  /// Removes the file: there is nothing to be kept.
  void remove();

  /// Why the file could not be written, once for each reason.
  [[nodiscard]] std::optional<std::string> fault();

 private:
  void run();
  bool write_locked(const KeptWork& work);

  const std::string folder_;
  const Clock::duration pause_;

  std::mutex file_mutex_;  ///< over what is on the disk
  std::optional<HeldLock> lock_;

  std::mutex mutex_;  ///< over what follows
  std::condition_variable wake_;
  std::shared_ptr<const KeptWork> next_;
  std::string fault_, told_fault_;
  bool ends_ = false;

  std::thread thread_;  ///< the last member: it uses the others
};

}  // namespace zol
