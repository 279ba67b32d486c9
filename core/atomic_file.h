// Files are written as a whole: to a temporary file beside them that takes their place only when it is complete.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "core/task.h"
#include "core/temporary.h"

struct stat;

namespace zol {

/// A file being written. Without commit, for example when the run fails, nothing of it remains and an old file keeps
/// its contents.
///
/// The new file gets the owner, permissions and extended attributes of the old one. The old file is written in place
/// when that is impossible, when no file can be made beside it, or when it has several names (hard links); if writing
/// fails, its old bytes are restored. Pipes and devices are written in place, too. Symbolic links are followed, also to
/// a file that does not exist yet. A file that is write-protected for all users is refused, also to root.
class AtomicFile {
 public:
  /// @throws RunFailure  the file cannot be written; the message names the path
  explicit AtomicFile(std::string path);
  AtomicFile(const AtomicFile&) = delete;
  AtomicFile& operator=(const AtomicFile&) = delete;
  ~AtomicFile();

  void write(std::string_view text) { text_ += text; }
  /// All of the file.
  void contain(std::string text) { text_ = std::move(text); }
  /// Takes what was written so far out of memory, where a file stands beside. @throws RunFailure  it cannot be written
  void flush();
  /// Renames the file once all of it is on the disk, so that even a crash of the machine leaves either the old file or
  /// the new one.
  /// @throws RunFailure  the file cannot be written or renamed
  /// @throws Cancelled  the task stops before the new file has the place of the old one, which stays as it is
  void commit(Task& task) { commit(&task); }
  void commit() { commit(nullptr); }

 private:
  [[noreturn]] void fail(const std::string& why) const;
  [[noreturn]] void fail(int reason) const;
  void begin_temporary();
  void prepare_to_replace(const struct stat& old);
  void open_in_place();
  void open_stream();
  void commit(Task* task);
  void commit_temporary(Task* task);
  void commit_in_place();
  void commit_stream();

  std::string path_;                    // as the user gave it, for messages
  std::string target_;                  // behind symbolic links
  std::optional<Temporary> temporary_;  // none when the target itself is written
  int in_place_ = -1;                   // the target, open for writing
  bool replaces_ = false;               // a regular file
  bool is_stream_ = false;              // a pipe or a device
  bool flushed_ = false;                // a part stands in the temporary file alone
  std::string text_;
};

}  // namespace zol
