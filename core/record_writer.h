// Writes plain text records, the form of all data files. Bytes are Latin-1; lines end with CR LF.
#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "core/atomic_file.h"
#include "core/numbers.h"

namespace zol {

/// Records: fields separated by a comma without blanks, strings quoted, numbers in their shortest plain form.
class RecordText {
 public:
  RecordText& field(std::string_view text);
  RecordText& field(Single value);
  RecordText& field(Integer value);
  void end_line();
  [[nodiscard]] const std::string& text() const { return text_; }
  [[nodiscard]] std::string take() { return std::move(text_); }

 private:
  RecordText& raw(std::string_view text);

  std::string text_;
  bool line_begun_ = false;
};

/// Records that become a file.
class RecordWriter : public RecordText {
 public:
  /// @throws RunFailure  the file cannot be created
  explicit RecordWriter(std::string path) : file_(std::move(path)) {}
  /// Puts the file in its place. @throws RunFailure  it cannot be written
  /// @throws Cancelled  the task stops; there is no new file then
  void commit(Task& task);
  void commit();

 private:
  AtomicFile file_;
};

}  // namespace zol
