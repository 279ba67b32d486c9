// Files are written as a whole: to a temporary file beside them that takes their place only when it is complete.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/temporary.h"

struct stat;

namespace zol {

/// A file under way. Without commit, as when the run fails, nothing is left and an old file stays as it was.
///
/// The new file takes over owner, permissions and extended attributes of the old one. Where that can't be done, where
/// no file can be made beside the old one, and where that one has several names (hard links), it is written in place;
/// when that fails, its old bytes are put back. Pipes and devices are written in place, too. Symbolic links are
/// followed, also to a file that is not there yet. A file that is protected from all users is refused, also to root.
class AtomicFile {
 public:
  /// @throws RunFailure  the file can't be written; the message names the path
  explicit AtomicFile(std::string path);
  AtomicFile(const AtomicFile&) = delete;
  AtomicFile& operator=(const AtomicFile&) = delete;
  ~AtomicFile();

  void write(std::string_view text) { text_ += text; }
  /// Puts the file in its place once all of it is on the disk, so that even a machine that stops leaves the old file or
  /// the new one.
  /// @throws RunFailure  the file can't be written or renamed
  void commit();

 private:
  [[noreturn]] void fail(const std::string& why) const;
  [[noreturn]] void fail(int reason) const;
  void begin_temporary();
  void prepare_to_replace(const struct stat& old);
  void open_in_place();
  void open_stream();
  void commit_temporary();
  void commit_in_place();
  void commit_stream();

  std::string path_;                    // as the user gave it, for messages
  std::string target_;                  // behind symbolic links
  std::optional<Temporary> temporary_;  // none when the target itself is written
  int in_place_ = -1;                   // the target, open for writing
  bool replaces_ = false;               // a regular file
  bool is_stream_ = false;              // a pipe or a device
  std::string text_;
};

}  // namespace zol
