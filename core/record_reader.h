// Reads plain text records, the form of all data files: fields separated by a comma or a line end, strings in double
// quotes.
//
// Bytes are Latin-1; CR LF, LF or CR ends a line.
#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "core/numbers.h"
#include "core/read_file.h"

namespace zol {

/// Reads fields one after the other, on whatever line they are. A blank before a field is skipped; a quoted field may
/// hold commas and loses its quotes; a field read as a number takes the number that it starts with.
/// The name given with each read appears in the message when the field is missing or not a number.
class RecordReader {
 public:
  /// @throws RunFailure  the file is missing or cannot be read
  explicit RecordReader(const std::string& path) : RecordReader(path, read_file(path)) {}
  /// Reads from a text in memory; the path only names it in messages.
  RecordReader(std::string path, std::string text) : path_(std::move(path)), text_(std::move(text)) {}

  /// True when only blanks and line ends are left.
  [[nodiscard]] bool at_end() const;

  /// @throws RunFailure  a read past the end
  [[nodiscard]] std::string next_string(std::string_view field);
  /// @throws RunFailure  a read past the end, not a number, or one too large for a Single
  [[nodiscard]] Single next_single(std::string_view field);
  /// Rounds half to even. @throws RunFailure  a read past the end, not a number, or one beyond 16 bits
  [[nodiscard]] Integer next_integer(std::string_view field);

  /// Line of the field read last, from 1.
  [[nodiscard]] int line() const { return line_; }
  /// Ends the run with "PATH, line N: " and the text.
  [[noreturn]] void fail(const std::string& what) const;

 private:
  void skip_line_end();

  std::string path_;
  std::string text_;
  std::size_t at_ = 0;
  int line_ = 1;       // of the field read last
  int next_line_ = 1;  // of the next character
};

}  // namespace zol
