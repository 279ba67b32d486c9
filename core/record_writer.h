// Writes plain text records, the form of all data files. Bytes are Latin-1; lines end with CR LF.
#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "core/atomic_file.h"
#include "core/numbers.h"

namespace zol {

/// Writes records: fields separated by a comma without blanks, strings quoted, numbers in their shortest plain form.
class RecordWriter {
 public:
  /// @throws RunFailure  the file cannot be created
  explicit RecordWriter(std::string path) : file_(std::move(path)) {}

  RecordWriter& field(std::string_view text);
  RecordWriter& field(Single value);
  RecordWriter& field(Integer value);
  void end_line();
  /// Puts the file in its place. @throws RunFailure  it cannot be written
  void commit() { file_.commit(); }

 private:
  RecordWriter& raw(std::string_view text);

  AtomicFile file_;
  bool line_begun_ = false;
};

}  // namespace zol
