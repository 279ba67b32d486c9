#include "core/record_reader.h"

#include <cmath>

#include "core/number_text.h"
#include "core/run_failure.h"

namespace zol {
namespace {

bool is_blank(char c) { return c == ' ' || c == '\t'; }
bool is_line_end(char c) { return c == '\r' || c == '\n'; }

std::string quoted_for_message(std::string_view text) {
  constexpr std::size_t longest = 40;
  if (text.size() <= longest) return '"' + std::string(text) + '"';
  return '"' + std::string(text.substr(0, longest)) + "...\"";
}

}  // namespace

bool RecordReader::at_end() const {
  for (std::size_t i = at_; i < text_.size(); ++i) {
    if (!is_blank(text_[i]) && !is_line_end(text_[i])) return false;
  }
  return true;
}

void RecordReader::fail(const std::string& what) const {
  throw RunFailure(path_ + ", line " + std::to_string(line_) + ": " + what);
}

void RecordReader::skip_line_end() {
  if (text_[at_] == '\r' && at_ + 1 < text_.size() && text_[at_ + 1] == '\n') ++at_;
  ++at_;
  ++next_line_;
}

std::string RecordReader::next_string(std::string_view field) {
  if (at_end()) {
    line_ = next_line_;
    fail("the file ends where " + std::string(field) + " is expected");
  }
  while (at_ < text_.size() && is_blank(text_[at_])) ++at_;
  line_ = next_line_;
  std::string content;
  if (at_ < text_.size() && text_[at_] == '"') {
    const std::size_t close = text_.find('"', at_ + 1);
    if (close == std::string::npos) fail("the quote before " + std::string(field) + " has no closing quote");
    content = text_.substr(at_ + 1, close - at_ - 1);
    at_ = close + 1;
    for (std::size_t i = 0; i < content.size(); ++i) {
      const bool crlf = content[i] == '\r' && i + 1 < content.size() && content[i + 1] == '\n';
      if (is_line_end(content[i]) && !crlf) ++next_line_;
    }
    while (at_ < text_.size() && text_[at_] != ',' && !is_line_end(text_[at_])) ++at_;
  } else {
    const std::size_t start = at_;
    while (at_ < text_.size() && text_[at_] != ',' && !is_line_end(text_[at_])) ++at_;
    content = text_.substr(start, at_ - start);
  }
  if (at_ < text_.size()) {
    if (text_[at_] == ',') {
      ++at_;
    } else {
      skip_line_end();
    }
  }
  return content;
}

Single RecordReader::next_single(std::string_view field) {
  const std::string content = next_string(field);
  const auto number = leading_number(content);
  if (!number) fail(std::string(field) + " is " + quoted_for_message(content) + ", a number is expected");
  const auto rounded = static_cast<Single>(number->value);
  if (!std::isfinite(rounded)) {
    fail(std::string(field) + " is " + quoted_for_message(content) + ", too large for a Single (below 3.4E+38)");
  }
  return rounded;
}

Integer RecordReader::next_integer(std::string_view field) {
  const std::string content = next_string(field);
  const auto number = leading_number(content);
  if (!number) fail(std::string(field) + " is " + quoted_for_message(content) + ", a whole number is expected");
  const double whole = round_half_even(number->value);
  if (!(whole >= -32768.0 && whole <= 32767.0)) {
    fail(std::string(field) + " is " + quoted_for_message(content) + ", it must be within -32768 to 32767");
  }
  return Integer::rounded(whole);
}

}  // namespace zol
