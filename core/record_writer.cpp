#include "core/record_writer.h"

#include "core/number_text.h"

namespace zol {

RecordText& RecordText::raw(std::string_view text) {
  if (line_begun_) text_ += ',';
  text_ += text;
  line_begun_ = true;
  return *this;
}

RecordText& RecordText::field(std::string_view text) { return raw('"' + std::string(text) + '"'); }
RecordText& RecordText::field(Single value) { return raw(shortest_text(value)); }
RecordText& RecordText::field(Integer value) { return raw(plain_text(value)); }

void RecordText::end_line() {
  text_ += "\r\n";
  line_begun_ = false;
}

void RecordWriter::commit() {
  file_.contain(take());
  file_.commit();
}

void RecordWriter::commit(Task& task) {
  file_.contain(take());
  file_.commit(task);
}

}  // namespace zol
