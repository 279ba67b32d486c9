#include "core/record_writer.h"

#include "core/number_text.h"

namespace zol {

RecordWriter& RecordWriter::raw(std::string_view text) {
  if (line_begun_) file_.write(",");
  file_.write(text);
  line_begun_ = true;
  return *this;
}

RecordWriter& RecordWriter::field(std::string_view text) { return raw('"' + std::string(text) + '"'); }
RecordWriter& RecordWriter::field(Single value) { return raw(shortest_text(value)); }
RecordWriter& RecordWriter::field(Integer value) { return raw(plain_text(value)); }

void RecordWriter::end_line() {
  file_.write("\r\n");
  line_begun_ = false;
}

}  // namespace zol
