#include "structures/cif_text.h"

#include <algorithm>
#include <cctype>
#include <vector>

namespace zol {
namespace {

std::string in_line(std::size_t line) { return "line " + std::to_string(line + 1) + ": "; }

/// UTF-8 as Latin-1, with a question mark for what that lacks; other bytes as they stand.
std::string latin1(std::string_view bytes) {
  std::string text;
  text.reserve(bytes.size());
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    const auto byte = static_cast<unsigned char>(bytes[i]);
    const auto follows = [&](std::size_t n) {
      for (std::size_t k = 1; k <= n; ++k) {
        if (i + k >= bytes.size() || (static_cast<unsigned char>(bytes[i + k]) & 0xC0U) != 0x80U) return false;
      }
      return true;
    };
    if (byte >= 0xC2 && byte <= 0xDF && follows(1)) {
      const unsigned code = ((byte & 0x1FU) << 6U) | (static_cast<unsigned char>(bytes[i + 1]) & 0x3FU);
      text += code <= 0xFF ? static_cast<char>(code) : '?';
      i += 1;
    } else if (byte >= 0xE0 && byte <= 0xEF && follows(2)) {
      if (byte != 0xEF || bytes.substr(i, 3) != "\xEF\xBB\xBF") text += '?';
      i += 2;
    } else if (byte >= 0xF0 && follows(3)) {
      text += '?';
      i += 3;
    } else {
      text += bytes[i];
    }
  }
  return text;
}

/// Two bytes a character, the low one first or last.
std::string from_utf16(std::string_view bytes, bool low_first) {
  std::string text;
  for (std::size_t i = 2; i + 1 < bytes.size(); i += 2) {
    const char low = bytes[low_first ? i : i + 1];
    const char high = bytes[low_first ? i + 1 : i];
    text += high == 0 ? low : '?';
  }
  return text;
}

std::string plain_bytes(std::string_view bytes) {
  std::string text;
  if (bytes.starts_with("\xFF\xFE")) {
    text = from_utf16(bytes, true);
  } else if (bytes.starts_with("\xFE\xFF")) {
    text = from_utf16(bytes, false);
  } else {
    text = latin1(bytes);
  }
  for (char& c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if ((byte < ' ' && c != '\n' && c != '\r') || byte == 0x7F) c = ' ';
  }
  return text;
}

std::vector<std::string> lines_of(const std::string& text) {
  std::vector<std::string> lines(1);
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n') continue;
    if (text[i] == '\n' || text[i] == '\r') {
      lines.emplace_back();
    } else {
      lines.back() += text[i];
    }
  }
  return lines;
}

bool starts_like(std::string_view text, std::string_view word) {
  return text.size() >= word.size() && std::equal(word.begin(), word.end(), text.begin(), [](char a, char b) {
           return a == static_cast<char>(std::tolower(static_cast<unsigned char>(b)));
         });
}

bool is_blank(char c) { return c == ' ' || c == '\t'; }

/// A line that ends a text field whose closing semicolon is missing.
bool starts_something(std::string_view line) {
  return (line.starts_with('_') && line.size() > 2 && std::isalpha(static_cast<unsigned char>(line[1])) != 0) ||
         starts_like(line, "loop_") || starts_like(line, "data_");
}

class Mender {
 public:
  explicit Mender(std::string_view bytes) : lines_(lines_of(plain_bytes(bytes))) {
    version_2_ = starts_like(lines_.front(), "#\\#cif_2");
  }

  MendedCif mended() {
    for (line_ = 0; line_ < lines_.size(); ++line_) {
      if (lines_[line_].starts_with(';') && takes_value()) {
        take_text_field();
      } else {
        take_line(lines_[line_]);
      }
      result_.text += '\n';
    }
    finish_item();
    if (state_ == State::BeforeBlock) emit("data_empty");
    result_.text += '\n';
    return std::move(result_);
  }

 private:
  enum class State { BeforeBlock, Item, Value, LoopStart, LoopTags, LoopValues };

  [[nodiscard]] bool takes_value() const {
    return state_ == State::Value || state_ == State::LoopTags || state_ == State::LoopValues;
  }
  void emit(std::string_view word) {
    if (!result_.text.empty() && result_.text.back() != '\n') result_.text += ' ';
    result_.text += word;
  }

  void take_line(const std::string& line) {
    std::size_t at = 0;
    while (true) {
      while (at < line.size() && is_blank(line[at])) ++at;
      if (at >= line.size() || line[at] == '#') return;
      if (line[at] == '\'' || line[at] == '"') {
        at = take_quoted(line, at);
        if (line_ >= lines_.size() || &line != &lines_[line_]) return;  // it went on over lines
      } else if (version_2_ && (line[at] == '[' || line[at] == '{')) {
        at = take_list(line, at);
      } else {
        const std::size_t end = std::min(line.find_first_of(" \t", at), line.size());
        take_word(line.substr(at, end - at));
        at = end;
      }
    }
  }

  /// A quote closes where a blank follows. @returns the place behind it
  std::size_t take_quoted(const std::string& line, std::size_t at) {
    const char quote = line[at];
    if (version_2_ && line.compare(at, 3, std::string(3, quote)) == 0) return take_triple_quoted(line, at);
    for (std::size_t end = at + 1; end < line.size(); ++end) {
      if (line[end] != quote) continue;
      if (end + 1 < line.size() && !is_blank(line[end + 1]) && line[end + 1] != '#') continue;
      take_value(line.substr(at + 1, end - at - 1), true);
      return end + 1;
    }
    result_.notes.assume(in_line(line_) + "a closing quote is missing, the value ends with the line");
    std::string value = line.substr(at + 1);
    while (!value.empty() && is_blank(value.back())) value.pop_back();
    take_value(value, true);
    return line.size();
  }

  std::size_t take_triple_quoted(const std::string& line, std::size_t at) {
    const std::string quotes = line.substr(at, 3);
    std::string value;
    std::size_t from = at + 3;
    for (std::size_t row = line_; row < lines_.size(); ++row, from = 0) {
      const std::size_t end = lines_[row].find(quotes, from);
      if (end == std::string::npos) {
        value += lines_[row].substr(from) + '\n';
        continue;
      }
      value += lines_[row].substr(from, end - from);
      take_value(value, true);
      if (row == line_) return end + 3;
      const std::string rest = lines_[row].substr(end + 3);
      result_.text.append(row - line_, '\n');
      line_ = row;
      lines_[row] = rest;
      take_line(lines_[row]);
      return std::string::npos;
    }
    take_value(line.substr(at + 3), true);
    return line.size();
  }

  std::size_t take_list(const std::string& line, std::size_t at) {
    const std::size_t end = std::min(line.find_last_of("]}"), line.size() - 1);
    take_value(line.substr(at, end - at + 1), true);
    return end + 1;
  }

  void take_text_field() {
    std::size_t end = line_ + 1;
    while (end < lines_.size() && !lines_[end].starts_with(';')) ++end;
    const bool closed = end < lines_.size();
    if (!closed) {
      result_.notes.assume(in_line(line_) + "the text that starts here has no end");
      end = line_ + 1;
      while (end < lines_.size() && !starts_something(lines_[end])) ++end;
    }
    std::string value = lines_[line_].substr(1);
    for (std::size_t row = line_ + 1; row < end; ++row) value += '\n' + lines_[row];
    take_value(value, true);
    if (!closed) {
      line_ = end - 1;
      return;
    }
    line_ = end;
    take_line(lines_[end].substr(1));
  }

  void take_word(const std::string& word) {
    if (starts_like(word, "data_") || starts_like(word, "global_")) {
      finish_item();
      emit(starts_like(word, "data_") ? word : "data_" + word);
      state_ = State::Item;
    } else if (starts_like(word, "loop_") && word.size() == 5) {
      finish_item();
      open_block();
      state_ = State::LoopStart;
    } else if (starts_like(word, "save_") || starts_like(word, "stop_")) {
      finish_item();
    } else if (word.size() > 1 && word[0] == '_') {
      take_tag(word);
    } else {
      take_value(word, false);
    }
  }

  void open_block() {
    if (state_ != State::BeforeBlock) return;
    result_.notes.assume(in_line(line_) + "no block has been opened before, as by \"data_\"");
    emit("data_unnamed");
    state_ = State::Item;
  }

  /// What has been begun gets what it lacks.
  void finish_item() {
    if (state_ == State::Value) emit("?");
    if (state_ == State::LoopTags) {
      for (std::size_t i = 0; i < tags_; ++i) emit("?");
    }
    if (state_ == State::LoopValues && values_ % tags_ != 0) {
      result_.notes.doubt(in_line(value_line_) + "the loop that ends here lacks values of its last row");
      for (; values_ % tags_ != 0; ++values_) emit("?");
    }
    if (state_ != State::BeforeBlock) state_ = State::Item;
  }

  void take_tag(const std::string& word) {
    open_block();
    std::string tag = word;
    std::erase_if(tag, [](char c) { return static_cast<unsigned char>(c) > '~'; });
    if (state_ == State::LoopStart) {
      emit("loop_");
      tags_ = 0;
      values_ = 0;
      state_ = State::LoopTags;
    }
    if (state_ == State::LoopTags) {
      ++tags_;
    } else {
      finish_item();
      state_ = State::Value;
    }
    emit(tag);
  }

  void take_value(const std::string& value, bool quoted) {
    if (!takes_value()) {
      if (state_ != State::BeforeBlock)
        result_.notes.assume(in_line(line_) + "\"" + value.substr(0, 30) + "\" belongs to no tag");
      return;
    }
    emit_value(value, quoted);
    if (state_ == State::Value) {
      state_ = State::Item;
    } else {
      state_ = State::LoopValues;
      value_line_ = line_;
      ++values_;
    }
  }

  void emit_value(const std::string& value, bool quoted) {
    const bool bare = !quoted && !value.empty() &&
                      std::string_view("_$#[];").find(value[0]) == std::string_view::npos &&
                      std::all_of(value.begin(), value.end(), [](char c) { return c > ' ' && c <= '~'; });
    if (bare) return emit(value);
    const auto closes_inside = [&value](char quote) { return value.find(quote) != std::string::npos; };
    if (value.find('\n') == std::string::npos) {
      if (!closes_inside('\'')) return emit("'" + value + "'");
      if (!closes_inside('"')) return emit("\"" + value + "\"");
    }
    if (!result_.text.empty() && result_.text.back() != '\n') result_.text += '\n';
    result_.text += ";" + value + "\n;";
  }

  std::vector<std::string> lines_;
  std::size_t line_ = 0;
  bool version_2_ = false;
  State state_ = State::BeforeBlock;
  std::size_t tags_ = 0;
  std::size_t values_ = 0;
  std::size_t value_line_ = 0;  // of the last one
  MendedCif result_;
};

}  // namespace

MendedCif mended_cif(std::string_view bytes) { return Mender(bytes).mended(); }

}  // namespace zol
