// Files and folders that are being written, beside their final place.
#pragma once

#include <string>

namespace zol {

/// A temporary file or folder, gone with this object unless it was renamed. It is locked while its program
/// runs; the next one made in the same folder removes those left by killed programs of the same user.
class Temporary {
 public:
  enum class Kind { file, folder };

  /// @param folder  with a slash at its end, or empty for the current one
  Temporary(const std::string& folder, Kind kind);
  Temporary(const Temporary&) = delete;
  Temporary& operator=(const Temporary&) = delete;
  ~Temporary();

  /// Why none could be made, as a value of errno; 0 when there is one.
  [[nodiscard]] int reason() const { return reason_; }
  [[nodiscard]] const std::string& path() const { return path_; }
  /// Open for writing, when it is a file.
  [[nodiscard]] int descriptor() const { return descriptor_; }
  /// It has been renamed and stays.
  void renamed() { path_.clear(); }

 private:
  bool make(const std::string& folder, Kind kind);

  std::string path_;
  int descriptor_ = -1;
  int reason_ = 0;
};

/// The folder part of a path, with the slash; empty when there is none.
[[nodiscard]] std::string folder_part(const std::string& path);

}  // namespace zol
